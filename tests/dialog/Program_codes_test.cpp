// SPDX-License-Identifier: Apache-2.0
#include "CodeLabel.h"
#include "ProgramRun.h"
#include "dialog/FolderPrinter.h"
#include "support/CupsServerFixture.h"

#include <QFileInfo>

#include <gmock/gmock.h>

using testing::EndsWith;
using testing::HasSubstr;

namespace {

constexpr QRgb kGrey = qRgb(120, 120, 120);

/// The program with labels that have codes on them.
class ProgramCodes : public Program
{
protected:
    /// Two codes, of which error diffusion scatters one.
    QString scattered()
    {
        return write(QStringLiteral("codes.png"),
                     CodeLabel(QSize(660, 1100))
                         .with({100, 100}, "Code 128", "SCATTERED", 1, 0, kGrey)
                         .with({100, 400}, "QR Code", "all right", 5)
                         .png());
    }
    int print(const QStringList &more, const QString &halftone = QStringLiteral("ErrorDiffusion"))
    {
        return run(QStringList{scattered(), QStringLiteral("--no-dialog"),
                               QStringLiteral("--scaling"), QStringLiteral("actual"),
                               QStringLiteral("-o"),
                               QStringLiteral("CvHalftonePattern=") + halftone}
                   + more);
    }
    const std::string warning =
        "label-print: Code 128 “SCATTERED” on page 1: cannot be read from these dots; choose "
        "Binary as the halftone\n";
};

TEST_F(ProgramCodes, AreWarnedOfAndPrintedAllTheSame)
{
    EXPECT_EQ(print({QStringLiteral("--output"), out()}), 0);
    EXPECT_EQ(complained, warning);
    EXPECT_THAT(said, HasSubstr("job-0001"));
}

TEST_F(ProgramCodes, KeepAStrictRunFromPrinting)
{
    EXPECT_EQ(print({QStringLiteral("--output"), out(), QStringLiteral("--strict")}), 6);
    EXPECT_EQ(complained, warning);
    EXPECT_EQ(said, "");
    EXPECT_FALSE(QFileInfo::exists(out()));
    EXPECT_EQ(print({QStringLiteral("--output"), out(), QStringLiteral("--strict")},
                    QStringLiteral("Binary")),
              0)
        << complained;
    EXPECT_EQ(complained, "");
}

TEST_F(ProgramCodes, DoNotLetThePrinterWaitForAWarning)
{
    channels = QProcess::MergedChannels;
    EXPECT_EQ(print({QStringLiteral("--output"), out()}), 0);
    EXPECT_LT(said.find("job-0001"), said.find(warning)) << said;
    EXPECT_THAT(said, EndsWith(warning));
}

TEST_F(ProgramCodes, OfAPrinterWithoutDotsAreNotPrintedInAStrictRun)
{
    const QStringList other{QStringLiteral("--ppd"),
                            QStringLiteral(TEST_DATA_DIR "/ppd/no-panel-options.ppd")};
    EXPECT_EQ(run(toFolder(other + QStringList{QStringLiteral("--strict")})), 6);
    EXPECT_EQ(complained,
              "label-print: --strict: the printer's dots are not known, so barcodes cannot be "
              "checked; leave out --strict or choose another printer\n");
    EXPECT_FALSE(QFileInfo::exists(out()));
    EXPECT_EQ(run(toFolder(other)), 0) << complained;
    EXPECT_EQ(complained, "");
}

TEST_F(ProgramCodes, OfADamagedPageKeepAStrictRunFromPrinting)
{
    CupsServerFixture cups;
    cups.addQueue(QStringLiteral("Lab"));
    const QStringList damaged{testDocument(QStringLiteral("damaged-page.pdf")),
                              QStringLiteral("--no-dialog"), QStringLiteral("--printer"),
                              QStringLiteral("Lab")};
    EXPECT_EQ(run(damaged + QStringList{QStringLiteral("--strict")}, cups.address()), 6);
    const std::string sentence =
        "label-print: " + damaged[0].toStdString() + ": page 2 is damaged and cannot be shown\n";
    EXPECT_EQ(complained, sentence);
    EXPECT_EQ(said, "");
    EXPECT_EQ(run(damaged, cups.address()), 0) << "this queue gets the document itself";
    EXPECT_EQ(complained, sentence);
    EXPECT_THAT(said, HasSubstr("as job 1"));
}

TEST_F(ProgramCodes, LeaveNoJobOnTheServerOfAStrictRun)
{
    CupsServerFixture cups;
    cups.addQueue(QStringLiteral("Lab"));
    const QStringList toQueue{QStringLiteral("--printer"), QStringLiteral("Lab")};
    const auto onServer = [&](const QStringList &more) {
        return run(QStringList{scattered(), QStringLiteral("--no-dialog"),
                               QStringLiteral("--scaling"), QStringLiteral("actual")}
                       + toQueue + more,
                   cups.address());
    };
    EXPECT_EQ(onServer({QStringLiteral("--strict")}), 6) << complained;
    EXPECT_EQ(complained, warning);
    EXPECT_EQ(onServer({}), 0) << complained;
    EXPECT_THAT(said, HasSubstr("as job 1")) << "there was none before it";
}

TEST_F(ProgramCodes, OfOtherPagesDoNotMatter)
{
    const QString twoPages = write(QStringLiteral("two.tiff"), tiffOfTwoPages());
    EXPECT_EQ(
        run({twoPages, QStringLiteral("--no-dialog"), QStringLiteral("--strict"),
             QStringLiteral("--output"), out(), QStringLiteral("--pages"), QStringLiteral("2")}),
        0)
        << complained;
    EXPECT_EQ(complained, "");
}

TEST_F(ProgramCodes, WholeDotsAreChosenOnTheCommandLine)
{
    EXPECT_EQ(run({scattered(), QStringLiteral("--no-dialog"), QStringLiteral("--output"), out(),
                   QStringLiteral("--scaling"), QStringLiteral("whole-dots"), QStringLiteral("-o"),
                   QStringLiteral("CvHalftonePattern=Binary")}),
              0)
        << complained;
    const auto settings =
        dialog::FolderPrinter::readSettings(out() + QStringLiteral("/job-0001/settings.plist"));
    ASSERT_TRUE(settings);
    EXPECT_EQ(settings.value().scaling(), dialog::Scaling::WholeDots);
}

TEST_F(ProgramCodes, WholeDotsOfADocumentWithoutPixelsAreRefused)
{
    EXPECT_EQ(run({write(QStringLiteral("label.pdf"), document), QStringLiteral("--no-dialog"),
                   QStringLiteral("--output"), out(), QStringLiteral("--scaling"),
                   QStringLiteral("whole-dots")}),
              4);
    EXPECT_EQ(complained,
              "label-print: --scaling whole-dots: the document has no pixels of its own; choose "
              "fit or actual\n");
    EXPECT_FALSE(QFileInfo::exists(out()));
}

TEST_F(ProgramCodes, WholeDotsOfAPrinterThatIsNotSentDotsAreRefused)
{
    CupsServerFixture cups;
    cups.addQueue(QStringLiteral("Lab"));
    EXPECT_EQ(
        run({scattered(), QStringLiteral("--no-dialog"), QStringLiteral("--printer"),
             QStringLiteral("Lab"), QStringLiteral("--scaling"), QStringLiteral("whole-dots")},
            cups.address()),
        4);
    EXPECT_EQ(complained,
              "label-print: --scaling whole-dots: the printer is not sent dots; choose fit or "
              "actual\n");
}

TEST_F(ProgramCodes, WholeDotsOfAPrinterWithoutDotsAreRefused)
{
    EXPECT_EQ(
        run({scattered(), QStringLiteral("--no-dialog"), QStringLiteral("--output"), out(),
             QStringLiteral("--ppd"), QStringLiteral(TEST_DATA_DIR "/ppd/no-panel-options.ppd"),
             QStringLiteral("--scaling"), QStringLiteral("whole-dots")}),
        4);
    EXPECT_EQ(complained,
              "label-print: --scaling whole-dots: the printer's dots are not known; choose fit or "
              "actual\n");
}

TEST_F(ProgramCodes, APictureTooLargeForWholeDotsIsFittedWithAWord)
{
    const QString large = write(QStringLiteral("large.png"), CodeLabel(QSize(900, 1400)).png());
    EXPECT_EQ(run({large, QStringLiteral("--no-dialog"), QStringLiteral("--output"), out(),
                   QStringLiteral("--scaling"), QStringLiteral("whole-dots")}),
              0);
    EXPECT_EQ(complained,
              "label-print: --scaling whole-dots: the picture has more pixels than the label has "
              "dots; it is fitted to the label\n");
}

TEST_F(ProgramCodes, AnUnknownScalingIsRefused)
{
    EXPECT_EQ(run({scattered(), QStringLiteral("--no-dialog"), QStringLiteral("--scaling"),
                   QStringLiteral("huge")}),
              2);
    EXPECT_EQ(complained, "label-print: --scaling huge: choose fit, actual or whole-dots\n");
}

} // namespace
