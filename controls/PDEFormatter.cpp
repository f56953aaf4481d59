// SPDX-License-Identifier: Apache-2.0
#include "controls/PDEFormatter.h"

#include "controls/PDEFormatter_Styles.h"
#include "platform/Beep.h"
#include "platform/IntegerValue.h"
#include "platform/TextEncodings.h"

#include <algorithm>

using controls::kCalendarDate;
using controls::kDecimal;
using controls::kFreeText;
using controls::kInteger;
using platform::TextEncoding;

namespace {

/// Spellings that mean the same text have the same one of these.
QString canonical(const QString &text)
{
    return text.normalized(QString::NormalizationForm_D);
}

/// Meant: nothing is equal to everything.
bool isEqual(const std::optional<QString> &text, const QString &entry)
{
    return !text || canonical(*text) == canonical(entry);
}

qint64 lengthInSystemEncoding(const QString &text)
{
    const std::optional<QByteArray> bytes = platform::encodeSystem(text);
    return bytes ? bytes->size() : text.size();
}

} // namespace

/// What the steps of a judgement ask about an edit, found out once for all its characters.
struct PDEFormatter::Edit
{
    QString inserted;
    bool fitsMacRoman;
    bool isForbidden;
    bool isTooLong;
    bool isAscii;
    bool hadFullStop;
    std::optional<QLatin1String> rangeFailure;
};

PDEFormatter::PDEFormatter()
    : PDEFormatter(std::nullopt, 0)
{ }

PDEFormatter::PDEFormatter(qint32 style)
    : PDEFormatter(std::nullopt, style)
{ }

PDEFormatter::PDEFormatter(const std::optional<QString> &formatString, qint32 withStyle)
    : mTextStyle(withStyle)
{
    setFormatString(formatString);
}

// Meant: no format, so that the date is described in its default form.
PDEFormatter::PDEFormatter(const std::optional<QDateTime> &calendarDate,
                           const std::optional<QVariantMap> &locale)
    : mTextStyle(kCalendarDate)
{
    setCalendarDate(calendarDate);
    setCalendarLocale(locale);
}

PDEFormatter::~PDEFormatter()
{
    mInvalidCaracters.reset();
    mFormatString.reset();
    mObject = {};
    mDate.reset();
    mLocale.reset();
}

bool PDEFormatter::isPartialStringValid(std::optional<QString> *partialString,
                                        TextRange *proposedSelectedRange,
                                        const std::optional<QString> &originalString,
                                        const TextRange &originalSelectedRange,
                                        std::optional<QString> * /*errorDescription*/)
{
    if (!partialString || !*partialString || (*partialString)->isEmpty()
        || !proposedSelectedRange) {
        return true;
    }
    const QString inserted =
        insertedText(**partialString, *proposedSelectedRange, originalSelectedRange);
    return inserted.isEmpty()
        || judge(edit(**partialString, inserted, originalString.value_or(QString())));
}

QString PDEFormatter::insertedText(const QString &proposed, const TextRange &proposedRange,
                                   const TextRange &originalRange)
{
    const qint64 start = originalRange.location;
    const qint64 end = proposedRange.location;
    // A selection that does not lie in the text tells nothing about what was put in.
    return start >= 0 && start < end && end <= proposed.size() ? proposed.mid(start, end - start)
                                                               : QString();
}

PDEFormatter::Edit PDEFormatter::edit(const QString &proposed, const QString &inserted,
                                      const QString &original) const
{
    const qint64 length = lengthInSystemEncoding(proposed);
    const bool checksRange = mMaxLength == 0 || length == mMaxLength;
    return {inserted, platform::encodedLength(inserted, TextEncoding::MacRoman).has_value(),
            isInvalidCharacter(inserted), mMaxLength != 0 && mMaxLength < length,
            platform::encodedLength(inserted, TextEncoding::Ascii).has_value(),
            original.contains(QLatin1Char('.')),
            // Meant: a number that may still grow is not checked, so that it can be typed.
            checksRange ? rangeFailure(proposed) : std::nullopt};
}

