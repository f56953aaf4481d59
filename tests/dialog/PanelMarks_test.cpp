// SPDX-License-Identifier: Apache-2.0
#include "dialog/PanelMarks.h"

#include "dialog/TestJob.h"

#include <gmock/gmock.h>

using dialog::HostedJob;
using dialog::OptionChoice;
using dialog::OptionChoices;
using dialog::PanelMarks;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QString kBrightness = QStringLiteral("CvBrightness");
const QString kContrast = QStringLiteral("CvContrast");

QString level(int value)
{
    return QString::number(value);
}

class PanelMarksTest : public testing::Test
{
protected:
    HostedJob job = testJob();
    OptionChoices reports;
    PanelMarks marks{job, [this](const OptionChoice &change) { reports.push_back(change); }};
};

TEST_F(PanelMarksTest, MarksInPpdAndSettingsAndReportsOnce)
{
    EXPECT_TRUE(marks.mark(kBrightness, level(7)));
    EXPECT_EQ(job.ppd->markedChoice(kBrightness), level(7));
    EXPECT_EQ(job.settings->choice(kBrightness), level(7));
    EXPECT_THAT(reports, ElementsAre(OptionChoice{kBrightness, level(7)}));
}

TEST_F(PanelMarksTest, WhatIsMarkedAlreadyIsKeptInTheSettingsAndNotReported)
{
    EXPECT_FALSE(marks.mark(kBrightness, level(0)));
    EXPECT_EQ(job.settings->choice(kBrightness), level(0));
    EXPECT_THAT(reports, IsEmpty());
}

TEST_F(PanelMarksTest, AnUnknownPairChangesNothing)
{
    EXPECT_FALSE(marks.mark(QStringLiteral("NoSuchOption"), level(1)));
    EXPECT_FALSE(marks.mark(kBrightness, level(21)));
    EXPECT_FALSE(marks.mark(QString(), QString()));
    EXPECT_EQ(job.ppd->markedChoice(kBrightness), level(0));
    EXPECT_THAT(job.settings->choices(), IsEmpty());
    EXPECT_THAT(reports, IsEmpty());
}

TEST_F(PanelMarksTest, ReportsTheOptionAsThePpdSpellsIt)
{
    EXPECT_EQ(marks.spelling(QStringLiteral("cvBRIGHTNESS")), kBrightness);
    EXPECT_TRUE(marks.spelling(QStringLiteral("CvBright")).isEmpty());
    EXPECT_TRUE(marks.mark(QStringLiteral("cvbrightness"), level(7)));
    EXPECT_THAT(reports, ElementsAre(OptionChoice{kBrightness, level(7)}));
    EXPECT_EQ(job.settings->choice(kBrightness), level(7));
}

TEST_F(PanelMarksTest, OnTrialTheSettingsStayAsTheyAre)
{
    marks.setTrial(true);
    EXPECT_TRUE(marks.mark(kBrightness, level(7)));
    EXPECT_THAT(job.settings->choices(), IsEmpty());
    marks.setTrial(false);
    EXPECT_TRUE(marks.mark(kBrightness, level(8)));
    EXPECT_EQ(job.settings->choice(kBrightness), level(8));
}

TEST_F(PanelMarksTest, WithoutAPpdNothingCanBeMarked)
{
    PanelMarks none({}, [](const OptionChoice &) { FAIL(); });
    EXPECT_FALSE(none.mark(kBrightness, level(7)));
    EXPECT_THAT(none.all(), IsEmpty());
}

TEST_F(PanelMarksTest, GivesTheMarksOfAllOptionsInPpdOrder)
{
    const OptionChoices all = marks.all();
    ASSERT_EQ(all.size(), 6U);
    EXPECT_EQ(
        all[0],
        (OptionChoice{QStringLiteral("CvHalftonePattern"), QStringLiteral("ErrorDiffusion")}));
    EXPECT_EQ(all[1], (OptionChoice{kBrightness, level(0)}));
    EXPECT_THAT(marks.of({kContrast}), ElementsAre(OptionChoice{kContrast, level(0)}));
}

TEST(PanelMarks, AMarkMadeDuringAReportTakesEffectAtOnceAndIsReportedAfterwards)
{
    const HostedJob job = testJob();
    QStringList heard;
    PanelMarks *marks = nullptr;
    PanelMarks own(job, [&](const OptionChoice &change) {
        if (change.option == kBrightness) {
            EXPECT_TRUE(marks->mark(kContrast, level(3)));
            EXPECT_EQ(job.ppd->markedChoice(kContrast), level(3));
        }
        heard << change.option;
    });
    marks = &own;
    EXPECT_TRUE(own.mark(kBrightness, level(7)));
    EXPECT_EQ(heard, (QStringList{kBrightness, kContrast}));
}

TEST(PanelMarks, ListenersThatAnswerEachOtherForEverComeToAnEnd)
{
    const HostedJob job = testJob();
    int heard = 0;
    PanelMarks *marks = nullptr;
    PanelMarks own(job, [&](const OptionChoice &change) {
        ++heard;
        marks->mark(kBrightness, level(change.choice == level(1) ? 2 : 1));
    });
    marks = &own;
    own.mark(kBrightness, level(1));
    EXPECT_EQ(heard, PanelMarks::kMostAtOnce + 1);
    own.mark(kBrightness, level(5));
    EXPECT_EQ(heard, 2 * (PanelMarks::kMostAtOnce + 1)) << "the next change starts afresh";
}

TEST(PanelMarks, AMarkedPageSizeIsTheLabelSizeOfTheJob)
{
    auto opened = dialog::PpdFile::open(QStringLiteral(SOURCE_DIR "/resources/ppd/label-300.ppd"));
    ASSERT_TRUE(opened);
    HostedJob job;
    job.ppd = std::move(opened).value();
    job.settings = std::make_shared<dialog::JobSettings>();
    PanelMarks marks(job, [](const OptionChoice &) {});
    EXPECT_TRUE(marks.mark(QStringLiteral("PageSize"), QStringLiteral("DC17x54")));
    ASSERT_TRUE(job.settings->labelSize());
    EXPECT_EQ(job.settings->labelSize()->name, QLatin1String("DC17x54"));
    EXPECT_THAT(job.settings->choices(), IsEmpty());
}

} // namespace
