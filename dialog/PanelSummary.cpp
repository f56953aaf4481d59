// SPDX-License-Identifier: Apache-2.0
#include "dialog/PanelSummary.h"

#include "plugin/PrintDialogExtension.h"

namespace dialog {
namespace {

bool isText(const QVariant &value)
{
    return value.typeId() == QMetaType::QString;
}

/// One line, so that a text cannot look like two settings.
QString line(const QVariant &text)
{
    return text.toString().left(PanelSummary::kLongestText).simplified();
}

std::optional<QVariantList> orderOf(const QVariantMap &info)
{
    const QVariant order = info.value(kSummaryDisplayOrder);
    const bool isList =
        order.typeId() == QMetaType::QStringList || order.typeId() == QMetaType::QVariantList;
    return isList ? std::optional(order.toList()) : std::nullopt;
}

std::optional<std::vector<PanelSummary::Row>> rowsOf(const QVariantMap &info)
{
    const std::optional<QVariantList> order = orderOf(info);
    if (!order) {
        return {};
    }
    std::vector<PanelSummary::Row> rows;
    for (const QVariant &title : order->first(qMin(order->size(), PanelSummary::kMostRows))) {
        const QVariant value = info.value(title.toString());
        if (!isText(title) || !isText(value)) {
            return {};
        }
        rows.push_back({line(title), line(value)});
    }
    return rows;
}

} // namespace

PanelSummary PanelSummary::read(const QString &panel, const std::optional<QVariantMap> &info)
{
    return {panel, info ? rowsOf(*info) : std::nullopt};
}

} // namespace dialog
