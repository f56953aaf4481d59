// SPDX-License-Identifier: Apache-2.0
#include "CodeLabel.h"
#include "DialogWindow.h"
#include "dialog/FolderPrinter.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

using dialog::Scaling;

namespace {

constexpr QRgb kGrey = qRgb(120, 120, 120);

/// The window with a code that error diffusion scatters.
class PrintDialogCodes : public DialogWindow
{
protected:
    void show(const CodeLabel &label, bool strict = false)
    {
        makeController();
        showWindow();
        window->setStrict(strict);
        dialog::JobSettings job;
        job.setScaling(Scaling::ActualSize);
        window->setJob(job);
        window->setDocument(opened(label.png()));
    }
    static CodeLabel scattered()
    {
        return CodeLabel(QSize(660, 1100)).with({100, 100}, "Code 128", "SCATTERED", 1, 0, kGrey);
    }
    bool settles()
    {
        return QTest::qWaitFor([this] { return window->isSettled() && window->hasCheckedCodes(); },
                               60000);
    }
    QString message() { return find<QLabel>("messageText")->text(); }
    void choose(const char *option, const char *choice)
    {
        ASSERT_FALSE(controller->setup()->choose({{QLatin1String(option), QLatin1String(choice)}}));
    }
    QString marked(const char *option)
    {
        return controller->setup()->ppd()->markedChoice(QLatin1String(option)).value_or(QString());
    }

