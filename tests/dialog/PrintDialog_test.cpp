// SPDX-License-Identifier: Apache-2.0
#include "dialog/PrintDialog.h"

#include "GraphicsBundle.h"
#include "TestDocuments.h"
#include "dialog/FolderPrinter.h"
#include "dialog/LibcupsServer.h"
#include "dialog/MessageBar.h"
#include "dialog/Remembered.h"
#include "platform/NotificationCenter.h"
#include "support/CupsServerFixture.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

#include <gmock/gmock.h>

using namespace dialog;
using testing::HasSubstr;

namespace {

constexpr int kPatience = 20000;

/// A window with the real panel, a printer that is a folder, and a server that is not there.
class PrintDialogTest : public DocumentFolder
{
protected:
    PrintDialogTest()
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                           folder.filePath(QStringLiteral("config")));
    }
    void open(const QString &server = QStringLiteral("/nonexistent/cups.sock"),
              const QString &ppd = kSamplePpd)
    {
        auto cups = std::make_shared<LibcupsServer>(server);
        controller = std::make_unique<PrintController>(
            cups, graphicsPlugIn(), PrintController::Folder{ppd, out()}, PanelSet::Views::Made);
        printers = std::make_unique<PrinterList>(cups);
        window = std::make_unique<PrintDialog>(*controller, *printers);
    }
    void openOnFolder()
    {
        open();
        window->setDocument(opened(pdfOfPages(3)));
        window->wishPrinter(QStringLiteral("folder"));
        window->show();
    }
    template <class W> W *find(const char *name)
    {
        W *widget = window->findChild<W *>(QLatin1String(name));
        EXPECT_TRUE(widget) << name;
        return widget;
    }
    QPushButton *printButton() { return find<QPushButton>("print"); }
    std::string message() { return find<MessageBar>("messageBar")->text().toStdString(); }
    QString out() const { return folder.filePath(QStringLiteral("out")); }
    JobSettings printedSettings()
    {
        const auto settings =
            FolderPrinter::readSettings(out() + QStringLiteral("/job-0001/settings.plist"));
        EXPECT_TRUE(settings);
        return settings ? settings.value() : JobSettings();
    }
    void pick(const char *comboBox, int index)
    {
        find<QComboBox>(comboBox)->setCurrentIndex(index);
    }

    /// Clicks on Print and waits for the end of the job.
    void print()
    {
        QSignalSpy printed(controller.get(), &PrintController::printed);
        QSignalSpy failed(controller.get(), &PrintController::jobFailed);
        printButton()->click();
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return printed.count() + failed.count() > 0; }, kPatience));
    }

    std::unique_ptr<PrintController> controller;
    std::unique_ptr<PrinterList> printers;
    std::unique_ptr<PrintDialog> window;
};

TEST_F(PrintDialogTest, WhatThePanelShowsIsWhatIsPrinted)
{
    openOnFolder();
    auto *slider = find<QSlider>("mBrightnessSlider");
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_Right);
    QTest::keyClick(slider, Qt::Key_Right);
    print();
    EXPECT_EQ(window->result(), QDialog::Accepted);
    EXPECT_EQ(printedSettings().choice(QStringLiteral("CvBrightness")), QStringLiteral("2"));
}

TEST_F(PrintDialogTest, CopiesPagesSizeAndScaleGoWithTheJob)
{
    openOnFolder();
    find<QSpinBox>("copies")->setValue(4);
    QTest::keyClicks(find<QLineEdit>("pages"), QStringLiteral("2-3"));
    pick("scaling", 1);
    pick("labelSize", 0);
    print();
    const JobSettings settings = printedSettings();
    EXPECT_EQ(settings.copies(), 4);
    EXPECT_EQ(settings.pages().text(), QStringLiteral("2-3"));
    EXPECT_EQ(settings.scaling(), Scaling::ActualSize);
    EXPECT_EQ(settings.labelSize()->name, QStringLiteral("DC17x54"));
}

