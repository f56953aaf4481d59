// SPDX-License-Identifier: Apache-2.0
#include "dialog/ExtendedTicket.h"

#include "TestDocuments.h"
#include "dialog/PropertyList.h"

#include <gmock/gmock.h>

using namespace dialog;
using testing::AllOf;
using testing::HasSubstr;

namespace {

const QString kPaper = QStringLiteral("KtPaperName2");
const QString kColour = QStringLiteral("KtVLMultiColor");

QByteArray plist(const QByteArray &entries)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
           "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
           "<plist version=\"1.0\"><dict>"
        + entries + "</dict></plist>\n";
}

ExtendedTicket ticketOf(const QByteArray &entries)
{
    const auto ticket = ExtendedTicket::read(plist(entries), QStringLiteral("ticket"));
    EXPECT_TRUE(ticket) << ticket.failure().text().toStdString();
    return ticket ? ticket.value() : ExtendedTicket();
}

std::string whyNot(const QByteArray &xml)
{
    const auto ticket = ExtendedTicket::read(xml, QStringLiteral("some.ticket"));
    return ticket ? "no failure" : ticket.failure().text().toStdString();
}

QVariantMap entriesOf(const ExtendedTicket &ticket)
{
    const auto entries = fromPropertyList(ticket.xml());
    EXPECT_TRUE(entries) << ticket.xml().toStdString();
    return entries.value_or(QVariantMap());
}

TEST(ExtendedTicket, IsAnEmptyDictionaryAtFirst)
{
    EXPECT_EQ(entriesOf(ExtendedTicket()), QVariantMap());
    EXPECT_EQ(ExtendedTicket().paperName(), std::nullopt);
    EXPECT_EQ(ExtendedTicket().colourMode(), std::nullopt);
}

TEST(ExtendedTicket, HoldsLabelAndColourModeAsPanelsReadThem)
{
    ExtendedTicket ticket;
    ticket.setPaperName(QStringLiteral("DC62x100"));
    ticket.setColourMode(ColourMode::BlackAndRed);
    EXPECT_EQ(entriesOf(ticket),
              (QVariantMap{{kPaper, QStringLiteral("DC62x100")},
                           {kColour, QStringLiteral("MultiColorBlackRed")}}));
    ticket.setPaperName(QStringLiteral("DC17x54"));
    ticket.setColourMode(ColourMode::Black);
    EXPECT_EQ(entriesOf(ticket),
              (QVariantMap{{kPaper, QStringLiteral("DC17x54")},
                           {kColour, QStringLiteral("MultiColorMonochrome")}}));
    ticket.setColourMode(std::nullopt);
    EXPECT_EQ(entriesOf(ticket), (QVariantMap{{kPaper, QStringLiteral("DC17x54")}}));
}

TEST(ExtendedTicket, ReadsTheColourModeByTheTextInside)
{
    const auto modeOf = [](const QByteArray &text) {
        return ticketOf("<key>KtVLMultiColor</key><string>" + text + "</string>").colourMode();
    };
    EXPECT_EQ(modeOf("CvMultiColorMonochrome"), ColourMode::Black);
    EXPECT_EQ(modeOf("x.MultiColorBlackRed.y"), ColourMode::BlackAndRed);
    EXPECT_EQ(modeOf("MultiColorBlackRed MultiColorMonochrome"), ColourMode::BlackAndRed);
    EXPECT_EQ(modeOf("multicolorblackred"), std::nullopt);
    EXPECT_EQ(modeOf(""), std::nullopt);
}

TEST(ExtendedTicket, NothingElseOfAGivenTicketIsLost)
{
    ExtendedTicket ticket =
        ticketOf("<!-- of the tape panel -->"
                 "<key>KtPaperName2</key><string>DC17x54</string>"
                 "<key>KtNumber</key><integer>-5</integer>"
                 "<key>KtReal</key><real>0.10000000000000001</real>"
                 "<key>KtWhen</key><date>2026-01-02T03:04:05Z</date>"
                 "<key>KtBytes</key><data>AAEC</data><key>KtYes</key><true/>"
                 "<key>Kt&amp;&lt;\xC3\xA9</key><string>a &amp; b</string>"
                 "<key>KtInner</key><dict><key>KtPaperName2</key><string>inner</string></dict>"
                 "<key>KtList</key><array><string>1</string><string/></array>");
    ticket.setPaperName(QStringLiteral("FL24x80"));
    ticket.setColourMode(ColourMode::Black);
    const std::string xml = ticket.xml().toStdString();
    for (const char *part :
         {"<!-- of the tape panel -->", "<integer>-5</integer>", "<real>0.10000000000000001</real>",
          "<date>2026-01-02T03:04:05Z</date>", "<data>AAEC</data>", "<key>KtYes</key><true/>",
          "<key>Kt&amp;&lt;\xC3\xA9</key><string>a &amp; b</string>",
          "<dict><key>KtPaperName2</key><string>inner</string></dict>",
          "<array><string>1</string><string/></array>",
          "<key>KtPaperName2</key><string>FL24x80</string>",
          "<key>KtVLMultiColor</key><string>MultiColorMonochrome</string>"}) {
        EXPECT_THAT(xml, HasSubstr(part));
    }
    EXPECT_EQ(entriesOf(ticket).size(), 10);
}

