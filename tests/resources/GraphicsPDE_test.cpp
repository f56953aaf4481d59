// SPDX-License-Identifier: Apache-2.0
#include "controls/PDETextField.h"
#include "platform/Controls.h"
#include "platform/RadioMatrix.h"
#include "resources/LoadedPanel.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTest>

#include <gmock/gmock.h>

using platform::RadioMatrix;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

QStringList names(std::initializer_list<const char *> list)
{
    QStringList names;
    for (const char *name : list) {
        names << QLatin1String(name);
    }
    return names;
}

QStringList labelNames()
{
    return names({"mHalftoneTitle", "HlftnColMinTx", "HlftnColMidTx", "HlftnColMaxTx",
                  "Hlftn2ColMinTx", "Hlftn2ColMidTx", "Hlftn2ColMaxTx", "mBrightnessTitle",
                  "mContrustTitle", "mBiDiPrintStrGR", "mColorTitle", "mRedLevelTitle",
                  "mRedLevelMinTx", "mRedLevelMidTx", "mRedLevelMaxTx"});
}

QStringList sliderNames()
{
    return names({"mBrightnessSlider", "mContrustSlider", "mRedLevelSlider"});
}

QStringList numberNames()
{
    return names({"mBrightnessText", "mContrustText", "mRedLevelText"});
}

class PanelDescription : public testing::Test
{
protected:
    void SetUp() override { ASSERT_NE(panel.view(), nullptr); }

    /// Those of `names` that are no `Control` in the view.
    template <class Control> QStringList missing(const QStringList &names) const
    {
        QStringList missing;
        for (const QString &name : names) {
            if (!panel.view()->findChild<Control *>(name)) {
                missing << name;
            }
        }
        return missing;
    }

    /// The tab stops from `first` on, until one comes again.
    QStringList tabStopsFrom(QWidget *first) const
    {
        QStringList stops;
        first->setFocus();
        do {
            stops << LoadedPanel::nameOf(panel.view()->focusWidget());
            QTest::keyClick(panel.view()->focusWidget(), Qt::Key_Tab);
        } while (panel.view()->focusWidget() != first && stops.size() < 20);
        return stops;
    }

    QWidget *firstRow() const
    {
        return panel.find<RadioMatrix>(QStringLiteral("mHalftoneRadio"))
            ->findChildren<QRadioButton *>()
            .at(0);
    }

    LoadedPanel panel{QStringLiteral("en")};
};

TEST_F(PanelDescription, HasEveryOutletInItsClass)
{
    EXPECT_EQ(panel.view()->objectName(), QStringLiteral("kPDEView"));
    EXPECT_THAT(missing<QLabel>(labelNames()), IsEmpty());
    EXPECT_THAT(missing<QSlider>(sliderNames()), IsEmpty());
    EXPECT_THAT(missing<QLineEdit>(numberNames()), IsEmpty());
    EXPECT_THAT(missing<QPushButton>(names({"mHalftoneDummyView", "mBriConDummyView"})), IsEmpty());
    EXPECT_THAT(missing<QFrame>(names({"mSeparateLineGR"})), IsEmpty());
    EXPECT_THAT(missing<RadioMatrix>(names({"mHalftoneRadio"})), IsEmpty());
    EXPECT_THAT(missing<QCheckBox>(names({"mBiDiPrintChkBx"})), IsEmpty());
    EXPECT_THAT(missing<QComboBox>(names({"mColorPUBtn"})), IsEmpty());
}

TEST_F(PanelDescription, StartsInTheStateBeforeAnyOptionIsRead)
{
    const auto *matrix = panel.find<RadioMatrix>(QStringLiteral("mHalftoneRadio"));
    EXPECT_EQ(matrix->selectedRow(), 0);
    EXPECT_EQ(matrix->titles().size(), 3);
    for (const QString &name : numberNames()) {
        EXPECT_EQ(panel.find<QLineEdit>(name)->text(), QStringLiteral("0"));
    }
    const auto *box = panel.find<QCheckBox>(QStringLiteral("mBiDiPrintChkBx"));
    EXPECT_EQ(platform::state(box), 0);
    EXPECT_FALSE(box->isTristate());
    const auto *popUp = panel.find<QComboBox>(QStringLiteral("mColorPUBtn"));
    EXPECT_EQ(popUp->currentIndex(), 0);
    ASSERT_EQ(popUp->count(), 2);
    EXPECT_EQ(popUp->itemText(0), QStringLiteral("Monochrome"));
    EXPECT_EQ(popUp->itemText(1), QStringLiteral("Black and red"));
}

