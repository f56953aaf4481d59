// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonValue>
#include <QString>

#include <optional>

namespace replay {

enum class Members
{
    All, ///< objects have the same members
    Named ///< members that the expected object lacks are not compared, at any depth
};

/// The first difference, in words; nothing when the values are equal. Arrays are equal element by
/// element, numbers when they differ by less than a billionth.
std::optional<QString> difference(const QJsonValue &expected, const QJsonValue &actual,
                                  Members members, const QString &path = {});

/// A value as one line of JSON.
QString asText(const QJsonValue &value);

} // namespace replay
