// SPDX-License-Identifier: Apache-2.0
#include "dialog/SummaryView.h"

#include "DialogWindow.h"
#include "FakePanel.h"

#include <QAccessible>
#include <QCheckBox>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTest>

#include <gmock/gmock.h>

#include <stdexcept>

using namespace dialog;
using testing::HasSubstr;
using testing::Not;

namespace {

constexpr int kSoon = 1000;

class SummaryViewTest : public DialogWindow
{
protected:
    SummaryView *summary() { return find<SummaryView>("summary"); }
    std::string text() { return summary()->toPlainText().toStdString(); }
    bool comesToSay(const char *line)
    {
        return QTest::qWaitFor([&] { return text().find(line) != std::string::npos; }, kSoon);
    }
};

QVariantMap oneRow(const QString &title, const QString &value)
{
    return {{title, value}, {kSummaryDisplayOrder, QStringList{title}}};
}

TEST_F(SummaryViewTest, IsThereWithTheWindowInThePanelsOrder)
{
    open();
    EXPECT_TRUE(summary()->isVisible());
    EXPECT_EQ(text(),
              "Graphics\n"
              "Halftone:\tError diffusion (photos)\n"
              "Brightness:\t0\n"
              "Contrast:\t0\n"
              "Bi-directional printing:\tYes");
}

TEST_F(SummaryViewTest, FollowsAControlOfThePanelAtOnce)
{
    open();
    find<QSlider>("mBrightnessSlider")->setValue(7);
    EXPECT_TRUE(comesToSay("Brightness:\t+7")) << text();
    QTest::mouseClick(find<QCheckBox>("mBiDiPrintChkBx"), Qt::LeftButton);
    EXPECT_TRUE(comesToSay("Bi-directional printing:\tNo")) << text();
    pick("mColorPUBtn", 1);
    EXPECT_TRUE(comesToSay("Colour mode:\tBlack and red")) << text();
}

TEST_F(SummaryViewTest, FollowsAMarkThatWasMadeOutsideOfThePanel)
{
    open();
    ASSERT_FALSE(controller->setup()->choose(
        {{QStringLiteral("CvHalftonePattern"), QStringLiteral("Binary")}}));
    EXPECT_TRUE(comesToSay("Halftone:\tBinary (text, barcodes)")) << text();
    pick("mColorPUBtn", 1);
    ASSERT_TRUE(comesToSay("Colour mode:\tBlack and red")) << text();
    find<QTabWidget>("panels")->setCurrentIndex(1);
    pick("option.Resolution", 1);
    ASSERT_TRUE(controller->setup()->resolveConflict());
    EXPECT_TRUE(comesToSay("Colour mode:\tMonochrome")) << "a clash put right: " << text();
}

TEST_F(SummaryViewTest, GoesWithItsPrinter)
{
    open();
    ASSERT_TRUE(summary()->isVisible());
    Printer other = Printer::folder();
    other.name = QStringLiteral("queue");
    other.isFolder = false;
    controller->choosePrinter(other, {});
    EXPECT_FALSE(summary()->isVisible());
    EXPECT_EQ(text(), "");
    controller->choosePrinter(Printer::folder(), {});
    EXPECT_THAT(text(), HasSubstr("Graphics\nHalftone:"));
    find<QPushButton>("cancel")->click();
    EXPECT_EQ(text(), "") << "the panels are gone";
}

TEST_F(SummaryViewTest, APrinterWithoutSettingsOfPanelsHasNone)
{
    open(testPpd("no-panel-options.ppd"));
    EXPECT_FALSE(summary()->isVisible());
}

TEST_F(SummaryViewTest, APanelThatCannotSayAValueGetsASentenceAndTheOthersStay)
{
    const auto calls = std::make_shared<QStringList>();
    FakeBehaviour unreadable;
    unreadable.summary = []() -> std::optional<QVariantMap> {
        throw std::invalid_argument("a title is no UTF-8");
    };
    FakeBehaviour broken;
    broken.summary = []() -> std::optional<QVariantMap> { throw 5; };
    FakeBehaviour nonsense;
    nonsense.summary = [] { return QVariantMap{{QStringLiteral("Tone"), 5}}; };
    FakeBehaviour good;
    good.summary = [] { return oneRow(QStringLiteral("Paper"), QStringLiteral("thick")); };
    open(kSamplePpd,
         {FakePlugIn::loaded(QStringLiteral("Fake"), {unreadable, broken, nonsense, good}, calls)});
    EXPECT_EQ(text(),
              "Fake\nno summary from this panel\n"
              "Fake2\nno summary from this panel\n"
              "Fake3\nno summary from this panel\n"
              "Fake4\nPaper:\tthick");
}

TEST_F(SummaryViewTest, TheGraphicsPanelGetsTheSentenceWhereAChoiceOfThePpdCannotBeRead)
{
    open(testPpd("undecodable-titles.ppd"));
    EXPECT_EQ(text(), "Graphics\nno summary from this panel");
}

TEST_F(SummaryViewTest, APanelWhoseSummaryFailsKeepsItsPlaceAfterManyChanges)
{
    FakeBehaviour broken;
    broken.summary = []() -> std::optional<QVariantMap> { throw std::runtime_error("trouble"); };
    open(kSamplePpd,
         {FakePlugIn::loaded(QStringLiteral("Fake"), {broken}, std::make_shared<QStringList>())});
    for (int size = 0; size < 4; ++size) {
        pick("labelSize", size);
        QTest::qWait(1);
    }
    EXPECT_EQ(text(), "Fake\nno summary from this panel");
    EXPECT_EQ(controller->setup()->panels().panels().size(), 1U);
}

TEST_F(SummaryViewTest, AsksOnceForManyChangesAndNotAgainForThoseOfTheAnswer)
{
    int asked = 0;
    FakeBehaviour panel;
    panel.summary = [&] {
        ++asked;
        // Not its option, but the dialog's own road to a change.
        controller->setup()->setLabelSize(controller->setup()->ppd()->sizes().at(asked % 2));
        return oneRow(QStringLiteral("Asked"), QString::number(asked));
    };
    makeController(
        kSamplePpd,
        {FakePlugIn::loaded(QStringLiteral("Fake"), {panel}, std::make_shared<QStringList>())});
    showWindow();
    QTest::qWait(20);
    const int before = asked;
    for (const int size : {3, 2, 3}) {
        pick("labelSize", size);
    }
    QTest::qWait(20);
    EXPECT_EQ(asked, before + 1);
}

TEST_F(SummaryViewTest, SelectedTextStaysWhileNothingChanges)
{
    open();
    summary()->selectAll();
    summary()->updateSoon();
    QTest::qWait(20);
    EXPECT_THAT(summary()->textCursor().selectedText().toStdString(), HasSubstr("Contrast"));
}

TEST_F(SummaryViewTest, IsTextThatAScreenReaderReadsAndTheKeyboardReaches)
{
    open();
    EXPECT_TRUE(summary()->focusPolicy() & Qt::TabFocus);
    EXPECT_TRUE(summary()->textInteractionFlags() & Qt::TextSelectableByKeyboard);
    EXPECT_TRUE(summary()->isReadOnly());
    QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(summary());
    ASSERT_TRUE(spoken);
    EXPECT_EQ(spoken->text(QAccessible::Name), QStringLiteral("Summary of the settings"));
    QAccessibleTextInterface *words = spoken->textInterface();
    ASSERT_TRUE(words);
    EXPECT_THAT(words->text(0, words->characterCount()).toStdString(), HasSubstr("Halftone:"));
}

TEST_F(SummaryViewTest, IsAsHighAsItsTextAndNeverCrowdsThePageOut)
{
    FakeBehaviour talker;
    talker.summary = [] {
        QVariantMap info;
        QStringList order;
        for (int i = 0; i < 60; ++i) {
            order << QStringLiteral("Setting %1").arg(i);
            info.insert(order.last(), QStringLiteral("on"));
        }
        info.insert(kSummaryDisplayOrder, order);
        return info;
    };
    open();
    EXPECT_GE(summary()->height(), int(summary()->document()->size().height()));
    open(kSamplePpd,
         {FakePlugIn::loaded(QStringLiteral("Fake"), {talker}, std::make_shared<QStringList>())});
    EXPECT_LT(summary()->height(), 200);
    EXPECT_THAT(text(), HasSubstr("Setting 59:\ton"));
}

} // namespace
