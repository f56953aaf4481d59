// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QVariantMap>

#include <optional>

namespace dialog {

/// A dictionary as an XML property list. Values are strings, numbers (whole ones not negative),
/// truth values, bytes, lists and dictionaries; nothing for any other value, and for texts that
/// XML cannot hold.
std::optional<QByteArray> toPropertyList(const QVariantMap &dictionary);

/// Reads an XML property list whose root is a dictionary; nothing when it is something else.
/// Whole numbers come back as quint64.
std::optional<QVariantMap> fromPropertyList(const QByteArray &xml);

} // namespace dialog
