// SPDX-License-Identifier: Apache-2.0
#include "tools/Members.h"

#include "tools/RequestError.h"

#include <cmath>
#include <limits>

namespace tools {
namespace {

RequestError mistyped(const char *name, const char *expected)
{
    return RequestError(QStringLiteral("member \"%1\" must be %2")
                            .arg(QLatin1String(name), QLatin1String(expected)));
}

} // namespace

QJsonValue Members::required(const char *name) const
{
    const auto member = mObject.constFind(QLatin1String(name));
    if (member == mObject.constEnd()) {
        throw RequestError(QStringLiteral("member \"%1\" is missing").arg(QLatin1String(name)));
    }
    return *member;
}

QString Members::textIn(const char *name, const QJsonValue &value, const char *expected)
{
    if (!value.isString()) {
        throw mistyped(name, expected);
    }
    return value.toString();
}

qint32 Members::integerIn(const char *name, const QJsonValue &value, const char *expected)
{
    const double number = value.toDouble(std::numeric_limits<double>::quiet_NaN());
    const bool fits = number >= std::numeric_limits<qint32>::min()
        && number <= std::numeric_limits<qint32>::max();
    if (!fits || std::trunc(number) != number) {
        throw mistyped(name, expected);
    }
    return qint32(number);
}

QString Members::text(const char *name) const
{
    return textIn(name, required(name), "a string");
}

QString Members::text(const char *name, const QString &otherwise) const
{
    return has(name) ? text(name) : otherwise;
}

std::optional<QString> Members::textOrNull(const char *name) const
{
    const QJsonValue value = required(name);
    return value.isNull() ? std::nullopt : std::optional(textIn(name, value, "a string or null"));
}

bool Members::truth(const char *name) const
{
    const QJsonValue value = required(name);
    if (!value.isBool()) {
        throw mistyped(name, "true or false");
    }
    return value.toBool();
}

bool Members::truth(const char *name, bool otherwise) const
{
    return has(name) ? truth(name) : otherwise;
}

qint32 Members::integer(const char *name) const
{
    return integerIn(name, required(name), "a whole number of 32 bits");
}

QVariant Members::textOrInteger(const char *name) const
{
    constexpr double kLargest = 9007199254740992.0;
    const QJsonValue value = required(name);
    if (value.isString()) {
        return value.toString();
    }
    const double number = value.toDouble(std::numeric_limits<double>::quiet_NaN());
    if (!(std::abs(number) <= kLargest) || std::trunc(number) != number) {
        throw mistyped(name, "a string or a whole number");
    }
    return qint64(number);
}

double Members::number(const char *name) const
{
    const QJsonValue value = required(name);
    if (!value.isDouble()) {
        throw mistyped(name, "a number");
    }
    return value.toDouble();
}

std::optional<double> Members::numberOrNull(const char *name) const
{
    const QJsonValue value = required(name);
    if (!value.isDouble() && !value.isNull()) {
        throw mistyped(name, "a number or null");
    }
    return value.isNull() ? std::nullopt : std::optional(value.toDouble());
}

std::vector<std::optional<qint32>> Members::integersOrNulls(const char *name, int count) const
{
    constexpr char kExpected[] = "an array of whole numbers of 32 bits, each of them or null";
    const QJsonValue value = required(name);
    const QJsonArray array = value.toArray();
    if (!value.isArray() || array.size() != count) {
        throw RequestError(QStringLiteral("member \"%1\" must be an array of %2 numbers")
                               .arg(QLatin1String(name))
                               .arg(count));
    }
    std::vector<std::optional<qint32>> numbers;
    for (const QJsonValue &element : array) {
        numbers.push_back(element.isNull() ? std::nullopt
                                           : std::optional(integerIn(name, element, kExpected)));
    }
    return numbers;
}

std::optional<Members> Members::objectOrNull(const char *name) const
{
    const QJsonValue value = required(name);
    if (!value.isObject() && !value.isNull()) {
        throw mistyped(name, "an object or null");
    }
    return value.isNull() ? std::nullopt : std::optional(Members(value.toObject()));
}

} // namespace tools
