// SPDX-License-Identifier: Apache-2.0
#include "CodeLabel.h"
#include "dialog/BarcodeGuard.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

using dialog::GuardRequest;
using dialog::PrintedPage;

namespace {

class BarcodeGuard : public DocumentFolder
{
protected:
    BarcodeGuard()
    {
        washedOut.form.settings.method = imaging::HalftoneMethod::Binary;
        washedOut.form.settings.brightness = 20;
        washedOut.form.settings.contrast = 20;
    }
    bool isDone()
    {
        return QTest::qWaitFor([this] { return !guard->isBusy(); }, 60000);
    }

    const std::shared_ptr<const dialog::DocumentPages> document =
        opened(CodeLabel(QSize(732, 1181)).with({60, 60}, "QR Code", "guarded", 4).png());
    const PrintedPage readable = onLabel(document);
    PrintedPage washedOut = onLabel(document);
    std::unique_ptr<dialog::BarcodeGuard> guard = std::make_unique<dialog::BarcodeGuard>();
};

TEST_F(BarcodeGuard, FindsLostCodesInTheBackgroundAndForgetsThemWhenTheyCanBeRead)
{
    guard->check({washedOut, {0}});
    EXPECT_TRUE(guard->isBusy());
    EXPECT_TRUE(guard->lost().empty());
    ASSERT_TRUE(isDone());
    ASSERT_EQ(guard->lost().size(), 1U);
    EXPECT_EQ(guard->lost()[0].text, QStringLiteral("guarded"));
    guard->check({readable, {0}});
    EXPECT_EQ(guard->lost().size(), 1U) << "what was found stays until there is news";
    ASSERT_TRUE(isDone());
    EXPECT_TRUE(guard->lost().empty());
}

TEST_F(BarcodeGuard, TheNewestRequestWins)
{
    guard->check({washedOut, {0}});
    QTest::qWait(dialog::BarcodeGuard::kDelay + 20);
    guard->check({readable, {0}});
    ASSERT_TRUE(isDone());
    EXPECT_TRUE(guard->lost().empty());
    guard->check({washedOut, {0}});
    ASSERT_TRUE(isDone());
    EXPECT_EQ(guard->lost().size(), 1U);
}

TEST_F(BarcodeGuard, TheSameRequestOnceMoreIsNoNews)
{
    guard->check({washedOut, {0}});
    ASSERT_TRUE(isDone());
    const QSignalSpy changes(guard.get(), &dialog::BarcodeGuard::changed);
    guard->check({washedOut, {0}});
    EXPECT_FALSE(guard->isBusy());
    EXPECT_EQ(changes.size(), 0);
}

TEST_F(BarcodeGuard, WithNothingToCheckNothingIsLost)
{
    guard->check({washedOut, {0}});
    ASSERT_TRUE(isDone());
    guard->clear();
    EXPECT_TRUE(guard->lost().empty());
    EXPECT_FALSE(guard->isBusy());
    guard->check({washedOut, {0}});
    ASSERT_TRUE(isDone());
    EXPECT_EQ(guard->lost().size(), 1U) << "after clear() everything is news";
}

/// The numbers of the programs that this one has started.
QByteArray programsOfOurs()
{
    QByteArray numbers;
    const QDir threads(QStringLiteral("/proc/self/task"));
    for (const QString &thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile children(threads.filePath(thread + QStringLiteral("/children")));
        EXPECT_TRUE(children.open(QIODevice::ReadOnly));
        numbers += children.readAll();
    }
    return numbers;
}

TEST_F(BarcodeGuard, EndsWhileItReads)
{
    guard->check({washedOut, {0}});
    ASSERT_TRUE(QTest::qWaitFor([] { return !programsOfOurs().isEmpty(); }, 60000));
    // The search of a picture that nobody stops would take longer than a test may.
    guard.reset();
    EXPECT_EQ(programsOfOurs().toStdString(), "");
}

} // namespace
