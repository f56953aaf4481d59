// SPDX-License-Identifier: Apache-2.0
#include "ppd/ExtendedTicket.h"

#include "tests/ppd/FakePrintJob.h"

#include <gmock/gmock.h>

#include <cmath>

namespace {

class ExtendedTicket : public testing::Test
{
protected:
    qint32 color(const QByteArray &value)
    {
        settings.ticket = ticketWith(stringEntry("KtVLMultiColor", value));
        return colorNow();
    }
    qint32 colorNow()
    {
        TapeInfo info;
        info.colorSetting = 77;
        EXPECT_EQ(GetColorSetting(nullptr, &settings, &info), 0);
        return info.colorSetting;
    }
    std::optional<QString> paperNow()
    {
        TapeInfo info;
        info.paperName = QStringLiteral("before");
        EXPECT_EQ(GetTapeInfo2(nullptr, &settings, &info), 0);
        return info.paperName;
    }

    FakeSettings settings;
};

TEST_F(ExtendedTicket, KeyEndsInPrintPrintSettingsTicketKtE5)
{
    EXPECT_EQ(ExtendedTicketKey, QLatin1String("org.labelprint.print.PrintSettingsTicket.KtE5"));
}

TEST_F(ExtendedTicket, PaperNameIsTheTickets)
{
    settings.ticket = ticketWith(stringEntry("Other", "x") + stringEntry("KtPaperName2", "DC24"));
    EXPECT_EQ(paperNow(), QStringLiteral("DC24"));
}

TEST_F(ExtendedTicket, ColorSettingIsToldBySubstring)
{
    EXPECT_EQ(color("MultiColorMonochrome"), 0);
    EXPECT_EQ(color("CvMultiColorMonochrome"), 0);
    EXPECT_EQ(color("MultiColorBlackRed"), 1);
    EXPECT_EQ(color("xCvMultiColorBlackRedx"), 1);
}

TEST_F(ExtendedTicket, ColorSettingWithBothTextsIsBlackAndRedInEitherOrder)
{
    EXPECT_EQ(color("MultiColorMonochrome MultiColorBlackRed"), 1);
    EXPECT_EQ(color("MultiColorBlackRed MultiColorMonochrome"), 1);
}

TEST_F(ExtendedTicket, ColorSettingWithNeitherTextIsNotRecorded)
{
    EXPECT_EQ(color(""), 2);
    EXPECT_EQ(color("multicolorblackred"), 2);
    EXPECT_EQ(color("Monochrome"), 2);
}

TEST_F(ExtendedTicket, MissingTicketLeavesTheDefaults)
{
    EXPECT_EQ(colorNow(), 2);
    EXPECT_EQ(paperNow(), std::nullopt);
}

TEST_F(ExtendedTicket, MissingSettingsLeaveTheDefaults)
{
    TapeInfo info;
    info.paperName = QStringLiteral("before");
    EXPECT_EQ(GetTapeInfo2(nullptr, nullptr, &info), 0);
    EXPECT_EQ(GetColorSetting(nullptr, nullptr, &info), 0);
    EXPECT_EQ(info.paperName, std::nullopt);
    EXPECT_EQ(info.colorSetting, 2);
}

TEST_F(ExtendedTicket, MissingKeysLeaveTheDefaults)
{
    settings.ticket = ticketWith(stringEntry("KtPaperName", "DC24")
                                 + stringEntry("ktvlmulticolor", "MultiColorBlackRed"));
    EXPECT_EQ(colorNow(), 2);
    EXPECT_EQ(paperNow(), std::nullopt);
}

TEST_F(ExtendedTicket, OnlyTheAskedFieldIsTouched)
{
    settings.ticket = ticketWith(stringEntry("KtPaperName2", "DC24")
                                 + stringEntry("KtVLMultiColor", "MultiColorBlackRed"));
    TapeInfo info{12.5, 1, QStringLiteral("before"), 0};
    GetColorSetting(nullptr, &settings, &info);
    EXPECT_EQ(info.paperName, QStringLiteral("before"));
    EXPECT_EQ(info.colorSetting, 1);
    info.colorSetting = 0;
    GetTapeInfo2(nullptr, &settings, &info);
    EXPECT_EQ(info.paperName, QStringLiteral("DC24"));
    EXPECT_EQ(info.colorSetting, 0);
    EXPECT_EQ(info.paperHeightMM, 12.5);
    EXPECT_EQ(info.tapeKind, 1);
}

TEST_F(ExtendedTicket, MissingRecordIsAParameterError)
{
    EXPECT_EQ(GetTapeInfo2(nullptr, &settings, nullptr), -50);
    EXPECT_EQ(GetColorSetting(nullptr, &settings, nullptr), -50);
}

struct BadTicket
{
    const char *name;
    QByteArray data;
};

void PrintTo(const BadTicket &ticket, std::ostream *out)
{
    *out << ticket.name;
}

QByteArray bothKeys(const QByteArray &value)
{
    return ticketWith("<key>KtPaperName2</key>" + value + "<key>KtVLMultiColor</key>" + value);
}

const QByteArray kBlackRed = "<string>MultiColorBlackRed</string>";

class HostileTicket : public testing::TestWithParam<BadTicket>
{ };

TEST_P(HostileTicket, LeavesTheDefaultsAndTheRestOfTheRecord)
{
    FakeSettings settings;
    settings.ticket = GetParam().data;
    TapeInfo info{12.5, 1, QStringLiteral("before"), 77};
    EXPECT_EQ(GetTapeInfo2(nullptr, &settings, &info), 0);
    EXPECT_EQ(GetColorSetting(nullptr, &settings, &info), 0);
    EXPECT_EQ(info.paperName, std::nullopt);
    EXPECT_EQ(info.colorSetting, 2);
    EXPECT_EQ(info.paperHeightMM, 12.5);
    EXPECT_EQ(info.tapeKind, 1);
}

INSTANTIATE_TEST_SUITE_P(
    Tickets, HostileTicket,
    testing::Values(
        BadTicket{"Empty", {}}, BadTicket{"Garbage", "MultiColorBlackRed"},
        BadTicket{"Zeros", QByteArray(4096, '\0')},
        BadTicket{"RootIsAnArray", "<plist><array>" + kBlackRed + "</array></plist>"},
        BadTicket{"RootIsAString", "<plist>" + kBlackRed + "</plist>"},
        BadTicket{"Integers", bothKeys("<integer>5</integer>")},
        BadTicket{"Arrays", bothKeys("<array>" + kBlackRed + "</array>")},
        BadTicket{"Data", bothKeys("<data>TXVsdGlDb2xvckJsYWNrUmVk</data>")},
        BadTicket{"UndecodableStrings", bothKeys("<string>MultiColorBlackRed\xE9</string>")},
        BadTicket{"DeepNesting",
                  bothKeys(QByteArray("<array>").repeated(100000) + kBlackRed
                           + QByteArray("</array>").repeated(100000))},
        BadTicket{"DeepNestingNeverClosed", QByteArray("<dict><key>A</key>").repeated(100000)},
        BadTicket{
            "ManyMegabytes",
            bothKeys(kBlackRed + "<key>A</key><data>" + QByteArray(8 << 20, 'A') + "</data>")},
        BadTicket{"MegabytesOfReferences",
                  bothKeys("<string>MultiColorBlackRed" + QByteArray("&amp;").repeated(400000)
                           + "</string>")},
        BadTicket{"EntityOfItsOwn",
                  "<!DOCTYPE plist [<!ENTITY a \"MultiColorBlackRed\">]>"
                      + bothKeys("<string>&a;</string>")}),
    [](const auto &ticket) { return std::string(ticket.param.name); });

TEST_F(ExtendedTicket, TicketTruncatedAtAnyByteLeavesTheDefaults)
{
    const QByteArray whole = bothKeys(kBlackRed);
    const qsizetype complete = whole.indexOf("</plist>") + qsizetype(qstrlen("</plist>"));
    for (qsizetype size = 0; size < complete; ++size) {
        settings.ticket = whole.left(size);
        ASSERT_EQ(colorNow(), 2) << size;
        ASSERT_EQ(paperNow(), std::nullopt) << size;
    }
    settings.ticket = whole;
    EXPECT_EQ(colorNow(), 1);
    EXPECT_EQ(paperNow(), QStringLiteral("MultiColorBlackRed"));
}

class SessionNumber : public testing::Test
{
protected:
    /// -7 stands in the place before.
    qint32 read(const QVariant &value)
    {
        session.stored = {0, value};
        qint32 number = -7;
        EXPECT_EQ(GetTicketFromSession(&session, QStringLiteral("KtNumber"), &number), 0);
        return number;
    }

