// SPDX-License-Identifier: Apache-2.0
#include "dialog/LibcupsServer.h"
#include "support/CupsServerFixture.h"
#include "support/QtPrinters.h"

#include <QDir>
#include <QTemporaryDir>
#include <QThread>

#include <gmock/gmock.h>

#include <chrono>
#include <future>
#include <thread>

using dialog::CancelFlag;
using dialog::FailureKind;
using dialog::LibcupsServer;
using dialog::Printer;

namespace {

const QString kLab = QStringLiteral("Lab");
const QString kRaw = QStringLiteral("Raw");
const QString kPageSize = QStringLiteral("PageSize");

class LibcupsServerTest : public testing::Test
{
protected:
    std::vector<Printer> listed()
    {
        auto printers = server.printers(cancel);
        EXPECT_TRUE(printers) << printers.failure().text().toStdString();
        return printers ? printers.value() : std::vector<Printer>{};
    }
    std::unique_ptr<dialog::PpdFile> ppd(const QString &printer)
    {
        // A fresh thread, as in the program: libcups looks for the user's settings once a thread.
        std::unique_ptr<dialog::PpdFile> file;
        std::thread([this, &printer, &file] {
            auto result = server.ppd(printer, cancel);
            EXPECT_TRUE(result) << result.failure().text().toStdString();
            file = result ? std::move(result).value() : nullptr;
        }).join();
        return file;
    }

    void SetUp() override { qputenv("CUPS_SERVER", "/nonexistent/cups.sock"); }

    CupsServerFixture cups;
    LibcupsServer server{cups.address()};
    CancelFlag cancel;
};

TEST_F(LibcupsServerTest, ServerWithoutQueuesHasAnEmptyList)
{
    EXPECT_TRUE(listed().empty());
}

TEST_F(LibcupsServerTest, QueuesComeWithDescriptionDeviceAndDefault)
{
    cups.addQueue(kLab);
    cups.addRawQueue(kRaw);
    cups.administer(QStringLiteral("lpadmin"),
                    {QStringLiteral("-p"), kLab, QStringLiteral("-D"),
                     QStringLiteral("Labels, hall"), QStringLiteral("-L"),
                     QStringLiteral("2nd floor")});
    cups.administer(QStringLiteral("lpadmin"), {QStringLiteral("-d"), kRaw});
    const auto printers = listed();
    ASSERT_EQ(printers.size(), 2U);
    EXPECT_EQ(printers[0].name, kLab);
    EXPECT_EQ(printers[0].title(), QStringLiteral("Labels, hall"));
    EXPECT_EQ(printers[0].location, QStringLiteral("2nd floor"));
    EXPECT_TRUE(printers[0].deviceUri.startsWith(QStringLiteral("labsink:/")));
    EXPECT_TRUE(printers[0].model.contains(QStringLiteral("Sample Label 300")));
    EXPECT_FALSE(printers[0].isDefault);
    EXPECT_EQ(printers[1].name, kRaw);
    EXPECT_TRUE(printers[1].isDefault);
    EXPECT_EQ(printers[1].stateText(), QStringLiteral("ready"));
}

TEST_F(LibcupsServerTest, StoppedAndRejectingQueuesSaySo)
{
    cups.addQueue(kLab);
    cups.administer(QStringLiteral("cupsdisable"), {kLab});
    EXPECT_EQ(listed().at(0).stateText(), QStringLiteral("stopped"));
    cups.administer(QStringLiteral("cupsreject"), {kLab});
    EXPECT_EQ(listed().at(0).stateText(), QStringLiteral("stopped, not accepting jobs"));
    cups.administer(QStringLiteral("cupsenable"), {kLab});
    EXPECT_EQ(listed().at(0).stateText(), QStringLiteral("not accepting jobs"));
}

TEST_F(LibcupsServerTest, PpdIsMarkedWithTheQueuesOwnDefaults)
{
    cups.addQueue(kLab);
    cups.administer(QStringLiteral("lpadmin"),
                    {QStringLiteral("-p"), kLab, QStringLiteral("-o"),
                     QStringLiteral("CvContrast=7"), QStringLiteral("-o"),
                     QStringLiteral("PageSize=DC62x29")});
    const auto file = ppd(kLab);
    ASSERT_TRUE(file);
    EXPECT_EQ(file->nickName(), QStringLiteral("Sample Label 300, black and red"));
    EXPECT_EQ(file->markedChoice(QStringLiteral("CvContrast")), QStringLiteral("7"));
    EXPECT_EQ(file->markedChoice(kPageSize), QStringLiteral("DC62x29"));
    EXPECT_EQ(file->markedChoice(QStringLiteral("CvBrightness")), QStringLiteral("0"));
}

TEST_F(LibcupsServerTest, OptionsOfTheUsersInstanceAreMarkedInItsPpd)
{
    cups.addQueue(kLab);
    cups.administer(QStringLiteral("lpoptions"),
                    {QStringLiteral("-p"), QStringLiteral("Lab/draft"), QStringLiteral("-o"),
                     QStringLiteral("CvHalftonePattern=Dither")});
    const auto file = ppd(QStringLiteral("Lab/draft"));
    ASSERT_TRUE(file);
    EXPECT_EQ(file->markedChoice(QStringLiteral("CvHalftonePattern")), QStringLiteral("Dither"));
    EXPECT_EQ(ppd(kLab)->markedChoice(QStringLiteral("CvHalftonePattern")),
              QStringLiteral("ErrorDiffusion"));
}

TEST_F(LibcupsServerTest, QueueWithoutAPpdHasNone)
{
    cups.addRawQueue(kRaw);
    EXPECT_EQ(ppd(kRaw), nullptr);
}

TEST_F(LibcupsServerTest, PpdOfAQueueThatIsGoneIsAFailure)
{
    cups.addQueue(kLab);
    cups.removeQueue(kLab);
    const auto result = server.ppd(kLab, cancel);
    ASSERT_FALSE(result);
    EXPECT_EQ(result.failure().kind, FailureKind::Printer);
    EXPECT_EQ(result.failure().text(),
              QStringLiteral("Lab: the print server has no such printer; choose another one"));
}

TEST_F(LibcupsServerTest, FetchedPpdLeavesNoFileBehind)
{
    cups.addQueue(kLab);
    const QTemporaryDir folder;
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", folder.path().toUtf8());
    const auto file = ppd(kLab);
    qputenv("TMPDIR", before);
    EXPECT_TRUE(file);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList());
}

