// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/PanelFixture.h"

#include <QCheckBox>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class GraphicsPDEKeys : public PanelTest
{
protected:
    QStringList keys() { return *panel->supportedPPDOptionKeys(); }
    QStringList allKeys() const
    {
        QStringList all;
        for (const PpdOption &option : sixOptions()) {
            all << QString::fromLatin1(option.keyword);
        }
        return all;
    }
};

TEST_F(GraphicsPDEKeys, ListsTheSixKeywordsInTheFixedOrder)
{
    auto options = sixOptions();
    std::reverse(options.begin(), options.end());
    usePpd(options);
    makePanel();
    EXPECT_EQ(keys(), allKeys());
}

TEST_F(GraphicsPDEKeys, SecondCallAnswersTheSameListAndSavesNothing)
{
    makePanel();
    const auto first = panel->supportedPPDOptionKeys();
    takeCalls();
    EXPECT_EQ(panel->supportedPPDOptionKeys(), first);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(GraphicsPDEKeys, LeavesOutColourAndRedLevelThatThePPDLacks)
{
    usePpdFile(QStringLiteral("no-colour.ppd"));
    makePanel();
    EXPECT_EQ(keys(), allKeys().mid(0, 4));
}

TEST_F(GraphicsPDEKeys, PPDWithoutTheOptionsGivesAnEmptyListThatStays)
{
    usePpdFile(QStringLiteral("no-panel-options.ppd"));
    makePanel();
    const auto first = panel->supportedPPDOptionKeys();
    EXPECT_THAT(*first, IsEmpty());
    EXPECT_EQ(panel->supportedPPDOptionKeys(), first);
}

TEST_F(GraphicsPDEKeys, EmptyListThatIsSetCountsAsSet)
{
    makePanel();
    const auto none = std::make_shared<QStringList>();
    panel->setSupportedOptions(none);
    EXPECT_EQ(panel->supportedPPDOptionKeys(), none);
    EXPECT_THAT(takeChanges(), IsEmpty());
}

TEST_F(GraphicsPDEKeys, SpellsKeywordsItsOwnWay)
{
    usePpdFile(QStringLiteral("other-spelling.ppd"));
    makePanel();
    EXPECT_EQ(keys(), allKeys());
}

TEST_F(GraphicsPDEKeys, BeforeTheViewCommitsMarkedElseDefaultOfTheFirstFour)
{
    ppd->mark("CvHalftonePattern", "Binary");
    ppd->mark("CvBrightness", "5");
    makePanel();
    takeCalls();
    keys();
    EXPECT_THAT(takeCalls(),
                ElementsAre("willChange CvHalftonePattern=Binary", "willChange CvBrightness=5",
                            "willChange CvContrast=0", "willChange CvBiDiPrint=ON"));
}

TEST_F(GraphicsPDEKeys, BeforeTheViewWithoutMarkAndDefaultCommitsFirstOrSecondChoice)
{
    usePpdFile(QStringLiteral("no-default.ppd"));
    makePanel();
    keys();
    EXPECT_THAT(takeChanges(),
                ElementsAre("CvHalftonePattern=Binary", "CvBrightness=19", "CvContrast=19",
                            "CvBiDiPrint=OFF"));
}

TEST_F(GraphicsPDEKeys, WithTheViewCommitsWhatTheControlsShow)
{
    ppd->markDefaults();
    makeView();
    setText("mBrightnessText", "7");
    setText("mContrustText", "-7");
    keys();
    EXPECT_THAT(takeChanges(),
                ElementsAre("CvHalftonePattern=Binary", "CvBrightness=7", "CvContrast=-7",
                            "CvBiDiPrint=OFF"));
}

TEST_F(GraphicsPDEKeys, WithoutPrintSettingsListsTheKeysAndCommitsNothing)
{
    host = std::make_shared<RecordingHost>(&*ppd);
    host->hasSettings = false;
    makePanel();
    EXPECT_EQ(keys(), allKeys());
    EXPECT_THAT(takeChanges(), IsEmpty());
}

} // namespace
