// SPDX-License-Identifier: Apache-2.0
#include "controls/CalendarFormat.h"

#include <QLocale>
#include <QTimeZone>

#include <algorithm>
#include <cstdlib>

namespace controls {
namespace {

constexpr QLatin1String kDefaultFormat("%Y-%m-%d %H:%M:%S %z");
constexpr QLatin1String kEnglishTime("%H:%M:%S");
constexpr QLatin1String kEnglishDate("%A, %B %e, %Y");
constexpr QLatin1String kTimeThenDate("%X %x");

/// A locale's format of time and date may name those of the time and of the date, these nothing
/// more: a format that names itself ends.
constexpr int kDeepestFormat = 2;

QStringList englishNames(QLatin1String key)
{
    const QLocale english = QLocale::c();
    const bool isShort = key == kShortWeekDayNames || key == kShortMonthNames;
    const auto form = isShort ? QLocale::ShortFormat : QLocale::LongFormat;
    QStringList names;
    if (key == kAmPmNames) {
        names << english.amText() << english.pmText();
    } else if (key == kWeekDayNames || key == kShortWeekDayNames) {
        for (int day = 0; day < 7; ++day) {
            names << english.dayName(day == 0 ? 7 : day, form);
        }
    } else {
        for (int month = 1; month <= 12; ++month) {
            names << english.monthName(month, form);
        }
    }
    return names;
}

class Description
{
public:
    Description(const QDateTime &date, const std::optional<QVariantMap> &locale)
        : mDate(date.date())
        , mTime(date.time())
        , mMoment(date)
        , mLocale(locale.value_or(QVariantMap()))
    { }

    QString of(const QString &format, int depth = 0) const;

private:
    std::optional<QString> conversion(QChar letter, int places, int depth) const;
    std::optional<QString> number(QChar letter, int places) const;
    std::optional<QString> name(QChar letter) const;
    std::optional<QString> nested(QChar letter, int depth) const;
    QString nameAt(QLatin1String key, int index, int shown) const;
    QString localeFormat(QLatin1String key, QLatin1String english) const;
    QString offset() const;

    QDate mDate;
    QTime mTime;
    QDateTime mMoment;
    QVariantMap mLocale;
};

QString Description::of(const QString &format, int depth) const
{
    QString text;
    for (qsizetype i = 0; i < format.size(); ++i) {
        if (format.at(i) != QLatin1Char('%')) {
            text += format.at(i);
            continue;
        }
        qsizetype letter = i + 1;
        int places = -1;
        if (letter < format.size() && format.at(letter) >= QLatin1Char('0')
            && format.at(letter) <= QLatin1Char('9')) {
            places = format.at(letter++).digitValue();
        }
        const std::optional<QString> value =
            letter < format.size() ? conversion(format.at(letter), places, depth) : std::nullopt;
        text += value ? *value : format.mid(i, letter + 1 - i);
        i = letter;
    }
    return text;
}

std::optional<QString> Description::conversion(QChar letter, int places, int depth) const
{
    if (letter == QLatin1Char('%')) {
        return QStringLiteral("%");
    }
    if (const auto digits = number(letter, places)) {
        return digits;
    }
    const auto text = name(letter);
    return text ? text : nested(letter, depth);
}

std::optional<QString> Description::number(QChar letter, int places) const
{
    const auto filled = [places](int value, int usualPlaces) {
        const QString digits = QString::number(std::abs(value));
        const QString sign = value < 0 ? QStringLiteral("-") : QString();
        return sign + digits.rightJustified(places < 0 ? usualPlaces : places, QLatin1Char('0'));
    };
    switch (letter.toLatin1()) {
    case 'd':
        return filled(mDate.day(), 2);
    case 'e':
        return filled(mDate.day(), 1);
    case 'm':
        return filled(mDate.month(), 2);
    case 'y':
        return filled(std::abs(mDate.year()) % 100, 2);
    case 'Y':
        return filled(mDate.year(), 4);
    case 'j':
        return filled(mDate.dayOfYear(), 3);
    case 'w':
        return filled(mDate.dayOfWeek() % 7, 1);
    case 'H':
        return filled(mTime.hour(), 2);
    case 'I':
        return filled((mTime.hour() + 11) % 12 + 1, 2);
    case 'M':
        return filled(mTime.minute(), 2);
    case 'S':
        return filled(mTime.second(), 2);
    case 'F':
        return filled(mTime.msec(), 3);
    default:
        return std::nullopt;
    }
}

std::optional<QString> Description::name(QChar letter) const
{
    const int weekDay = mDate.isValid() ? mDate.dayOfWeek() % 7 : -1;
    const int month = mDate.month();
    const int afternoon = mTime.hour() < 12 ? 0 : 1;
    switch (letter.toLatin1()) {
    case 'a':
        return nameAt(kShortWeekDayNames, weekDay, std::max(weekDay, 0));
    case 'A':
        return nameAt(kWeekDayNames, weekDay, std::max(weekDay, 0));
    case 'b':
        return nameAt(kShortMonthNames, month - 1, month);
    case 'B':
        return nameAt(kMonthNames, month - 1, month);
    case 'p':
        return nameAt(kAmPmNames, afternoon, afternoon);
    case 'Z':
        return mMoment.timeZoneAbbreviation();
    case 'z':
        return offset();
    default:
        return std::nullopt;
    }
}

std::optional<QString> Description::nested(QChar letter, int depth) const
{
    if (depth >= kDeepestFormat) {
        return std::nullopt;
    }
    switch (letter.toLatin1()) {
    case 'X':
        return of(localeFormat(kTimeFormat, kEnglishTime), kDeepestFormat);
    case 'x':
        return of(localeFormat(kDateFormat, kEnglishDate), kDeepestFormat);
    case 'c':
        return depth > 0
            ? std::nullopt
            : std::optional(of(localeFormat(kTimeDateFormat, kTimeThenDate), depth + 1));
    default:
        return std::nullopt;
    }
}

QString Description::nameAt(QLatin1String key, int index, int shown) const
{
    const QStringList names =
        mLocale.contains(key) ? mLocale.value(key).toStringList() : englishNames(key);
    return index >= 0 && index < names.size() ? names.at(index) : QString::number(shown);
}

QString Description::localeFormat(QLatin1String key, QLatin1String english) const
{
    return mLocale.value(key, QString(english)).toString();
}

QString Description::offset() const
{
    const int seconds = mMoment.offsetFromUtc();
    const int minutes = std::abs(seconds) / 60;
    return (seconds < 0 ? QStringLiteral("-") : QStringLiteral("+"))
        + QString::number(minutes / 60 * 100 + minutes % 60).rightJustified(4, QLatin1Char('0'));
}

} // namespace

QString descriptionWithCalendarFormat(const QDateTime &date, const std::optional<QString> &format,
                                      const std::optional<QVariantMap> &locale)
{
    return Description(date, locale).of(format.value_or(kDefaultFormat));
}

} // namespace controls
