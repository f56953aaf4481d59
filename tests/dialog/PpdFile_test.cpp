// SPDX-License-Identifier: Apache-2.0
#include "dialog/PpdFile.h"
#include "support/QtPrinters.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <gmock/gmock.h>

#include <sys/stat.h>

using dialog::FailureKind;
using dialog::LabelSize;
using dialog::OptionChoices;
using dialog::PpdConflict;
using dialog::PpdFile;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace {

const QString kPageSize = QStringLiteral("PageSize");
const QString kBrightness = QStringLiteral("CvBrightness");
const QString kColour = QStringLiteral("CvMultiColor");
const QString kBlackRed = QStringLiteral("CvMultiColorBlackRed");
const QString kResolution = QStringLiteral("Resolution");

QString testPpd(const char *name)
{
    return QStringLiteral(TEST_DATA_DIR "/ppd/") + QString::fromLatin1(name);
}

std::unique_ptr<PpdFile> opened(const QString &path)
{
    auto ppd = PpdFile::open(path);
    EXPECT_TRUE(ppd) << ppd.failure().text().toStdString();
    return ppd ? std::move(ppd).value() : nullptr;
}

std::unique_ptr<PpdFile> sample()
{
    return opened(QStringLiteral(SOURCE_DIR "/resources/ppd/label-300.ppd"));
}

QString complaint(const QString &path)
{
    const auto ppd = PpdFile::open(path);
    if (ppd) {
        return {};
    }
    EXPECT_EQ(ppd.failure().kind, FailureKind::Ppd);
    EXPECT_EQ(ppd.failure().what, path);
    return ppd.failure().why;
}

QStringList names(const std::vector<LabelSize> &sizes)
{
    QStringList all;
    std::transform(sizes.begin(), sizes.end(), std::back_inserter(all),
                   [](const LabelSize &size) { return size.name; });
    return all;
}

QStringList keywords(const std::vector<PpdConflict> &conflicts)
{
    QStringList all;
    for (const PpdConflict &conflict : conflicts) {
        all.append(conflict.keywords.option + QLatin1Char('=') + conflict.keywords.choice);
    }
    all.sort();
    return all;
}

TEST(PpdFile, OpeningMarksTheDefaults)
{
    const auto ppd = sample();
    ASSERT_TRUE(ppd);
    EXPECT_EQ(ppd->nickName(), QStringLiteral("Sample Label 300, black and red"));
    EXPECT_EQ(ppd->modelName(), QStringLiteral("Sample Label 300"));
    EXPECT_EQ(ppd->markedChoice(kBrightness), QStringLiteral("0"));
    EXPECT_EQ(ppd->markedChoice(kPageSize), QStringLiteral("DC62x100"));
    EXPECT_FALSE(ppd->markedChoice(QStringLiteral("Nothing")));
}

TEST(PpdFile, WhatIsNoPpdIsNamedWithLineAndReason)
{
    EXPECT_EQ(complaint(testPpd("not-a-ppd.ppd")),
              QStringLiteral("is not a usable PPD (line 1: Missing asterisk in column 1); "
                             "choose another one"));
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write("*ModelName: \"x\"\n*OpenGroup: a\n");
    file.close();
    EXPECT_EQ(complaint(file.fileName()),
              QStringLiteral("is not a usable PPD (line 1: Missing PPD-Adobe-4.x header); "
                             "choose another one"));
}

TEST(PpdFile, CutOffPpdHasTheOptionsThatItStillHas)
{
    const auto ppd = opened(testPpd("truncated.ppd"));
    ASSERT_TRUE(ppd);
    EXPECT_EQ(ppd->choices(kBrightness), QStringList(QStringLiteral("0")));
}

TEST(PpdFile, FilesThatCannotBePpdsAreNamed)
{
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(QStringLiteral("pipe"));
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(complaint(folder.filePath(QStringLiteral("none.ppd"))),
              QStringLiteral("there is no such file"));
    EXPECT_EQ(complaint(folder.path()), QStringLiteral("is a folder; choose the PPD file in it"));
    EXPECT_EQ(complaint(pipe), QStringLiteral("is not an ordinary file; choose a PPD file"));
    EXPECT_EQ(complaint(testPpd("empty.ppd")),
              QStringLiteral("is empty; choose the printer's PPD file"));
}

TEST(PpdFile, PpdWithoutDefaultsOrSizesIsUsable)
{
    const auto noDefault = opened(testPpd("no-default.ppd"));
    ASSERT_TRUE(noDefault);
    const auto bare = opened(testPpd("no-panel-options.ppd"));
    ASSERT_TRUE(bare);
    EXPECT_THAT(bare->sizes(), testing::IsEmpty());
    EXPECT_FALSE(bare->defaultSize());
    EXPECT_FALSE(bare->markedSize());
    EXPECT_FALSE(bare->customSizes());
    EXPECT_EQ(bare->options(), QStringList(QStringLiteral("CutMedia")));
}

TEST(PpdFile, OptionsAndChoicesComeInPpdOrder)
{
    const auto ppd = sample();
    ASSERT_TRUE(ppd);
    EXPECT_THAT(ppd->options(), Contains(kColour));
    EXPECT_TRUE(ppd->hasOption(kColour));
    EXPECT_FALSE(ppd->hasOption(QStringLiteral("CvOther")));
    const QStringList levels = ppd->choices(kBrightness);
    ASSERT_EQ(levels.size(), 41);
    EXPECT_EQ(levels.first(), QStringLiteral("20"));
    EXPECT_EQ(levels.last(), QStringLiteral("-20"));
    EXPECT_EQ(ppd->choices(QStringLiteral("CvOther")), QStringList());
}

TEST(PpdFile, TitlesArePpdsTextsOrTheKeyword)
{
    const auto ppd = sample();
    ASSERT_TRUE(ppd);
    EXPECT_EQ(ppd->optionTitle(kBrightness), QStringLiteral("Brightness"));
    EXPECT_EQ(ppd->choiceTitle(kPageSize, QStringLiteral("FL24x80")), QStringLiteral("Cable flag"));
    EXPECT_EQ(ppd->optionTitle(QStringLiteral("CvOther")), QStringLiteral("CvOther"));
    EXPECT_EQ(ppd->choiceTitle(kBrightness, QStringLiteral("99")), QStringLiteral("99"));
}

TEST(PpdFile, UndecodableTitlesFallBackToTheKeyword)
{
    const auto ppd = opened(testPpd("undecodable-titles.ppd"));
    ASSERT_TRUE(ppd);
    const QStringList options = ppd->options();
    ASSERT_FALSE(options.isEmpty());
    for (const QString &option : options) {
        EXPECT_FALSE(ppd->optionTitle(option).contains(QChar::ReplacementCharacter));
        for (const QString &choice : ppd->choices(option)) {
            const QString title = ppd->choiceTitle(option, choice);
            EXPECT_FALSE(title.isEmpty() || title.contains(QChar::ReplacementCharacter));
        }
    }
}

TEST(PpdFile, MarkAnswersWhetherAnotherChoiceIsMarked)
{
    const auto ppd = sample();
    ASSERT_TRUE(ppd);
    EXPECT_TRUE(ppd->mark(kBrightness, QStringLiteral("-5")));
    EXPECT_EQ(ppd->markedChoice(kBrightness), QStringLiteral("-5"));
    EXPECT_FALSE(ppd->mark(kBrightness, QStringLiteral("-5")));
}

TEST(PpdFile, UnknownPairsChangeNothing)
{
    const auto ppd = sample();
    ASSERT_TRUE(ppd);
    EXPECT_FALSE(ppd->mark(kBrightness, QStringLiteral("77")));
    EXPECT_FALSE(ppd->mark(kBrightness, QString()));
    EXPECT_FALSE(ppd->mark(QStringLiteral("CvOther"), QStringLiteral("1")));
    EXPECT_FALSE(ppd->mark(kPageSize, QStringLiteral("Custom.9999x5mm")));
    EXPECT_EQ(ppd->markedChoice(kBrightness), QStringLiteral("0"));
    EXPECT_EQ(ppd->markedChoice(kPageSize), QStringLiteral("DC62x100"));
}

TEST(PpdFile, CheckNamesTheOptionsOrChoicesThereAre)
{
    const auto ppd = sample();
    ASSERT_TRUE(ppd);
    EXPECT_FALSE(ppd->check(kColour, kBlackRed));
    EXPECT_EQ(ppd->check(kColour, QStringLiteral("Green"))->text(),
              QStringLiteral("CvMultiColor=Green: the option has no such choice; its choices are "
                             "CvMultiColorMonochrome, CvMultiColorBlackRed"));
    const auto unknown = ppd->check(QStringLiteral("CvOther"), QStringLiteral("1"));
    ASSERT_TRUE(unknown);
    EXPECT_EQ(unknown->what, QStringLiteral("CvOther"));
    EXPECT_TRUE(unknown->why.startsWith(
        QStringLiteral("the printer has no such option; its options are ")));
    EXPECT_EQ(ppd->check(kPageSize, QStringLiteral("Custom"))->text(),
              QStringLiteral("Custom: give the size of the label too, like Custom.60x100mm"));
}

TEST(PpdFile, DefaultsOfAQueueAreMarkedOnTopOfThePpds)
{
    const auto ppd = sample();
    ASSERT_TRUE(ppd);
    ppd->markOptions({{kBrightness, QStringLiteral("7")},
                      {kPageSize, QStringLiteral("DC62x29")},
                      {QStringLiteral("CvContrast"), QStringLiteral("77")}});
    EXPECT_EQ(ppd->markedChoice(kBrightness), QStringLiteral("7"));
    EXPECT_EQ(ppd->markedSize()->name, QStringLiteral("DC62x29"));
    EXPECT_EQ(ppd->markedChoice(QStringLiteral("CvContrast")), QStringLiteral("0"));
    ppd->markDefaults();
    EXPECT_EQ(ppd->markedChoice(kBrightness), QStringLiteral("0"));
}

TEST(PpdFile, SizesComeInPpdOrderWithTitleAndMillimetres)
{
    const auto ppd = sample();
    ASSERT_TRUE(ppd);
    const auto sizes = ppd->sizes();
    EXPECT_EQ(names(sizes).join(QLatin1Char(' ')),
              QStringLiteral(
                  "DC17x54 DC29x90 DC62x29 DC62x100 AV57x32 AV102x152 FL24x80 C_12x100 C_62x300"));
    EXPECT_EQ(sizes[5].title, QStringLiteral("Parcel label"));
    EXPECT_EQ(sizes[5].millimetres(), QStringLiteral("102 × 152 mm"));
    EXPECT_EQ(ppd->defaultSize()->name, QStringLiteral("DC62x100"));
    EXPECT_EQ(ppd->markedSize()->name, QStringLiteral("DC62x100"));
}

TEST(PpdFile, OwnSizesHaveThePpdsLimits)
{
    const auto ppd = sample();
    ASSERT_TRUE(ppd);
    const auto range = ppd->customSizes();
    ASSERT_TRUE(range);
    EXPECT_NEAR(range->minWidth, 10, 0.01);
    EXPECT_NEAR(range->maxWidth, 104, 0.01);
    EXPECT_NEAR(range->minHeight, 10, 0.01);
    EXPECT_NEAR(range->maxHeight, 1000, 0.01);
    EXPECT_FALSE(ppd->markSize(LabelSize::custom(10, 1000)));
    EXPECT_EQ(ppd->markSize(LabelSize::custom(120, 50))->text(),
              QStringLiteral("120 × 50 mm: the printer takes widths of 10 to 104 mm and "
                             "heights of 10 to 1000 mm"));
}

TEST(PpdFile, OwnSizeIsMarkedWithItsNumbers)
{
    const auto ppd = sample();
    ASSERT_TRUE(ppd);
    EXPECT_FALSE(ppd->markSize(LabelSize::custom(60, 100.5)));
    EXPECT_EQ(ppd->markedChoice(kPageSize), QStringLiteral("Custom"));
    ASSERT_TRUE(ppd->markedSize());
    EXPECT_EQ(ppd->markedSize()->pageSizeChoice(), QStringLiteral("Custom.60x100.5mm"));
    // The same record with other numbers.
    EXPECT_FALSE(ppd->mark(kPageSize, QStringLiteral("Custom.50x80mm")));
    EXPECT_EQ(ppd->markedSize()->pageSizeChoice(), QStringLiteral("Custom.50x80mm"));
    EXPECT_TRUE(ppd->mark(kPageSize, QStringLiteral("DC62x29")));
    EXPECT_FALSE(ppd->check(kPageSize, QStringLiteral("Custom")));
}

TEST(PpdFile, OwnSizeIsRefusedWhereThePpdHasNone)
{
    const auto ppd = opened(testPpd("six-options.ppd"));
    ASSERT_TRUE(ppd);
    const auto failure = ppd->markSize(LabelSize::custom(60, 100));
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->kind, FailureKind::Settings);
}

