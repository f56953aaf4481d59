// SPDX-License-Identifier: Apache-2.0
#include "tools/Hand.h"

#include "platform/RadioMatrix.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSlider>

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

/// The texts that the field tells of while somebody types into it.
std::vector<QString> typed(QLineEdit &field, const QString &text)
{
    std::vector<QString> texts;
    QObject context;
    QObject::connect(&field, &QLineEdit::textEdited, &context,
                     [&texts](const QString &now) { texts.push_back(now); });
    tools::typeByHand(&field, text);
    return texts;
}

TEST(Hand, TypesKeyByKeyOverWhatWasThere)
{
    QLineEdit field(QStringLiteral("before"));
    EXPECT_THAT(typed(field, QStringLiteral("-1A")),
                ElementsAre(QStringLiteral("-"), QStringLiteral("-1"), QStringLiteral("-1A")));
    EXPECT_EQ(field.text(), QLatin1String("-1A"));
}

TEST(Hand, TypesACharacterOfTwoUnitsWithOneKey)
{
    QLineEdit field;
    const QString face = QString::fromUtf8("\xf0\x9f\x99\x82");
    EXPECT_THAT(typed(field, u'a' + face), ElementsAre(QStringLiteral("a"), u'a' + face));
}

TEST(Hand, PressesReturnOnceAtTheEnd)
{
    QLineEdit field;
    QSignalSpy pressed(&field, &QLineEdit::returnPressed);
    tools::typeByHand(&field, QStringLiteral("12"));
    EXPECT_EQ(pressed.count(), 1);
}

TEST(Hand, TypingNothingLeavesTheTextAndPressesReturn)
{
    QLineEdit field(QStringLiteral("before"));
    QSignalSpy pressed(&field, &QLineEdit::returnPressed);
    EXPECT_THAT(typed(field, QString()), ElementsAre());
    EXPECT_EQ(field.text(), QLatin1String("before"));
    EXPECT_EQ(pressed.count(), 1);
}

TEST(Hand, MovesASliderWithOneChangeAlsoToWhereItIs)
{
    QSlider slider;
    slider.setRange(-20, 20);
    QSignalSpy changed(&slider, &QSlider::valueChanged);
    tools::moveByHand(&slider, 7);
    EXPECT_EQ(changed.count(), 1);
    tools::moveByHand(&slider, 7);
    EXPECT_EQ(changed.count(), 2);
    EXPECT_EQ(slider.value(), 7);
}

TEST(Hand, PicksARowOnceAlsoTheOneThatIsOnAndAfterNone)
{
    platform::RadioMatrix matrix;
    matrix.setRows({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    QSignalSpy picked(&matrix, &platform::RadioMatrix::picked);
    tools::pickByHand(&matrix, 2);
    EXPECT_EQ(picked.count(), 1);
    tools::pickByHand(&matrix, 2);
    EXPECT_EQ(picked.count(), 2);
    matrix.deselectAllCells();
    tools::pickByHand(&matrix, 2);
    EXPECT_EQ(picked.count(), 3);
    EXPECT_EQ(matrix.selectedRow(), 2);
}

TEST(Hand, TicksABoxOnceAlsoOutOfTheMixedState)
{
    QCheckBox box;
    box.setCheckState(Qt::PartiallyChecked);
    QSignalSpy changed(&box, &QCheckBox::stateChanged);
    tools::tickByHand(&box, true);
    EXPECT_EQ(box.checkState(), Qt::Checked);
    EXPECT_EQ(changed.count(), 1);
    tools::tickByHand(&box, true);
    EXPECT_EQ(changed.count(), 2);
    tools::tickByHand(&box, false);
    EXPECT_EQ(box.checkState(), Qt::Unchecked);
    EXPECT_EQ(changed.count(), 3);
}

} // namespace
