// SPDX-License-Identifier: Apache-2.0
#include "ppd/TapeInfo.h"

#include "support/PpdFixture.h"
#include "tests/ppd/FakePrintJob.h"

#include <gmock/gmock.h>

#include <limits>

using testing::ElementsAre;

namespace {

TestPpd ppdWithSizes(const std::vector<QByteArray> &names, bool custom = false)
{
    QByteArray text = "*PPD-Adobe: \"4.3\"\n*OpenUI *PageSize/Size: PickOne\n";
    for (const QByteArray &name : names) {
        text += "*PageSize " + name + "/A size: \"\"\n";
    }
    text += "*CloseUI: *PageSize\n";
    for (const QByteArray &name : names) {
        text += "*PaperDimension " + name + "/A size: \"175 283\"\n";
    }
    if (custom) {
        text += "*VariablePaperSize: True\n*CustomPageSize True/Custom: \"\"\n";
    }
    return TestPpd::fromText(text);
}

class TapeInfoOfPaper : public testing::Test
{
protected:
    TapeInfoOfPaper()
        : ppd(ppdWithSizes({"DC24", "AV9", "FL1", "C_1", "C1", "CustomBig", "Letter", "dcx", "XDC"},
                           true))
    {
        format.chosen.value = &paper;
        settings.ticket = ticketWith(stringEntry("KtPaperName2", "FromTicket")
                                     + stringEntry("KtVLMultiColor", "MultiColorBlackRed"));
        // What stood in the record before must not shine through.
        info = {5.0, 9, QStringLiteral("before"), 9};
    }
    OSStatus query() { return GetTapeInfo(nullptr, &settings, &format, ppd.get(), &info); }
    qint32 kindOf(const QString &name)
    {
        paper.name = {0, name};
        EXPECT_EQ(query(), 0);
        EXPECT_EQ(info.paperName, name);
        return info.tapeKind;
    }
    void expectUntouchedSince(const std::optional<QString> &name)
    {
        EXPECT_EQ(info.paperHeightMM, 100.0);
        EXPECT_EQ(info.tapeKind, 0);
        EXPECT_EQ(info.paperName, name);
        EXPECT_EQ(info.colorSetting, 0);
    }

