// SPDX-License-Identifier: Apache-2.0
#include "platform/TextEncodings.h"

#include <gmock/gmock.h>

using namespace platform;

namespace {

const QChar kLoneHighSurrogate(0xD83D);

class TextEncodings : public testing::Test
{
protected:
    ~TextEncodings() override { setSystemEncoding(TextEncoding::Utf8); }

    static bool fitsMacRoman(char16_t unit)
    {
        return encodedLength(QString(QChar(unit)), TextEncoding::MacRoman).has_value();
    }
};

TEST_F(TextEncodings, NoTextDecodesToNothing)
{
    EXPECT_EQ(decodeAscii(nullptr), std::nullopt);
    EXPECT_EQ(decodeUtf8(nullptr), std::nullopt);
    EXPECT_EQ(decodeSystem(nullptr), std::nullopt);
    setSystemEncoding(TextEncoding::MacRoman);
    EXPECT_EQ(decodeSystem(nullptr), std::nullopt);
}

TEST_F(TextEncodings, EmptyTextDecodesToTheEmptyString)
{
    EXPECT_EQ(decodeAscii(""), QString());
    EXPECT_EQ(decodeUtf8(""), QString());
    setSystemEncoding(TextEncoding::MacRoman);
    EXPECT_EQ(decodeSystem(""), QString());
}

TEST_F(TextEncodings, AsciiTakesBytesBelow80Only)
{
    EXPECT_EQ(decodeAscii("ab"), QStringLiteral("ab"));
    EXPECT_EQ(decodeAscii("\x01\x7F"), QStringLiteral("\u0001\u007F"));
    EXPECT_EQ(decodeAscii("caf\xE9"), std::nullopt);
    EXPECT_EQ(decodeAscii("caf\xC3\xA9"), std::nullopt);
    EXPECT_EQ(decodeAscii("\x80"), std::nullopt);
}

TEST_F(TextEncodings, Utf8TakesWellFormedTextOnly)
{
    EXPECT_EQ(decodeUtf8("caf\xC3\xA9"), QStringLiteral("café"));
    for (const char *bad : {"caf\xE9", "a\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
        EXPECT_EQ(decodeUtf8(bad), std::nullopt) << bad;
    }
}

TEST_F(TextEncodings, Utf8KeepsTheReplacementCharacterAndAByteOrderMark)
{
    EXPECT_EQ(decodeUtf8("\xEF\xBF\xBD"), QString(QChar(0xFFFD)));
    EXPECT_EQ(decodeUtf8("\xEF\xBB\xBFx"), QString(QChar(0xFEFF)) + QStringLiteral("x"));
}

TEST_F(TextEncodings, SystemEncodingIsUtf8UntilItIsSet)
{
    EXPECT_EQ(systemEncoding(), TextEncoding::Utf8);
    EXPECT_EQ(decodeSystem("caf\xC3\xA9"), QStringLiteral("café"));
    EXPECT_EQ(decodeSystem("caf\xE9"), std::nullopt);
}

TEST_F(TextEncodings, MacRomanAsSystemEncodingDecodesEveryByte)
{
    setSystemEncoding(TextEncoding::MacRoman);
    EXPECT_EQ(decodeSystem("caf\x8E \xDB"), QStringLiteral("café €"));
    for (int byte = 0x01; byte <= 0xFF; ++byte) {
        const char text[] = {char(byte), 0};
        const std::optional<QString> decoded = decodeSystem(text);
        ASSERT_TRUE(decoded.has_value()) << byte;
        EXPECT_EQ(encodedLength(*decoded, TextEncoding::MacRoman), 1) << byte;
    }
}

TEST_F(TextEncodings, SystemDecoderRefusesBytesThatHaveNoCharacter)
{
    setSystemEncoding(TextEncoding::ShiftJis);
    EXPECT_EQ(decodeSystem("\x82\xA0"), QStringLiteral("あ"));
    EXPECT_EQ(decodeSystem("a\x82"), std::nullopt);
    EXPECT_EQ(decodeSystem("\xFF"), std::nullopt);
}

TEST_F(TextEncodings, SystemEncoderGivesBytesOrNothingAtAll)
{
    EXPECT_EQ(encodeSystem(QStringLiteral("caf\u00E9")), QByteArray("caf\xC3\xA9"));
    EXPECT_EQ(encodeSystem(QStringLiteral("a") + kLoneHighSurrogate), std::nullopt);
    EXPECT_EQ(encodeSystem(QString()), QByteArray());
    setSystemEncoding(TextEncoding::MacRoman);
    EXPECT_EQ(encodeSystem(QStringLiteral("caf\u00E9")), QByteArray("caf\x8E"));
    EXPECT_EQ(encodeSystem(QStringLiteral("a\u3042")), std::nullopt);
}

TEST_F(TextEncodings, LengthsCountTheBytesOfTheEncoding)
{
    EXPECT_EQ(encodedLength(QString(), TextEncoding::Utf8), 0);
    EXPECT_EQ(encodedLength(QString(), TextEncoding::MacRoman), 0);
    EXPECT_EQ(encodedLength(QStringLiteral("é"), TextEncoding::Utf8), 2);
    EXPECT_EQ(encodedLength(QStringLiteral("é"), TextEncoding::MacRoman), 1);
    EXPECT_EQ(encodedLength(QStringLiteral("あ"), TextEncoding::ShiftJis), 2);
    EXPECT_EQ(encodedLength(QStringLiteral("あ"), TextEncoding::MacRoman), std::nullopt);
    EXPECT_EQ(encodedLength(QStringLiteral("ab"), TextEncoding::Utf16), 6);
}

TEST_F(TextEncodings, LoneSurrogatesFitUtf16Only)
{
    const QString lone(kLoneHighSurrogate);
    EXPECT_EQ(encodedLength(lone, TextEncoding::Utf8), std::nullopt);
    EXPECT_EQ(encodedLength(lone, TextEncoding::MacRoman), std::nullopt);
    EXPECT_EQ(encodedLength(lone, TextEncoding::Utf16), 4);
}

TEST_F(TextEncodings, MacRomanHoldsItsOwnCharacters)
{
    for (const char16_t unit : u"\u20AC\u00A0\u03A9\u2126\u00B5\u0192\u0131\u0152\u0153\u0178"
                               u"\uFB01\uFB02\u2206\u2211\u03C0\u221E\u2260\u221A\u25CA\uF8FF"
                               u"\u2013\u201E\u2020\u2026\u2030\u2044\u2122\u02C6\u02DD") {
        EXPECT_TRUE(fitsMacRoman(unit)) << std::hex << int(unit);
    }
}

TEST_F(TextEncodings, MacRomanRefusesWhatOnlyLooksLikeItsCharacters)
{
    for (const char16_t unit :
         {u'\u00A4', u'\u00A6', u'\u00AD', u'\u00B2', u'\u00B3', u'\u00B9', u'\u00BC', u'\u00D7',
          u'\u00D0', u'\u00FE', u'\u0160', u'\u017E', u'\u03BC', u'\u0394', u'\u2212', u'\u0080',
          u'\u009F', u'\u200B', u'\u2060', u'\uFEFF', u'\uFE0F', u'\u212A', u'\u212B'}) {
        EXPECT_FALSE(fitsMacRoman(unit)) << std::hex << int(unit);
    }
}

TEST_F(TextEncodings, ALetterWithItsMarkCountsAsOneCharacter)
{
    EXPECT_EQ(encodedLength(QStringLiteral("e\u0301"), TextEncoding::MacRoman), 1);
    EXPECT_EQ(encodedLength(QStringLiteral("e\u0301\u212A"), TextEncoding::MacRoman), std::nullopt)
        << "a character that stands alone is not replaced";
    EXPECT_EQ(encodedLength(QStringLiteral("x\u0301"), TextEncoding::MacRoman), std::nullopt);
    EXPECT_EQ(encodedLength(QStringLiteral("e\u0301"), TextEncoding::Utf8), 3);
}

TEST_F(TextEncodings, AsciiHoldsUnitsBelow80AndNothingElse)
{
    for (int code = 0; code <= 0xFFFF; ++code) {
        const QString text{QChar(ushort(code))};
        ASSERT_EQ(encodedLength(text, TextEncoding::Ascii).has_value(), code < 0x80) << code;
    }
    EXPECT_EQ(encodedLength(QStringLiteral("ab"), TextEncoding::Ascii), 2);
    EXPECT_EQ(encodedLength(QString(), TextEncoding::Ascii), 0);
    EXPECT_EQ(encodedLength(QStringLiteral("e\u0301"), TextEncoding::Ascii), std::nullopt);
    EXPECT_EQ(encodedLength(QStringLiteral("a\u00AD"), TextEncoding::Ascii), std::nullopt);
}

TEST_F(TextEncodings, TheFirstFittingEncodingOfTheListIsTaken)
{
    EXPECT_EQ(lengthInFirstFittingEncoding(QStringLiteral("é")), 1) << "Mac OS Roman";
    EXPECT_EQ(lengthInFirstFittingEncoding(QStringLiteral("あ")), 2) << "Shift-JIS";
    EXPECT_EQ(lengthInFirstFittingEncoding(QStringLiteral("가")), 2) << "EUC-KR";
    EXPECT_EQ(lengthInFirstFittingEncoding(QStringLiteral("ά")), 1) << "Mac Greek";
    EXPECT_EQ(lengthInFirstFittingEncoding(QStringLiteral("ř")), 1) << "Mac Central European";
    EXPECT_EQ(lengthInFirstFittingEncoding(QStringLiteral("😀")), 6) << "UTF-16";
}

} // namespace
