// SPDX-License-Identifier: Apache-2.0
#include "ppd/PropertyList.h"

#include "tests/ppd/FakePrintJob.h"

#include <gmock/gmock.h>

namespace {

/// What a ticket with the string "K" gives for it; nothing when the data is refused.
std::optional<QString> readK(const QByteArray &data)
{
    const std::optional<PropertyList> list = PropertyList::fromXml(data);
    return list ? list->string("K") : std::nullopt;
}

QByteArray repeated(const QByteArray &text, int count)
{
    return text.repeated(count);
}

const QByteArray kGood = ticketWith(stringEntry("K", "value"));

TEST(PropertyList, ReadsTheStringsOfTheDictionary)
{
    EXPECT_EQ(readK(kGood), QStringLiteral("value"));
    EXPECT_EQ(readK(ticketWith(stringEntry("Other", "x"))), std::nullopt);
    EXPECT_EQ(readK(ticketWith("")), std::nullopt);
    EXPECT_EQ(readK(ticketWith(stringEntry("K", "1") + stringEntry("K", "2"))),
              QStringLiteral("2"));
}

TEST(PropertyList, ReadsAHeaderADoctypeAndAByteOrderMark)
{
    const QByteArray doctype =
        "<?xml version=\"1.0\"?>\n"
        "<!DOCTYPE plist SYSTEM \"list.dtd\">\n"
        "<plist version=\"1.0\"><dict><key>K</key><string>value</string></dict></plist>";
    EXPECT_EQ(readK(doctype), QStringLiteral("value"));
    EXPECT_EQ(readK("\xEF\xBB\xBF" + kGood), QStringLiteral("value"));
    EXPECT_EQ(readK("<dict><key>K</key><string>value</string></dict>"), QStringLiteral("value"));
}

TEST(PropertyList, ReadsCharactersCommentsAndQuotedText)
{
    EXPECT_EQ(readK(ticketWith(stringEntry("K", "a &amp; b &lt;c&gt;"))),
              QStringLiteral("a & b <c>"));
    EXPECT_EQ(readK(ticketWith(stringEntry("K", "<![CDATA[a & b]]>"))), QStringLiteral("a & b"));
    EXPECT_EQ(readK(ticketWith("<!-- note -->" + stringEntry("K", "caf\xC3\xA9"))),
              QStringLiteral("café"));
}

TEST(PropertyList, EmptyStringIsEmptyAndNotMissing)
{
    for (const char *entry : {"<key>K</key><string></string>", "<key>K</key><string/>"}) {
        const std::optional<QString> value = readK(ticketWith(entry));
        ASSERT_TRUE(value.has_value()) << entry;
        EXPECT_EQ(*value, QString()) << entry;
    }
}

TEST(PropertyList, ValuesOfOtherTypesAreMissing)
{
    for (const char *value :
         {"<integer>5</integer>", "<true/>", "<real>1.5</real>", "<data>dmFsdWU=</data>",
          "<date>2020-01-01T00:00:00Z</date>", "<array><string>value</string></array>",
          "<dict><key>K</key><string>value</string></dict>"}) {
        const auto list = PropertyList::fromXml(ticketWith("<key>K</key>" + QByteArray(value)));
        ASSERT_TRUE(list.has_value()) << value;
        EXPECT_EQ(list->string("K"), std::nullopt) << value;
    }
}

TEST(PropertyList, UndecodableStringIsMissing)
{
    EXPECT_EQ(readK(ticketWith(stringEntry("K", "caf\xE9"))), std::nullopt);
    EXPECT_EQ(readK(ticketWith(stringEntry("K", "\xED\xA0\x80"))), std::nullopt);
    EXPECT_EQ(readK(ticketWith(stringEntry("L", "caf\xE9") + stringEntry("K", "value"))),
              QStringLiteral("value"))
        << "one bad string does not hide the others";
}

TEST(PropertyList, StringWithAZeroInsideIsMissing)
{
    EXPECT_EQ(readK(ticketWith(stringEntry("K", "val&#0;ue"))), std::nullopt);
    EXPECT_EQ(readK(ticketWith(stringEntry("K", QByteArray("val\0ue", 6)))), std::nullopt);
    EXPECT_EQ(readK(ticketWith(stringEntry("K", "&#x0;"))), std::nullopt);
}

TEST(PropertyList, RootMustBeADictionary)
{
    EXPECT_FALSE(PropertyList::fromXml("<plist><array/></plist>").has_value());
    EXPECT_FALSE(PropertyList::fromXml("<plist><string>K</string></plist>").has_value());
    EXPECT_FALSE(PropertyList::fromXml("<plist></plist>").has_value());
    EXPECT_FALSE(PropertyList::fromXml("<plist/>").has_value());
}

TEST(PropertyList, WhatIsNoXmlListIsRefused)
{
    const QByteArray utf16("\xFF\xFE<\0p\0l\0i\0s\0t\0>\0", 16);
    const QByteArray binary("bplist00\xD1\x01\x02QKQv\x08\x0B\x0D\0\0\0\0\0\0\x01\x01\0\0\0\0\0\0"
                            "\0\x03\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x0F",
                            47);
    for (const QByteArray &data :
         {QByteArray(), QByteArray("\xEF\xBB\xBF"), QByteArray("garbage"), QByteArray("<"),
          QByteArray(1000, '\0'), QByteArray("{ K = value; }"), utf16, binary,
          QByteArray("<plist><dict><key>K</key><word>value</word></dict></plist>"),
          QByteArray("<plist><dict><key>K</key><string>value</dict></plist>")}) {
        EXPECT_FALSE(PropertyList::fromXml(data).has_value()) << data.toStdString();
    }
}

TEST(PropertyList, TruncatedAtAnyByteIsRefused)
{
    const qsizetype complete = kGood.indexOf("</plist>") + qsizetype(qstrlen("</plist>"));
    for (qsizetype size = 0; size < complete; ++size) {
        EXPECT_FALSE(PropertyList::fromXml(kGood.left(size)).has_value()) << size;
    }
    EXPECT_TRUE(PropertyList::fromXml(kGood.left(complete)).has_value());
}

TEST(PropertyList, EveryByteReplacedLeavesAStringOrNothing)
{
    for (qsizetype at = 0; at < kGood.size(); ++at) {
        for (const char byte : {'\0', '<', '>', '&', '"', '\xFF'}) {
            QByteArray data = kGood;
            data[at] = byte;
            const std::optional<QString> value = readK(data);
            EXPECT_TRUE(!value || value->size() <= 5) << at << " " << int(byte);
        }
    }
}

TEST(PropertyList, NestingIsReadUpToItsLimitAndRefusedBeyond)
{
    const auto nested = [](int depth) {
        return ticketWith("<key>A</key>" + repeated("<array>", depth) + repeated("</array>", depth)
                          + stringEntry("K", "value"));
    };
    EXPECT_EQ(readK(nested(4095)), QStringLiteral("value"));
    EXPECT_FALSE(PropertyList::fromXml(nested(4096)).has_value());
    EXPECT_FALSE(PropertyList::fromXml(nested(200000)).has_value());
    EXPECT_FALSE(PropertyList::fromXml(repeated("<array>", 200000)).has_value());
    EXPECT_FALSE(PropertyList::fromXml(repeated("<dict><key>K</key>", 10000)).has_value());
}

TEST(PropertyList, CommentsDoNotHideTheNesting)
{
    const QByteArray step = "<array><!-- </array> -->";
    const QByteArray list = ticketWith("<key>A</key>" + repeated(step, 5000)
                                       + repeated("</array>", 5000) + stringEntry("K", "value"));
    EXPECT_FALSE(PropertyList::fromXml(list).has_value());
}

TEST(PropertyList, EntitiesOfTheListItselfAreNotExpanded)
{
    const QByteArray billion = "<!DOCTYPE plist [<!ENTITY a \"aaaaaaaaaa\">"
                               "<!ENTITY b \"&a;&a;&a;&a;&a;\"><!ENTITY c \"&b;&b;&b;&b;\">]>"
                               "<plist><dict><key>K</key><string>&c;</string></dict></plist>";
    EXPECT_EQ(readK(billion), std::nullopt);
    const QByteArray file = "<!DOCTYPE plist [<!ENTITY a SYSTEM \"file:///etc/passwd\">]>"
                            "<plist><dict><key>K</key><string>&a;</string></dict></plist>";
    EXPECT_EQ(readK(file), std::nullopt);
}

TEST(PropertyList, SizeIsReadUpToItsLimitAndRefusedBeyond)
{
    const qsizetype limit = 256 * 1024;
    const QByteArray frame = ticketWith(stringEntry("K", ""));
    const auto ofSize = [&frame](qsizetype size) {
        return ticketWith(stringEntry("K", QByteArray(size - frame.size(), 'x')));
    };
    ASSERT_EQ(ofSize(limit).size(), limit);
    EXPECT_EQ(readK(ofSize(limit))->size(), limit - frame.size());
    EXPECT_FALSE(PropertyList::fromXml(ofSize(limit + 1)).has_value());
    EXPECT_FALSE(PropertyList::fromXml(ofSize(16 * limit)).has_value());
}

TEST(PropertyList, CharacterReferencesUpToTheSizeLimitAreRead)
{
    EXPECT_EQ(readK(ticketWith(stringEntry("K", repeated("&amp;", 50000))))->size(), 50000);
}

} // namespace
