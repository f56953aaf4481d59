// SPDX-License-Identifier: Apache-2.0
#include "dialog/PrintDialog.h"

#include "dialog/BarcodeGuard.h"
#include "dialog/ColourBadge.h"
#include "dialog/JobBox.h"
#include "dialog/LabelSizeBox.h"
#include "dialog/MessageBar.h"
#include "dialog/PagePreview.h"
#include "dialog/PanelTabs.h"
#include "dialog/Remembered.h"
#include "dialog/SummaryView.h"

#include <QComboBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace dialog {

PrintDialog::PrintDialog(PrintController &controller, PrinterList &printers, QWidget *parent)
    : QDialog(parent)
    , mController(controller)
    , mPrinters(printers)
    , mGuard(new BarcodeGuard(this))
    , mPreview(new PagePreview(this))
    , mColours(new ColourBadge(this))
    , mSummary(new SummaryView(this))
    , mPrinterBox(new QComboBox(this))
    , mPrinterState(new QLabel(this))
    , mJobBox(new JobBox(this))
    , mSizeBox(new LabelSizeBox(this))
    , mPanels(new PanelTabs(this))
    , mMessages(new MessageBar(this))
    , mProgress(new QProgressBar(this))
    , mPrint(new QPushButton(tr("&Print"), this))
    , mCancel(new QPushButton(tr("Cancel"), this))
    , mOpen(new QPushButton(tr("&Open..."), this))
{
    setWindowTitle(tr("Print Label"));
    auto *columns = new QHBoxLayout;
    columns->addLayout(makePage(), 1);
    columns->addWidget(makeSettings(), 0);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(columns, 1);
    rows->addWidget(mMessages);
    rows->addWidget(makeFoot());
    connectAll();
    setSizeGripEnabled(true);
    const QSize remembered = Remembered().windowSize();
    resize(remembered.isValid() ? remembered : QSize(960, 700));
    hideSetup();
    listChanged();
}

PrintDialog::~PrintDialog()
{
    letGoOfSetup();
}

QLayout *PrintDialog::makePage()
{
    mPreview->setMinimumWidth(300);
    mPreview->addToFoot(mColours);
    auto *column = new QVBoxLayout;
    column->addWidget(mPreview, 1);
    column->addWidget(mSummary);
    return column;
}

QWidget *PrintDialog::makeSettings()
{
    auto *settings = new QWidget(this);
    auto *column = new QVBoxLayout(settings);
    column->setContentsMargins(0, 0, 0, 0);
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    mPrinterBox->setObjectName(QStringLiteral("printer"));
    mPrinterBox->setModel(&mPrinters);
    mPrinterBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    mPrinterState->setObjectName(QStringLiteral("printerState"));
    mPrinterState->setTextFormat(Qt::PlainText);
    mPrinterState->setWordWrap(true);
    form->addRow(tr("Pr&inter:"), mPrinterBox);
    form->addRow(QString(), mPrinterState);
    form->addRow(tr("&Label:"), mSizeBox);
    column->addLayout(form);
    column->addWidget(mJobBox);
    column->addWidget(mPanels, 1);
    return settings;
}

QWidget *PrintDialog::makeFoot()
{
    auto *foot = new QWidget(this);
    auto *row = new QHBoxLayout(foot);
    row->setContentsMargins(0, 0, 0, 0);
    mProgress->setObjectName(QStringLiteral("progress"));
    mProgress->hide();
    mPrint->setObjectName(QStringLiteral("print"));
    mPrint->setDefault(true);
    mCancel->setObjectName(QStringLiteral("cancel"));
    mCancel->setAutoDefault(false);
    mOpen->setObjectName(QStringLiteral("open"));
    mOpen->setAutoDefault(false);
    row->addWidget(mOpen);
    row->addWidget(mProgress, 1);
    row->addStretch(1);
    row->addWidget(mPrint);
    row->addWidget(mCancel);
    return foot;
}

void PrintDialog::connectAll()
{
    connect(&mPrinters, &PrinterList::refreshed, this, &PrintDialog::listChanged);
    connect(&mPrinters, &PrinterList::failed, this, &PrintDialog::serverFailed);
    connect(&mPrinters, &PrinterList::printerChanged, this, &PrintDialog::showPrinterState);
    connect(mPrinterBox, &QComboBox::currentIndexChanged, this, &PrintDialog::choosePrinter);
    connect(mPrinterBox, &QComboBox::activated, this, [this] { mPrinterPicked = true; });
    connect(&mController, &PrintController::setupGoes, this, &PrintDialog::hideSetup);
    connect(&mController, &PrintController::setupReady, this, &PrintDialog::showSetup);
    connect(&mController, &PrintController::setupFailed, this, &PrintDialog::setupFailed);
    connect(&mController, &PrintController::complained, this, &PrintDialog::showFailure);
    connect(&mController, &PrintController::printed, this, &PrintDialog::printed);
    connect(&mController, &PrintController::jobFailed, this, &PrintDialog::jobFailed);
    connect(&mController, &PrintController::progressed, this, [this](qint64 sent, qint64 total) {
        mProgress->setValue(total > 0 ? int(100 * sent / total) : 0);
    });
    connect(mGuard, &BarcodeGuard::changed, this, &PrintDialog::showCodes);
    connect(mPreview, &PagePreview::pageShown, this, &PrintDialog::settled);
    connect(mJobBox, &JobBox::edited, this, &PrintDialog::jobEdited);
    connect(mSizeBox, &LabelSizeBox::sizePicked, this, &PrintDialog::sizePicked);
    connect(mPanels, &PanelTabs::choicePicked, this, &PrintDialog::choicePicked);
    connect(mPanels, &PanelTabs::currentChanged, mSummary, &SummaryView::updateSoon);
    connect(mOpen, &QPushButton::clicked, this, &PrintDialog::openDocument);
    connect(mPrint, &QPushButton::clicked, this, &PrintDialog::print);
    connect(mCancel, &QPushButton::clicked, this, &PrintDialog::reject);
}

} // namespace dialog
