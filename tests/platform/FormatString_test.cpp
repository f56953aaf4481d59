// SPDX-License-Identifier: Apache-2.0
#include "platform/FormatString.h"
#include "platform/TextEncodings.h"

#include <clocale>
#include <cmath>
#include <limits>

#include <gmock/gmock.h>

using namespace platform;

namespace {

struct Row
{
    const char *name;
    QString format;
    FormatArguments arguments;
    QString text;
};

void PrintTo(const Row &row, std::ostream *out)
{
    *out << row.format.toStdString();
}

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

FormatArgument string(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

FormatArgument integer(qint64 value)
{
    return value;
}

FormatArgument real(double value)
{
    return value;
}

const FormatArgument kMissing;

class FormatString : public testing::TestWithParam<Row>
{ };

TEST_P(FormatString, IsFilledWithItsArguments)
{
    const QString result = formatted(GetParam().format, GetParam().arguments);
    EXPECT_EQ(result, GetParam().text) << result.toStdString();
}

std::vector<Row> texts()
{
    return {
        {"NoConversions", text("plain"), {}, text("plain")},
        {"Empty", QString(), {integer(1)}, QString()},
        {"ObjectAndText", text("%@ %s %S"), {string("a"), string("b"), string("c")}, text("a b c")},
        {"NilObject", text("%@"), {kMissing}, text("(null)")},
        {"NilText", text("%s %S"), {kMissing, kMissing}, text("(null) (null)")},
        {"Precision", text("%.3s"), {string("abcdef")}, text("abc")},
        {"PrecisionZero", text("[%.0s][%.s]"), {string("a"), string("b")}, text("[][]")},
        {"PrecisionBeyondTheText", text("%.9@"), {string("abc")}, text("abc")},
        {"WidthRight", text("[%5@]"), {string("ab")}, text("[   ab]")},
        {"WidthLeft", text("[%-5@]"), {string("ab")}, text("[ab   ]")},
        {"WidthWithZeroFlag", text("[%05@]"), {string("ab")}, text("[   ab]")},
        {"WidthSmallerThanTheText", text("[%2s]"), {string("abc")}, text("[abc]")},
        {"WidthAndPrecision", text("[%-5.2s]"), {string("abc")}, text("[ab   ]")},
        {"PercentInAnArgumentStays", text("%@"), {string("%d")}, text("%d")},
        {"OtherScripts", text("é%@€"), {string("あ")}, text("éあ€")},
        {"Unit", text("%C"), {integer(0x20AC)}, text("€")},
        {"UnitIsCutTo16Bits", text("%C"), {integer(0x120AC)}, text("€")},
        {"LoneSurrogate", text("%C"), {integer(0xD83D)}, QString(QChar(0xD83D))},
        {"Character", text("%c%c"), {integer('a'), integer('z')}, text("az")},
        {"CharacterIsOneByte", text("%c"), {integer(0x161)}, text("a")},
        {"ByteThatIsNoCharacter", text("%c"), {integer(0xE9)}, QString(QChar(0xFFFD))},
        {"ZeroCharacter", text("%c"), {integer(0)}, QString(QChar(u'\0'))},
        {"CodePoint", text("%lc"), {integer(0x1F600)}, text("\xF0\x9F\x98\x80")},
        {"CodePointBeyondAll", text("%lc"), {integer(0x110000)}, QString(QChar(0xFFFD))},
        {"CharacterWithWidth",
         text("[%3c][%-3C]"),
         {integer('a'), integer('b')},
         text("[  a][b  ]")},
    };
}

INSTANTIATE_TEST_SUITE_P(Texts, FormatString, testing::ValuesIn(texts()),
                         [](const auto &row) { return row.param.name; });

std::vector<Row> integers()
{
    constexpr qint64 lowest = std::numeric_limits<qint64>::min();
    return {
        {"Widths",
         text("%5d|%-5d|%05d"),
         {integer(42), integer(42), integer(42)},
         text("   42|42   |00042")},
        {"SignedLetters",
         text("%d %D %i"),
         {integer(-1), integer(-2), integer(-3)},
         text("-1 -2 -3")},
        {"UnsignedLetters", text("%u %U"), {integer(1), integer(2)}, text("1 2")},
        {"Hexadecimal", text("%x %X"), {integer(0xbeef), integer(0xbeef)}, text("beef BEEF")},
        {"Octal", text("%o %O"), {integer(8), integer(64)}, text("10 100")},
        {"Address", text("%p"), {integer(0xff00)}, text("0xff00")},
        {"NullAddress", text("%p"), {integer(0)}, text("0x0")},
        {"Plus", text("%+d %+d"), {integer(1), integer(-1)}, text("+1 -1")},
        {"Blank", text("% d % d"), {integer(1), integer(-1)}, text(" 1 -1")},
        {"PlusBeforeBlank", text("% +d"), {integer(1)}, text("+1")},
        {"NoSignForUnsigned", text("%+u% x"), {integer(1), integer(2)}, text("12")},
        {"Alternate",
         text("%#x %#X %#o"),
         {integer(255), integer(255), integer(8)},
         text("0xff 0XFF 010")},
        {"AlternateZero", text("%#x %#o"), {integer(0), integer(0)}, text("0 0")},
        {"ZerosBehindThePrefix",
         text("%#06x %+04d"),
         {integer(255), integer(7)},
         text("0x00ff +007")},
        {"LeftBeatsZeros", text("[%-05d]"), {integer(7)}, text("[7    ]")},
        {"Precision",
         text("%.3d|%6.3d|%-6.3d|"),
         {integer(7), integer(-7), integer(7)},
         text("007|  -007|007   |")},
        {"PrecisionBeatsZeros", text("[%06.3d]"), {integer(7)}, text("[   007]")},
        {"PrecisionZeroOfZero",
         text("[%.0d][%.d][%#.0o]"),
         {integer(0), integer(0), integer(0)},
         text("[][][0]")},
        {"IntIsCutTo32Bits",
         text("%d %u %x"),
         {integer(0x100000001), integer(0x1FFFFFFFF), integer(-1)},
         text("1 4294967295 ffffffff")},
        {"Chars",
         text("%hhd %hhu %hhx"),
         {integer(0x1FF), integer(0x1FF), integer(-1)},
         text("-1 255 ff")},
        {"Shorts",
         text("%hd %hu %hx"),
         {integer(0x18000), integer(0x18000), integer(-1)},
         text("-32768 32768 ffff")},
        {"Longs",
         text("%ld %lld %qd %jd %zd %td"),
         {integer(lowest), integer(lowest), integer(lowest), integer(lowest), integer(lowest),
          integer(lowest)},
         text("-9223372036854775808 -9223372036854775808 -9223372036854775808"
              " -9223372036854775808 -9223372036854775808 -9223372036854775808")},
        {"UnsignedLong",
         text("%lu %lX"),
         {integer(-1), integer(-1)},
         text("18446744073709551615 FFFFFFFFFFFFFFFF")},
        {"GroupingIsReadOver", text("%'d"), {integer(1234567)}, text("1234567")},
    };
}

INSTANTIATE_TEST_SUITE_P(Integers, FormatString, testing::ValuesIn(integers()),
                         [](const auto &row) { return row.param.name; });

std::vector<Row> reals()
{
    const double infinity = std::numeric_limits<double>::infinity();
    return {
        {"Fixed", text("%f"), {real(20.5)}, text("20.500000")},
        {"TiesToEven", text("%.1f %.0f %.0f"), {real(2.25), real(0.5), real(1.5)}, text("2.2 0 2")},
        {"Scientific",
         text("%e %E"),
         {real(12345.678), real(0.00012)},
         text("1.234568e+04 1.200000E-04")},
        {"General",
         text("%g %g %G"),
         {real(0.0001), real(0.00001), real(1e20)},
         text("0.0001 1e-05 1E+20")},
        {"Hexadecimal", text("%a %A"), {real(1.0), real(-10.5)}, text("0x1p+0 -0X1.5P+3")},
        {"HexadecimalPrecision", text("%.3a"), {real(1.5)}, text("0x1.800p+0")},
        {"Signs",
         text("%+f % f %f"),
         {real(1), real(1), real(-0.0)},
         text("+1.000000  1.000000 -0.000000")},
        {"Zeros",
         text("%08.2f %-8.2f|"),
         {real(-3.14159), real(3.14159)},
         text("-0003.14 3.14    |")},
        {"ZerosBehindThePrefix", text("%010a"), {real(1.0)}, text("0x00001p+0")},
        {"PointKept",
         text("%#.0f %#.0e %#x"),
         {real(3), real(3), integer(3)},
         text("3. 3.e+00 0x3")},
        {"ZerosKept",
         text("%#g %#g %#g %#.0g"),
         {real(1), real(0.0001), real(0), real(3)},
         text("1.00000 0.000100000 0.00000 3.")},
        {"ZerosKeptBeforeTheExponent", text("%#.3g"), {real(1e20)}, text("1.00e+20")},
        {"NotFinite",
         text("%f %F %+e %010f"),
         {real(infinity), real(-infinity), real(infinity), real(infinity)},
         text("inf -INF +inf        inf")},
        {"NoNumber", text("%f %E"), {real(std::nan("")), real(std::nan(""))}, text("nan NAN")},
        {"LongDouble", text("%Lf"), {real(1.5)}, text("1.500000")},
        {"Largest", text("%.0f"), {real(1e22)}, text("10000000000000000000000")},
    };
}

INSTANTIATE_TEST_SUITE_P(Reals, FormatString, testing::ValuesIn(reals()),
                         [](const auto &row) { return row.param.name; });

std::vector<Row> places()
{
    return {
        {"Positions", text("%2$@ %1$@"), {string("a"), string("b")}, text("b a")},
        {"PositionTwice", text("%1$d %1$x"), {integer(10)}, text("10 a")},
        {"PositionsDoNotAdvance", text("%2$@ %@ %@"), {string("a"), string("b")}, text("b a b")},
        {"PositionZeroIsMissing", text("%0$d"), {integer(7)}, text("0")},
        {"PositionBeyondAll", text("%99999999999$@"), {string("a")}, text("(null)")},
        {"PositionWithFlags", text("%1$05d"), {integer(42)}, text("00042")},
        {"WidthArgument", text("[%*d]"), {integer(5), integer(42)}, text("[   42]")},
        {"NegativeWidthArgument", text("[%*d]"), {integer(-5), integer(42)}, text("[42   ]")},
        {"PrecisionArgument", text("%.*f"), {integer(2), real(3.14159)}, text("3.14")},
        {"NegativePrecisionArgument", text("%.*f"), {integer(-2), real(3.5)}, text("3.500000")},
        {"BothArguments", text("[%*.*s]"), {integer(4), integer(2), string("abc")}, text("[  ab]")},
        {"PlacedWidth", text("[%2$*1$d]"), {integer(5), integer(42)}, text("[   42]")},
        {"PlacedPrecision", text("%1$.*2$f"), {real(3.14159), integer(2)}, text("3.14")},
        {"LowestWidth",
         text("%*d"),
         {integer(std::numeric_limits<qint32>::min()), integer(1)},
         QStringLiteral("1") + QString(4094, u' ')},
        {"NothingPrinted", text("a%nb %@"), {integer(7), string("x")}, text("ab x")},
        {"NothingPrintedWithWidth", text("[%5n]"), {integer(7)}, text("[]")},
        {"TooManyArguments", text("%d"), {integer(1), integer(2)}, text("1")},
    };
}

INSTANTIATE_TEST_SUITE_P(Places, FormatString, testing::ValuesIn(places()),
                         [](const auto &row) { return row.param.name; });

std::vector<Row> oddFormats()
{
    return {
        {"PercentSign", text("100%%"), {}, text("100%")},
        {"PercentSignWithWidth", text("%5%"), {}, text("%")},
        {"UnknownLetter", text("%y"), {}, text("y")},
        {"UnknownLetterTakesNothing", text("%y %d"), {integer(3)}, text("y 3")},
        {"UnknownLetterWithFlags", text("%-5.3ly"), {}, text("y")},
        {"Bracket", text("(100%)"), {}, text("(100)")},
        {"LastPercentSign", text("100%"), {}, text("100")},
        {"EndsWithinAConversion", text("a%-05.2l"), {}, text("a")},
        {"EndsBehindAStar", text("a%*"), {integer(3)}, text("a")},
        {"Surrogates", text("%\xF0\x9F\x98\x80"), {}, text("\xF0\x9F\x98\x80")},
        {"NegativePrecision", text("%.-5d"), {integer(3)}, text("-5d")},
        {"BareDollar", text("%$d"), {integer(3)}, text("$d")},
        {"ZeroUnit", QStringLiteral("a\0%\0b").left(5), {}, QString::fromUtf16(u"a\0\0b", 4)},
    };
}

INSTANTIATE_TEST_SUITE_P(OddFormats, FormatString, testing::ValuesIn(oddFormats()),
                         [](const auto &row) { return row.param.name; });

std::vector<Row> missingAndOtherTypes()
{
    return {
        {"MissingIntegers", text("%d %u %x %p"), {}, text("0 0 0 0x0")},
        {"MissingReals", text("%f %.2f %g"), {}, text("0.000000 0.00 0")},
        {"MissingTexts", text("%@ %s %S"), {}, text("(null) (null) (null)")},
        {"MissingCharacters", text("[%c%C%lc]"), {}, text("[]")},
        {"MissingWidth", text("[%*d]"), {}, text("[0]")},
        {"MissingKeepsTheWidth", text("[%3d][%8@][%2c]"), {}, text("[  0][  (null)][  ]")},
        {"NilAsNumbers", text("%d %f"), {kMissing, kMissing}, text("0 0.000000")},
        {"IntegerAsText",
         text("%@ %s"),
         {integer(-7), quint64(18446744073709551615U)},
         text("-7 18446744073709551615")},
        {"RealAsText",
         text("%@ %@ %@"),
         {real(1.5), real(2.0), real(0.1 + 0.2)},
         text("1.5 2 0.3")},
        {"IntegerAsReal", text("%f %.1f"), {integer(-7), quint64(7)}, text("-7.000000 7.0")},
        {"RealAsInteger",
         text("%d %d %ld"),
         {real(7.9), real(-7.9), real(1e300)},
         text("7 -7 9223372036854775807")},
        {"RealOutOfRangeAsInteger",
         text("%ld %d"),
         {real(-1e300), real(std::nan(""))},
         text("-9223372036854775808 0")},
        {"TextAsInteger",
         text("%d %03d %d"),
         {string("12abc"), string("5.5"), string("mm")},
         text("12 005 0")},
        {"TextOutOfRangeAsInteger", text("%d"), {string("99999999999")}, text("2147483647")},
        {"TextAsReal",
         text("%.2f %.2f %.1f %.1f"),
         {string(" 2.5mm"), string("-.25"), string("+1e1"), string("x")},
         text("2.50 -0.25 10.0 0.0")},
        {"WordsAreNoReals",
         text("%f %f"),
         {string("inf"), string("--1")},
         text("0.000000 0.000000")},
        {"TextOutOfRangeAsReal",
         text("%f %f"),
         {string("-1e999"), string("1e-999")},
         text("-inf 0.000000")},
        {"LongTextOutOfRangeAsReal",
         text("%f %f"),
         {QString(400, u'1'), QStringLiteral("0.") + QString(400, u'0') + u'1'},
         text("inf 0.000000")},
        {"TextAsCharacter",
         text("%c%C[%c]"),
         {string("abc"), string("\xF0\x9F\x98\x80z"), string("")},
         text("a\xF0\x9F\x98\x80[]")},
        {"RealAsWidth", text("[%*d]"), {real(3.7), integer(1)}, text("[  1]")},
    };
}

INSTANTIATE_TEST_SUITE_P(MissingAndOtherTypes, FormatString,
                         testing::ValuesIn(missingAndOtherTypes()),
                         [](const auto &row) { return row.param.name; });

TEST(FormatStringBounds, WidthsAndPrecisionsEndAt4095)
{
    EXPECT_EQ(formatted(text("%999999999d"), {integer(1)}), QString(4094, u' ') + u'1');
    EXPECT_EQ(formatted(text("%99999999999999999999@"), {string("a")}), QString(4094, u' ') + u'a');
    EXPECT_EQ(formatted(text("%.999999999d"), {integer(1)}), QString(4094, u'0') + u'1');
    EXPECT_EQ(formatted(text("%.*d"), {integer(2147483647), integer(1)}),
              QString(4094, u'0') + u'1');
    EXPECT_EQ(formatted(text("%.999999999f"), {real(0.5)}),
              QStringLiteral("0.5") + QString(4094, u'0'));
    const QString longText(5000, u'x');
    EXPECT_EQ(formatted(text("%.999999999@"), {longText}), longText.left(4095));
}

TEST(FormatStringBounds, LargestRealTakesTheLargestPrecision)
{
    const QString digits = formatted(text("%.4095f"), {real(-std::numeric_limits<double>::max())});
    EXPECT_EQ(digits.size(), 1 + 309 + 1 + 4095);
    EXPECT_TRUE(digits.startsWith(text("-17976931348623157")));
    EXPECT_EQ(formatted(text("%.4095a"), {real(1)}).size(), 3 + 1 + 4095 + 3);
    EXPECT_EQ(formatted(text("%#.4095g"), {real(1)}).size(), 4096);
}

TEST(FormatStringLocale, HasNoPartInTheText)
{
    qputenv("LOCPATH", TEST_LOCALES);
    ASSERT_TRUE(std::setlocale(LC_ALL, "de_DE.UTF-8"));
    const std::string comma = std::localeconv()->decimal_point;
    const QString result =
        formatted(text("%.1f %g %d %@ %f"),
                  {real(20.5), real(0.25), integer(1234567), real(1.5), string("2.5")});
    qunsetenv("LOCPATH");
    std::setlocale(LC_ALL, "C.UTF-8");
    EXPECT_EQ(comma, ",");
    EXPECT_EQ(result, text("20.5 0.25 1234567 1.5 2.500000"));
}

TEST(FormatStringEncoding, CharactersAreBytesOfTheSystemEncoding)
{
    setSystemEncoding(TextEncoding::MacRoman);
    const QString result = formatted(text("%c"), {integer(0xDB)});
    setSystemEncoding(TextEncoding::Utf8);
    EXPECT_EQ(result, text("€"));
}

} // namespace