TEST(ExtendedTicket, ATextThatMeansTheSameStaysAsItsWriterWroteIt)
{
    ExtendedTicket ticket =
        ticketOf("<key>KtVLMultiColor</key><string>Vendor.MultiColorBlackRed;7</string>");
    ticket.setColourMode(ColourMode::BlackAndRed);
    EXPECT_EQ(entriesOf(ticket).value(kColour), QStringLiteral("Vendor.MultiColorBlackRed;7"));
}

TEST(ExtendedTicket, WhatIsNoTicketGetsOneSentenceWithItsName)
{
    EXPECT_EQ(whyNot(""), "some.ticket: is empty; give another ticket with --ticket");
    EXPECT_THAT(whyNot(" \n"), HasSubstr("is empty"));
    for (const QByteArray &bad :
         {QByteArray("hello"), QByteArray("bplist00\xd0\x08", 10), QByteArray("<plist></plist>"),
          QByteArray("<plist><array/></plist>"), QByteArray("<html><dict/></html>x"),
          plist("").chopped(10), plist("<key>a</key>") + "<more/>", QByteArray("\0\0\0\0", 4)}) {
        EXPECT_THAT(whyNot(bad),
                    AllOf(HasSubstr("some.ticket: is no XML property list"),
                          HasSubstr("give another ticket")))
            << bad.toStdString();
    }
    EXPECT_THAT(whyNot(plist("<key>KtPaperName2</key><integer>5</integer>")),
                HasSubstr("some.ticket: its entry KtPaperName2 is not a text"));
    EXPECT_THAT(whyNot(plist("<key>KtVLMultiColor</key><date>2026-01-02T03:04:05Z</date>")),
                HasSubstr("its entry KtVLMultiColor is not a text"));
}

TEST(ExtendedTicket, SizeNestingAndEntitiesHaveTheirLimits)
{
    const QByteArray full(int(ExtendedTicket::kLargest), 'x');
    EXPECT_THAT(whyNot(plist("<key>a</key><string>" + full + "</string>")),
                HasSubstr("is too large for a ticket; give one of at most 200,000 bytes"));
    const QByteArray deep = QByteArray("<key>a</key>") + QByteArray("<array>").repeated(10000)
        + QByteArray("</array>").repeated(10000);
    EXPECT_THAT(whyNot(plist(deep)), HasSubstr("is no XML property list"));
    EXPECT_THAT(whyNot("<!DOCTYPE plist [<!ENTITY a \"aaaaaaaaaa\">]><plist><dict><key>a</key>"
                       "<string>&a;</string></dict></plist>"),
                HasSubstr("is no XML property list"));
}

using TicketFile = DocumentFolder;

TEST_F(TicketFile, IsReadFromDisk)
{
    const auto ticket = ExtendedTicket::open(
        write(QStringLiteral("a.ticket"), plist("<key>KtPaperName2</key><string>X</string>")));
    ASSERT_TRUE(ticket);
    EXPECT_EQ(ticket.value().paperName(), QStringLiteral("X"));
}

TEST_F(TicketFile, ThatIsNotThereOrNoFileIsNamedAsASetting)
{
    const auto missing = ExtendedTicket::open(folder.filePath(QStringLiteral("none")));
    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.failure().kind, FailureKind::Settings);
    EXPECT_THAT(missing.failure().text().toStdString(),
                AllOf(HasSubstr("none: there is no such file"), HasSubstr("check the path")));
    for (const QString &path : {folder.path(), QStringLiteral("/dev/zero")}) {
        const auto odd = ExtendedTicket::open(path);
        ASSERT_FALSE(odd);
        EXPECT_THAT(odd.failure().text().toStdString(), HasSubstr("is not a file"));
    }
}

} // namespace
