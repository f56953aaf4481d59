// SPDX-License-Identifier: Apache-2.0
#include "dialog/MessageBar.h"

#include <QToolButton>

#include <gtest/gtest.h>

using dialog::MessageBar;

namespace {

const QString kStanding = QStringLiteral("the standing one");
const QString kOther = QStringLiteral("another one");

class StandingMessage : public testing::Test
{
protected:
    void stand(const QString &text = kStanding)
    {
        bar.setStanding(MessageBar::Kind::Warning, text, QStringLiteral("Do"), [this] { ++done; });
    }
    void close()
    {
        for (auto *button : bar.findChildren<QToolButton *>()) {
            if (button->objectName().isEmpty()) {
                button->click();
            }
        }
    }

    MessageBar bar;
    int done = 0;
};

TEST_F(StandingMessage, IsSeenWhileThereIsNoOther)
{
    stand();
    EXPECT_EQ(bar.text(), kStanding);
    EXPECT_FALSE(bar.isHidden());
    bar.setStanding(MessageBar::Kind::Warning, QString());
    EXPECT_EQ(bar.text(), QString());
    EXPECT_TRUE(bar.isHidden());
}

TEST_F(StandingMessage, LiesBelowOthersAndIsSeenAgainBehindThem)
{
    bar.show(MessageBar::Kind::Warning, kOther);
    stand();
    EXPECT_EQ(bar.text(), kOther);
    bar.clear();
    EXPECT_EQ(bar.text(), kStanding);
    bar.show(MessageBar::Kind::Warning, kOther);
    EXPECT_EQ(bar.text(), kOther);
    close();
    EXPECT_EQ(bar.text(), kStanding);
    bar.clear();
    EXPECT_EQ(bar.text(), kStanding) << "clearing takes the others away";
}

TEST_F(StandingMessage, IsTakenAwayBelowAnotherUnseen)
{
    stand();
    bar.show(MessageBar::Kind::Warning, kOther);
    bar.setStanding(MessageBar::Kind::Warning, QString());
    EXPECT_EQ(bar.text(), kOther);
    bar.clear();
    EXPECT_TRUE(bar.isHidden());
}

TEST_F(StandingMessage, StaysClosedUntilItIsAnother)
{
    stand();
    close();
    EXPECT_TRUE(bar.isHidden());
    stand();
    EXPECT_TRUE(bar.isHidden());
    stand(QStringLiteral("a new one"));
    EXPECT_EQ(bar.text(), QStringLiteral("a new one"));
}

TEST_F(StandingMessage, ItsButtonWorksAlsoBehindAnother)
{
    stand();
    bar.show(MessageBar::Kind::Warning, kOther);
    bar.clear();
    auto *button = bar.findChild<QToolButton *>(QStringLiteral("messageAction"));
    ASSERT_TRUE(button);
    EXPECT_EQ(button->text(), QStringLiteral("Do"));
    button->click();
    EXPECT_EQ(done, 1);
    EXPECT_TRUE(bar.isHidden());
}

} // namespace
