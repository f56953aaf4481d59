// SPDX-License-Identifier: Apache-2.0
#include "platform/Controls.h"

#include "platform/RadioMatrix.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

#include <gmock/gmock.h>

using namespace platform;
using testing::ElementsAre;

namespace {

TEST(Controls, MissingControlsReadAsZeroAndTakeWritesSilently)
{
    EXPECT_EQ(intValue(static_cast<QSlider *>(nullptr)), 0);
    EXPECT_EQ(floatValue(nullptr), 0.0F);
    EXPECT_EQ(intValue(static_cast<QLineEdit *>(nullptr)), 0);
    EXPECT_EQ(selectedRow(nullptr), 0);
    EXPECT_EQ(state(nullptr), 0);
    EXPECT_EQ(indexOfSelectedItem(nullptr), 0);
    EXPECT_FALSE(isEnabled(nullptr));
    setIntValue(static_cast<QSlider *>(nullptr), 1);
    setAltIncrementValue(nullptr, 1.0);
    setStringValue(static_cast<QLineEdit *>(nullptr), QStringLiteral("1"));
    setStringValue(static_cast<QLabel *>(nullptr), QStringLiteral("1"));
    setButtonTitle(nullptr, QStringLiteral("1"));
    selectCellAtRow(nullptr, 1);
    setTitleOfRow(nullptr, 0, QStringLiteral("1"));
    setState(nullptr, 1);
    selectItemAtIndex(nullptr, 1);
    insertItem(nullptr, QStringLiteral("1"), 0);
    removeItemAtIndex(nullptr, 0);
    setEnabled(nullptr, true);
    setHidden(nullptr, true);
}

TEST(Controls, SettingASliderClampsAndIsSilent)
{
    QSlider slider;
    slider.setRange(-20, 20);
    QSignalSpy spy(&slider, &QSlider::valueChanged);
    setIntValue(&slider, 30);
    EXPECT_EQ(intValue(&slider), 20);
    EXPECT_EQ(spy.count(), 0);
}

TEST(Controls, NumberFieldKeepsItsTextForNothingAndWritesAsciiDigits)
{
    QLineEdit field(QStringLiteral("07"));
    setStringValue(&field, std::nullopt);
    EXPECT_EQ(field.text(), QStringLiteral("07"));
    EXPECT_EQ(intValue(&field), 7);
    QLocale::setDefault(QLocale(QLocale::Swedish));
    setIntValue(&field, -5);
    QLocale::setDefault(QLocale::system());
    EXPECT_EQ(field.text(), QStringLiteral("-5"));
}

TEST(Controls, TitlesShowAmpersandsAndMarkupAsTheyStand)
{
    QCheckBox box;
    setButtonTitle(&box, QStringLiteral("A & B"));
    EXPECT_EQ(box.text(), QStringLiteral("A && B"));
    EXPECT_EQ(buttonTitle(&box), QStringLiteral("A & B"));
    EXPECT_TRUE(box.shortcut().isEmpty());
    QLabel label;
    setStringValue(&label, QStringLiteral("<b>x</b> & y"));
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_EQ(stringValue(&label), QStringLiteral("<b>x</b> & y"));
}

TEST(Controls, MnemonicLetterOfTheDescriptionStaysWhereTheNewTitleHasIt)
{
    QSlider slider;
    QLabel label(QStringLiteral("Bri&ghtness"));
    label.setBuddy(&slider);
    setStringValue(&label, QStringLiteral("Light & Gamma : "));
    EXPECT_EQ(label.text(), QStringLiteral("Li&ght && Gamma : "));
    EXPECT_EQ(stringValue(&label), QStringLiteral("Light & Gamma : "));
    setStringValue(&label, QStringLiteral("Tone"));
    EXPECT_EQ(label.text(), QStringLiteral("Tone"));
}

TEST(Controls, CheckBoxStatesAreOffOnAndMixed)
{
    QCheckBox box;
    QSignalSpy spy(&box, &QCheckBox::toggled);
    setState(&box, 2);
    EXPECT_EQ(state(&box), 1);
    setState(&box, 0);
    EXPECT_EQ(state(&box), 0);
    setState(&box, -1);
    EXPECT_EQ(state(&box), 1) << "a box without a mixed state is on";
    box.setTristate(true);
    setState(&box, -1);
    EXPECT_EQ(state(&box), -1);
    EXPECT_EQ(spy.count(), 0);
}

class PopUp : public testing::Test
{
protected:
    PopUp() { popUp.addItems({QStringLiteral("nib0"), QStringLiteral("nib1")}); }
    std::vector<std::string> items() const
    {
        std::vector<std::string> items;
        for (int i = 0; i < popUp.count(); ++i) {
            items.push_back(popUp.itemText(i).toStdString());
        }
        return items;
    }
    QComboBox popUp;
};

TEST_F(PopUp, SelectingAMissingItemSelectsNothing)
{
    selectItemAtIndex(&popUp, 1);
    EXPECT_EQ(indexOfSelectedItem(&popUp), 1);
    selectItemAtIndex(&popUp, 2);
    EXPECT_EQ(indexOfSelectedItem(&popUp), -1);
}

TEST_F(PopUp, RemovingTheSelectedItemSelectsTheFirst)
{
    popUp.addItem(QStringLiteral("nib2"));
    selectItemAtIndex(&popUp, 1);
    removeItemAtIndex(&popUp, 1);
    EXPECT_EQ(indexOfSelectedItem(&popUp), 0);
    removeItemAtIndex(&popUp, 9);
    EXPECT_THAT(items(), ElementsAre("nib0", "nib2"));
}

TEST_F(PopUp, InsertingKeepsDuplicatesAndTheSelectedItem)
{
    insertItem(&popUp, QStringLiteral("nib1"), 0);
    insertItem(&popUp, QStringLiteral("last"), 99);
    EXPECT_THAT(items(), ElementsAre("nib1", "nib0", "nib1", "last"));
    EXPECT_EQ(indexOfSelectedItem(&popUp), 1);
}

TEST(Controls, EnabledIsTheControlsOwnFlag)
{
    QWidget parent;
    QCheckBox box(&parent);
    parent.setEnabled(false);
    EXPECT_TRUE(isEnabled(&box));
    setEnabled(&box, false);
    EXPECT_FALSE(isEnabled(&box));
}

class Radio : public testing::Test
{
protected:
    Radio()
        : picked(&matrix, &RadioMatrix::picked)
    {
        matrix.setRows({QStringLiteral("a"), QStringLiteral("b & c"), QStringLiteral("d")});
        matrix.resize(100, 60);
        matrix.grab(); // a widget that was never shown gets its resize event when it is drawn
    }
    QRadioButton *button(int row) { return matrix.findChildren<QRadioButton *>().at(row); }

