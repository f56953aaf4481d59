// SPDX-License-Identifier: Apache-2.0
#include "dialog/PropertyList.h"

#include <QString>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>

#include <plist/plist.h>

namespace dialog {

namespace {

struct NodeDeleter
{
    void operator()(void *node) const { plist_free(node); }
};
using Node = std::unique_ptr<void, NodeDeleter>;

struct MallocDeleter
{
    void operator()(void *memory) const { std::free(memory); }
};
using Chars = std::unique_ptr<char, MallocDeleter>;

// Deeper ones are nobody's settings, but could use up the stack.
constexpr int kDeepest = 64;

bool fitsXml(const QString &text)
{
    return text.isValidUtf16() && std::all_of(text.begin(), text.end(), [](QChar c) {
               return c.unicode() >= 0x20 ? c.unicode() < 0xfffe
                                          : c == QLatin1Char('\n') || c == QLatin1Char('\t');
           });
}

Node nodeOf(const QVariant &value, int depth);

Node nodeOf(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    return Node(fitsXml(text) ? plist_new_string(bytes.constData()) : nullptr);
}

Node nodeOf(const QVariantMap &map, int depth)
{
    Node node(plist_new_dict());
    for (auto item = map.begin(); item != map.end(); ++item) {
        Node child = nodeOf(item.value(), depth + 1);
        if (!child || !fitsXml(item.key())) {
            return {};
        }
        const QByteArray key = item.key().toUtf8();
        plist_dict_set_item(node.get(), key.constData(), child.release());
    }
    return node;
}

Node nodeOf(const QVariantList &list, int depth)
{
    Node node(plist_new_array());
    for (const QVariant &value : list) {
        Node child = nodeOf(value, depth + 1);
        if (!child) {
            return {};
        }
        plist_array_append_item(node.get(), child.release());
    }
    return node;
}

Node nodeOf(const QByteArray &bytes)
{
    return Node(plist_new_data(bytes.constData(), static_cast<quint64>(bytes.size())));
}

Node nodeOf(const QVariant &value, int depth)
{
    if (depth > kDeepest) {
        return {};
    }
    switch (value.typeId()) {
    case QMetaType::QString:
        return nodeOf(value.toString());
    case QMetaType::Bool:
        return Node(plist_new_bool(value.toBool() ? 1 : 0));
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return Node(value.toLongLong() < 0 ? nullptr : plist_new_uint(value.toULongLong()));
    case QMetaType::Double:
        return Node(plist_new_real(value.toDouble()));
    case QMetaType::QByteArray:
        return nodeOf(value.toByteArray());
    case QMetaType::QVariantMap:
        return nodeOf(value.toMap(), depth);
    case QMetaType::QVariantList:
        return nodeOf(value.toList(), depth);
    default:
        return {};
    }
}

QVariant valueOf(plist_t node, int depth);

QVariantMap mapOf(plist_t node, int depth)
{
    QVariantMap map;
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(node, &iterator);
    const Chars owner(static_cast<char *>(iterator));
    for (;;) {
        char *key = nullptr;
        plist_t child = nullptr;
        plist_dict_next_item(node, iterator, &key, &child);
        const Chars keyOwner(key);
        if (child == nullptr) {
            return map;
        }
        map.insert(QString::fromUtf8(key), valueOf(child, depth + 1));
    }
}

QVariantList listOf(plist_t node, int depth)
{
    QVariantList list;
    for (quint32 i = 0; i < plist_array_get_size(node); ++i) {
        list.append(valueOf(plist_array_get_item(node, i), depth + 1));
    }
    return list;
}

QVariant bytesOf(plist_t node)
{
    uint64_t length = 0;
    const char *bytes = plist_get_data_ptr(node, &length);
    return QByteArray(bytes, static_cast<qsizetype>(length));
}

QVariant numberOf(plist_t node)
{
    uint64_t number = 0;
    plist_get_uint_val(node, &number);
    return QVariant::fromValue<quint64>(number);
}

QVariant valueOf(plist_t node, int depth)
{
    double real = 0;
    quint8 truth = 0;
    switch (depth > kDeepest ? PLIST_NONE : plist_get_node_type(node)) {
    case PLIST_STRING:
        return QString::fromUtf8(plist_get_string_ptr(node, nullptr));
    case PLIST_BOOLEAN:
        plist_get_bool_val(node, &truth);
        return truth != 0;
    case PLIST_UINT:
        return numberOf(node);
    case PLIST_REAL:
        plist_get_real_val(node, &real);
        return real;
    case PLIST_DATA:
        return bytesOf(node);
    case PLIST_DICT:
        return mapOf(node, depth);
    case PLIST_ARRAY:
        return listOf(node, depth);
    default:
        return {};
    }
}

} // namespace

std::optional<QByteArray> toPropertyList(const QVariantMap &dictionary)
{
    const Node root = nodeOf(dictionary, 0);
    if (!root) {
        return {};
    }
    char *xml = nullptr;
    quint32 length = 0;
    plist_to_xml(root.get(), &xml, &length);
    const Chars owner(xml);
    return xml == nullptr ? std::nullopt
                          : std::optional(QByteArray(xml, static_cast<qsizetype>(length)));
}

std::optional<QVariantMap> fromPropertyList(const QByteArray &xml)
{
    plist_t root = nullptr;
    plist_from_xml(xml.constData(), static_cast<quint32>(xml.size()), &root);
    const Node owner(root);
    if (root == nullptr || plist_get_node_type(root) != PLIST_DICT) {
        return {};
    }
    return mapOf(root, 0);
}

} // namespace dialog