TEST_F(PanelDescription, DisablesTheRedLevelSliderAloneAndHidesNothing)
{
    QStringList disabled;
    QStringList hidden;
    for (const QWidget *child : panel.view()->findChildren<QWidget *>()) {
        if (!platform::isEnabled(child)) {
            disabled << child->objectName();
        }
        // The list of a closed pop-up is a window of its own.
        if (child->isHidden() && !child->isWindow()) {
            hidden << child->objectName();
        }
    }
    EXPECT_EQ(disabled, names({"mRedLevelSlider"}));
    EXPECT_THAT(hidden, IsEmpty());
}

TEST_F(PanelDescription, SlidersRunFromMinusTwentyToTwentyInSteps)
{
    for (const QString &name : sliderNames()) {
        const auto *slider = panel.find<QSlider>(name);
        EXPECT_EQ(slider->orientation(), Qt::Horizontal);
        EXPECT_EQ(slider->minimum(), -20);
        EXPECT_EQ(slider->maximum(), 20);
        EXPECT_EQ(slider->value(), 0);
        EXPECT_EQ(slider->singleStep(), 1);
        EXPECT_EQ(slider->pageStep(), 5);
        EXPECT_EQ(slider->tickPosition(), QSlider::TicksBelow);
        EXPECT_EQ(slider->tickInterval(), 5);
        EXPECT_TRUE(slider->hasTracking());
    }
}

TEST_F(PanelDescription, NumbersAreFieldsToTypeIn)
{
    for (const QString &name : numberNames()) {
        const auto *number = panel.find<PDETextField13_v300_>(name);
        ASSERT_NE(number, nullptr) << name.toStdString();
        EXPECT_FALSE(number->isReadOnly());
        EXPECT_TRUE(number->hasFrame());
        EXPECT_EQ(number->focusPolicy(), Qt::StrongFocus);
        EXPECT_TRUE(number->alignment() & Qt::AlignRight);
    }
}

TEST_F(PanelDescription, SaysSomethingInTheControlsThatThePanelDoesNotFill)
{
    for (const auto &[name, text] :
         {std::pair("mColorTitle", "Colour mode:"), std::pair("mRedLevelTitle", "Red level:"),
          std::pair("mRedLevelMinTx", "-20"), std::pair("mRedLevelMidTx", "0"),
          std::pair("mRedLevelMaxTx", "+20"), std::pair("mBiDiPrintStrGR", "Print direction:")}) {
        EXPECT_EQ(platform::stringValue(panel.find<QLabel>(QLatin1String(name))),
                  QLatin1String(text));
    }
}

TEST_F(PanelDescription, TabGoesDownThePanel)
{
    panel.view()->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(panel.view()));
    EXPECT_EQ(tabStopsFrom(firstRow()),
              names({"mHalftoneRadio", "mBrightnessSlider", "mBrightnessText", "mContrustSlider",
                     "mContrustText", "mColorPUBtn", "mRedLevelText", "mBiDiPrintChkBx"}));
    panel.find<QSlider>(QStringLiteral("mRedLevelSlider"))->setEnabled(true);
    EXPECT_EQ(tabStopsFrom(firstRow()),
              names({"mHalftoneRadio", "mBrightnessSlider", "mBrightnessText", "mContrustSlider",
                     "mContrustText", "mColorPUBtn", "mRedLevelSlider", "mRedLevelText",
                     "mBiDiPrintChkBx"}));
}