    const QString warning =
        QStringLiteral("Code 128 “SCATTERED” on page 1: cannot be read from these dots; choose "
                       "Binary as the halftone");
};

TEST_F(PrintDialogCodes, TellOfALostCodeAndTheButtonPutsItRight)
{
    show(scattered());
    choose("CvHalftonePattern", "ErrorDiffusion");
    ASSERT_TRUE(settles());
    EXPECT_EQ(message(), warning);
    EXPECT_TRUE(find<QPushButton>("print")->isEnabled()) << "it is a warning";
    auto *button = find<QToolButton>("messageAction");
    EXPECT_EQ(button->text(), QStringLiteral("Use Binary"));
    button->click();
    EXPECT_EQ(marked("CvHalftonePattern"), QStringLiteral("Binary"));
    ASSERT_TRUE(settles());
    EXPECT_EQ(message(), QString());
    EXPECT_TRUE(find<QWidget>("messageBar")->isHidden());
}

TEST_F(PrintDialogCodes, AreToldOfBelowAConflictAndAfterIt)
{
    show(scattered());
    choose("CvHalftonePattern", "ErrorDiffusion");
    ASSERT_TRUE(settles());
    choose("Resolution", "300x600dpi");
    choose("CvMultiColor", "CvMultiColorBlackRed");
    ASSERT_TRUE(settles());
    EXPECT_TRUE(message().contains(QStringLiteral("cannot be had together")))
        << message().toStdString();
    choose("CvMultiColor", "CvMultiColorMonochrome");
    choose("Resolution", "300dpi");
    ASSERT_TRUE(settles());
    EXPECT_EQ(message(), warning);
}

TEST_F(PrintDialogCodes, OfOnePageAreCounted)
{
    show(scattered().with({100, 300}, "Code 128", "SECOND", 1, 0, kGrey));
    choose("CvHalftonePattern", "ErrorDiffusion");
    ASSERT_TRUE(settles());
    EXPECT_TRUE(message().endsWith(QStringLiteral("; 1 more cannot be read either")))
        << message().toStdString();
}

TEST_F(PrintDialogCodes, KeepPrintWaitingInAStrictWindow)
{
    show(scattered(), true);
    choose("CvHalftonePattern", "ErrorDiffusion");
    EXPECT_FALSE(find<QPushButton>("print")->isEnabled()) << "nothing is checked yet";
    ASSERT_TRUE(settles());
    EXPECT_FALSE(find<QPushButton>("print")->isEnabled());
    EXPECT_EQ(find<QPushButton>("print")->toolTip(),
              QStringLiteral("Nothing is printed until all barcodes can be read (--strict)"));
    find<QToolButton>("messageAction")->click();
    ASSERT_TRUE(settles());
    EXPECT_TRUE(find<QPushButton>("print")->isEnabled());
    EXPECT_EQ(find<QPushButton>("print")->toolTip(), QString());
}

TEST_F(PrintDialogCodes, GoWithTheWindowWhileTheyAreRead)
{
    show(scattered());
    QTest::qWait(400);
    EXPECT_FALSE(window->hasCheckedCodes());
    window.reset();
    EXPECT_TRUE(controller->setup()) << "nothing else goes with it";
}

TEST_F(PrintDialogCodes, OfAPrinterWithoutDotsAreNotChecked)
{
    makeController(QString());
    showWindow();
    window->setDocument(opened(scattered().png()));
    ASSERT_TRUE(settles());
    EXPECT_EQ(message(), QString());
}

TEST_F(PrintDialogCodes, OfAPrinterWithoutDotsAreNotPrintedInAStrictWindow)
{
    makeController(testPpd("no-panel-options.ppd"));
    showWindow();
    window->setStrict(true);
    window->setDocument(opened(scattered().png()));
    ASSERT_TRUE(settles());
    EXPECT_FALSE(find<QPushButton>("print")->isEnabled());
    EXPECT_EQ(find<QPushButton>("print")->toolTip(),
              QStringLiteral("The printer's dots are not known, so barcodes cannot be checked; "
                             "choose another printer (--strict)"));
    window->setStrict(false);
    EXPECT_TRUE(find<QPushButton>("print")->isEnabled());
}

TEST_F(PrintDialogCodes, OfADamagedPageKeepPrintWaitingInAStrictWindowAlone)
{
    makeController();
    showWindow();
    window->setDocument(
        dialog::DocumentPages::open(testDocument(QStringLiteral("damaged-page.pdf"))).value());
    ASSERT_TRUE(settles());
    EXPECT_EQ(message(), QString());
    EXPECT_TRUE(find<QPushButton>("print")->isEnabled());
    window->setStrict(true);
    EXPECT_FALSE(find<QPushButton>("print")->isEnabled());
    EXPECT_EQ(message(),
              testDocument(QStringLiteral("damaged-page.pdf"))
                  + QStringLiteral(": page 2 is damaged and cannot be shown"));
}

TEST_F(PrintDialogCodes, AreCheckedInTheScaleThatComesBackWithAPicture)
{
    const QByteArray odd =
        CodeLabel(QSize(530, 400)).with({0, 50}, "Code 128", "ODD-DOTS-0123456789ABCD", 1).png();
    makeController();
    showWindow();
    window->setDocument(opened(odd));
    choose("CvHalftonePattern", "ErrorDiffusion");
    ASSERT_TRUE(settles());
    ASSERT_NE(message(), QString()) << "fitted, its bars have grey edges";
    pick("scaling", 2);
    ASSERT_TRUE(settles());
    ASSERT_EQ(message(), QString());
    window->setDocument(opened(pdfOfPages(1)));
    ASSERT_TRUE(settles());
    window->setDocument(opened(odd));
    ASSERT_TRUE(settles());
    EXPECT_EQ(message(), QString());
}

TEST_F(PrintDialogCodes, WholeDotsAreOfferedForAPictureAlone)
{
    show(CodeLabel(QSize(100, 200)));
    auto *scaling = find<QComboBox>("scaling");
    ASSERT_TRUE(settles());
    ASSERT_EQ(scaling->count(), 3);
    EXPECT_EQ(scaling->itemText(2), QStringLiteral("Whole dots"));
    pick("scaling", 2);
    EXPECT_EQ(controller->setup()->settings().scaling(), Scaling::WholeDots);
    window->setDocument(opened(pdfOfPages(1)));
    EXPECT_EQ(scaling->count(), 2);
    EXPECT_EQ(controller->setup()->settings().scaling(), Scaling::Fit);
    window->setDocument(opened(CodeLabel(QSize(100, 200)).png()));
    EXPECT_EQ(controller->setup()->settings().scaling(), Scaling::WholeDots)
        << "the wish is not forgotten";
}

TEST_F(PrintDialogCodes, APictureWithMorePixelsThanDotsIsFittedAndTheWindowSaysSo)
{
    show(CodeLabel(QSize(900, 1400)));
    ASSERT_TRUE(settles());
    pick("scaling", 2);
    EXPECT_EQ(message(),
              QStringLiteral("Whole dots: the picture has more pixels than the label has dots; it "
                             "is fitted to the label"));
    pick("scaling", 0);
    EXPECT_EQ(message(), QString());
}

TEST_F(PrintDialogCodes, WholeDotsAreKeptInTheSettingsOfTheJob)
{
    show(CodeLabel(QSize(100, 200)));
    ASSERT_TRUE(settles());
    pick("scaling", 2);
    find<QPushButton>("print")->click();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }, 20000));
    const auto settings =
        dialog::FolderPrinter::readSettings(out() + QStringLiteral("/job-0001/settings.plist"));
    ASSERT_TRUE(settings);
    EXPECT_EQ(settings.value().scaling(), Scaling::WholeDots);
}

} // namespace
