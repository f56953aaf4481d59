// SPDX-License-Identifier: Apache-2.0
#include "controls/FormatterFixture.h"

#include <QRegularExpression>

namespace {

/// What a style lets through, as a pattern for one character.
struct StyleSet
{
    qint32 style;
    const char *pattern;
};

void PrintTo(const StyleSet &set, std::ostream *out)
{
    *out << "style " << set.style;
}

std::string styleName(const testing::TestParamInfo<StyleSet> &info)
{
    const qint64 style = info.param.style;
    return (style < 0 ? "Minus" : "Style") + std::to_string(style < 0 ? -style : style);
}

constexpr auto kAnyAscii = "[\\x{0}-\\x{7F}]";

class PDEFormatterStyle : public FormatterTest, public testing::WithParamInterface<StyleSet>
{ };

TEST_P(PDEFormatterStyle, LetsThroughItsCharactersAndNoOther)
{
    formatter.setTextStyle(GetParam().style);
    const QRegularExpression set(QLatin1String("\\A(?s:") + QLatin1String(GetParam().pattern)
                                 + QLatin1String(")\\z"));
    int accepted = 0;
    for (int code = 0; code <= 0xFFFF; ++code) {
        const QString typed{QChar(ushort(code))};
        // A pattern cannot be matched against half a pair; only free text takes one.
        const bool expected = QChar::isSurrogate(char32_t(code)) ? GetParam().style == 0
                                                                 : set.match(typed).hasMatch();
        ASSERT_EQ(type({}, typed), expected) << "code " << code;
        accepted += expected ? 1 : 0;
        ASSERT_EQ(takeRefusals().size(), expected ? 0U : 1U) << "code " << code;
        ASSERT_EQ(beeps, code + 1 - accepted) << "code " << code;
    }
}

INSTANTIATE_TEST_SUITE_P(
    AllStyles, PDEFormatterStyle,
    testing::Values(StyleSet{0, "."}, StyleSet{1, kAnyAscii}, StyleSet{2, "[0-9]"},
                    StyleSet{3, kAnyAscii}, StyleSet{4, "[0-9.]"}, StyleSet{5, kAnyAscii},
                    StyleSet{6, "[0-9A-Za-z ]"}, StyleSet{7, "[0-9A-Za-z\\x20$%+\\-./]"},
                    StyleSet{8, "[0-9$+\\-./:]"}, StyleSet{9, "[0-9$+\\-./:A-Da-d]"},
                    StyleSet{10, "[\\x{20}-\\x{7E}]"},
                    StyleSet{11, "[\\x{20}-\\x{7E}](?<![#$&@\\[\\\\\\]^`{|}~])"},
                    StyleSet{12, kAnyAscii}, StyleSet{13, kAnyAscii},
                    StyleSet{2147483647, kAnyAscii}, StyleSet{-1, kAnyAscii},
                    StyleSet{-2147483647 - 1, kAnyAscii}),
    styleName);

TEST_F(FormatterTest, LettersNextToTheAlphabetAreRefused)
{
    formatter.setTextStyle(6);
    EXPECT_FALSE(type({}, QStringLiteral("`")));
    EXPECT_FALSE(type({}, QStringLiteral("{")));
    EXPECT_FALSE(type({}, QStringLiteral("@")));
    EXPECT_FALSE(type({}, QStringLiteral("[")));
}

TEST_F(FormatterTest, PrintableStyleRefusesTabAndControlCharacters)
{
    formatter.setTextStyle(10);
    EXPECT_FALSE(type({}, QStringLiteral("\t")));
    EXPECT_FALSE(type({}, QStringLiteral("\x7F")));
    EXPECT_EQ(takeRefusals(), (std::vector<Refusal>{invalid(), invalid()}));
}

TEST_F(FormatterTest, StyleElevenRefusesNumberSignDollarAndAmpersand)
{
    formatter.setTextStyle(11);
    for (const char *typed : {"#", "$", "&"}) {
        EXPECT_FALSE(type({}, QLatin1String(typed))) << typed;
    }
}

} // namespace
