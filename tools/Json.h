// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonArray>
#include <QJsonValue>
#include <QRectF>
#include <QString>

#include <optional>

namespace tools {

/// Null for nothing.
template <class T> QJsonValue jsonOf(const std::optional<T> &value)
{
    return value ? QJsonValue(*value) : QJsonValue(QJsonValue::Null);
}

/// [x, y, width, height]
inline QJsonValue jsonOf(const QRectF &frame)
{
    return QJsonArray{frame.x(), frame.y(), frame.width(), frame.height()};
}

} // namespace tools
