// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/NotificationCenter.h"

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>

/// Posted for an edit that holds a forbidden or wrong character, or makes the text too long.
inline constexpr QLatin1String kInvalidCharacterNotification("InvalidCharacterNotification");
/// Posted for an edit that leaves a number outside of the bounds in force.
inline constexpr QLatin1String kFormatErrorNotification("FormatErrorNotification");

/// A stretch of a text, in UTF-16 units.
struct TextRange
{
    qint64 location = 0;
    qint64 length = 0;

    bool operator==(const TextRange &) const = default;
};

/// Formats the value of a text field and judges every edit as it is typed.
///
/// The text style says which characters are let through: 0 any text; 1, 3, 5, 12 and above, and all
/// negative ones any ASCII; 2 digits; 4 digits and one full stop; 6 digits, letters and the space;
/// 7 the characters of Code 39; 8 digits and $ + - . / : ; 9 those and the start and stop letters
/// of Codabar; 10 printable ASCII; 11 printable ASCII without # $ & @ [ \ ] ^ ` { | } ~. Styles 2
/// and 4 also check the bounds that are in force. Style 5 shows a calendar date.
///
/// A refused edit is one beep (platform/Beep.h) and one notification without user information on
/// the default centre. Its object is the offending character, else the notification object, else
/// the formatter's address.
///
/// Settings may change at any time. The interface thread only.
class PDEFormatter
{
public:
    /// Format "%@", style 0.
    PDEFormatter();
    /// Format "%@".
    explicit PDEFormatter(qint32 style);
    /// No format is "%@".
    explicit PDEFormatter(const std::optional<QString> &formatString, qint32 withStyle = 0);
    /// Style 5 without a format: the date in its default form.
    PDEFormatter(const std::optional<QDateTime> &calendarDate,
                 const std::optional<QVariantMap> &locale);
    virtual ~PDEFormatter();
    PDEFormatter(const PDEFormatter &) = delete;
    PDEFormatter &operator=(const PDEFormatter &) = delete;

    /// The text that shows `object`; an invalid QVariant is no object.
    virtual QString stringForObjectValue(const QVariant &object) const;

    /// Sets `object` to the value that `string` stands for, always a text. Without either nothing
    /// is set. Always true; `errorDescription` is never set.
    virtual bool getObjectValue(QVariant *object, const std::optional<QString> &string,
                                std::optional<QString> *errorDescription) const;

    /// Whether the edit that makes `partialString` out of `originalString` is accepted; the ranges
    /// are the selections after and before it. Deletions, moves of the caret and clearing always
    /// are. Nothing is changed through the pointers, which may be null.
    virtual bool isPartialStringValid(std::optional<QString> *partialString,
                                      TextRange *proposedSelectedRange,
                                      const std::optional<QString> &originalString,
                                      const TextRange &originalSelectedRange,
                                      std::optional<QString> *errorDescription);

    /// How values are shown: "%@" stands for the value itself. Without "%@", styles 2 and 4 hand an
    /// integer to the format. Nothing only after the date initialiser.
    std::optional<QString> formatString() const;
    /// Nothing is "%@".
    void setFormatString(const std::optional<QString> &formatString);

    /// The date that style 5 shows in the place of any value.
    std::optional<QDateTime> calendarDate() const;
    void setCalendarDate(const std::optional<QDateTime> &date);
    /// Names and formats for the date, see controls/CalendarFormat.h.
    std::optional<QVariantMap> calendarLocale() const;
    void setCalendarLocale(const std::optional<QVariantMap> &locale);

    platform::NotificationObject notificationObject() const;
    /// An address is neither followed nor kept alive.
    void setNotificationObject(const platform::NotificationObject &object);

    qint32 textStyle() const;
    void setTextStyle(qint32 style);
    /// Of the whole text in bytes of the system encoding; 0 is no limit, a negative one refuses
    /// all.
    qint32 maxLength() const;
    void setMaxLength(qint32 length);

    /// Both bounds are inclusive. Setting one puts it in force.
    qint32 maxValue() const;
    void setMaxValue(qint32 value);
    qint32 minValue() const;
    void setMinValue(qint32 value);
    bool isValidityMaxValue() const;
    void setValidityMaxValue(bool inForce);
    bool isValidityMinValue() const;
    void setValidityMinValue(bool inForce);

    /// Entries are compared with the whole text of an edit, so that one of a single character stops
    /// that character when it is typed, not when it is pasted among others. Canonically equivalent
    /// spellings are equal.
    void addInvalidCharacter(const std::optional<QString> &entry);
    /// Drops the first equal entry and all that are spelled like it.
    void removeInvalidCharacter(const std::optional<QString> &entry);
    bool isInvalidCharacter(const std::optional<QString> &text) const;

protected:
    /// The text that an edit has put in, empty when it has put in none.
    static QString insertedText(const QString &proposed, const TextRange &proposedRange,
                                const TextRange &originalRange);

    /// Beeps, posts `notification`, and answers no.
    bool refuse(QLatin1String notification, const std::optional<QChar> &offending);

private:
    struct Edit;
    Edit edit(const QString &proposed, const QString &inserted, const QString &original) const;
    bool judge(const Edit &edit);
    QString formatted(const QVariant &object) const;
    /// Nothing when the bounds in force let the number through.
    std::optional<QLatin1String> rangeFailure(const QString &text) const;

    std::optional<QString> mFormatString;
    qint32 mTextStyle = 0;
    qint32 mMaxLength = 0;
    bool mIsValidityMaxValue = false;
    bool mIsValidityMinValue = false;
    qint32 mMaxValue = 0;
    qint32 mMinValue = 0;
    platform::NotificationObject mObject;
    std::optional<QStringList> mInvalidCaracters;
    std::optional<QDateTime> mDate;
    std::optional<QVariantMap> mLocale;
};
