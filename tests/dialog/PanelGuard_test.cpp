// SPDX-License-Identifier: Apache-2.0
#include "dialog/PanelGuard.h"

#include <QLabel>

#include <gmock/gmock.h>

#include <stdexcept>

using dialog::Failure;
using dialog::FailureKind;
using dialog::PanelGuard;
using testing::_;
using testing::DoAll;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::NiceMock;
using testing::Return;
using testing::SetArgPointee;
using testing::SizeIs;
using testing::Throw;

namespace {

class MockPanel : public PDEPanel
{
public:
    MOCK_METHOD(QWidget *, panelView, (), (override));
    MOCK_METHOD(QString, panelName, (), (override));
    MOCK_METHOD(QString, panelKind, (), (const, override));
    MOCK_METHOD(std::shared_ptr<const QStringList>, supportedPPDOptionKeys, (), (override));
    MOCK_METHOD(void, printWindowWillClose, (bool), (override));
    MOCK_METHOD(void, willShow, (), (override));
    MOCK_METHOD(bool, shouldHide, (), (override));
    MOCK_METHOD(bool, shouldPrint, (), (override));
    MOCK_METHOD(bool, shouldShowHelp, (), (override));
    MOCK_METHOD(void, PPDOptionKeyValueDidChange,
                (const std::optional<QString> &, const std::optional<QString> &), (override));
    MOCK_METHOD(bool, restoreValuesAndReturnError, (QString *), (override));
    MOCK_METHOD(bool, saveValuesAndReturnError, (QString *), (override));
    MOCK_METHOD(std::optional<QVariantMap>, summaryInfo, (), (override));
};

const std::runtime_error kTrouble("trouble");

class PanelGuardTest : public testing::Test
{
protected:
    PanelGuardTest() { ON_CALL(*panel, panelName).WillByDefault(Return(QStringLiteral("Tone"))); }
    std::string onlyFailure() const
    {
        EXPECT_THAT(failures, SizeIs(1));
        return failures.empty() ? std::string() : failures.front().text().toStdString();
    }

