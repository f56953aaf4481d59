// SPDX-License-Identifier: Apache-2.0
#include "platform/FormatString.h"

#include <QByteArray>

#include <array>
#include <cstdio>
#include <random>

#include <gmock/gmock.h>

using namespace platform;

// Formats at random, from a fixed seed: against the C library where both mean the same, and any
// garbage at all.

namespace {

class RandomFormats : public testing::Test
{
protected:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(mEngine); }

    bool chance() { return below(2) == 0; }

    template <size_t Size> char oneOf(const char (&letters)[Size])
    {
        return letters[below(int(Size) - 1)];
    }

    /// Flags, width and precision that have a meaning for `letters`, which are one conversion.
    QByteArray conversion(const QByteArray &flags, const QByteArray &letters)
    {
        QByteArray result("%");
        for (const char flag : flags) {
            result += chance() ? QByteArray(1, flag) : QByteArray();
        }
        result += chance() ? QByteArray::number(below(30)) : QByteArray();
        result += chance() ? '.' + QByteArray::number(below(25)) : QByteArray();
        return result + letters;
    }

    qint64 number() { return qint64(mEngine()) >> below(64); }

    double realNumber()
    {
        const double mantissa = std::uniform_real_distribution<double>(-10, 10)(mEngine);
        return chance() ? mantissa : mantissa * std::pow(10.0, below(600) - 300);
    }

    FormatArgument argument()
    {
        switch (below(5)) {
        case 0:
            return number();
        case 1:
            return quint64(number());
        case 2:
            return realNumber();
        case 3:
            return QString(below(20), QChar(char16_t(below(0x10000))));
        default:
            return {};
        }
    }

    template <class Value> void compare(const QByteArray &format, Value value)
    {
        std::array<char, 1024> expected;
        std::snprintf(expected.data(), expected.size(), format.constData(), value);
        FormatArgument typed;
        if constexpr (std::is_same_v<Value, double>) {
            typed = value;
        } else {
            typed = qint64(value);
        }
        ASSERT_EQ(formatted(QString::fromLatin1(format), {typed}).toStdString(), expected.data())
            << format.toStdString() << " of " << value;
    }

    std::mt19937_64 mEngine{20260117};
};

TEST_F(RandomFormats, SignedIntegersAreWhatTheCLibraryPrints)
{
    for (int i = 0; i < 20000; ++i) {
        compare(conversion("-+ 0", "lld"), static_cast<long long>(number()));
        compare(conversion("-+ 0", "d"), int(number()));
    }
}

TEST_F(RandomFormats, UnsignedIntegersAreWhatTheCLibraryPrints)
{
    for (int i = 0; i < 20000; ++i) {
        const QByteArray letter(1, oneOf("uxXo"));
        const QByteArray flags = letter == "u" ? "-0" : "-0#";
        compare(conversion(flags, "ll" + letter), static_cast<unsigned long long>(number()));
        compare(conversion(flags, "hh" + letter), static_cast<unsigned int>(number()));
    }
}

TEST_F(RandomFormats, RealsAreWhatTheCLibraryPrints)
{
    for (int i = 0; i < 40000; ++i) {
        compare(conversion("-+ 0#", QByteArray(1, oneOf("fFeEgGaA"))), realNumber());
    }
}

TEST_F(RandomFormats, AnyFormatWithAnyArgumentsEnds)
{
    const char letters[] = "%%%%@dDiuUxXoOcCsSpnfFeEgGaAhlqLjzt0123456789$*.-+ #'y)";
    for (int i = 0; i < 20000; ++i) {
        QString format;
        for (int length = below(24); length > 0; --length) {
            const bool any = below(16) == 0;
            format += any ? QChar(char16_t(below(0x10000))) : QChar::fromLatin1(oneOf(letters));
        }
        FormatArguments arguments;
        for (int count = below(4); count > 0; --count) {
            arguments.push_back(argument());
        }
        // No unit of a format gives more than one cut-off width and a real's digits.
        ASSERT_LE(formatted(format, arguments).size(), 4500 * format.size())
            << format.toStdString();
    }
}

} // namespace