bool PDEFormatter::judge(const Edit &edit)
{
    std::optional<QLatin1String> failure;
    std::optional<QChar> offending;
    for (const QChar unit : edit.inserted) {
        // Meant: tests of the whole inserted text blame each of its characters in turn.
        if ((mTextStyle != kFreeText && !edit.fitsMacRoman) || edit.isForbidden) {
            offending = unit;
            failure = kInvalidCharacterNotification;
        } else if (edit.isTooLong) {
            failure = kInvalidCharacterNotification;
        } else if (mTextStyle == kFreeText) {
            continue;
        } else if (!edit.isAscii || !controls::styleAccepts(mTextStyle, unit.unicode())
                   || (mTextStyle == kDecimal && unit == QLatin1Char('.') && edit.hadFullStop)) {
            failure = kInvalidCharacterNotification;
        } else if ((mTextStyle == kInteger || mTextStyle == kDecimal) && edit.rangeFailure) {
            failure = edit.rangeFailure;
        }
    }
    return !failure || refuse(*failure, offending);
}

std::optional<QLatin1String> PDEFormatter::rangeFailure(const QString &text) const
{
    const qint32 value = platform::integerValue(text);
    const bool outside =
        (mIsValidityMaxValue && mMaxValue < value) || (mIsValidityMinValue && mMinValue > value);
    return outside ? std::optional(kFormatErrorNotification) : std::nullopt;
}

bool PDEFormatter::refuse(QLatin1String notification, const std::optional<QChar> &offending)
{
    platform::NotificationObject object = mObject;
    if (offending) {
        object = QString(*offending);
    } else if (std::holds_alternative<std::monostate>(mObject)) {
        object = static_cast<const void *>(this);
    }
    platform::beep();
    platform::NotificationCenter::defaultCenter().post(notification, object);
    return false;
}

std::optional<QString> PDEFormatter::formatString() const
{
    return mFormatString;
}

void PDEFormatter::setFormatString(const std::optional<QString> &formatString)
{
    mFormatString = formatString.value_or(controls::kTheValueItself);
}

std::optional<QDateTime> PDEFormatter::calendarDate() const
{
    return mDate;
}

void PDEFormatter::setCalendarDate(const std::optional<QDateTime> &date)
{
    mDate = date;
}

std::optional<QVariantMap> PDEFormatter::calendarLocale() const
{
    return mLocale;
}

void PDEFormatter::setCalendarLocale(const std::optional<QVariantMap> &locale)
{
    mLocale = locale;
}

platform::NotificationObject PDEFormatter::notificationObject() const
{
    return mObject;
}

void PDEFormatter::setNotificationObject(const platform::NotificationObject &object)
{
    mObject = object;
}

qint32 PDEFormatter::textStyle() const
{
    return mTextStyle;
}

void PDEFormatter::setTextStyle(qint32 style)
{
    mTextStyle = style;
}

qint32 PDEFormatter::maxLength() const
{
    return mMaxLength;
}

void PDEFormatter::setMaxLength(qint32 length)
{
    mMaxLength = length;
}

qint32 PDEFormatter::maxValue() const
{
    return mMaxValue;
}

void PDEFormatter::setMaxValue(qint32 value)
{
    mMaxValue = value;
    setValidityMaxValue(true);
}

qint32 PDEFormatter::minValue() const
{
    return mMinValue;
}

void PDEFormatter::setMinValue(qint32 value)
{
    mMinValue = value;
    setValidityMinValue(true);
}

bool PDEFormatter::isValidityMaxValue() const
{
    return mIsValidityMaxValue;
}

void PDEFormatter::setValidityMaxValue(bool inForce)
{
    mIsValidityMaxValue = inForce;
}

bool PDEFormatter::isValidityMinValue() const
{
    return mIsValidityMinValue;
}

void PDEFormatter::setValidityMinValue(bool inForce)
{
    mIsValidityMinValue = inForce;
}

void PDEFormatter::addInvalidCharacter(const std::optional<QString> &entry)
{
    if (!entry) {
        return;
    }
    if (!mInvalidCaracters) {
        mInvalidCaracters.emplace();
    }
    mInvalidCaracters->append(*entry);
}

void PDEFormatter::removeInvalidCharacter(const std::optional<QString> &entry)
{
    if (!mInvalidCaracters) {
        return;
    }
    const auto found = std::find_if(mInvalidCaracters->cbegin(), mInvalidCaracters->cend(),
                                    [&entry](const QString &each) { return isEqual(entry, each); });
    if (found != mInvalidCaracters->cend()) {
        // A copy: the entry goes while it is compared with.
        mInvalidCaracters->removeAll(QString(*found));
    }
}

bool PDEFormatter::isInvalidCharacter(const std::optional<QString> &text) const
{
    return mInvalidCaracters
        && std::any_of(mInvalidCaracters->cbegin(), mInvalidCaracters->cend(),
                       [&text](const QString &entry) { return isEqual(text, entry); });
}
