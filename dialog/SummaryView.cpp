// SPDX-License-Identifier: Apache-2.0
#include "dialog/SummaryView.h"

#include "dialog/PanelSet.h"

#include <QAbstractTextDocumentLayout>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace dialog {
namespace {

/// The six settings of a panel, its name, and one line that does not fit into the width.
constexpr int kMostLines = 8;

/// Wider titles leave no room for the values; in points.
constexpr int kWidestTitle = 190;

} // namespace

SummaryView::SummaryView(QWidget *parent)
    : QTextEdit(parent)
{
    setObjectName(QStringLiteral("summary"));
    setAccessibleName(tr("Summary of the settings"));
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(2);
    connect(document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
            &SummaryView::fitHeight);
    hide();
}

void SummaryView::setPanels(PanelSet *panels)
{
    mPanels = panels;
    askPanels();
}

void SummaryView::updateSoon()
{
    // A panel that changes something while it is asked would be asked for ever.
    if (mWaiting || mAsking) {
        return;
    }
    mWaiting = true;
    QTimer::singleShot(0, this, [this] {
        mWaiting = false;
        askPanels();
    });
}

void SummaryView::askPanels()
{
    const QScopedValueRollback<bool> asking(mAsking, true);
    std::vector<PanelSummary> groups;
    const std::vector<PanelGuard *> panels =
        mPanels ? mPanels->panels() : std::vector<PanelGuard *>();
    for (PanelGuard *panel : panels) {
        PanelSummary group = PanelSummary::read(panel->name(), panel->summary());
        if (!panel->isDropped() && !(group.rows && group.rows->empty())) {
            groups.push_back(std::move(group));
        }
    }
    show(groups);
}

void SummaryView::show(const std::vector<PanelSummary> &groups)
{
    // What is the same stays as it is, with the user's selection.
    if (groups == mShown) {
        return;
    }
    mShown = groups;
    const int scrolled = verticalScrollBar()->value();
    write(groups);
    verticalScrollBar()->setValue(scrolled);
    setVisible(!groups.empty());
    fitHeight();
}

void SummaryView::write(const std::vector<PanelSummary> &groups)
{
    clear();
    const int column = valueColumn(groups);
    QTextBlockFormat row;
    row.setTabPositions({QTextOption::Tab(column, QTextOption::LeftTab)});
    row.setLeftMargin(column);
    row.setTextIndent(-column);
    QTextCharFormat heading;
    heading.setFontWeight(QFont::Bold);
    QTextCursor cursor(document());
    const auto addLine = [&](const QTextBlockFormat &block, const QTextCharFormat &characters,
                             const QString &text) {
        if (cursor.position() > 0) {
            cursor.insertBlock();
        }
        cursor.setBlockFormat(block);
        cursor.insertText(text, characters);
    };
    for (const PanelSummary &group : groups) {
        addLine({}, heading, group.panel);
        if (!group.rows) {
            addLine({}, {}, tr("no summary from this panel"));
            continue;
        }
        for (const PanelSummary::Row &setting : *group.rows) {
            addLine(row, {}, titleText(setting) + u'\t' + setting.value);
        }
    }
}

QString SummaryView::titleText(const PanelSummary::Row &row)
{
    return row.title.isEmpty() ? QString() : tr("%1:", "title of a setting").arg(row.title);
}

int SummaryView::valueColumn(const std::vector<PanelSummary> &groups) const
{
    const int gap = fontMetrics().averageCharWidth() * 2;
    int widest = 0;
    for (const PanelSummary &group : groups) {
        for (const PanelSummary::Row &row : group.rows.value_or(std::vector<PanelSummary::Row>())) {
            widest = std::max(widest, fontMetrics().horizontalAdvance(titleText(row)) + gap);
        }
    }
    return std::min(widest, kWidestTitle);
}

void SummaryView::fitHeight()
{
    const int most = kMostLines * fontMetrics().lineSpacing();
    const int text = int(std::ceil(document()->size().height()));
    setFixedHeight(std::min(text, most) + 2 * frameWidth());
}

} // namespace dialog
