// SPDX-License-Identifier: Apache-2.0
#include "controls/CalendarFormat.h"
#include "controls/PDEFormatter.h"
#include "controls/PDEFormatter_Styles.h"
#include "platform/FormatString.h"
#include "platform/IntegerValue.h"

#include <QMetaType>

#include <algorithm>
#include <limits>

using controls::kCalendarDate;
using controls::kDecimal;
using controls::kInteger;
using controls::kTheValueItself;

namespace {

bool isReal(const QVariant &object)
{
    return object.typeId() == QMetaType::Double || object.typeId() == QMetaType::Float;
}

/// Whole numbers and truth values.
bool isWhole(const QVariant &object)
{
    return !isReal(object) && object.typeId() != QMetaType::QString
        && object.canConvert<qlonglong>();
}

/// Numbers are cut towards zero and to the 32-bit limits.
qint32 intValue(const QVariant &object)
{
    using Limits = std::numeric_limits<qint32>;
    if (isReal(object)) {
        const double value = object.toDouble();
        return value == value ? qint32(std::clamp(value, double(Limits::min()), //
                                                  double(Limits::max())))
                              : 0;
    }
    if (isWhole(object)) {
        return qint32(std::clamp<qint64>(object.toLongLong(), Limits::min(), Limits::max()));
    }
    return platform::integerValue(object.toString());
}

platform::FormatArgument argument(const QVariant &object)
{
    if (!object.isValid()) {
        return {};
    }
    if (isReal(object)) {
        return object.toDouble();
    }
    if (isWhole(object)) {
        return qint64(object.toLongLong());
    }
    return object.toString();
}

} // namespace

QString PDEFormatter::stringForObjectValue(const QVariant &object) const
{
    return mTextStyle == kCalendarDate && mDate
        ? controls::descriptionWithCalendarFormat(*mDate, mFormatString, mLocale)
        : formatted(object);
}

bool PDEFormatter::getObjectValue(QVariant *object, const std::optional<QString> &string,
                                  std::optional<QString> * /*errorDescription*/) const
{
    if (object && string) {
        *object = stringForObjectValue(*string);
    }
    return true;
}

QString PDEFormatter::formatted(const QVariant &object) const
{
    const QString format = mFormatString.value_or(QString());
    const bool takesInteger =
        (mTextStyle == kInteger || mTextStyle == kDecimal) && !format.contains(kTheValueItself);
    // Meant: decimals lose their fraction here too.
    return platform::formatted(
        format,
        {takesInteger ? platform::FormatArgument(qint64(intValue(object))) : argument(object)});
}