    TestPpd ppd;
    FakePaper paper;
    FakePageFormat format;
    FakeSettings settings;
    TapeInfo info;
};

TEST(TapeInfo, StartsWithAHundredMillimetresAndNothingElse)
{
    const TapeInfo info;
    EXPECT_EQ(info.paperHeightMM, 100.0);
    EXPECT_EQ(info.tapeKind, 0);
    EXPECT_EQ(info.paperName, std::nullopt);
    EXPECT_EQ(info.colorSetting, 0);
}

TEST_F(TapeInfoOfPaper, SizesThatBeginWithATapePrefixAreKindOne)
{
    for (const char *name : {"DC24", "AV9", "FL1", "C_1"}) {
        EXPECT_EQ(kindOf(QString::fromLatin1(name)), 1) << name;
    }
}

TEST_F(TapeInfoOfPaper, SizesThatBeginWithCustomAreKindTwo)
{
    EXPECT_EQ(kindOf(QStringLiteral("Custom")), 2);
    EXPECT_EQ(kindOf(QStringLiteral("CustomBig")), 2);
}

TEST_F(TapeInfoOfPaper, OtherSizesAreKindZero)
{
    for (const char *name : {"Letter", "C1", "dcx", "XDC"}) {
        EXPECT_EQ(kindOf(QString::fromLatin1(name)), 0) << name;
    }
}

TEST_F(TapeInfoOfPaper, NamesThatAreNoSizeOfThePpdAreKindZero)
{
    for (const char *name :
         {"dc24", "DC", "DC2", "DC244", "DC24 ", "Custom.60x100", "CustomBigger"}) {
        EXPECT_EQ(kindOf(QString::fromLatin1(name)), 0) << name;
    }
}

TEST_F(TapeInfoOfPaper, WithoutSizesEveryNameIsKindZero)
{
    ppd = TestPpd::fromText("*PPD-Adobe: \"4.3\"\n*CvThing: \"x\"\n");
    ASSERT_EQ(ppd.get()->sizes, nullptr);
    EXPECT_EQ(kindOf(QStringLiteral("DC24")), 0);
    info.tapeKind = 9;
    EXPECT_EQ(GetTapeInfo(nullptr, &settings, &format, nullptr, &info), 0);
    EXPECT_EQ(info.tapeKind, 0);
    EXPECT_EQ(info.colorSetting, 1) << "the rest is still read";
}

TEST_F(TapeInfoOfPaper, NameThatDoesNotFit255BytesIsKindTwoAndStillTheName)
{
    EXPECT_EQ(kindOf(QString(255, u'x')), 0);
    EXPECT_EQ(kindOf(QString(256, u'x')), 2);
    EXPECT_EQ(kindOf(QString(128, u'é')), 2) << "bytes count, not characters";
    EXPECT_EQ(kindOf(QString(QChar(0xD800))), 2) << "has no form in UTF-8";
}

TEST_F(TapeInfoOfPaper, EmptyNameIsKindTwoAndNotLookedUpInTheTicket)
{
    EXPECT_EQ(kindOf(QString()), 2);
    ASSERT_TRUE(info.paperName.has_value());
}

TEST_F(TapeInfoOfPaper, NameOfThePageFormatGoesBeforeTheTickets)
{
    paper.name = {0, QStringLiteral("DC24")};
    EXPECT_EQ(query(), 0);
    EXPECT_EQ(info.paperName, QStringLiteral("DC24"));
}

TEST_F(TapeInfoOfPaper, PaperWithoutNameTakesTheTicketsAndIsKindTwo)
{
    settings.ticket = ticketWith(stringEntry("KtPaperName2", "DC24"));
    EXPECT_EQ(query(), 0);
    EXPECT_EQ(info.paperName, QStringLiteral("DC24"));
    EXPECT_EQ(info.tapeKind, 2) << "also when the name is a size of the PPD";
}

TEST_F(TapeInfoOfPaper, FailingNameTakesTheTickets)
{
    paper.name = {-9, QStringLiteral("DC24")};
    EXPECT_EQ(query(), 0) << "its status is not passed on";
    EXPECT_EQ(info.paperName, QStringLiteral("FromTicket"));
    EXPECT_EQ(info.tapeKind, 2);
}

TEST_F(TapeInfoOfPaper, NoNameAnywhereIsKindTwoAndNothing)
{
    settings.ticket = ticketWith(stringEntry("KtVLMultiColor", "MultiColorBlackRed"));
    EXPECT_EQ(query(), 0);
    EXPECT_EQ(info.paperName, std::nullopt);
    EXPECT_EQ(info.tapeKind, 2);
    EXPECT_EQ(info.colorSetting, 1);
}

TEST_F(TapeInfoOfPaper, HeightIsTurnedIntoMillimetres)
{
    paper.points = {0, 283.46};
    EXPECT_EQ(query(), 0);
    EXPECT_NEAR(info.paperHeightMM, 99.998335, 1e-6);
}

TEST_F(TapeInfoOfPaper, ColorSettingIsTheTickets)
{
    EXPECT_EQ(query(), 0);
    EXPECT_EQ(info.colorSetting, 1);
    settings.ticket = ticketWith(stringEntry("KtVLMultiColor", "CvMultiColorMonochrome"));
    EXPECT_EQ(query(), 0);
    EXPECT_EQ(info.colorSetting, 0);
    settings.ticket = ticketWith("");
    EXPECT_EQ(query(), 0);
    EXPECT_EQ(info.colorSetting, 2);
}

TEST_F(TapeInfoOfPaper, WithoutSettingsTheColorIsNotRecorded)
{
    EXPECT_EQ(GetTapeInfo(nullptr, nullptr, &format, ppd.get(), &info), 0);
    EXPECT_EQ(info.colorSetting, 2);
    EXPECT_EQ(info.paperName, std::nullopt);
}

TEST_F(TapeInfoOfPaper, FailingPaperIsPassedOnAndLeavesMonochrome)
{
    format.chosen.status = -30876;
    EXPECT_EQ(query(), -30876);
    expectUntouchedSince(std::nullopt);
}

TEST_F(TapeInfoOfPaper, NoPaperLeavesMonochrome)
{
    format.chosen.value = nullptr;
    EXPECT_EQ(query(), 0);
    expectUntouchedSince(std::nullopt);
}

TEST_F(TapeInfoOfPaper, MissingPageFormatHasNoPaper)
{
    EXPECT_EQ(GetTapeInfo(nullptr, &settings, nullptr, ppd.get(), &info), 0);
    expectUntouchedSince(std::nullopt);
}

TEST_F(TapeInfoOfPaper, FailingHeightIsPassedOnAndLeavesNameAndMonochrome)
{
    paper.name = {0, QStringLiteral("DC24")};
    paper.points = {-30895, 283.46};
    EXPECT_EQ(query(), -30895);
    expectUntouchedSince(QStringLiteral("DC24"));
}

TEST_F(TapeInfoOfPaper, HeightOfZeroLeavesNameAndMonochrome)
{
    paper.points = {0, 0.0};
    EXPECT_EQ(query(), 0);
    expectUntouchedSince(QStringLiteral("FromTicket"));
}

TEST_F(TapeInfoOfPaper, MissingRecordIsAParameterError)
{
    EXPECT_EQ(GetTapeInfo(nullptr, &settings, &format, ppd.get(), nullptr), -50);
}

class Pages : public testing::Test
{
protected:
    OSStatus query() { return GetTapeInfo3(&settings, &range); }