    std::shared_ptr<NiceMock<MockPanel>> panel = std::make_shared<NiceMock<MockPanel>>();
    std::vector<Failure> failures;
    PanelGuard guard{panel, QStringLiteral("Shades"),
                     [this](const Failure &failure) { failures.push_back(failure); }};
};

TEST_F(PanelGuardTest, PassesOnWhatAGoodPanelAnswers)
{
    QLabel view;
    EXPECT_CALL(*panel, panelView).WillOnce(Return(&view));
    EXPECT_CALL(*panel, panelKind).WillOnce(Return(QStringLiteral("org.example")));
    EXPECT_CALL(*panel, shouldHide).WillOnce(Return(false));
    EXPECT_CALL(*panel, shouldPrint).WillOnce(Return(false));
    EXPECT_CALL(*panel, shouldShowHelp).WillOnce(Return(true));
    guard.makeView();
    EXPECT_EQ(guard.view(), &view);
    EXPECT_EQ(guard.kind(), QLatin1String("org.example"));
    EXPECT_FALSE(guard.shouldHide());
    EXPECT_FALSE(guard.shouldPrint());
    EXPECT_TRUE(guard.shouldShowHelp());
    EXPECT_THAT(failures, IsEmpty());
}

TEST_F(PanelGuardTest, ChangeReachesThePanelWithBothKeywords)
{
    EXPECT_CALL(*panel,
                PPDOptionKeyValueDidChange(std::optional(QStringLiteral("O")),
                                           std::optional(QStringLiteral("C"))));
    guard.choiceDidChange(QStringLiteral("O"), QStringLiteral("C"));
}

TEST_F(PanelGuardTest, NameIsAskedOnce)
{
    EXPECT_CALL(*panel, panelName).WillOnce(Return(QStringLiteral("Tone\n")));
    EXPECT_EQ(guard.name(), QLatin1String("Tone"));
    EXPECT_EQ(guard.name(), QLatin1String("Tone"));
}

TEST_F(PanelGuardTest, PanelWithoutANameIsCalledLikeItsPlugIn)
{
    EXPECT_CALL(*panel, panelName).WillOnce(Return(QString()));
    EXPECT_EQ(guard.name(), QLatin1String("Shades"));
}

TEST_F(PanelGuardTest, PanelWhoseNameThrowsIsCalledLikeItsPlugIn)
{
    EXPECT_CALL(*panel, panelName).WillOnce(Throw(kTrouble));
    EXPECT_EQ(guard.name(), QLatin1String("Shades"));
    EXPECT_FALSE(guard.isDropped());
}

TEST_F(PanelGuardTest, NoListOfOptionsIsAnEmptyOne)
{
    EXPECT_CALL(*panel, supportedPPDOptionKeys).WillOnce(Return(nullptr));
    EXPECT_THAT(guard.supportedOptions(), IsEmpty());
    EXPECT_FALSE(guard.isDropped());
}

TEST_F(PanelGuardTest, OptionsThatThrowDropThePanel)
{
    guard.name();
    EXPECT_CALL(*panel, supportedPPDOptionKeys).WillOnce(Throw(kTrouble));
    EXPECT_THAT(guard.supportedOptions(), IsEmpty());
    EXPECT_TRUE(guard.isDropped());
    EXPECT_EQ(onlyFailure(),
              "panel Tone of plug-in Shades is switched off: its operation supportedPPDOptionKeys "
              "failed (trouble); ask its maker for a newer version");
    EXPECT_EQ(failures.front().kind, FailureKind::Panel);
}

TEST_F(PanelGuardTest, NullViewDropsThePanel)
{
    EXPECT_CALL(*panel, panelView).WillOnce(Return(nullptr));
    guard.makeView();
    EXPECT_TRUE(guard.isDropped());
    EXPECT_EQ(onlyFailure(),
              "panel of plug-in Shades is switched off: it has no view; install the plug-in again");
}

TEST_F(PanelGuardTest, ViewThatThrowsDropsThePanelWithOneSentence)
{
    EXPECT_CALL(*panel, panelView).WillOnce(Throw(kTrouble));
    guard.makeView();
    EXPECT_EQ(guard.view(), nullptr);
    EXPECT_THAT(onlyFailure(), HasSubstr("its operation panelView failed (trouble)"));
}

TEST_F(PanelGuardTest, FirstShowThatThrowsDropsThePanel)
{
    EXPECT_CALL(*panel, willShow).WillOnce(Throw(42));
    guard.showFirst();
    EXPECT_TRUE(guard.isDropped());
    EXPECT_THAT(onlyFailure(), HasSubstr("its operation willShow failed (unknown error)"));
}

TEST_F(PanelGuardTest, LaterShowThatThrowsIsAFault)
{
    EXPECT_CALL(*panel, willShow).WillOnce(Throw(kTrouble));
    guard.willShow();
    EXPECT_FALSE(guard.isDropped());
}

TEST_F(PanelGuardTest, ShouldPrintThatThrowsDoesNotHoldTheJobBack)
{
    EXPECT_CALL(*panel, shouldPrint).WillOnce(Throw(kTrouble));
    EXPECT_TRUE(guard.shouldPrint());
}

TEST_F(PanelGuardTest, HideAndHelpThatThrowAreYesAndNo)
{
    EXPECT_CALL(*panel, shouldHide).WillOnce(Throw(kTrouble));
    EXPECT_CALL(*panel, shouldShowHelp).WillOnce(Throw(kTrouble));
    EXPECT_TRUE(guard.shouldHide());
    EXPECT_FALSE(guard.shouldShowHelp());
}

TEST_F(PanelGuardTest, SavingThatThrowsIsNoFailureOfTheJob)
{
    EXPECT_CALL(*panel, saveValuesAndReturnError).WillOnce(Throw(kTrouble));
    EXPECT_CALL(*panel, restoreValuesAndReturnError).WillOnce(Throw(kTrouble));
    EXPECT_FALSE(guard.save());
    EXPECT_FALSE(guard.restore());
}

TEST_F(PanelGuardTest, SavingThatAnswersNoGivesThePanelsSentence)
{
    EXPECT_CALL(*panel, saveValuesAndReturnError)
        .WillOnce(DoAll(SetArgPointee<0>(QStringLiteral("choose a tone")), Return(false)));
    guard.name();
    EXPECT_EQ(guard.save().value_or(Failure()).text(),
              QLatin1String("panel Tone of plug-in Shades: choose a tone"));
    EXPECT_FALSE(guard.isDropped());
}

TEST_F(PanelGuardTest, RestoringThatAnswersNoWithoutASentenceGetsOne)
{
    EXPECT_CALL(*panel, restoreValuesAndReturnError).WillOnce(Return(false));
    EXPECT_EQ(guard.restore().value_or(Failure()).why,
              QLatin1String("it cannot take over its settings; check them"));
}

TEST_F(PanelGuardTest, SummaryThatCannotBeMadeIsNoFault)
{
    EXPECT_CALL(*panel, summaryInfo).Times(4).WillRepeatedly(Throw(std::invalid_argument("value")));
    for (int i = 0; i < 4; ++i) {
        EXPECT_FALSE(guard.summary());
    }
    EXPECT_FALSE(guard.isDropped());
}

TEST_F(PanelGuardTest, SummaryThatFailsInAnotherWayIsOneFaultAndIsNotAskedForAgain)
{
    EXPECT_CALL(*panel, summaryInfo).WillOnce(Throw(kTrouble));
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(guard.summary());
    }
    EXPECT_FALSE(guard.isDropped()) << "the rest of the panel works";
    guard.addFault(QStringLiteral("second"));
    EXPECT_FALSE(guard.isDropped());
    guard.addFault(QStringLiteral("third"));
    EXPECT_TRUE(guard.isDropped());
}