TEST_F(PanelDescription, EveryTitleLeadsToItsControl)
{
    const auto control = [this](const char *title) {
        return LoadedPanel::nameOf(panel.find<QLabel>(QLatin1String(title))->buddy());
    };
    EXPECT_EQ(control("mHalftoneTitle"), QStringLiteral("mHalftoneRadio"));
    EXPECT_EQ(control("mBrightnessTitle"), QStringLiteral("mBrightnessSlider"));
    EXPECT_EQ(control("mContrustTitle"), QStringLiteral("mContrustSlider"));
    EXPECT_EQ(control("mColorTitle"), QStringLiteral("mColorPUBtn"));
    EXPECT_EQ(control("mRedLevelTitle"), QStringLiteral("mRedLevelSlider"));
    EXPECT_EQ(control("mBiDiPrintStrGR"), QStringLiteral("mBiDiPrintChkBx"));
}

TEST_F(PanelDescription, MnemonicsReachTheControls)
{
    panel.find<QSlider>(QStringLiteral("mRedLevelSlider"))->setEnabled(true);
    panel.view()->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(panel.view()));
    QStringList reached;
    for (const Qt::Key key : {Qt::Key_H, Qt::Key_B, Qt::Key_N, Qt::Key_M, Qt::Key_R}) {
        QTest::keyClick(panel.view(), key, Qt::AltModifier);
        reached << LoadedPanel::nameOf(panel.view()->focusWidget());
    }
    EXPECT_EQ(reached,
              names({"mHalftoneRadio", "mBrightnessSlider", "mContrustSlider", "mColorPUBtn",
                     "mRedLevelSlider"}));
}

class PanelNames : public testing::TestWithParam<std::string>
{
protected:
    PanelNames()
        : panel(QString::fromStdString(GetParam()))
    { }
    void SetUp() override { ASSERT_NE(panel.view(), nullptr); }

    static QString accessibleName(QWidget *control)
    {
        return QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name);
    }

    LoadedPanel panel;
};

INSTANTIATE_TEST_SUITE_P(Languages, PanelNames, testing::ValuesIn(languages()), languageOf);

TEST_P(PanelNames, AssistiveToolsTellEveryControlFromTheOthers)
{
    QSet<QString> said;
    const QStringList controls =
        sliderNames() + numberNames() + names({"mHalftoneRadio", "mColorPUBtn", "mBiDiPrintChkBx"});
    for (const QString &name : controls) {
        const QString accessible = accessibleName(panel.find<QWidget>(name));
        EXPECT_FALSE(accessible.isEmpty()) << name.toStdString();
        EXPECT_FALSE(accessible.contains(QLatin1Char('&'))) << accessible.toStdString();
        said << accessible;
    }
    EXPECT_EQ(said.size(), controls.size());
}

TEST_P(PanelNames, EverySettingExplainsItselfInAToolTip)
{
    for (const QString &name : sliderNames() + numberNames()
             + names({"mHalftoneRadio", "mColorPUBtn", "mBiDiPrintChkBx"})) {
        EXPECT_FALSE(panel.find<QWidget>(name)->toolTip().isEmpty()) << name.toStdString();
    }
}

TEST_P(PanelNames, AssistiveToolsReadTheToolTipOfANumberAsItsDescription)
{
    for (const QString &name : numberNames()) {
        auto *number = panel.find<QLineEdit>(name);
        EXPECT_EQ(QAccessible::queryAccessibleInterface(number)->text(QAccessible::Description),
                  number->toolTip());
    }
}

TEST_P(PanelNames, MnemonicsAreDistinctAndOutliveTheTextsOfThePanel)
{
    for (const TextPlace &place : titlePlaces()) {
        for (const QString &key : place.keys) {
            platform::setStringValue(panel.find<QLabel>(place.control),
                                     panel.bundle().localizedString(key));
        }
    }
    QSet<QString> letters;
    for (const QLabel *label : panel.view()->findChildren<QLabel *>()) {
        if (label->buddy()) {
            letters << label->text().section(QLatin1Char('&'), 1, 1).left(1).toUpper();
        }
    }
    EXPECT_EQ(letters.size(), 6);
    EXPECT_FALSE(letters.contains(QString()));
}

} // namespace
