// SPDX-License-Identifier: Apache-2.0
#include "ppd/PDEUtilsMethod.h"

#include "platform/TextEncodings.h"
#include "support/PpdFixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>

#include <gmock/gmock.h>

#include <cstring>

using Utils = PDEUtilsMethod13;
using platform::setSystemEncoding;
using platform::TextEncoding;

namespace {

class PDEUtilsMethod : public testing::Test
{
protected:
    ~PDEUtilsMethod() override { setSystemEncoding(TextEncoding::Utf8); }
};

TestPpd ppdWithAttribute(const QByteArray &value)
{
    return TestPpd::fromText("*PPD-Adobe: \"4.3\"\n*LanguageEncoding: UTF-8\n*CvThing: \"" + value
                             + "\"\n");
}

TEST_F(PDEUtilsMethod, RunsOn105OrLaterAlways)
{
    EXPECT_TRUE(Utils::runningOn105OrLater());
}

TEST_F(PDEUtilsMethod, AttributeValueIsThatOfTheFirstAttributeWithOrWithoutASpec)
{
    const TestPpd ppd = TestPpd::fromText("*PPD-Adobe: \"4.3\"\n"
                                          "*CvThing Spec/Text: \"first\"\n"
                                          "*CvThing: \"second\"\n");
    EXPECT_EQ(Utils::ppdAttrValStr(ppd.get(), "CvThing"), QStringLiteral("first"));
}

TEST_F(PDEUtilsMethod, MissingAttributeOrValueIsNothing)
{
    const TestPpd ppd = ppdWithAttribute("x");
    EXPECT_EQ(Utils::ppdAttrValStr(ppd.get(), "CvOther"), std::nullopt);
    EXPECT_EQ(Utils::ppdAttrValStr(ppd.get(), nullptr), std::nullopt);
    EXPECT_EQ(Utils::ppdAttrValStr(nullptr, "CvThing"), std::nullopt);
    char *value = std::exchange(ppd.get()->attrs[ppd.get()->num_attrs - 1]->value, nullptr);
    EXPECT_EQ(Utils::ppdAttrValStr(ppd.get(), "CvThing"), std::nullopt);
    ppd.get()->attrs[ppd.get()->num_attrs - 1]->value = value;
}

TEST_F(PDEUtilsMethod, EmptyAttributeValueIsEmptyAndNotNothing)
{
    const TestPpd ppd = ppdWithAttribute("");
    const std::optional<QString> value = Utils::ppdAttrValStr(ppd.get(), "CvThing");
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(*value, QString());
}

TEST_F(PDEUtilsMethod, AttributeValueIsDecodedInTheSystemEncoding)
{
    const TestPpd utf8 = ppdWithAttribute("caf\xC3\xA9");
    const TestPpd mac = ppdWithAttribute("caf\x8E");
    EXPECT_EQ(Utils::ppdAttrValStr(utf8.get(), "CvThing"), QStringLiteral("café"));
    EXPECT_EQ(Utils::ppdAttrValStr(mac.get(), "CvThing"), std::nullopt);
    setSystemEncoding(TextEncoding::MacRoman);
    EXPECT_EQ(Utils::ppdAttrValStr(utf8.get(), "CvThing"), QStringLiteral("caf√©"));
    EXPECT_EQ(Utils::ppdAttrValStr(mac.get(), "CvThing"), QStringLiteral("café"));
}

TEST_F(PDEUtilsMethod, OptionTextIsDecodedInTheSystemEncoding)
{
    const TestPpd ppd = TestPpd::fromFile(QStringLiteral("undecodable-titles.ppd"));
    EXPECT_EQ(Utils::ppdOptionTextStr(ppd.get(), "CvBrightness"), std::nullopt);
    setSystemEncoding(TextEncoding::MacRoman);
    std::strcpy(ppd.option("CvBrightness")->text, "Lumi\x8Fre");
    EXPECT_EQ(Utils::ppdOptionTextStr(ppd.get(), "CvBrightness"), QStringLiteral("Lumière"));
}

TEST_F(PDEUtilsMethod, OptionTextOfAMissingOptionIsNothing)
{
    const TestPpd ppd = TestPpd::fromFile(QStringLiteral("six-options.ppd"));
    EXPECT_EQ(Utils::ppdOptionTextStr(ppd.get(), "CvHalftonePattern"), QStringLiteral("Halftone"));
    EXPECT_EQ(Utils::ppdOptionTextStr(ppd.get(), "CvOther"), std::nullopt);
    EXPECT_EQ(Utils::ppdOptionTextStr(ppd.get(), nullptr), std::nullopt);
    EXPECT_EQ(Utils::ppdOptionTextStr(nullptr, "CvHalftonePattern"), std::nullopt);
}

TEST_F(PDEUtilsMethod, SupportedItemAnswersYesForFalseOnly)
{
    EXPECT_TRUE(Utils::isSupportedItem(ppdWithAttribute("False").get(), "CvThing"));
    for (const char *value : {"True", "false", "FALSE", "Falsey", "0", ""}) {
        EXPECT_FALSE(Utils::isSupportedItem(ppdWithAttribute(value).get(), "CvThing")) << value;
    }
    EXPECT_FALSE(Utils::isSupportedItem(ppdWithAttribute("False").get(), "CvOther"));
    EXPECT_FALSE(Utils::isSupportedItem(nullptr, "CvThing"));
}

TEST_F(PDEUtilsMethod, OriginIsThePointThatTheAttributeSays)
{
    EXPECT_EQ(Utils::originItem(ppdWithAttribute("{10, 20}").get(), "CvThing"), QPointF(10, 20));
    EXPECT_EQ(Utils::originItem(ppdWithAttribute("{10}").get(), "CvThing"), QPointF(10, 0));
}

TEST_F(PDEUtilsMethod, OriginOfAMissingEmptyOrPointlessAttributeIsZero)
{
    EXPECT_EQ(Utils::originItem(ppdWithAttribute("{10, 20}").get(), "CvOther"), QPointF());
    EXPECT_EQ(Utils::originItem(ppdWithAttribute("").get(), "CvThing"), QPointF());
    EXPECT_EQ(Utils::originItem(ppdWithAttribute("left").get(), "CvThing"), QPointF());
    EXPECT_EQ(Utils::originItem(nullptr, "CvThing"), QPointF());
}

TEST_F(PDEUtilsMethod, ArrayHoldsEveryChoiceInTheOrderOfThePpd)
{
    const TestPpd ppd = TestPpd::fromFile(QStringLiteral("duplicate-choices.ppd"));
    ppd_option_t *option = ppd.option("CvBrightness");
    const auto choices = Utils::arrayFromPPDOption(option);
    ASSERT_EQ(choices->size(), size_t(option->num_choices));
    for (int i = 0; i < option->num_choices; ++i) {
        EXPECT_EQ((*choices)[size_t(i)]->choice(), &option->choices[i]);
    }
}

TEST_F(PDEUtilsMethod, ArrayOfNoOptionIsNull)
{
    EXPECT_EQ(Utils::arrayFromPPDOption(nullptr), nullptr);
}

TEST_F(PDEUtilsMethod, ArrayOfAnOptionWithoutChoicesIsEmptyAndNotNull)
{
    const TestPpd ppd = TestPpd::fromText("*PPD-Adobe: \"4.3\"\n"
                                          "*OpenUI *CvTest/Test: PickOne\n"
                                          "*DefaultCvTest: One\n"
                                          "*CloseUI: *CvTest\n");
    ppd_option_t *option = ppd.option("CvTest");
    ASSERT_EQ(option->num_choices, 0);
    const auto choices = Utils::arrayFromPPDOption(option);
    ASSERT_NE(choices, nullptr);
    EXPECT_TRUE(choices->empty());
}

TEST_F(PDEUtilsMethod, FindsTheFirstChoiceWithTheKeyword)
{
    const TestPpd ppd = TestPpd::fromFile(QStringLiteral("duplicate-choices.ppd"));
    const auto choices = Utils::arrayFromPPDOption(ppd.option("CvBrightness"));
    EXPECT_EQ(Utils::findChoiceForString(QStringLiteral("0"), choices.get()), (*choices)[20]);
    EXPECT_EQ(Utils::findChoiceForString(QStringLiteral("-1"), choices.get()), (*choices)[22]);
}

TEST_F(PDEUtilsMethod, ChoicesAreFoundByKeywordAndNotByTitle)
{
    const TestPpd ppd = TestPpd::fromFile(QStringLiteral("duplicate-choices.ppd"));
    const auto choices = Utils::arrayFromPPDOption(ppd.option("CvBrightness"));
    ASSERT_EQ((*choices)[0]->userTitle(), QStringLiteral("+20"));
    EXPECT_EQ(Utils::findChoiceForString(QStringLiteral("20"), choices.get()), (*choices)[0]);
    EXPECT_EQ(Utils::findChoiceForString(QStringLiteral("+20"), choices.get()), nullptr);
}

TEST_F(PDEUtilsMethod, UnknownKeywordFindsNoChoice)
{
    const TestPpd ppd = TestPpd::fromFile(QStringLiteral("six-options.ppd"));
    const auto choices = Utils::arrayFromPPDOption(ppd.option("CvHalftonePattern"));
    EXPECT_EQ(Utils::findChoiceForString(QStringLiteral("dither"), choices.get()), nullptr);
    EXPECT_EQ(Utils::findChoiceForString(QString(), choices.get()), nullptr);
    EXPECT_EQ(Utils::findChoiceForString(QStringLiteral("Dither"), nullptr), nullptr);
    EXPECT_EQ(Utils::findChoiceForString(std::nullopt, nullptr), nullptr);
}

TEST_F(PDEUtilsMethod, KeywordOutsideAsciiMatchesNothing)
{
    const TestPpd ppd = TestPpd::fromFile(QStringLiteral("six-options.ppd"));
    ppd_option_t *option = ppd.option("CvHalftonePattern");
    std::strcpy(option->choices[0].choice, "Caf\xC3\xA9");
    const auto choices = Utils::arrayFromPPDOption(option);
    EXPECT_EQ(Utils::findChoiceForString(QStringLiteral("Café"), choices.get()), nullptr);
}

TEST_F(PDEUtilsMethod, WithoutAKeywordFindsTheFirstDefaultChoice)
{
    const TestPpd ppd = TestPpd::fromFile(QStringLiteral("duplicate-choices.ppd"));
    const auto choices = Utils::arrayFromPPDOption(ppd.option("CvBrightness"));
    ASSERT_TRUE((*choices)[21]->isDefaultChoice());
    EXPECT_EQ(Utils::findChoiceForString(std::nullopt, choices.get()), (*choices)[20]);
}

TEST_F(PDEUtilsMethod, TheLaterOfTwoDefaultLinesCounts)
{
    const TestPpd ppd = TestPpd::fromFile(QStringLiteral("two-defaults.ppd"));
    const auto choices = Utils::arrayFromPPDOption(ppd.option("CvBrightness"));
    const auto found = Utils::findChoiceForString(std::nullopt, choices.get());
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->ppdTitle(), QStringLiteral("-5"));
}