TEST_F(PrintDialogTest, ASizeOfTheUsersOwnIsPrinted)
{
    openOnFolder();
    auto *sizes = find<QComboBox>("labelSize");
    EXPECT_FALSE(find<QDoubleSpinBox>("customWidth")->isVisible());
    sizes->setCurrentIndex(sizes->count() - 1);
    EXPECT_TRUE(find<QDoubleSpinBox>("customWidth")->isVisible());
    find<QDoubleSpinBox>("customWidth")->setValue(40);
    find<QDoubleSpinBox>("customHeight")->setValue(30.5);
    print();
    EXPECT_EQ(printedSettings().labelSize()->pageSizeChoice(), QStringLiteral("Custom.40x30.5mm"));
}

TEST_F(PrintDialogTest, SizesAreOfferedWithTitleAndMillimetres)
{
    openOnFolder();
    EXPECT_EQ(find<QComboBox>("labelSize")->currentText(),
              QStringLiteral("Shipping label — 62 × 100 mm"));
}

TEST_F(PrintDialogTest, APageRangeThatCannotBeReadIsOneSentenceAndHoldsTheJobBack)
{
    openOnFolder();
    auto *pages = find<QLineEdit>("pages");
    QTest::keyClicks(pages, QStringLiteral("2-x"));
    EXPECT_FALSE(printButton()->isEnabled());
    EXPECT_THAT(message(), HasSubstr("2-x"));
    pages->clear();
    EXPECT_TRUE(printButton()->isEnabled());
    EXPECT_EQ(message(), "");
    QTest::keyClicks(pages, QStringLiteral("9"));
    EXPECT_FALSE(printButton()->isEnabled()) << "the document has three pages";
}

TEST_F(PrintDialogTest, AClashIsExplainedAndPutRightByOneClick)
{
    openOnFolder();
    pick("mColorPUBtn", 1);
    Q_EMIT find<QComboBox>("mColorPUBtn")->activated(1);
    find<QTabWidget>("panels")->setCurrentIndex(1);
    pick("option.Resolution", 1);
    EXPECT_THAT(message(), HasSubstr("Colour mode \"Black and red\""));
    EXPECT_FALSE(printButton()->isEnabled());
    find<QToolButton>("messageAction")->click();
    EXPECT_EQ(message(), "");
    EXPECT_TRUE(printButton()->isEnabled());
    EXPECT_EQ(controller->setup()->ppd()->markedChoice(QStringLiteral("Resolution")),
              QStringLiteral("300x600dpi"));
}

TEST_F(PrintDialogTest, WithoutADocumentThereIsNothingToPrint)
{
    open();
    window->wishPrinter(QStringLiteral("folder"));
    EXPECT_FALSE(printButton()->isEnabled());
    window->setDocument(opened(pdfOfPages(1)));
    EXPECT_TRUE(printButton()->isEnabled());
    EXPECT_THAT(window->windowTitle().toStdString(), HasSubstr("document"));
}

TEST_F(PrintDialogTest, AFolderThatCannotBeWrittenLeavesTheWindowUsable)
{
    openOnFolder();
    write(QStringLiteral("out"), "a file in the way");
    print();
    EXPECT_TRUE(window->isVisible());
    EXPECT_THAT(message(), HasSubstr("out"));
    EXPECT_TRUE(printButton()->isEnabled());
}

TEST_F(PrintDialogTest, ABrokenPpdIsOneSentenceAndAnotherPrinterCanBeChosen)
{
    open(QStringLiteral("/nonexistent/cups.sock"),
         QStringLiteral(TEST_DATA_DIR "/ppd/not-a-ppd.ppd"));
    window->setDocument(opened(pdfOfPages(1)));
    window->wishPrinter(QStringLiteral("folder"));
    EXPECT_THAT(message(), HasSubstr("not-a-ppd.ppd"));
    EXPECT_FALSE(printButton()->isEnabled());
    EXPECT_TRUE(find<QComboBox>("printer")->isEnabled());
}