    FakeSettings settings;
    PageRange range{7, 8};
};

TEST_F(Pages, AreReadAndWrittenBackInOrder)
{
    settings.first.value = 3;
    settings.last.value = std::numeric_limits<quint32>::max();
    EXPECT_EQ(query(), 0);
    EXPECT_EQ(range.firstPage, 3U);
    EXPECT_EQ(range.lastPage, 4294967295U);
    EXPECT_THAT(settings.calls, ElementsAre("first 3", "last 4294967295"));
}

TEST_F(Pages, FailingFirstPageIsZeroAndTheLastIsStillRead)
{
    settings.first = {-1, 3};
    settings.last = {0, 5};
    EXPECT_EQ(query(), 0);
    EXPECT_EQ(range.firstPage, 0U);
    EXPECT_EQ(range.lastPage, 5U);
    EXPECT_THAT(settings.calls, ElementsAre("last 5"));
}

TEST_F(Pages, FailingLastPageIsPassedOnAndZero)
{
    settings.first = {0, 3};
    settings.last = {-2, 5};
    EXPECT_EQ(query(), -2);
    EXPECT_EQ(range.firstPage, 3U);
    EXPECT_EQ(range.lastPage, 0U);
    EXPECT_THAT(settings.calls, ElementsAre("first 3"));
}

TEST_F(Pages, FailingToWriteTheFirstPageIsIgnored)
{
    settings.firstWritten = -3;
    EXPECT_EQ(query(), 0);
    EXPECT_EQ(range.firstPage, 1U);
    EXPECT_EQ(range.lastPage, 1U);
}

TEST_F(Pages, FailingToWriteTheLastPageIsPassedOnAndThePageIsKept)
{
    settings.last = {0, 5};
    settings.lastWritten = -4;
    EXPECT_EQ(query(), -4);
    EXPECT_EQ(range.lastPage, 5U);
}

TEST_F(Pages, OfMissingSettingsAreZeroAndAParameterError)
{
    EXPECT_EQ(GetTapeInfo3(nullptr, &range), -50);
    EXPECT_EQ(range.firstPage, 0U);
    EXPECT_EQ(range.lastPage, 0U);
    EXPECT_EQ(GetTapeInfo3(&settings, nullptr), -50);
    EXPECT_TRUE(settings.calls.empty());
}

} // namespace
