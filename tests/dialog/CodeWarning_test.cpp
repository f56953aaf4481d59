// SPDX-License-Identifier: Apache-2.0
#include "dialog/CodeWarning.h"

#include <gtest/gtest.h>

using dialog::CodeRemedy;
using dialog::CodeWarning;
using dialog::LostCode;

namespace {

std::string sentence(CodeRemedy remedy, bool isRed = false)
{
    LostCode code{1, QStringLiteral("EAN-13"), QStringLiteral("4006381333931"), isRed, remedy, 0.84,
                  2};
    return CodeWarning::failureOf(code).text().toStdString();
}

TEST(CodeWarning, NamesTheCodeThePageAndWhatToDo)
{
    const std::string code = "EAN-13 “4006381333931” on page 2: ";
    const std::string unread = code + "cannot be read from these dots; ";
    EXPECT_EQ(sentence(CodeRemedy::Binary), unread + "choose Binary as the halftone");
    EXPECT_EQ(sentence(CodeRemedy::WholeDots), unread + "choose Whole dots as the scale");
    EXPECT_EQ(sentence(CodeRemedy::BinaryAndWholeDots),
              unread + "choose Binary as the halftone and Whole dots as the scale");
    EXPECT_EQ(sentence(CodeRemedy::ActualSize), unread + "choose Actual size as the scale");
    EXPECT_EQ(sentence(CodeRemedy::Fit), unread + "choose Fit to label as the scale");
    EXPECT_EQ(sentence(CodeRemedy::PlainLevels), unread + "set brightness and contrast to 0");
    EXPECT_EQ(sentence(CodeRemedy::Larger),
              unread + "make the code larger: its bars are 0.8 dots wide, 2 or more are safe");
    EXPECT_EQ(sentence(CodeRemedy::MonochromeOrLessRed, true),
              code
                  + "is printed in red, which scanners do not see; choose Monochrome or lower the "
                    "red level");
    EXPECT_EQ(
        sentence(CodeRemedy::MonochromeAndBinary, true),
        code
            + "is printed in red, which scanners do not see; choose Monochrome, and Binary as "
              "the halftone");
    EXPECT_EQ(sentence(CodeRemedy::Monochrome, true),
              code + "is printed in red, which scanners do not see; choose Monochrome");
    EXPECT_EQ(
        sentence(CodeRemedy::None),
        code
            + "cannot be read from these dots, and no setting helps; make the code larger and "
              "pure black on white in the document");
    EXPECT_EQ(sentence(CodeRemedy::None, true),
              code
                  + "is printed in red, which scanners do not see; print it in black in the "
                    "document");
}

TEST(CodeWarning, HasAButtonForWhatAButtonCanDo)
{
    EXPECT_EQ(CodeWarning::actionOf(CodeRemedy::Binary), QStringLiteral("Use Binary"));
    EXPECT_EQ(CodeWarning::actionOf(CodeRemedy::WholeDots), QStringLiteral("Whole dots"));
    EXPECT_EQ(CodeWarning::actionOf(CodeRemedy::MonochromeOrLessRed),
              QStringLiteral("Use Monochrome"));
    EXPECT_EQ(CodeWarning::actionOf(CodeRemedy::Larger), QString());
    EXPECT_EQ(CodeWarning::actionOf(CodeRemedy::None), QString());
}

TEST(CodeWarning, ShowsTheTextOfACodeOnOneLineCutShortAndHarmless)
{
    EXPECT_EQ(CodeWarning::shown(QStringLiteral("LOT 4711")), QStringLiteral("LOT 4711"));
    EXPECT_EQ(CodeWarning::shown(QStringLiteral("two\nlines\x1d"
                                                "and a\tgroup")),
              QStringLiteral("two lines and a group"));
    EXPECT_EQ(CodeWarning::shown(QStringLiteral("turned \u202egnp.exe")),
              QStringLiteral("turned gnp.exe"));
    EXPECT_EQ(CodeWarning::shown(QStringLiteral("https://example.org/a/very/long/way")),
              QStringLiteral("https://example.org/a/v…"));
    EXPECT_EQ(CodeWarning::shown(QString(24, u'x')), QString(24, u'x'));
    EXPECT_EQ(CodeWarning::shown(QString(25, u'x')), QString(23, u'x') + u'…');
    EXPECT_EQ(CodeWarning::shown(QString(22, u'x') + QStringLiteral("\U0001F4E6 box")),
              QString(22, u'x') + u'…');
    EXPECT_EQ(CodeWarning::shown(QStringLiteral("\x01\x02")), QString());
}

TEST(CodeWarning, ACodeWithoutReadableTextIsNamedWithoutIt)
{
    const LostCode code{
        0, QStringLiteral("QR Code"), QStringLiteral("\x01"), false, CodeRemedy::Binary, 1, 0};
    EXPECT_EQ(CodeWarning::failureOf(code).what, QStringLiteral("QR Code on page 1"));
    EXPECT_EQ(CodeWarning::failureOf(code).kind, dialog::FailureKind::Barcode);
}

} // namespace