TEST_F(PanelGuardTest, SummaryReachesTheDialog)
{
    const QVariantMap summary{{QStringLiteral("Tone"), QStringLiteral("Light")}};
    EXPECT_CALL(*panel, summaryInfo).WillOnce(Return(summary));
    EXPECT_EQ(guard.summary(), summary);
}

TEST_F(PanelGuardTest, TheThirdFaultDropsThePanelWithOneSentence)
{
    EXPECT_CALL(*panel, PPDOptionKeyValueDidChange).Times(3).WillRepeatedly(Throw(kTrouble));
    for (int i = 0; i < 2; ++i) {
        guard.choiceDidChange(QStringLiteral("O"), QStringLiteral("C"));
    }
    EXPECT_THAT(failures, IsEmpty());
    guard.choiceDidChange(QStringLiteral("O"), QStringLiteral("C"));
    EXPECT_TRUE(guard.isDropped());
    EXPECT_THAT(onlyFailure(),
                HasSubstr("its operation PPDOptionKeyValueDidChange failed (trouble), its third "
                          "fault; ask its maker"));
    guard.choiceDidChange(QStringLiteral("O"), QStringLiteral("C"));
}

TEST_F(PanelGuardTest, DroppedPanelIsNotCalledAgainAndHarmsNothing)
{
    guard.drop(QStringLiteral("why"));
    EXPECT_CALL(*panel, saveValuesAndReturnError).Times(0);
    EXPECT_CALL(*panel, shouldPrint).Times(0);
    EXPECT_CALL(*panel, summaryInfo).Times(0);
    EXPECT_CALL(*panel, printWindowWillClose).Times(0);
    EXPECT_FALSE(guard.save());
    EXPECT_TRUE(guard.shouldPrint());
    EXPECT_FALSE(guard.summary());
    guard.windowWillClose(true);
    guard.drop(QStringLiteral("again"));
    EXPECT_THAT(failures, SizeIs(1));
}

TEST_F(PanelGuardTest, TellsWhetherACallHasNotComeBack)
{
    bool inCall = false;
    EXPECT_CALL(*panel, printWindowWillClose(true)).WillOnce([&](bool) {
        inCall = guard.isInCall();
        throw kTrouble;
    });
    guard.windowWillClose(true);
    EXPECT_TRUE(inCall);
    EXPECT_FALSE(guard.isInCall());
}

TEST_F(PanelGuardTest, ViewIsForgottenWhenThePanelDeletesIt)
{
    auto view = std::make_unique<QLabel>();
    EXPECT_CALL(*panel, panelView).WillOnce(Return(view.get()));
    guard.makeView();
    view.reset();
    EXPECT_EQ(guard.view(), nullptr);
}

TEST(PanelGuard, TakesTheViewOutOfTheWindowBeforeItLetsGoOfThePanel)
{
    QWidget window;
    auto *view = new QLabel;
    auto panel = std::make_shared<NiceMock<MockPanel>>();
    EXPECT_CALL(*panel, panelView).WillOnce(Return(view));
    auto guard = std::make_unique<PanelGuard>(panel, QStringLiteral("Shades"), nullptr);
    guard->makeView();
    view->setParent(&window);
    guard.reset();
    EXPECT_EQ(view->parentWidget(), nullptr);
    delete view;
}

} // namespace