TEST_F(PDEUtilsMethod, WithoutAKeywordAndWithoutADefaultFindsNothing)
{
    for (const char *name : {"no-default.ppd", "default-is-no-choice.ppd"}) {
        const TestPpd ppd = TestPpd::fromFile(QString::fromLatin1(name));
        const auto choices = Utils::arrayFromPPDOption(ppd.option("CvBrightness"));
        ASSERT_FALSE(choices->empty());
        EXPECT_EQ(Utils::findChoiceForString(std::nullopt, choices.get()), nullptr) << name;
    }
}

TEST_F(PDEUtilsMethod, TitlesAreUtf8WhateverTheSystemEncoding)
{
    const TestPpd ppd = TestPpd::fromFile(QStringLiteral("six-options.ppd"));
    ppd_option_t *option = ppd.option("CvHalftonePattern");
    std::strcpy(option->text, "Caf\xC3\xA9");
    std::strcpy(option->choices[0].text, "Th\xC3\xA9");
    setSystemEncoding(TextEncoding::MacRoman);
    EXPECT_EQ(Utils::newOptionTitle(option), QStringLiteral("Café"));
    EXPECT_EQ(Utils::newChoiceTitle(&option->choices[0]), QStringLiteral("Thé"));
}

TEST_F(PDEUtilsMethod, MissingOrUndecodableTitleIsNothing)
{
    const TestPpd ppd = TestPpd::fromFile(QStringLiteral("undecodable-titles.ppd"));
    const ppd_option_t *option = ppd.option("CvHalftonePattern");
    EXPECT_EQ(Utils::newOptionTitle(option), std::nullopt);
    EXPECT_EQ(Utils::newChoiceTitle(&option->choices[0]), std::nullopt);
    EXPECT_EQ(Utils::newOptionTitle(nullptr), std::nullopt);
    EXPECT_EQ(Utils::newChoiceTitle(nullptr), std::nullopt);
}

