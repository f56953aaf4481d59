// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>
#include <QTabWidget>

#include <map>

class QScrollArea;

namespace dialog {

class PanelGuard;
class PanelSet;
class PpdFile;
class PrinterOptionsPage;
class PrinterSetup;

/// A tab for each panel, and one for the options of the printer that no panel claims.
class PanelTabs : public QTabWidget
{
    Q_OBJECT
public:
    explicit PanelTabs(QWidget *parent = nullptr);

    /// Shows the panels of `setup`, which is borrowed until the next call; null shows nothing. Call
    /// it with null before the setup goes.
    void setSetup(PrinterSetup *setup);

    /// Shows what is marked now.
    void showMarks();

Q_SIGNALS:
    /// A choice of an option that no panel claims was picked.
    void choicePicked(const QString &option, const QString &choice);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void addPanel(PanelGuard *panel);
    void addPrinterOptions();
    void panelComesIntoView(int index);
    void makeRoom();
    void hideDropped();

    PrinterSetup *mSetup = nullptr;
    PrinterOptionsPage *mOptions;
    QScrollArea *mOptionsArea;
    std::map<QWidget *, PanelGuard *> mPanels;
};

} // namespace dialog
