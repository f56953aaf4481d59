// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/PanelFixture.h"

#include <stdexcept>

namespace {

class GraphicsPDESummary : public PanelTest
{
protected:
    void markAll(const QList<QByteArray> &choices)
    {
        const auto options = sixOptions();
        for (size_t i = 0; i < options.size(); ++i) {
            ppd->mark(options[i].keyword, choices[int(i)]);
        }
    }
    /// Takes over all marks, then asks.
    QVariantMap summaryOfMarks()
    {
        makePanel();
        panel->updateMarkedSelections(-1);
        return panel->summaryInfo().value();
    }
    static QStringList order(const QVariantMap &summary)
    {
        return summary[kSummaryDisplayOrder].toStringList();
    }
    static std::string value(const QVariantMap &summary, const char *title)
    {
        return summary[QLatin1String(title)].toString().toStdString();
    }
    void setTitle(const char *option, const char *title)
    {
        qstrncpy(ppd->option(option)->text, title, sizeof(ppd->option(option)->text));
    }
};

TEST_F(GraphicsPDESummary, WithoutSelectionsHoldsAnEmptyOrderOnly)
{
    ppd->markDefaults();
    makePanel();
    const QVariantMap summary = panel->summaryInfo().value();
    EXPECT_EQ(summary.keys(), QStringList(QString(kSummaryDisplayOrder)));
    EXPECT_EQ(summary[kSummaryDisplayOrder], QVariant(QStringList()));
}

TEST_F(GraphicsPDESummary, ListsTheSixTitlesInTheFixedOrder)
{
    useTranslations();
    markAll({"Dither", "5", "-5", "ON", "CvMultiColorBlackRed", "20"});
    const QVariantMap summary = summaryOfMarks();
    EXPECT_EQ(
        order(summary),
        QStringList({QStringLiteral("[Halftone]"), QStringLiteral("[Brightness]"),
                     QStringLiteral("[Contrast]"), QStringLiteral("[Bi-directional printing]"),
                     QStringLiteral("[Colour mode]"), QStringLiteral("[Red level]")}));
    EXPECT_EQ(summary.size(), 7);
}

TEST_F(GraphicsPDESummary, ValuesAreTranslatedByThePlaceOfTheMark)
{
    useTranslations();
    markAll({"Dither", "5", "-5", "ON", "CvMultiColorBlackRed", "20"});
    const QVariantMap summary = summaryOfMarks();
    EXPECT_EQ(value(summary, "[Halftone]"), "[HC_Dither]");
    EXPECT_EQ(value(summary, "[Brightness]"), "+5");
    EXPECT_EQ(value(summary, "[Contrast]"), "-5");
    EXPECT_EQ(value(summary, "[Bi-directional printing]"), "[RS_STitle_Yes]");
    EXPECT_EQ(value(summary, "[Colour mode]"), "[HC_BlackRed]");
    EXPECT_EQ(value(summary, "[Red level]"), "+20");
}

TEST_F(GraphicsPDESummary, FirstChoicesHaveTheirOwnTexts)
{
    useTranslations();
    markAll({"Binary", "0", "0", "OFF", "CvMultiColorMonochrome", "0"});
    const QVariantMap summary = summaryOfMarks();
    EXPECT_EQ(value(summary, "[Halftone]"), "[HC_Binary]");
    EXPECT_EQ(value(summary, "[Bi-directional printing]"), "[RS_STitle_No]");
    EXPECT_EQ(value(summary, "[Colour mode]"), "[HC_Monochrome]");
}

TEST_F(GraphicsPDESummary, ThirdHalftoneMethodIsErrorDiffusion)
{
    useTranslations();
    ppd->mark("CvHalftonePattern", "ErrorDiffusion");
    EXPECT_EQ(value(summaryOfMarks(), "[Halftone]"), "[HC_ErrorDiffusion]");
}

TEST_F(GraphicsPDESummary, WithoutAMarkTheValueIsTheTextOfTheSelection)
{
    const QVariantMap summary = summaryOfMarks();
    EXPECT_EQ(value(summary, "Halftone"), "Error diffusion");
    EXPECT_EQ(value(summary, "Bi-directional printing"), "On");
    EXPECT_EQ(value(summary, "Colour mode"), "Monochrome");
}

TEST_F(GraphicsPDESummary, FurtherChoicesHaveTheTextOfTheSelection)
{
    auto options = sixOptions();
    options[kHalftone].choices << "Screen/Line screen";
    options[kBiDiPrint].choices << "AUTO/Automatic";
    options[kColor].choices << "All/All colours";
    usePpd(options);
    markAll({"Screen", "0", "0", "AUTO", "All", "0"});
    const QVariantMap summary = summaryOfMarks();
    EXPECT_EQ(value(summary, "Halftone"), "Line screen");
    EXPECT_EQ(value(summary, "Bi-directional printing"), "Automatic");
    EXPECT_EQ(value(summary, "Colour mode"), "All colours");
}

TEST_F(GraphicsPDESummary, FixedTextsGoByPlaceNotByKeyword)
{
    auto options = sixOptions();
    options[kHalftone].choices = {"ErrorDiffusion/Error diffusion", "Binary/Binary"};
    usePpd(options);
    ppd->mark("CvHalftonePattern", "ErrorDiffusion");
    EXPECT_EQ(value(summaryOfMarks(), "Halftone"), "HC_Binary");
}

TEST_F(GraphicsPDESummary, MarkDecidesTheFixedTextNotTheSelection)
{
    markAll({"Dither", "5", "5", "ON", "CvMultiColorBlackRed", "5"});
    makePanel();
    panel->updateMarkedSelections(-1);
    GraphicsPDETestAccess(*panel).select("CvHalftonePattern", 0);
    GraphicsPDETestAccess(*panel).select("CvBrightness", 0);
    const QVariantMap summary = panel->summaryInfo().value();
    EXPECT_EQ(value(summary, "Halftone"), "HC_Dither");
    EXPECT_EQ(value(summary, "Brightness"), "+20");
}

TEST_F(GraphicsPDESummary, TitlesWithoutATitleInThePPDAreTheTranslatedKeys)
{
    useTranslations();
    ppd->markDefaults();
    for (const PpdOption &option : sixOptions()) {
        setTitle(option.keyword.constData(), "\xE9");
    }
    EXPECT_EQ(order(summaryOfMarks()),
              QStringList(
                  {QStringLiteral("[HC_STitle_Halftone]"), QStringLiteral("[HC_STitle_Brightness]"),
                   QStringLiteral("[HC_STitle_Contrast]"), QStringLiteral("[RS_STitle_BiDiPrint]"),
                   QStringLiteral("[HC_STitle_Color]"), QStringLiteral("[HC_STitle_RedLevel]")}));
}

TEST_F(GraphicsPDESummary, OnlyReportedSettingIsTheOnlyOneListed)
{
    makePanel();
    panel->PPDOptionKeyValueDidChange(QStringLiteral("CvMultiColor"),
                                      QStringLiteral("CvMultiColorBlackRed"));
    const QVariantMap summary = panel->summaryInfo().value();
    EXPECT_EQ(order(summary), QStringList(QStringLiteral("Colour mode")));
    EXPECT_EQ(summary.size(), 2);
    EXPECT_EQ(value(summary, "Colour mode"), "Black and red");
}

TEST_F(GraphicsPDESummary, EqualTitlesShareTheLaterValueAndAreBothInTheOrder)
{
    setTitle("CvContrast", "Brightness");
    markAll({"Dither", "5", "-5", "ON", "CvMultiColorBlackRed", "20"});
    const QVariantMap summary = summaryOfMarks();
    EXPECT_EQ(value(summary, "Brightness"), "-5");
    EXPECT_EQ(order(summary).count(QStringLiteral("Brightness")), 2);
    EXPECT_EQ(order(summary).size(), 6);
    EXPECT_EQ(summary.size(), 6);
}

TEST_F(GraphicsPDESummary, EmptyTitleIsAKeyAndStaysInTheOrder)
{
    setTitle("CvBrightness", "");
    ppd->mark("CvBrightness", "5");
    const QVariantMap summary = summaryOfMarks();
    EXPECT_EQ(order(summary).indexOf(QString()), 1);
    EXPECT_EQ(order(summary).size(), 6);
    EXPECT_EQ(value(summary, ""), "+5");
}

TEST_F(GraphicsPDESummary, TitleThatIsTheOrderKeyGivesWayToTheOrder)
{
    setTitle("CvBrightness", "Summary Display Order");
    const QVariantMap summary = summaryOfMarks();
    EXPECT_EQ(order(summary).size(), 6);
    EXPECT_EQ(summary.size(), 6);
}

TEST_F(GraphicsPDESummary, ValueThatCannotBeMadeIsAnInvalidArgument)
{
    makePanel();
    ppd->option("CvBrightness")->choices[20].text[0] = '\xE9';
    panel->updateMarkedSelections(64);
    try {
        panel->summaryInfo();
        FAIL() << "A value without a text was put into the summary.";
    } catch (const std::invalid_argument &error) {
        EXPECT_THAT(error.what(), testing::HasSubstr("CvBrightness"));
    }
}

TEST_F(GraphicsPDESummary, UnreadableTextOfAChoiceWithAFixedTextIsNotNeeded)
{
    usePpdFile(QStringLiteral("undecodable-titles.ppd"));
    ppd->mark("CvHalftonePattern", "Dither");
    makePanel();
    panel->updateMarkedSelections(32);
    const QVariantMap summary = panel->summaryInfo().value();
    EXPECT_EQ(value(summary, "HC_STitle_Halftone"), "HC_Dither");
}

TEST_F(GraphicsPDESummary, AsksTheHostForNothing)
{
    ppd->markDefaults();
    makePanel();
    panel->updateMarkedSelections(-1);
    takeCalls();
    panel->summaryInfo();
    EXPECT_THAT(takeCalls(), testing::IsEmpty());
}

} // namespace