TEST_F(PrintDialogTest, LastPrinterAndWindowSizeAreRemembered)
{
    openOnFolder();
    window->resize(1010, 765);
    print();
    EXPECT_EQ(Remembered().lastPrinter(), QStringLiteral("folder"));
    EXPECT_EQ(Remembered().windowSize(), QSize(1010, 765));
    open();
    EXPECT_EQ(window->size(), QSize(1010, 765));
    window->wishPrinter({});
    EXPECT_TRUE(controller->setup()) << "the last printer is chosen without being asked for";
}

TEST_F(PrintDialogTest, CancelPrintsNothing)
{
    openOnFolder();
    find<QPushButton>("cancel")->click();
    EXPECT_EQ(window->result(), QDialog::Rejected);
    EXPECT_FALSE(QFileInfo::exists(out()));
    EXPECT_EQ(Remembered().lastPrinter(), QString());
}

TEST_F(PrintDialogTest, OpensBeforeAnyPrinterIsKnownAndFillsTheListFromTheServer)
{
    CupsServerFixture cups;
    cups.addQueue(QStringLiteral("Lab"));
    cups.addQueue(QStringLiteral("Office"));
    open(cups.address());
    window->setDocument(opened(pdfOfPages(1)));
    window->wishPrinter(QStringLiteral("Office"));
    window->show();
    EXPECT_THAT(find<QLabel>("printerState")->text().toStdString(), HasSubstr("Looking"));
    QSignalSpy ready(controller.get(), &PrintController::setupReady);
    printers->refresh();
    ASSERT_TRUE(ready.wait(kPatience));
    EXPECT_EQ(find<QComboBox>("printer")->count(), 3);
    EXPECT_EQ(controller->printer().name, QStringLiteral("Office"));
    print();
    EXPECT_EQ(window->result(), QDialog::Accepted);
    EXPECT_FALSE(cups.arrived(1).document.isEmpty());
}

TEST_F(PrintDialogTest, APrinterThatDisappearsIsToldAndAnotherOneIsChosen)
{
    CupsServerFixture cups;
    cups.addQueue(QStringLiteral("Lab"));
    open(cups.address());
    window->setDocument(opened(pdfOfPages(3)));
    window->wishPrinter(QStringLiteral("Lab"));
    QSignalSpy ready(controller.get(), &PrintController::setupReady);
    printers->refresh();
    ASSERT_TRUE(ready.wait(kPatience));
    find<QSpinBox>("copies")->setValue(4);
    cups.removeQueue(QStringLiteral("Lab"));
    QSignalSpy refreshed(printers.get(), &PrinterList::refreshed);
    printers->refresh();
    ASSERT_TRUE(refreshed.wait(kPatience));
    EXPECT_THAT(message(), HasSubstr("Lab: the printer is not there any more"));
    EXPECT_EQ(controller->printer().name, QStringLiteral("folder"));
    EXPECT_EQ(controller->setup()->settings().copies(), 4) << "nothing that was set is lost";
}

TEST_F(PrintDialogTest, AWishedPrinterThatIsNotThereIsNamed)
{
    CupsServerFixture cups;
    open(cups.address());
    window->wishPrinter(QStringLiteral("Nobody"));
    QSignalSpy refreshed(printers.get(), &PrinterList::refreshed);
    printers->refresh();
    ASSERT_TRUE(refreshed.wait(kPatience));
    EXPECT_THAT(message(), HasSubstr("Nobody: there is no such printer"));
    EXPECT_TRUE(controller->setup()) << "the folder printer is there in its place";
}

TEST_F(PrintDialogTest, PanelsAreToldWhenTheDialogHasGrown)
{
    openOnFolder();
    QWidget *view = controller->setup()->panels().panels().at(0)->view();
    int told = 0;
    auto &center = platform::NotificationCenter::defaultCenter();
    center.addObserver(
        this, [&](const platform::Notification &) { ++told; },
        QString(NSViewDidUpdateTrackingAreasNotification), static_cast<const void *>(view));
    window->resize(window->width() + 50, window->height() + 50);
    QTest::qWait(1);
    center.removeObserver(this);
    EXPECT_GT(told, 0);
}

} // namespace
