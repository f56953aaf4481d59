// SPDX-License-Identifier: Apache-2.0
#include "dialog/ColourBadge.h"

#include "DialogWindow.h"
#include "dialog/PrinterSetup.h"
#include "platform/NotificationCenter.h"

#include <QAccessible>
#include <QImage>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include <gmock/gmock.h>

using namespace dialog;
using platform::NotificationCenter;

namespace {

const QString kName = QStringLiteral("CVAdvancedColorSettingNotification");
const QString kColour = QStringLiteral("CvMultiColor");
const QString kBlackRed = QStringLiteral("CvMultiColorBlackRed");

class ColourBadgeTest : public DialogWindow
{
protected:
    ColourBadge *badge() { return find<ColourBadge>("colourBadge"); }
    std::string shown() { return badge()->isVisible() ? badge()->text().toStdString() : "nothing"; }
    void choosePrinter(const QString &ppd)
    {
        auto opened = PpdFile::open(ppd);
        ASSERT_TRUE(opened);
        setup = std::make_unique<PrinterSetup>(Printer::folder(), std::move(opened).value(),
                                               JobSettings(), graphicsPlugIn());
    }

    std::unique_ptr<PrinterSetup> setup;
};

/// What the bundle posts while the user changes something.
struct Posted
{
    Posted()
    {
        NotificationCenter::defaultCenter().addObserver(
            this,
            [this](const platform::Notification &notification) { all.push_back(notification); },
            kName);
    }
    ~Posted() { NotificationCenter::defaultCenter().removeObserver(this); }

