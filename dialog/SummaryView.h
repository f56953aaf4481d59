// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/PanelSummary.h"

#include <QPointer>
#include <QTextEdit>

namespace dialog {

class PanelSet;

/// The settings of all panels in a few lines of text that can be selected: a group for each panel,
/// in the panel's own order. As high as its text, up to a limit; hidden while there is none.
class SummaryView : public QTextEdit
{
    Q_OBJECT
public:
    explicit SummaryView(QWidget *parent = nullptr);

    /// Shows the panels of `panels`, which is borrowed until the next call; null shows nothing.
    /// Call it with null before the panels go.
    void setPanels(PanelSet *panels);

    /// Asks the panels again as soon as the call that changed something has come back.
    void updateSoon();

private:
    void askPanels();
    void show(const std::vector<PanelSummary> &groups);
    void write(const std::vector<PanelSummary> &groups);
    void fitHeight();
    static QString titleText(const PanelSummary::Row &row);
    int valueColumn(const std::vector<PanelSummary> &groups) const;

    QPointer<PanelSet> mPanels;
    std::vector<PanelSummary> mShown;
    bool mWaiting = false;
    bool mAsking = false;
};

} // namespace dialog
