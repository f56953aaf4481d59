// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/CodeCheck.h"
#include "dialog/DocumentPages.h"
#include "dialog/PrintController.h"
#include "dialog/PrinterList.h"

#include <QDialog>

#include <memory>

class QComboBox;
class QLabel;
class QLayout;
class QProgressBar;
class QPushButton;

namespace dialog {

class BarcodeGuard;
class ColourBadge;
class JobBox;
class LabelSizeBox;
class MessageBar;
class PagePreview;
class PanelTabs;
class SummaryView;

/// The window: the document's page on its label, the printer, the job's settings and the panels.
///
/// Opens before any printer is known. Accepted means that the job is on its way.
class PrintDialog : public QDialog
{
    Q_OBJECT
public:
    /// Both outlive the window.
    PrintDialog(PrintController &controller, PrinterList &printers, QWidget *parent = nullptr);
    ~PrintDialog() override;

    /// Null shows an empty label.
    void setDocument(std::shared_ptr<const DocumentPages> document);

    /// Starts with the copies, pages and scaling of `job`.
    void setJob(const JobSettings &job);

    /// Chooses the printer called `name` as soon as the list has it; empty takes the one that was
    /// printed to last, or else the server's default.
    void wishPrinter(const QString &name);

    /// Nothing is printed while a code of the document would not be readable, or is not checked
    /// yet.
    void setStrict(bool strict);

    /// Shows a failure at the foot of the window.
    void showFailure(const Failure &failure);

    /// Whether everything is on screen that was asked for: the page, the printer's setup or a
    /// sentence on why it is not there.
    bool isSettled() const;

    /// Whether the codes of the document have been looked for in the dots, or there is no need.
    bool hasCheckedCodes() const;

Q_SIGNALS:
    /// isSettled() or hasCheckedCodes() may have become true.
    void settled();

public Q_SLOTS:
    void done(int result) override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QLayout *makePage();
    QWidget *makeSettings();
    QWidget *makeFoot();
    void connectAll();
    void openDocument();

    void listChanged();
    void serverFailed(const Failure &failure);
    void choosePrinter(int row);
    void showSetup();
    void hideSetup();
    void letGoOfSetup();
    void setupFailed(const Failure &failure);
    void showPrinterState();

    void jobEdited();
    void sizePicked();
    void choicePicked(const QString &option, const QString &choice);
    void showMarks();
    void showSheet();
    void showClash();
    void updatePrintButton();

    void guardCodes();
    void showCodes();
    void applyRemedy(CodeRemedy remedy);
    QString noteOnWholeDots() const;
    QString objectionOfGuard() const;

    void print();
    void printed(const QString &where);
    void jobFailed(const Failure &failure);
    void setBusy(bool busy);

    PrintController &mController;
    PrinterList &mPrinters;
    std::shared_ptr<const DocumentPages> mDocument;
    JobSettings mJob;
    QString mWishedPrinter;
    bool mPrinterPicked = false;
    bool mLoading = false;
    bool mIsStrict = false;
    std::optional<Failure> mJobFailure;
    std::optional<Failure> mClash;

    BarcodeGuard *mGuard;
    PagePreview *mPreview;
    ColourBadge *mColours;
    SummaryView *mSummary;
    QComboBox *mPrinterBox;
    QLabel *mPrinterState;
    JobBox *mJobBox;
    LabelSizeBox *mSizeBox;
    PanelTabs *mPanels;
    MessageBar *mMessages;
    QProgressBar *mProgress;
    QPushButton *mPrint;
    QPushButton *mCancel;
    QPushButton *mOpen;
};

} // namespace dialog
