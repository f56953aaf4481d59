// SPDX-License-Identifier: Apache-2.0
#include "tools/Dispatcher.h"

#include "platform/Beep.h"
#include "platform/NotificationCenter.h"
#include "platform/SystemLog.h"
#include "support/TestBundles.h"

#include <QCoreApplication>
#include <QJsonDocument>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

namespace {

const QByteArray kOpen =
    R"({"do": "open", "ppd": ")" SOURCE_DIR R"(/resources/ppd/label-300.ppd"})";

loading::BundleCode codeOf(const QString &folder)
{
    auto code = loading::BundleLoader().loadCode(folder);
    EXPECT_TRUE(code) << code.failure().text().toStdString();
    return std::move(code).value();
}

/// Lines that go to a session with the bundle of this build.
class DispatcherTest : public testing::Test
{
protected:
    std::vector<QJsonObject> answers(const QByteArray &line)
    {
        std::vector<QJsonObject> lines;
        for (const QByteArray &one : dispatcher.answer({line, false}).split('\n')) {
            if (!one.isEmpty()) {
                const QJsonDocument document = QJsonDocument::fromJson(one);
                EXPECT_TRUE(document.isObject()) << one.toStdString();
                lines.push_back(document.object());
            }
        }
        return lines;
    }
    QJsonObject reply(const QByteArray &line)
    {
        const std::vector<QJsonObject> lines = answers(line);
        EXPECT_FALSE(lines.empty());
        return lines.empty() ? QJsonObject() : lines.back();
    }
    /// The text of the error that stands alone.
    std::string error(const QByteArray &line)
    {
        const std::vector<QJsonObject> lines = answers(line);
        EXPECT_THAT(lines, SizeIs(1));
        EXPECT_EQ(lines.back().value(QLatin1String("ok")), QJsonValue(false));
        const QString text = lines.back().value(QLatin1String("error")).toString();
        EXPECT_FALSE(text.contains(u'\n'));
        return text.toStdString();
    }
    bool isOk(const QByteArray &line) { return reply(line).value(QLatin1String("ok")).toBool(); }

    const loading::BundleCode code = codeOf(QStringLiteral(BUNDLE_DIR));
    tools::Session session{code};
    tools::Dispatcher dispatcher{session};
};

TEST_F(DispatcherTest, WhatIsNoJsonObjectIsAnErrorWhateverItHolds)
{
    for (const QByteArray &line :
         {QByteArray(), QByteArray(" "), QByteArray("\r"), QByteArray("null"), QByteArray("5"),
          QByteArray("\"open\""), QByteArray("[{}]"), QByteArray("{\"do\": \"open\""),
          QByteArray("{\"do\": \"open\"} {}"), QByteArray("{\"do\": \"\xff\xfe\"}"),
          QByteArray("{\"do\": \"op\0en\"}", 15), QByteArray(1 << 20, '\0'),
          QByteArray("{\"do\": 1e}"), QByteArray(100000, '[')}) {
        EXPECT_NE(error(line), "") << line.left(40).toStdString();
    }
    EXPECT_TRUE(isOk(kOpen));
}

TEST_F(DispatcherTest, DeepObjectsAreAnErrorAndNoOverflow)
{
    const QByteArray deep =
        QByteArray("{\"id\":").repeated(100000) + "1" + QByteArray("}").repeated(100000);
    EXPECT_THAT(error(deep), HasSubstr("not a JSON object"));
}

TEST_F(DispatcherTest, ALineBeyondTheLimitIsAnError)
{
    EXPECT_THAT(dispatcher.answer({{}, true}).toStdString(), HasSubstr("longer than 16777216"));
}

TEST_F(DispatcherTest, AMegabyteOfAnUnknownMemberIsIgnored)
{
    EXPECT_TRUE(isOk("{\"x\": \"" + QByteArray(1 << 20, 'x') + "\", " + kOpen.mid(1)));
}

TEST_F(DispatcherTest, TheIdComesBackWhateverItIsAlsoWithAnError)
{
    for (const QByteArray &id : {QByteArray("1"), QByteArray("null"), QByteArray("\"a\\u0000b\""),
                                 QByteArray("{\"a\":[1,{}]}"), QByteArray("false")}) {
        const QJsonObject request = QJsonDocument::fromJson("{\"id\":" + id + "}").object();
        const QJsonObject fail = reply("{\"do\": \"fly\", \"id\": " + id + "}");
        EXPECT_EQ(fail.value(QLatin1String("id")), request.value(QLatin1String("id")));
        EXPECT_EQ(fail.value(QLatin1String("ok")), QJsonValue(false));
        const QJsonObject done = reply("{\"do\": \"formatter.new\", \"id\": " + id + "}");
        EXPECT_EQ(done.value(QLatin1String("id")), request.value(QLatin1String("id")));
        EXPECT_EQ(done.value(QLatin1String("ok")), QJsonValue(true));
    }
}

TEST_F(DispatcherTest, ARequestWithoutIdGetsNone)
{
    EXPECT_FALSE(reply(kOpen).contains(QLatin1String("id")));
}

TEST_F(DispatcherTest, AnUnknownRequestIsNamedInALineOfBoundedLength)
{
    EXPECT_EQ(error("{\"do\": \"fly\"}"), "there is no request \"fly\"");
    EXPECT_LT(error("{\"do\": \"" + QByteArray(1 << 20, 'x') + "\"}").size(), 200U);
    EXPECT_EQ(error("{\"do\": \"a\\nb\"}"), "there is no request \"a b\"");
    EXPECT_EQ(error("{\"do\": 5}"), "member \"do\" must be a string");
    EXPECT_EQ(error("{}"), "member \"do\" is missing");
}

TEST_F(DispatcherTest, ALoneSurrogateIsWrittenAsAnEscape)
{
    EXPECT_TRUE(isOk("{\"do\": \"formatter.new\"}"));
    EXPECT_THAT(
        dispatcher.answer({"{\"do\": \"formatter.string\", \"value\": \"a\\udc00\"}", false})
            .toStdString(),
        HasSubstr("\"a\\udc00\""));
}

TEST_F(DispatcherTest, BeepsAndLinesForTheLogAreEventsInTheirOrder)
{
    platform::systemLog(QStringLiteral("a line\nand more"));
    platform::beep();
    const auto lines = answers("{\"do\": \"formatter.new\"}");
    ASSERT_THAT(lines, SizeIs(3));
    EXPECT_EQ(lines[0].value(QLatin1String("event")), QJsonValue(QLatin1String("log")));
    EXPECT_EQ(lines[0].value(QLatin1String("text")), QJsonValue(QLatin1String("a line\nand more")));
    EXPECT_EQ(lines[1], (QJsonObject{{QLatin1String("event"), QLatin1String("beep")}}));
}

TEST_F(DispatcherTest, WhatARequestLeavesForLaterBelongsToIt)
{
    QMetaObject::invokeMethod(
        qApp, [] { platform::beep(); }, Qt::QueuedConnection);
    EXPECT_THAT(answers("{\"do\": \"formatter.new\"}"), SizeIs(2));
}

TEST_F(DispatcherTest, NotificationsTellNothingFromEmptyUserInformation)
{
    auto &center = platform::NotificationCenter::defaultCenter();
    center.post(QStringLiteral("N"), QStringLiteral("me"));
    center.post(QStringLiteral("N"), {}, QVariantMap());
    center.post(QStringLiteral("N"), static_cast<const void *>(this));
    const auto lines = answers("{\"do\": \"formatter.new\"}");
    ASSERT_THAT(lines, SizeIs(4));
    const QLatin1String object("object");
    const QLatin1String userInfo("userInfo");
    EXPECT_EQ(lines[0].value(object), QJsonValue(QLatin1String("me")));
    EXPECT_TRUE(lines[0].value(userInfo).isNull());
    EXPECT_TRUE(lines[1].value(object).isNull());
    EXPECT_EQ(lines[1].value(userInfo), QJsonValue(QJsonObject()));
    EXPECT_TRUE(lines[2].value(object).isNull());
}

TEST_F(DispatcherTest, AnErrorReplyComesWithoutEvents)
{
    platform::beep();
    EXPECT_NE(error("{\"do\": \"fly\"}"), "");
    EXPECT_THAT(answers("{\"do\": \"formatter.new\"}"), SizeIs(1)) << "it comes not later either";
}

TEST_F(DispatcherTest, AnOpenThatFailsLeavesTheEarlierPanel)
{
    ASSERT_TRUE(isOk(kOpen));
    ASSERT_TRUE(isOk("{\"do\": \"panelView\"}"));
    EXPECT_NE(error("{\"do\": \"open\", \"ppd\": \"/nonexistent.ppd\"}"), "");
    EXPECT_NE(error(kOpen.chopped(1) + ", \"ticket\": \"/nonexistent.plist\"}"), "");
    EXPECT_NE(error(kOpen.chopped(1) + ", \"keyWindowHeight\": \"high\"}"), "");
    EXPECT_TRUE(isOk("{\"do\": \"snapshot\", \"file\": \"/dev/null\"}"));
}

TEST_F(DispatcherTest, APaperNeedsAllItsMembers)
{
    const QByteArray whole =
        R"("status":0,"name":"DC24x100","nameStatus":0,"height":283.46,"heightStatus":0)";
    ASSERT_TRUE(isOk(kOpen.chopped(1) + ", \"paper\": {" + whole + "}}"));
    const QList<QByteArray> members = whole.split(',');
    for (int left = 0; left < members.size(); ++left) {
        QList<QByteArray> others = members;
        others.removeAt(left);
        EXPECT_THAT(error(kOpen.chopped(1) + ", \"paper\": {" + others.join(',') + "}}"),
                    HasSubstr("is missing"));
    }
    EXPECT_THAT(error(kOpen.chopped(1) + ", \"paper\": []}"), HasSubstr("\"paper\""));
}

TEST_F(DispatcherTest, ASummaryThatCannotBeMadeIsAnError)
{
    const QByteArray ppd = TEST_DATA_DIR "/ppd/undecodable-titles.ppd";
    ASSERT_TRUE(isOk("{\"do\": \"open\", \"ppd\": \"" + ppd + "\"}"));
    ASSERT_TRUE(isOk("{\"do\": \"panelView\"}"));
    ASSERT_TRUE(isOk("{\"do\": \"restoreValues\"}"));
    EXPECT_THAT(error("{\"do\": \"summaryInfo\"}"), HasSubstr("has no readable text in the PPD"));
    EXPECT_TRUE(isOk("{\"do\": \"state\"}"));
}

TEST_F(DispatcherTest, ThePreviewsBringTheNumbersInLineWithoutADisplayEvent)
{
    ASSERT_TRUE(isOk(kOpen));
    ASSERT_TRUE(isOk("{\"do\": \"panelView\"}"));
    for (const char *request :
         {R"({"do": "draw"})", R"({"do": "snapshot", "file": "/dev/null"})"}) {
        ASSERT_TRUE(isOk(R"({"do": "put", "control": "mBrightnessText", "value": "11"})"));
        EXPECT_THAT(answers(request), SizeIs(1));
        const QJsonObject controls =
            reply("{\"do\": \"state\"}").value(QLatin1String("controls")).toObject();
        EXPECT_EQ(controls.value(QLatin1String("mBrightnessText"))
                      .toObject()
                      .value(QLatin1String("text")),
                  QJsonValue(QLatin1String("0")))
            << request;
    }
}

/// A panel of another maker answers the contract; there is nothing to look into.
TEST(DispatcherWithAnotherBundle, AnswersTheContractAndNothingBeyond)
{
    TestBundles copies;
    const loading::BundleCode code = codeOf(copies.copy(QStringLiteral("Good")));
    tools::Session session(code);
    tools::Dispatcher dispatcher(session);
    EXPECT_THAT(dispatcher.answer({kOpen, false}).toStdString(), HasSubstr("\"panels\":1"));
    EXPECT_THAT(dispatcher.answer({"{\"do\": \"panelKind\"}", false}).toStdString(),
                HasSubstr("org.example.test"));
    for (const char *request : {"state", "awake", "imageModeFlag", "tapeInfo", "formatter.new"}) {
        EXPECT_THAT(
            dispatcher.answer({R"({"do": ")" + QByteArray(request) + R"("})", false}).toStdString(),
            HasSubstr("\"ok\":false"))
            << request;
    }
}

} // namespace
