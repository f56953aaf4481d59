// SPDX-License-Identifier: Apache-2.0
#include "replay/Comparison.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace replay {
namespace {

QString sentence(const QString &path, const QString &is, const QString &expected)
{
    return QStringLiteral("%1 is %2, expected %3")
        .arg(path.isEmpty() ? QStringLiteral("the line") : path, is, expected);
}

bool nearlyEqual(double a, double b)
{
    return std::abs(a - b) <= 1e-9 * std::max({1.0, std::abs(a), std::abs(b)});
}

QString memberOf(const QString &path, const QString &name)
{
    return path.isEmpty() ? name : path + u'.' + name;
}

std::optional<QString> objects(const QJsonObject &expected, const QJsonObject &actual,
                               Members members, const QString &path)
{
    for (auto member = expected.begin(); member != expected.end(); ++member) {
        const QString name = memberOf(path, member.key());
        if (!actual.contains(member.key())) {
            return sentence(name, QStringLiteral("missing"), asText(member.value()));
        }
        if (auto found = difference(member.value(), actual.value(member.key()), members, name)) {
            return found;
        }
    }
    for (auto member = actual.begin(); member != actual.end(); ++member) {
        if (members == Members::All && !expected.contains(member.key())) {
            return sentence(memberOf(path, member.key()), asText(member.value()),
                            QStringLiteral("no such member"));
        }
    }
    return {};
}

std::optional<QString> arrays(const QJsonArray &expected, const QJsonArray &actual, Members members,
                              const QString &path)
{
    if (expected.size() != actual.size()) {
        return sentence(path, asText(actual), asText(expected));
    }
    for (int i = 0; i < expected.size(); ++i) {
        const QString element = QStringLiteral("%1[%2]").arg(path).arg(i);
        if (auto found = difference(expected.at(i), actual.at(i), members, element)) {
            return found;
        }
    }
    return {};
}

} // namespace

QString asText(const QJsonValue &value)
{
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.mid(1, array.size() - 2));
}

std::optional<QString> difference(const QJsonValue &expected, const QJsonValue &actual,
                                  Members members, const QString &path)
{
    if (expected.isObject() && actual.isObject()) {
        return objects(expected.toObject(), actual.toObject(), members, path);
    }
    if (expected.isArray() && actual.isArray()) {
        return arrays(expected.toArray(), actual.toArray(), members, path);
    }
    const bool equal = expected.isDouble() && actual.isDouble()
        ? nearlyEqual(expected.toDouble(), actual.toDouble())
        : expected == actual;
    return equal ? std::nullopt : std::optional(sentence(path, asText(actual), asText(expected)));
}

} // namespace replay
