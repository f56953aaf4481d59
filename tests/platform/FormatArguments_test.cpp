// SPDX-License-Identifier: Apache-2.0
#include "platform/FormatString.h"
#include "platform/TextEncodings.h"

#include <cstddef>
#include <cstdint>
#include <cwchar>
#include <limits>

#include <gmock/gmock.h>

using namespace platform;

namespace {

struct Thing
{
    const char *description;
};

std::optional<QString> describe(const void *object)
{
    const char *text = static_cast<const Thing *>(object)->description;
    return text ? std::optional(QString::fromUtf8(text)) : std::nullopt;
}

FormatArguments fetched(const char *format, ...)
{
    va_list list;
    va_start(list, format);
    const FormatArguments result = fetchArguments(QString::fromUtf8(format), list, &describe);
    va_end(list);
    return result;
}

/// What a program would see that passes its arguments on.
QString filled(const char *format, ...)
{
    va_list list;
    va_start(list, format);
    const QString text = QString::fromUtf8(format);
    const QString result = formatted(text, fetchArguments(text, list, &describe));
    va_end(list);
    return result;
}

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

constexpr qint64 kLowest = std::numeric_limits<qint64>::min();

TEST(FormatArgumentsFetching, FormatWithoutConversionsTakesNothing)
{
    EXPECT_TRUE(fetched("100%% %y %").empty());
}

TEST(FormatArgumentsFetching, IntegersHaveTheirLengths)
{
    EXPECT_EQ(filled("%d %hhd %hd %ld %lld %qd %jd %zd %td|%d", -1, 0x1FF, 0x18000, LONG_MIN,
                     LLONG_MIN, static_cast<long long>(kLowest), std::intmax_t(kLowest),
                     ssize_t(kLowest), std::ptrdiff_t(kLowest), 5),
              text("-1 -1 -32768 -9223372036854775808 -9223372036854775808 -9223372036854775808"
                   " -9223372036854775808 -9223372036854775808 -9223372036854775808|5"));
}

TEST(FormatArgumentsFetching, UnsignedIntegersHaveTheirLengths)
{
    EXPECT_EQ(filled("%u %x %lu %llX %jo %zu %tu|%u", UINT_MAX, UINT_MAX, ULONG_MAX, ULLONG_MAX,
                     std::uintmax_t(8), SIZE_MAX, SIZE_MAX, 5U),
              text("4294967295 ffffffff 18446744073709551615 FFFFFFFFFFFFFFFF 10"
                   " 18446744073709551615 18446744073709551615|5"));
}

TEST(FormatArgumentsFetching, CapitalLettersAreIntegersOf32Bits)
{
    EXPECT_EQ(fetched("%D %U %O %d", -1, 2U, 8U, 9),
              (FormatArguments{qint64(-1), quint64(2), quint64(8), qint64(9)}));
}

TEST(FormatArgumentsFetching, RealsAreDoubleOrLongDouble)
{
    EXPECT_EQ(fetched("%f %Lg %e|%d", 1.5, 2.5L, 3.5, 4),
              (FormatArguments{1.5, 2.5, 3.5, qint64(4)}));
}

TEST(FormatArgumentsFetching, MoreRealsAndIntegersThanRegisters)
{
    EXPECT_EQ(filled("%d%f%d%f%d%f%d%f%d%f%d%f%d%f%d%f%d%f%d%f", 0, 0.0, 1, 1.0, 2, 2.0, 3, 3.0, 4,
                     4.0, 5, 5.0, 6, 6.0, 7, 7.0, 8, 8.0, 9, 9.0),
              text("00.00000011.00000022.00000033.00000044.00000055.00000066.00000077.000000"
                   "88.00000099.000000"));
}

TEST(FormatArgumentsFetching, ObjectsAreDescribed)
{
    const Thing panel{"Panel"};
    const Thing silent{nullptr};
    EXPECT_EQ(fetched("%@ %@ %@", &panel, &silent, nullptr),
              (FormatArguments{text("Panel"), std::monostate(), std::monostate()}));
}

TEST(FormatArgumentsFetching, TextsAreDecoded)
{
    EXPECT_EQ(fetched("%s %S %ls", "caf\xC3\xA9", u"\u20AC", L"\u3042"),
              (FormatArguments{text("café"), text("€"), text("あ")}));
}

TEST(FormatArgumentsFetching, NullTextsAreMissing)
{
    const char *none = nullptr;
    EXPECT_EQ(filled("%s %S %ls", none, none, none), text("(null) (null) (null)"));
}

TEST(FormatArgumentsFetching, UndecodableTextIsNotLost)
{
    EXPECT_EQ(filled("a%sb", "x\xE9y"), QStringLiteral("ax\uFFFDyb"));
}

TEST(FormatArgumentsFetching, TextsAreInTheSystemEncoding)
{
    setSystemEncoding(TextEncoding::MacRoman);
    const QString result = filled("%s", "\xDB");
    setSystemEncoding(TextEncoding::Utf8);
    EXPECT_EQ(result, text("€"));
}

TEST(FormatArgumentsFetching, TextWithPrecisionNeedNotBeTerminated)
{
    const std::vector<char> bytes{'a', 'b', 'c'};
    const std::vector<char16_t> units{u'a', u'b', u'c'};
    const std::vector<wchar_t> wide{L'a', L'b', L'c'};
    EXPECT_EQ(filled("%.3s %.3S %.3ls", bytes.data(), units.data(), wide.data()),
              text("abc abc abc"));
    EXPECT_EQ(filled("%.*s %2$.*1$s", 3, bytes.data()), text("abc abc"));
    EXPECT_EQ(filled("%1$.*2$s", bytes.data(), 2), text("ab"));
}

TEST(FormatArgumentsFetching, NothingIsReadBehindThePrecision)
{
    EXPECT_EQ(fetched("%.3s %.*S %.1ls", "abcdef", 2, u"abc", L"ab"),
              (FormatArguments{text("abc"), qint64(2), text("ab"), text("a")}));
}

TEST(FormatArgumentsFetching, NegativePrecisionReadsToTheEnd)
{
    EXPECT_EQ(filled("%.*s", -1, "abcdef"), text("abcdef"));
}

TEST(FormatArgumentsFetching, CharactersAreIntegers)
{
    EXPECT_EQ(filled("%c%C%lc|%d", 'a', 0x20AC, wint_t(0x1F600), 5), text("a€\xF0\x9F\x98\x80|5"));
}

TEST(FormatArgumentsFetching, AddressesAreNumbers)
{
    EXPECT_EQ(filled("%p %p", reinterpret_cast<void *>(std::uintptr_t(0xff00)), nullptr),
              text("0xff00 0x0"));
}

TEST(FormatArgumentsFetching, NothingIsWrittenThroughAPointer)
{
    int written = 42;
    EXPECT_EQ(filled("abc%n%hhn|%d", &written, &written, 7), text("abc|7"));
    EXPECT_EQ(written, 42);
}

TEST(FormatArgumentsFetching, WidthAndPrecisionAreIntegers)
{
    EXPECT_EQ(filled("[%*d][%-*d][%.*f]%d", 5, 42, 5, 42, 2, 3.14159, 7),
              text("[   42][42   ][3.14]7"));
}

TEST(FormatArgumentsFetching, PlacesMayBeInAnyOrder)
{
    EXPECT_EQ(filled("%3$@ %1$d %2$f", 1, 2.5, static_cast<const Thing *>(nullptr)),
              text("(null) 1 2.500000"));
}

TEST(FormatArgumentsFetching, FirstNamingGivesTheType)
{
    EXPECT_EQ(filled("%1$d %1$@ %1$s %1$f", 7), text("7 7 7 7.000000"));
}

TEST(FormatArgumentsFetching, ArgumentsBehindAGapAreMissing)
{
    EXPECT_TRUE(fetched("%2$d", 1, 2).empty());
    EXPECT_EQ(fetched("%1$d %3$@", 1, 2, 3), (FormatArguments{qint64(1)}));
    EXPECT_TRUE(fetched("%2147483647$@ %0$@").empty());
}

} // namespace
