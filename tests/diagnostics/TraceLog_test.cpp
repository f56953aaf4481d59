// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/Captured.h"
#include "diagnostics/Diagnostics.h"

#include <thread>

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

struct Thing
{
    PDEObject object;
    const char *text;
};

const char *textOf(const PDEObject *object)
{
    return reinterpret_cast<const Thing *>(object)->text;
}

Thing thing(const char *text)
{
    return {{&textOf}, text};
}

TEST(TraceLog, EachFunctionHasItsTag)
{
    const CapturedLog log;
    const Thing panel = thing("Panel");
    _PDEProlog(&panel.object, "%s", "begins");
    _PDELog(nullptr, "%d items", 3);
    _PDEEpilog(&panel.object, "%s", "ends");
    EXPECT_THAT(log.lines(),
                ElementsAre("BEGIN self(Panel) begins", "LOG 3 items", "END self(Panel) ends"));
}

TEST(TraceLog, DescriptionsAndObjectsAsArguments)
{
    const CapturedLog log;
    const Thing panel = thing("Panel");
    const Thing silent = thing(nullptr);
    const PDEObject bare{nullptr};
    _PDELog(&panel.object, "%@ %@ %@ %@", &panel, &silent, &bare, nullptr);
    _PDELog(&silent.object, "x");
    _PDELog(&bare, "y");
    EXPECT_THAT(log.lines(),
                ElementsAre("LOG self(Panel) Panel (null) (null) (null)", "LOG self((null)) x",
                            "LOG self((null)) y"));
}

TEST(TraceLog, DescriptionTakesTheArgumentsButReadsNoOthers)
{
    const CapturedLog log;
    const Thing number = thing("5%d");
    const Thing texts = thing("%s%s%s%s%s%s%s%s%n");
    _PDELog(&number.object, "n=%d", 7);
    _PDELog(&texts.object, "n=%d", 7);
    EXPECT_THAT(log.lines(),
                ElementsAre("LOG self(57) n=0",
                            "LOG self(7(null)(null)(null)(null)(null)(null)(null)) n=0"));
}

TEST(TraceLog, NoFormatIsShownAsNull)
{
    const CapturedLog log;
    const Thing panel = thing("Panel");
    _PDEProlog(nullptr, nullptr);
    _PDEEpilog(&panel.object, nullptr);
    EXPECT_THAT(log.lines(), ElementsAre("BEGIN (null)", "END self(Panel) (null)"));
}

TEST(TraceLog, TextsAreUtf8)
{
    const CapturedLog log;
    _PDELog(nullptr, "é %C %s \xE9", 0x20AC, "あ");
    EXPECT_THAT(log.lines(), ElementsAre("LOG é € あ \xEF\xBF\xBD"));
}

TEST(TraceLog, ASinkThatThrowsDoesNotReachTheCaller)
{
    platform::setSystemLogSink([](const QString &) { throw std::bad_alloc(); });
    EXPECT_NO_THROW(_PDELog(nullptr, "x"));
    platform::setSystemLogSink({});
}

TEST(TraceLog, ThreadsMayTraceAtOnce)
{
    std::atomic<int> good = 0;
    platform::setSystemLogSink([&good](const QString &line) {
        good += line == QStringLiteral("LOG self(Panel) 1 of 2") ? 1 : 0;
    });
    const Thing panel = thing("Panel");
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&panel] {
            for (int line = 0; line < 200; ++line) {
                _PDELog(&panel.object, "%d of %s", 1, "2");
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    platform::setSystemLogSink({});
    EXPECT_EQ(good, 800);
}

} // namespace
