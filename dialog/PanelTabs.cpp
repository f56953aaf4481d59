// SPDX-License-Identifier: Apache-2.0
#include "dialog/PanelTabs.h"

#include "dialog/PanelSet.h"
#include "dialog/PrinterOptionsPage.h"
#include "dialog/PrinterSetup.h"
#include "platform/NotificationCenter.h"

#include <QScrollArea>

namespace dialog {

PanelTabs::PanelTabs(QWidget *parent)
    : QTabWidget(parent)
    , mOptions(new PrinterOptionsPage)
    , mOptionsArea(new QScrollArea(this))
{
    setObjectName(QStringLiteral("panels"));
    mOptionsArea->setFrameShape(QFrame::NoFrame);
    mOptionsArea->setWidgetResizable(true);
    mOptionsArea->setWidget(mOptions);
    mOptionsArea->hide();
    connect(mOptions, &PrinterOptionsPage::choicePicked, this, &PanelTabs::choicePicked);
    connect(this, &QTabWidget::currentChanged, this, &PanelTabs::panelComesIntoView);
}

void PanelTabs::setSetup(PrinterSetup *setup)
{
    mPanels.clear();
    while (count() > 0) {
        QWidget *page = widget(0);
        removeTab(0);
        if (page != mOptionsArea) {
            // The view inside is its panel's; without a parent it outlives the page.
            if (auto *area = qobject_cast<QScrollArea *>(page)) {
                if (QWidget *view = area->takeWidget()) {
                    view->setParent(nullptr);
                }
            }
            page->deleteLater();
        }
    }
    mSetup = setup;
    if (!setup) {
        mOptions->setPpd(nullptr, {});
        return;
    }
    for (PanelGuard *panel : setup->panels().panels()) {
        addPanel(panel);
    }
    addPrinterOptions();
    connect(&setup->panels(), &PanelSet::viewResized, this, &PanelTabs::makeRoom);
    connect(&setup->panels(), &PanelSet::failed, this, &PanelTabs::hideDropped);
    makeRoom();
}

void PanelTabs::addPanel(PanelGuard *panel)
{
    if (!panel->view()) {
        return;
    }
    auto *area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(panel->view());
    panel->view()->show();
    mPanels.emplace(area, panel);
    QString title = panel->name();
    addTab(area, title.replace(u'&', QStringLiteral("&&")));
}

void PanelTabs::addPrinterOptions()
{
    mOptions->setPpd(mSetup->ppd(), mSetup->panels().claimedOptions());
    if (!mOptions->isEmpty()) {
        addTab(mOptionsArea, tr("Printer"));
    }
}

void PanelTabs::showMarks()
{
    mOptions->showMarks();
}

void PanelTabs::panelComesIntoView(int index)
{
    const auto panel = mPanels.find(widget(index));
    if (panel != mPanels.end() && isVisible()) {
        panel->second->willShow();
    }
}

void PanelTabs::resizeEvent(QResizeEvent *event)
{
    QTabWidget::resizeEvent(event);
    // A panel that waits for room is told that the dialog has another size now.
    for (const auto &[area, panel] : mPanels) {
        if (QWidget *view = panel->view()) {
            platform::NotificationCenter::defaultCenter().post(
                NSViewDidUpdateTrackingAreasNotification, static_cast<const void *>(view));
        }
    }
}

void PanelTabs::makeRoom()
{
    // The view may have come to its size by code that scroll areas do not follow.
    QSize room;
    for (const auto &[area, panel] : mPanels) {
        if (panel->view()) {
            room = room.expandedTo(panel->view()->size());
        }
    }
    for (const auto &[area, panel] : mPanels) {
        area->setMinimumWidth(room.width());
        area->setMinimumHeight(room.height());
    }
}

void PanelTabs::hideDropped()
{
    for (const auto &[area, panel] : mPanels) {
        if (panel->isDropped()) {
            setTabVisible(indexOf(area), false);
        }
    }
}

} // namespace dialog
