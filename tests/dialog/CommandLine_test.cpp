// SPDX-License-Identifier: Apache-2.0
#include "dialog/CommandLine.h"

#include <gmock/gmock.h>

using namespace dialog;
using testing::HasSubstr;

namespace {

auto read(const QStringList &arguments)
{
    return CommandLineReader::read(QStringList{QStringLiteral("label-print")} + arguments);
}

CommandLine lineOf(const QStringList &arguments)
{
    return std::get<CommandLine>(read(arguments));
}

std::string failureOf(const QStringList &arguments)
{
    const auto answer = read(arguments);
    const Failure *failure = std::get_if<Failure>(&answer);
    if (!failure) {
        return "no failure";
    }
    EXPECT_EQ(failure->kind, FailureKind::Usage);
    return failure->text().toStdString();
}

TEST(CommandLine, ReadsEveryOption)
{
    const CommandLine line =
        lineOf({QStringLiteral("photo.png"), QStringLiteral("--printer"), QStringLiteral("Office"),
                QStringLiteral("-o"), QStringLiteral("CvBrightness=-5"), QStringLiteral("-o"),
                QStringLiteral("PageSize=Custom.60x100mm"), QStringLiteral("--copies"),
                QStringLiteral("3"), QStringLiteral("--pages"), QStringLiteral("1-3,5"),
                QStringLiteral("--plugin"), QStringLiteral("panels"), QStringLiteral("--no-dialog"),
                QStringLiteral("--ticket"), QStringLiteral("job.ticket")});
    EXPECT_EQ(line.ticket, QStringLiteral("job.ticket"));
    EXPECT_EQ(line.document, QStringLiteral("photo.png"));
    EXPECT_EQ(line.printer, QStringLiteral("Office"));
    EXPECT_EQ(line.plugIn, QStringLiteral("panels"));
    const OptionChoices choices{{QStringLiteral("CvBrightness"), QStringLiteral("-5")},
                                {QStringLiteral("PageSize"), QStringLiteral("Custom.60x100mm")}};
    EXPECT_EQ(line.choices, choices);
    EXPECT_EQ(line.copies, 3);
    EXPECT_EQ(line.pages->text(), QStringLiteral("1-3,5"));
    EXPECT_TRUE(line.noDialog);
    EXPECT_FALSE(line.listPrinters);
}

TEST(CommandLine, AnOptionMayHaveItsChoiceAttached)
{
    EXPECT_EQ(lineOf({QStringLiteral("-oCvContrast=7")}).choices.at(0).choice, QStringLiteral("7"));
    EXPECT_EQ(lineOf({QStringLiteral("--copies=2")}).copies, 2);
}

TEST(CommandLine, NothingGivenAsksForTheDialogWithoutADocument)
{
    const CommandLine line = lineOf({});
    EXPECT_TRUE(line.document.isEmpty());
    EXPECT_FALSE(line.noDialog);
    EXPECT_FALSE(line.copies.has_value());
}

TEST(CommandLine, HelpNamesEveryOptionAndEveryExitCode)
{
    const auto answer = read({QStringLiteral("--help")});
    const std::string help = std::get<QString>(answer).toStdString();
    for (const char *text :
         {"--printer", "--ppd",       "--output",        "-o <",         "--copies",  "--pages",
          "--plugin",  "--no-dialog", "--list-printers", "--screenshot", "--version", "--help",
          "  0  ",     "  1  ",       "  2  ",           "  3  ",        "  4  ",     "  5  ",
          "  6  ",     "--scaling",   "--strict"}) {
        EXPECT_THAT(help, HasSubstr(text));
    }
}

TEST(CommandLine, TheScalingIsOneOfThree)
{
    const auto scaling = [](const char *word) {
        return lineOf({QStringLiteral("--scaling"), QLatin1String(word)}).scaling;
    };
    EXPECT_EQ(scaling("fit"), Scaling::Fit);
    EXPECT_EQ(scaling("actual"), Scaling::ActualSize);
    EXPECT_EQ(scaling("whole-dots"), Scaling::WholeDots);
    EXPECT_EQ(lineOf({}).scaling, std::nullopt);
    EXPECT_EQ(failureOf({QStringLiteral("--scaling"), QStringLiteral("none")}),
              "--scaling none: choose fit, actual or whole-dots");
}

TEST(CommandLine, StrictIsAskedFor)
{
    EXPECT_TRUE(lineOf({QStringLiteral("--strict")}).strict);
    EXPECT_FALSE(lineOf({}).strict);
}

TEST(CommandLine, VersionIsOneLine)
{
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2.3"));
    EXPECT_EQ(std::get<QString>(read({QStringLiteral("--version")})),
              QStringLiteral("label-print 1.2.3\n"));
}

TEST(CommandLine, RefusalsNameTheArgumentAndWhatToDo)
{
    EXPECT_THAT(failureOf({QStringLiteral("--colour")}), HasSubstr("colour"));
    EXPECT_THAT(failureOf({QStringLiteral("--colour")}), HasSubstr("--help"));
    EXPECT_THAT(failureOf({QStringLiteral("a.pdf"), QStringLiteral("b.pdf")}),
                HasSubstr("b.pdf: only one document"));
    EXPECT_THAT(failureOf({QStringLiteral("-o"), QStringLiteral("CvBrightness")}),
                HasSubstr("-o CvBrightness: give an option and its choice"));
    EXPECT_THAT(failureOf({QStringLiteral("-o"), QStringLiteral("=5")}), HasSubstr("-o =5"));
    EXPECT_THAT(failureOf({QStringLiteral("--copies"), QStringLiteral("0")}),
                HasSubstr("--copies 0"));
    EXPECT_THAT(failureOf({QStringLiteral("--copies"), QStringLiteral("many")}),
                HasSubstr("--copies many"));
    EXPECT_THAT(failureOf({QStringLiteral("--pages"), QStringLiteral("3-1")}),
                HasSubstr("--pages 3-1"));
    EXPECT_THAT(failureOf({QStringLiteral("--printer"), QString()}), HasSubstr("--printer"));
    EXPECT_THAT(failureOf({QStringLiteral("--printer")}), HasSubstr("printer"));
}

TEST(CommandLine, RefusesWhatCannotGoTogether)
{
    EXPECT_THAT(failureOf({QStringLiteral("a.pdf"), QStringLiteral("--no-dialog"),
                           QStringLiteral("--screenshot"), QStringLiteral("x.png")}),
                HasSubstr("--screenshot"));
    EXPECT_THAT(failureOf({QStringLiteral("--no-dialog")}),
                HasSubstr("needs the name of a document"));
    EXPECT_THAT(
        failureOf({QStringLiteral("a.pdf"), QStringLiteral("--printer"), QStringLiteral("Office"),
                   QStringLiteral("--ppd"), QStringLiteral("x.ppd")}),
        HasSubstr("--printer Office"));
}

TEST(CommandLine, EveryKindOfFailureHasAnExitCodeThatIsNotZero)
{
    for (const FailureKind kind :
         {FailureKind::Usage, FailureKind::Document, FailureKind::Ppd, FailureKind::Settings,
          FailureKind::Server, FailureKind::Printer, FailureKind::Job, FailureKind::Folder,
          FailureKind::Panel, FailureKind::Barcode, FailureKind::Cancelled}) {
        EXPECT_NE(exitCodeOf(kind), ExitCode::Done);
    }
    EXPECT_EQ(exitCodeOf(FailureKind::Document), ExitCode::Document);
    EXPECT_EQ(exitCodeOf(FailureKind::Ppd), ExitCode::Printer);
    EXPECT_EQ(exitCodeOf(FailureKind::Server), ExitCode::Job);
    EXPECT_EQ(int(exitCodeOf(FailureKind::Barcode)), 6);
}

} // namespace
