// SPDX-License-Identifier: Apache-2.0
#include "dialog/LibcupsServer.h"
#include "dialog/PpdFetcher.h"
#include "support/CupsServerFixture.h"
#include "support/QtPrinters.h"

#include <QSignalSpy>

#include <gmock/gmock.h>

using dialog::Failure;
using dialog::LibcupsServer;
using dialog::PpdFetcher;
using dialog::PpdFile;

namespace {

const QString kLab = QStringLiteral("Lab");
const QString kRaw = QStringLiteral("Raw");
constexpr int kPatience = 20000;

class PpdFetcherTest : public testing::Test
{
protected:
    CupsServerFixture cups;
    PpdFetcher fetcher{std::make_shared<LibcupsServer>(cups.address())};
    QSignalSpy fetched{&fetcher, &PpdFetcher::fetched};
    QSignalSpy failed{&fetcher, &PpdFetcher::failed};
};

TEST_F(PpdFetcherTest, PpdArrivesOpenAndMarked)
{
    cups.addQueue(kLab);
    fetcher.fetch(kLab);
    ASSERT_TRUE(fetched.wait(kPatience));
    EXPECT_EQ(fetched[0][0].toString(), kLab);
    const auto ppd = fetched[0][1].value<std::shared_ptr<PpdFile>>();
    ASSERT_TRUE(ppd);
    EXPECT_EQ(ppd->markedChoice(QStringLiteral("CvBrightness")), QStringLiteral("0"));
}

TEST_F(PpdFetcherTest, QueueWithoutAPpdAnswersWithNone)
{
    cups.addRawQueue(kRaw);
    fetcher.fetch(kRaw);
    ASSERT_TRUE(fetched.wait(kPatience));
    EXPECT_FALSE(fetched[0][1].value<std::shared_ptr<PpdFile>>());
}

TEST_F(PpdFetcherTest, QueueThatIsGoneIsAFailure)
{
    fetcher.fetch(kLab);
    ASSERT_TRUE(failed.wait(kPatience));
    EXPECT_EQ(failed[0][0].toString(), kLab);
    EXPECT_EQ(failed[0][1].value<Failure>().kind, dialog::FailureKind::Printer);
}

TEST_F(PpdFetcherTest, OnlyTheLastRequestIsAnswered)
{
    cups.addQueue(kLab);
    cups.addRawQueue(kRaw);
    cups.freeze();
    fetcher.fetch(kLab);
    fetcher.fetch(kRaw);
    cups.resume();
    ASSERT_TRUE(fetched.wait(kPatience));
    EXPECT_FALSE(fetched.wait(300));
    ASSERT_EQ(fetched.size(), 1);
    EXPECT_EQ(fetched[0][0].toString(), kRaw);
    EXPECT_EQ(failed.size(), 0);
}

} // namespace