    RadioMatrix matrix;
    QSignalSpy picked;
};

TEST_F(Radio, StartsAtRowZeroWithItsTitles)
{
    EXPECT_EQ(matrix.selectedRow(), 0);
    EXPECT_EQ(matrix.titles(),
              QStringList({QStringLiteral("a"), QStringLiteral("b & c"), QStringLiteral("d")}));
    EXPECT_EQ(button(2)->geometry(), QRect(0, 40, 100, 20));
}

TEST_F(Radio, SelectingARowIsSilentAndAMissingRowChangesNothing)
{
    matrix.selectCellAtRow(2);
    matrix.selectCellAtRow(3);
    matrix.selectCellAtRow(-1);
    EXPECT_EQ(matrix.selectedRow(), 2);
    EXPECT_EQ(picked.count(), 0);
}

TEST_F(Radio, CanBeLeftWithoutASelectedRow)
{
    matrix.deselectAllCells();
    EXPECT_EQ(matrix.selectedRow(), -1);
    matrix.selectCellAtRow(1);
    EXPECT_EQ(matrix.selectedRow(), 1);
    EXPECT_FALSE(button(0)->isChecked());
}

TEST_F(Radio, AClickIsOnePickAlsoOnTheRowThatIsOn)
{
    QTest::mouseClick(button(1), Qt::LeftButton, {}, QPoint(8, 10));
    EXPECT_EQ(matrix.selectedRow(), 1);
    EXPECT_EQ(picked.count(), 1);
    QTest::mouseClick(button(1), Qt::LeftButton, {}, QPoint(8, 10));
    EXPECT_EQ(picked.count(), 2);
}

TEST_F(Radio, AnAssistiveToolPicksOnce)
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(button(2));
    interface->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(matrix.selectedRow(), 2);
    EXPECT_EQ(picked.count(), 1);
}

TEST(RadioFocus, TheMnemonicOfItsLabelLeadsToTheRowThatIsOn)
{
    QWidget window;
    auto *matrix = new RadioMatrix(&window);
    matrix->setRows({QStringLiteral("a"), QStringLiteral("b")});
    auto *label = new QLabel(QStringLiteral("&Rows"), &window);
    label->setBuddy(matrix);
    const QSignalSpy picked(matrix, &RadioMatrix::picked);
    const auto buttons = matrix->findChildren<QRadioButton *>();
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    matrix->selectCellAtRow(1);
    QTest::keyClick(&window, Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(window.focusWidget(), buttons.at(1));
    matrix->deselectAllCells();
    QTest::keyClick(&window, Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(window.focusWidget(), buttons.at(0));
    EXPECT_EQ(picked.count(), 0);
}

} // namespace
