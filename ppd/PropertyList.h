// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>

/// A dictionary read from an XML property list. Private to this folder.
class PropertyList
{
public:
    /// Nothing unless `data` is an XML property list with a dictionary as its root. Data that no
    /// ticket needs is refused before it is read: see the limits in the source.
    static std::optional<PropertyList> fromXml(const QByteArray &data);

    /// The string under `key`; nothing when there is none, when it is another type of value, or
    /// when its bytes are not UTF-8 or hold a zero.
    std::optional<QString> string(const char *key) const;

private:
    struct Deleter
    {
        void operator()(void *root) const;
    };

    explicit PropertyList(void *root);

    std::unique_ptr<void, Deleter> mRoot;
};
