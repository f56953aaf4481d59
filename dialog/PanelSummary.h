// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QVariantMap>

#include <optional>
#include <vector>

namespace dialog {

/// What one panel says of its settings, in the order in which the panel wants it shown.
struct PanelSummary
{
    /// More rows than this are no summary any more; the rest is left out.
    static constexpr int kMostRows = 100;
    /// Longer texts are cut off.
    static constexpr int kLongestText = 200;

    struct Row
    {
        QString title;
        QString value;

        bool operator==(const Row &) const = default;
    };

    QString panel;
    /// Nothing when the panel gave no summary, or one that cannot be read.
    std::optional<std::vector<Row>> rows;

    /// Reads what the contract's summaryInfo answers. A title stands as often as the order names
    /// it, one without any text included; what the order does not name is not shown.
    static PanelSummary read(const QString &panel, const std::optional<QVariantMap> &info);

    bool operator==(const PanelSummary &) const = default;
};

} // namespace dialog
