// SPDX-License-Identifier: Apache-2.0
#include "ppd/PropertyList.h"

#include "platform/TextEncodings.h"

#include <cstdint>

#include <plist/plist.h>

namespace {

// The ticket comes from other programs, and the library reads it on the dialog's thread. It frees a
// list by recursion, so that some 100,000 arrays in each other overflow the stack; it moves the
// rest of a text for each character reference in it, so that a megabyte of them takes seconds.
// Only predefined entities are known to it, and no file is read for others.
constexpr qsizetype kMaximumSize = 262144;
constexpr qsizetype kMaximumContainers = 4096;

/// Every nested container has a start of its own, so that their number limits the depth as well,
/// whatever comments and end tags stand between them.
bool isTooMuch(const QByteArray &xml)
{
    return xml.size() > kMaximumSize
        || xml.count("<dict") + xml.count("<array") > kMaximumContainers;
}

/// The library takes a list whose end is missing when the root value is complete.
bool isCutOff(const QByteArray &xml)
{
    return xml.contains("<plist") && !xml.contains("</plist>");
}

QByteArray withoutByteOrderMark(const QByteArray &data)
{
    return data.startsWith("\xEF\xBB\xBF") ? data.mid(3) : data;
}

} // namespace

void PropertyList::Deleter::operator()(void *root) const
{
    plist_free(root);
}

PropertyList::PropertyList(void *root)
    : mRoot(root)
{ }

std::optional<PropertyList> PropertyList::fromXml(const QByteArray &data)
{
    const QByteArray xml = withoutByteOrderMark(data);
    if (isTooMuch(xml) || isCutOff(xml)) {
        return std::nullopt;
    }
    plist_t root = nullptr;
    plist_from_xml(xml.constData(), quint32(xml.size()), &root);
    PropertyList list(root);
    if (!root || plist_get_node_type(root) != PLIST_DICT) {
        return std::nullopt;
    }
    return list;
}

std::optional<QString> PropertyList::string(const char *key) const
{
    const plist_t node = plist_dict_get_item(mRoot.get(), key);
    if (!node || plist_get_node_type(node) != PLIST_STRING) {
        return std::nullopt;
    }
    // Not the call that copies the string: it ends the process when a zero stands inside.
    uint64_t length = 0;
    const char *bytes = plist_get_string_ptr(node, &length);
    if (!bytes || qstrlen(bytes) != length) {
        return std::nullopt;
    }
    return platform::decodeUtf8(bytes);
}