TEST_F(PDEUtilsMethod, TitleWithoutATranslationIsTheKeyword)
{
    const TestPpd ppd = TestPpd::fromText("*PPD-Adobe: \"4.3\"\n"
                                          "*OpenUI *CvTest: PickOne\n"
                                          "*CvTest One: \"\"\n"
                                          "*CloseUI: *CvTest\n");
    const ppd_option_t *option = ppd.option("CvTest");
    EXPECT_EQ(Utils::newOptionTitle(option), QStringLiteral("CvTest"));
    EXPECT_EQ(Utils::newChoiceTitle(&option->choices[0]), QStringLiteral("One"));
}

class TextColor : public testing::Test
{
protected:
    TextColor()
        : before(QApplication::palette())
    {
        QPalette palette = before;
        for (const auto role : {QPalette::WindowText, QPalette::Text}) {
            palette.setColor(QPalette::Active, role, Qt::darkGreen);
            palette.setColor(QPalette::Disabled, role, Qt::lightGray);
        }
        QApplication::setPalette(palette);
    }
    ~TextColor() override { QApplication::setPalette(before); }

    static QColor color(const QWidget &item, QPalette::ColorRole role)
    {
        return item.palette().color(QPalette::Active, role);
    }

    QPalette before;
};

TEST_F(TextColor, FollowsTheFlagInLabelsAndTextFields)
{
    QLabel label;
    QLineEdit field;
    Utils::setEnabledForText(0, &label);
    Utils::setEnabledForText(0, &field);
    EXPECT_EQ(color(label, QPalette::WindowText), QColor(Qt::lightGray));
    EXPECT_EQ(color(field, QPalette::Text), QColor(Qt::lightGray));
    Utils::setEnabledForText(1, &label);
    Utils::setEnabledForText(1, &field);
    EXPECT_EQ(color(label, QPalette::WindowText), QColor(Qt::darkGreen));
    EXPECT_EQ(color(field, QPalette::Text), QColor(Qt::darkGreen));
}

TEST_F(TextColor, EveryFlagButOneIsDisabled)
{
    QLabel label;
    for (const int flag : {2, -1, 256}) {
        Utils::setEnabledForText(1, &label);
        Utils::setEnabledForText(flag, &label);
        EXPECT_EQ(color(label, QPalette::WindowText), QColor(Qt::lightGray)) << flag;
    }
}

TEST_F(TextColor, LeavesTheEnabledStateAlone)
{
    QLineEdit field;
    Utils::setEnabledForText(0, &field);
    EXPECT_TRUE(field.isEnabled());
    field.setEnabled(false);
    Utils::setEnabledForText(1, &field);
    EXPECT_FALSE(field.isEnabled());
}

TEST_F(TextColor, LeavesOtherControlsAndNoControlAlone)
{
    QSlider slider;
    QComboBox popUp;
    QCheckBox box;
    for (QWidget *item : {static_cast<QWidget *>(&slider), static_cast<QWidget *>(&popUp),
                          static_cast<QWidget *>(&box)}) {
        const QPalette palette = item->palette();
        Utils::setEnabledForText(0, item);
        EXPECT_EQ(item->palette(), palette);
    }
    Utils::setEnabledForText(0, nullptr);
}

} // namespace