    FakeSession session;
};

TEST_F(SessionNumber, IntegersKeepTheirLow32Bits)
{
    EXPECT_EQ(read(42), 42);
    EXPECT_EQ(read(-42), -42);
    EXPECT_EQ(read(qint64(4294967297)), 1);
    EXPECT_EQ(read(qint64(2147483648)), -2147483647 - 1);
    EXPECT_EQ(read(qint64(5000000000)), 705032704);
    EXPECT_EQ(read(quint32(4294967295U)), -1);
    EXPECT_EQ(read(quint64(18446744073709551615ULL)), -1);
    EXPECT_EQ(read(QVariant::fromValue<short>(-3)), -3);
    EXPECT_EQ(read(QVariant::fromValue<unsigned char>(200)), 200);
}

TEST_F(SessionNumber, FractionsAreCutTowardZeroAndStayAtTheLimits)
{
    EXPECT_EQ(read(3.9), 3);
    EXPECT_EQ(read(-3.9), -3);
    EXPECT_EQ(read(2.5F), 2);
    EXPECT_EQ(read(1e20), 2147483647);
    EXPECT_EQ(read(-1e20), -2147483647 - 1);
    EXPECT_EQ(read(std::nan("")), 0);
}

TEST_F(SessionNumber, DataThatIsNoNumberLeavesThePlaceAlone)
{
    EXPECT_EQ(read(QStringLiteral("42")), -7);
    EXPECT_EQ(read(QByteArray("42")), -7);
    EXPECT_EQ(read(true), -7);
    EXPECT_EQ(read(QVariantList{42}), -7);
}

TEST_F(SessionNumber, NoDataIsAnErrorAndLeavesThePlaceAlone)
{
    qint32 number = -7;
    EXPECT_EQ(GetTicketFromSession(&session, QStringLiteral("KtNumber"), &number), -30891);
    session.stored = {-5, 42};
    EXPECT_EQ(GetTicketFromSession(&session, QStringLiteral("KtNumber"), &number), -30891)
        << "the session's own status is not passed on";
    session.stored = {0, 42};
    EXPECT_EQ(GetTicketFromSession(&session, QStringLiteral("Other"), &number), -30891);
    EXPECT_EQ(GetTicketFromSession(nullptr, QStringLiteral("KtNumber"), &number), -30891);
    EXPECT_EQ(number, -7);
}

TEST_F(SessionNumber, MissingPlaceIsSkipped)
{
    session.stored = {0, 42};
    EXPECT_EQ(GetTicketFromSession(&session, QStringLiteral("KtNumber"), nullptr), 0);
}

} // namespace
