// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/Texts.h"

#include <gmock/gmock.h>

using diagnostics::traceLine;
using platform::FormatArgument;
using platform::FormatArguments;

namespace {

struct Row
{
    const char *name;
    std::optional<FormatArgument> object;
    std::optional<QString> format;
    FormatArguments arguments;
    const char *line;
};

void PrintTo(const Row &row, std::ostream *out)
{
    *out << row.name;
}

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

std::optional<FormatArgument> object(const char *description)
{
    return FormatArgument(text(description));
}

class TraceLine : public testing::TestWithParam<Row>
{ };

TEST_P(TraceLine, IsTagObjectAndFilledFormat)
{
    const Row &row = GetParam();
    EXPECT_EQ(traceLine(text("LOG"), row.object, row.format, row.arguments).toStdString(),
              row.line);
}

std::vector<Row> rows()
{
    const FormatArgument seven = qint64(7);
    return {
        {"NoObject", {}, text("%d items"), {qint64(3)}, "LOG 3 items"},
        {"Object", object("Panel"), text("x=%d"), {qint64(1)}, "LOG self(Panel) x=1"},
        {"PercentSignLast", object("100%"), text("done"), {}, "LOG self(100) done"},
        {"ConversionInDescription", object("5%d"), text("n=%d"), {seven}, "LOG self(57) n=0"},
        {"BlankFlag", object("50% done"), text("n=%d"), {seven}, "LOG self(50 7one) n=0"},
        {"TwoPercentSigns", object("50%% off"), text("ok"), {}, "LOG self(50% off) ok"},
        {"ObjectConversion", object("%@"), text("n=%d"), {seven}, "LOG self(7) n=0"},
        {"TextConversion", object("%s"), text("%s"), {text("a")}, "LOG self(a) (null)"},
        {"RealConversion", object("%f"), text("%d"), {seven}, "LOG self(7.000000) 0"},
        {"NothingPrinted", object("a%nb"), text("%d"), {seven}, "LOG self(ab) 0"},
        {"HugeWidthOfNothing", object("%99999999999n"), text("x"), {}, "LOG self() x"},
        {"Position", object("%2$@"), text("%d-%@"), {seven, text("b")}, "LOG self(b) 7-b"},
        {"NoDescription", FormatArgument(), text("x"), {}, "LOG self((null)) x"},
        {"EmptyDescription", object(""), text("x"), {}, "LOG self() x"},
        {"NoFormat", {}, {}, {}, "LOG (null)"},
        {"ObjectWithoutFormat", object("Panel"), {}, {}, "LOG self(Panel) (null)"},
        {"EmptyFormat", {}, text(""), {}, "LOG "},
        {"LineFeedsStay", object("a\nb"), text("c\nd"), {}, "LOG self(a\nb) c\nd"},
        {"OtherScripts", object("あ"), text("%@"), {text("é")}, "LOG self(あ) é"},
    };
}

INSTANTIATE_TEST_SUITE_P(Rows, TraceLine, testing::ValuesIn(rows()),
                         [](const auto &row) { return row.param.name; });

TEST(TextsFromC, NullIsMissingAndBadBytesAreReplaced)
{
    EXPECT_EQ(diagnostics::textFromC(nullptr), std::nullopt);
    EXPECT_EQ(diagnostics::textFromC(""), QString());
    EXPECT_EQ(diagnostics::textFromC("caf\xC3\xA9"), text("café"));
    EXPECT_EQ(diagnostics::textFromC("x\xE9y"), QStringLiteral("x\uFFFDy"));
}

TEST(TextsFromC, WhatWorkThrowsIsCaught)
{
    bool begun = false;
    diagnostics::quietly([&begun] {
        begun = true;
        throw std::bad_alloc();
    });
    EXPECT_TRUE(begun);
}

} // namespace