TEST(PpdFile, ConflictsAreNamedBeforeAndAfterTheMark)
{
    const auto ppd = sample();
    ASSERT_TRUE(ppd);
    EXPECT_EQ(keywords(ppd->conflicts()), QStringList());
    ppd->mark(kPageSize, QStringLiteral("FL24x80"));
    const auto clashes = ppd->conflictsWith(kColour, kBlackRed);
    EXPECT_EQ(keywords(clashes).join(QLatin1Char(' ')), QStringLiteral("PageSize=FL24x80"));
    EXPECT_EQ(clashes[0].optionTitle, QStringLiteral("Label size"));
    EXPECT_EQ(clashes[0].choiceTitle, QStringLiteral("Cable flag"));
    ppd->mark(kColour, kBlackRed);
    EXPECT_EQ(keywords(ppd->conflicts()).join(QLatin1Char(' ')),
              QStringLiteral("CvMultiColor=CvMultiColorBlackRed PageSize=FL24x80"));
}

TEST(PpdFile, ResolutionProposesChoicesThatClashWithNothing)
{
    const auto ppd = sample();
    ASSERT_TRUE(ppd);
    ppd->mark(kColour, kBlackRed);
    const auto changes = ppd->resolution(kResolution, QStringLiteral("300x600dpi"));
    ASSERT_TRUE(changes);
    EXPECT_THAT(*changes,
                Contains(dialog::OptionChoice{kColour, QStringLiteral("CvMultiColorMonochrome")}));
    ppd->mark(kResolution, QStringLiteral("300x600dpi"));
    for (const auto &change : *changes) {
        ppd->mark(change.option, change.choice);
    }
    EXPECT_EQ(keywords(ppd->conflicts()), QStringList());
}

TEST(PpdFile, DoubledChoicesAndAThousandOfThemAreListed)
{
    const auto doubled = opened(testPpd("duplicate-choices.ppd"));
    ASSERT_TRUE(doubled);
    EXPECT_FALSE(doubled->options().isEmpty());
    const auto many = opened(testPpd("thousand-choices.ppd"));
    ASSERT_TRUE(many);
    qsizetype most = 0;
    for (const QString &option : many->options()) {
        most = std::max(most, many->choices(option).size());
    }
    EXPECT_EQ(most, 1000);
}

} // namespace
