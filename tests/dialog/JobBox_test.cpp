// SPDX-License-Identifier: Apache-2.0
#include "dialog/JobBox.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using dialog::JobBox;
using dialog::JobSettings;
using dialog::Scaling;

namespace {

class JobBoxTest : public testing::Test
{
protected:
    void wish(Scaling scaling)
    {
        JobSettings settings;
        settings.setScaling(scaling);
        box.showSettings(settings);
    }
    Scaling shown() const
    {
        JobSettings settings;
        EXPECT_FALSE(box.takeOver(settings, 0));
        return settings.scaling();
    }

    JobBox box;
    const QSignalSpy edits{&box, &JobBox::edited};
};

TEST_F(JobBoxTest, WholeDotsThatNobodyWishesComeAndGoUnnoticed)
{
    wish(Scaling::ActualSize);
    EXPECT_FALSE(box.offerWholeDots(true));
    EXPECT_FALSE(box.offerWholeDots(false));
    EXPECT_EQ(edits.size(), 0);
    EXPECT_EQ(shown(), Scaling::ActualSize);
}

TEST_F(JobBoxTest, TellsOnceWhenTheWishedWholeDotsComeAndGo)
{
    wish(Scaling::WholeDots);
    EXPECT_EQ(shown(), Scaling::Fit);
    EXPECT_TRUE(box.offerWholeDots(true));
    EXPECT_EQ(shown(), Scaling::WholeDots);
    EXPECT_EQ(edits.size(), 1);
    EXPECT_FALSE(box.offerWholeDots(true)) << "they are there already";
    EXPECT_EQ(edits.size(), 1);
    EXPECT_TRUE(box.offerWholeDots(false));
    EXPECT_EQ(shown(), Scaling::Fit);
    EXPECT_EQ(edits.size(), 2);
}

} // namespace