TEST_F(LibcupsServerTest, ServerThatIsNotThereIsNamed)
{
    cups.kill();
    const auto printers = server.printers(cancel);
    ASSERT_FALSE(printers);
    EXPECT_EQ(printers.failure().kind, FailureKind::Server);
    EXPECT_EQ(printers.failure().what, QStringLiteral("Print server ") + cups.address());
    EXPECT_TRUE(printers.failure().why.startsWith(QStringLiteral("cannot be reached (")));
    EXPECT_FALSE(server.ppd(kLab, cancel));
    EXPECT_FALSE(server.openJob(kLab, cancel));
}

TEST_F(LibcupsServerTest, WithoutAnAddressTheSystemsServerIsAskedOnAThreadThatKnowsAnother)
{
    EXPECT_TRUE(server.printers(cancel));
    const auto printers = LibcupsServer().printers(cancel);
    ASSERT_FALSE(printers);
    EXPECT_EQ(printers.failure().what, QStringLiteral("Print server /nonexistent/cups.sock"));
}

TEST_F(LibcupsServerTest, CancellingEndsTheWaitForASilentServer)
{
    cups.addQueue(kLab);
    cups.freeze();
    auto answer = std::async(std::launch::async, [this] { return server.printers(cancel); });
    QThread::msleep(100);
    cancel.set();
    const bool hasEnded = answer.wait_for(std::chrono::seconds(20)) == std::future_status::ready;
    cups.resume();
    ASSERT_TRUE(hasEnded);
    const auto printers = answer.get();
    ASSERT_FALSE(printers);
    EXPECT_EQ(printers.failure().kind, FailureKind::Cancelled);
}

} // namespace