    std::vector<platform::Notification> all;
};

TEST_F(ColourBadgeTest, StartsWithTheColourModeOfTheJob)
{
    open();
    EXPECT_EQ(shown(), "black");
}

TEST_F(ColourBadgeTest, FollowsThePanelsNotification)
{
    open();
    const Posted posted;
    pick("mColorPUBtn", 1);
    ASSERT_EQ(posted.all.size(), 2U) << "the panel announces each change twice";
    EXPECT_EQ(posted.all[0].userInfo, (QVariantMap{{kColour, true}}));
    const auto *host = std::get_if<const void *>(&posted.all[0].object);
    ASSERT_TRUE(host);
    EXPECT_TRUE(controller->setup()->panels().isHost(*host));
    EXPECT_EQ(shown(), "black and red");
    pick("mColorPUBtn", 0);
    EXPECT_EQ(shown(), "black");
}

TEST_F(ColourBadgeTest, TheNotificationAloneIsEnough)
{
    open();
    const Posted posted;
    pick("mColorPUBtn", 1);
    pick("mColorPUBtn", 0);
    ASSERT_EQ(posted.all.size(), 4U);
    auto &center = NotificationCenter::defaultCenter();
    center.post(kName, posted.all[0].object, QVariantMap{{kColour, true}});
    EXPECT_EQ(shown(), "black and red") << "nothing else has changed";
    center.post(kName, posted.all[0].object, QVariantMap{{kColour, false}});
    EXPECT_EQ(shown(), "black");
}

TEST_F(ColourBadgeTest, OtherSendersAndUnreadableAnnouncementsChangeNothing)
{
    open();
    const Posted posted;
    pick("mColorPUBtn", 1);
    const platform::NotificationObject host = posted.all.at(0).object;
    auto &center = NotificationCenter::defaultCenter();
    center.post(kName, static_cast<const void *>(this), QVariantMap{{kColour, false}});
    center.post(kName, {}, QVariantMap{{kColour, false}});
    center.post(kName, host, std::nullopt);
    center.post(kName, host, QVariantMap());
    center.post(kName, host, QVariantMap{{kColour, QStringLiteral("no")}});
    center.post(QStringLiteral("CVAdvancedColorSetting"), host, QVariantMap{{kColour, false}});
    EXPECT_EQ(shown(), "black and red");
}

TEST_F(ColourBadgeTest, FollowsAMarkThatNoPanelAnnounces)
{
    open();
    pick("mColorPUBtn", 1);
    find<QTabWidget>("panels")->setCurrentIndex(1);
    pick("option.Resolution", 1);
    ASSERT_TRUE(controller->setup()->resolveConflict());
    EXPECT_EQ(shown(), "black") << "a clash put right";
}

TEST_F(ColourBadgeTest, APrinterOfOneColourHasNone)
{
    open(testPpd("no-colour.ppd"));
    EXPECT_EQ(shown(), "nothing");
    open(testPpd("no-panel-options.ppd"));
    EXPECT_EQ(shown(), "nothing");
}

TEST_F(ColourBadgeTest, GoesAndComesWithThePrinter)
{
    open();
    pick("mColorPUBtn", 1);
    Printer queue;
    queue.name = QStringLiteral("queue");
    controller->choosePrinter(queue, {});
    EXPECT_EQ(shown(), "nothing") << "the printer's settings are not known yet";
    controller->choosePrinter(Printer::folder(), {});
    EXPECT_EQ(shown(), "black");
}

TEST_F(ColourBadgeTest, AfterAChangeOfPrinterThePanelsOfTheFormerOneAreNotHeard)
{
    QWidget page;
    page.show();
    ColourBadge badge(&page);
    choosePrinter(kSamplePpd);
    badge.setSetup(setup.get());
    EXPECT_EQ(badge.text(), QStringLiteral("black"));
    const auto former = std::move(setup);
    choosePrinter(testPpd("no-colour.ppd"));
    badge.setSetup(setup.get());
    EXPECT_FALSE(badge.isVisible());
    former->start(PanelSet::Views::Made);
    const Posted posted;
    auto *colours = former->panels().panels().at(0)->view()->findChild<QComboBox *>(
        QStringLiteral("mColorPUBtn"));
    colours->setCurrentIndex(1);
    Q_EMIT colours->activated(1);
    EXPECT_FALSE(posted.all.empty());
    EXPECT_FALSE(badge.isVisible());
    EXPECT_EQ(badge.text(), QString());
    badge.setSetup(nullptr);
}

TEST_F(ColourBadgeTest, AChoiceOfAnotherNameIsNotGuessedAt)
{
    EXPECT_EQ(colourModeOf(QStringLiteral("CvMultiColorMonochrome")), ColourMode::Black);
    EXPECT_EQ(colourModeOf(kBlackRed), ColourMode::BlackAndRed);
    EXPECT_EQ(colourModeOf(QStringLiteral("Red")), std::nullopt);
    EXPECT_EQ(colourModeOf(std::nullopt), std::nullopt);
}

TEST_F(ColourBadgeTest, ListensNoMoreWhenTheWindowIsGone)
{
    open();
    const Posted posted;
    pick("mColorPUBtn", 1);
    const platform::NotificationObject host = posted.all.at(0).object;
    find<QPushButton>("cancel")->click();
    EXPECT_EQ(shown(), "nothing");
    NotificationCenter::defaultCenter().post(kName, host, QVariantMap{{kColour, true}});
    EXPECT_EQ(shown(), "nothing");
    window.reset();
    // Under the sanitizers a registration that is left over is seen here.
    NotificationCenter::defaultCenter().post(kName, host, QVariantMap{{kColour, true}});
    EXPECT_EQ(posted.all.size(), 4U);
}

TEST_F(ColourBadgeTest, SaysItInWordsToEverybody)
{
    open();
    EXPECT_EQ(badge()->toolTip(), QStringLiteral("The label is printed in black"));
    EXPECT_EQ(badge()->accessibleName(), badge()->toolTip());
    pick("mColorPUBtn", 1);
    EXPECT_EQ(badge()->toolTip(), QStringLiteral("The label is printed in black and red"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(badge())->text(QAccessible::Name),
              badge()->toolTip());
}

TEST_F(ColourBadgeTest, DrawsADotForEachColour)
{
    open();
    const auto reddish = [this] {
        const QImage picture = badge()->grab().toImage();
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor colour = picture.pixelColor(x, y);
                count += colour.red() > colour.green() + 100 ? 1 : 0;
            }
        }
        return count;
    };
    EXPECT_EQ(reddish(), 0);
    pick("mColorPUBtn", 1);
    QTest::qWait(1);
    EXPECT_GT(reddish(), 30);
    EXPECT_GE(badge()->width(), badge()->sizeHint().width()) << "the words are not cut off";
}

} // namespace
