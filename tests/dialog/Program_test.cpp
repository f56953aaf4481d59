// SPDX-License-Identifier: Apache-2.0
#include "ProgramRun.h"
#include "dialog/FolderPrinter.h"
#include "support/CupsServerFixture.h"

#include <QImage>

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::StartsWith;

namespace {

TEST_F(Program, PrintsWithoutADialogAndTheSettingsCanBeReadBack)
{
    EXPECT_EQ(
        run(toFolder({QStringLiteral("-o"), QStringLiteral("CvMultiColor=CvMultiColorBlackRed"),
                      QStringLiteral("--copies"), QStringLiteral("2")})),
        0)
        << complained;
    EXPECT_EQ(complained, "");
    EXPECT_THAT(said, HasSubstr("job-0001"));
    const auto settings =
        dialog::FolderPrinter::readSettings(out() + QStringLiteral("/job-0001/settings.plist"));
    ASSERT_TRUE(settings);
    EXPECT_EQ(settings.value().choice(QStringLiteral("CvMultiColor")),
              QStringLiteral("CvMultiColorBlackRed"));
    EXPECT_EQ(settings.value().copies(), 2);
    QFile printed(out() + QStringLiteral("/job-0001/label.pdf"));
    ASSERT_TRUE(printed.open(QIODevice::ReadOnly));
    EXPECT_EQ(printed.readAll(), document);
}

TEST_F(Program, StartsFromATicketAndRefusesABadOne)
{
    const QString ticket =
        write(QStringLiteral("job.ticket"),
              "<plist><dict><key>KtPaperName2</key><string>DC17x54</string>"
              "<key>KtVLMultiColor</key><string>MultiColorBlackRed</string></dict></plist>");
    EXPECT_EQ(run(toFolder({QStringLiteral("--ticket"), ticket})), 0) << complained;
    const auto settings =
        dialog::FolderPrinter::readSettings(out() + QStringLiteral("/job-0001/settings.plist"));
    ASSERT_TRUE(settings);
    EXPECT_EQ(settings.value().choice(QStringLiteral("CvMultiColor")),
              QStringLiteral("CvMultiColorBlackRed"));
    EXPECT_EQ(settings.value().labelSize()->name, QStringLiteral("DC17x54"));

    const QString bad = write(QStringLiteral("bad.ticket"), "no ticket");
    EXPECT_EQ(run(toFolder({QStringLiteral("--ticket"), bad})), 4);
    EXPECT_THAT(complained, StartsWith("label-print: " + bad.toStdString() + ": is no XML"));
    EXPECT_EQ(run({QStringLiteral("--ticket"), bad, QStringLiteral("--screenshot"),
                   folder.filePath(QStringLiteral("dialog.png"))}),
              4);
}

TEST_F(Program, SavesAPictureOfTheDialogWithoutADisplay)
{
    const QString picture = folder.filePath(QStringLiteral("dialog.png"));
    EXPECT_EQ(run({write(QStringLiteral("label.pdf"), pdfOfPages(1)), QStringLiteral("--output"),
                   out(), QStringLiteral("--screenshot"), picture}),
              0)
        << complained;
    EXPECT_EQ(complained, "");
    const QImage image(picture);
    EXPECT_GT(image.width(), 800);
    EXPECT_GT(image.height(), 500);
}

TEST_F(Program, APictureThatCannotBeWrittenIsASentence)
{
    EXPECT_EQ(run({write(QStringLiteral("label.pdf"), pdfOfPages(1)), QStringLiteral("--output"),
                   out(), QStringLiteral("--screenshot"), QStringLiteral("/nonexistent/x.png")}),
              5);
    EXPECT_THAT(complained, StartsWith("label-print: /nonexistent/x.png: "));
}

TEST_F(Program, ListsTheQueuesAndTheFolder)
{
    CupsServerFixture cups;
    cups.addQueue(QStringLiteral("Lab"));
    EXPECT_EQ(run({QStringLiteral("--list-printers")}, cups.address()), 0) << complained;
    EXPECT_THAT(said, HasSubstr("Lab"));
    EXPECT_THAT(said, HasSubstr("folder"));
}

TEST_F(Program, ListsTheFolderAlsoWhenTheServerIsNotThere)
{
    EXPECT_EQ(run({QStringLiteral("--list-printers")}), 5);
    EXPECT_THAT(said, StartsWith("folder"));
    EXPECT_THAT(complained, HasSubstr("/nonexistent"));
}

TEST_F(Program, PrintsToAQueue)
{
    CupsServerFixture cups;
    cups.addQueue(QStringLiteral("Lab"));
    const QString path = write(QStringLiteral("label.pdf"), document);
    EXPECT_EQ(run({path, QStringLiteral("--no-dialog"), QStringLiteral("--printer"),
                   QStringLiteral("Lab"), QStringLiteral("-o"), QStringLiteral("CvRedLevel=-7")},
                  cups.address()),
              0)
        << complained;
    EXPECT_THAT(said, HasSubstr("Lab"));
    EXPECT_THAT(cups.arrived(1).options(), testing::Contains(QStringLiteral("CvRedLevel=-7")));
}

TEST_F(Program, EveryRefusalIsOneLineWithItsExitCode)
{
    const QString missing = folder.filePath(QStringLiteral("missing.pdf"));
    EXPECT_EQ(run({missing, QStringLiteral("--no-dialog"), QStringLiteral("--output"), out()}), 3);
    EXPECT_THAT(complained, HasSubstr("missing.pdf: "));
    EXPECT_EQ(run(toFolder({QStringLiteral("-o"), QStringLiteral("CvBrightness=99")})), 4);
    EXPECT_THAT(complained, StartsWith("label-print: CvBrightness=99: "));
    EXPECT_EQ(std::count(complained.begin(), complained.end(), '\n'), 1);
    EXPECT_EQ(run(toFolder({QStringLiteral("--pages"), QStringLiteral("7")})), 2);
    EXPECT_EQ(run(toFolder({QStringLiteral("--ppd"), missing})), 4);
    EXPECT_THAT(complained, HasSubstr("missing.pdf"));
    EXPECT_EQ(run({QStringLiteral("--frobnicate")}), 2);
    EXPECT_EQ(run({QStringLiteral("label.pdf")}), 2) << "there is no display to wait at";
    EXPECT_THAT(complained, HasSubstr("--no-dialog"));
    EXPECT_FALSE(QFileInfo::exists(out()));
}

TEST_F(Program, AForbiddenCombinationIsRefusedBeforeAnythingIsPrinted)
{
    EXPECT_EQ(
        run(toFolder({QStringLiteral("-o"), QStringLiteral("CvMultiColor=CvMultiColorBlackRed"),
                      QStringLiteral("-o"), QStringLiteral("Resolution=300x600dpi")})),
        4);
    EXPECT_THAT(complained, HasSubstr("cannot be had together"));
    EXPECT_FALSE(QFileInfo::exists(out()));
}

TEST_F(Program, AServerThatIsNotThereIsNamed)
{
    EXPECT_EQ(run({write(QStringLiteral("label.pdf"), pdfOfPages(1)), QStringLiteral("--no-dialog"),
                   QStringLiteral("--printer"), QStringLiteral("Lab")}),
              5);
    EXPECT_THAT(complained, HasSubstr("/nonexistent"));
}

TEST_F(Program, ABundleThatIsRefusedCostsThePanelNotTheJob)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("panels/Broken.plugin")));
    EXPECT_EQ(
        run(toFolder({QStringLiteral("--plugin"), folder.filePath(QStringLiteral("panels"))})), 0);
    EXPECT_THAT(complained, HasSubstr("Broken"));
    EXPECT_THAT(said, HasSubstr("job-0001"));
}

TEST_F(Program, HelpAndVersionNeedNoDisplay)
{
    EXPECT_EQ(run({QStringLiteral("--help")}), 0);
    EXPECT_THAT(said, StartsWith("Usage: label-print"));
    EXPECT_EQ(run({QStringLiteral("--version")}), 0);
    EXPECT_THAT(said, StartsWith("label-print "));
}

} // namespace
