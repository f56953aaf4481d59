// SPDX-License-Identifier: Apache-2.0
#include "platform/Outlets.h"

#include "platform/Controls.h"
#include "platform/RadioMatrix.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTest>

#include <gmock/gmock.h>

using namespace platform;

namespace {

QAccessibleInterface *assistive(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

void toggleAssistively(QWidget *button)
{
    assistive(button)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
}

/// A view with one control of each kind, and an owner with a field and an action for each.
class OutletsTest : public testing::Test
{
protected:
    OutletsTest()
        : view(std::make_unique<QWidget>())
    {
        view->setObjectName(QStringLiteral("view"));
        add<QSlider>("slider")->setRange(-20, 20);
        add<RadioMatrix>("matrix")->setRows(
            {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        add<QCheckBox>("box");
        add<QComboBox>("popUp")->addItems(
            {QStringLiteral("first"), QStringLiteral("second"), QStringLiteral("third")});
        add<QPushButton>("button");
        outlets.add("slider", slider);
        outlets.add("matrix", matrix);
        outlets.add("box", box);
        outlets.add("popUp", popUp);
        outlets.add("button", button);
        for (const char *name : {"slider", "matrix", "box", "popUp", "button"}) {
            outlets.action(name, [this] { ++sent; });
        }
        outlets.connectTo(view.get());
    }

    template <class Control> Control *add(const char *name)
    {
        auto *control = new Control(view.get());
        control->setObjectName(QLatin1String(name));
        return control;
    }

    void show()
    {
        view->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(view.get()));
    }

    std::unique_ptr<QWidget> view;
    QPointer<QSlider> slider;
    QPointer<RadioMatrix> matrix;
    QPointer<QCheckBox> box;
    QPointer<QComboBox> popUp;
    QPointer<QPushButton> button;
    int sent = 0;
    Outlets outlets;
};

TEST_F(OutletsTest, TellsWhatEachFieldHoldsAlsoWhenItIsDropped)
{
    outlets.drop(QStringLiteral("box"));
    const std::multimap<QString, QWidget *> fields = outlets.fields();
    EXPECT_EQ(fields.size(), 5U);
    EXPECT_EQ(fields.find(QStringLiteral("slider"))->second, slider);
    EXPECT_EQ(fields.find(QStringLiteral("popUp"))->second, popUp);
    EXPECT_EQ(fields.find(QStringLiteral("box"))->second, nullptr);
}

TEST_F(OutletsTest, FieldsGetTheControlsOfTheirName)
{
    EXPECT_EQ(slider, view->findChild<QSlider *>());
    EXPECT_EQ(matrix, view->findChild<RadioMatrix *>());
    EXPECT_EQ(box, view->findChild<QCheckBox *>());
    EXPECT_EQ(popUp, view->findChild<QComboBox *>());
}

TEST_F(OutletsTest, TheTopViewItselfMayBeAField)
{
    QPointer<QWidget> top;
    outlets.add("view", top);
    outlets.connectTo(view.get());
    EXPECT_EQ(top, view.get());
}

TEST_F(OutletsTest, ControlOfAnotherClassOrWithoutTheNameLeavesTheFieldNull)
{
    QPointer<QLabel> wrongClass(new QLabel(view.get()));
    QPointer<QLabel> missing(wrongClass);
    outlets.add("slider", wrongClass);
    outlets.add("nowhere", missing);
    outlets.connectTo(view.get());
    EXPECT_FALSE(wrongClass);
    EXPECT_FALSE(missing);
}

TEST_F(OutletsTest, FieldsAreNullWhenTheViewIsGone)
{
    view.reset();
    EXPECT_FALSE(slider);
    EXPECT_FALSE(matrix);
}

TEST_F(OutletsTest, ProgramMadeChangesSendNothing)
{
    setIntValue(slider, 7);
    selectCellAtRow(matrix, 2);
    setState(box, 1);
    selectItemAtIndex(popUp, 2);
    insertItem(popUp, QStringLiteral("new"), 0);
    removeItemAtIndex(popUp, 3);
    EXPECT_EQ(sent, 0);
}

TEST_F(OutletsTest, SliderSendsOnceForAKeyAndOnceForAnAssistiveTool)
{
    QTest::keyClick(slider, Qt::Key_Right);
    EXPECT_EQ(slider->value(), 1);
    EXPECT_EQ(sent, 1);
    assistive(slider)->valueInterface()->setCurrentValue(-5);
    EXPECT_EQ(slider->value(), -5);
    EXPECT_EQ(sent, 2);
}

TEST_F(OutletsTest, ActionSeesTheValueAfterTheChange)
{
    int seen = 0;
    outlets.action("slider", [&] { seen = intValue(slider); });
    outlets.connectTo(view.get());
    QTest::keyClick(slider, Qt::Key_Right);
    EXPECT_EQ(seen, 1);
}

TEST_F(OutletsTest, RadioRowSendsOnceForAClickAndOnceForAnAssistiveTool)
{
    matrix->resize(100, 60);
    matrix->grab();
    const auto rows = matrix->findChildren<QRadioButton *>();
    QTest::mouseClick(rows.at(1), Qt::LeftButton, {}, QPoint(8, 10));
    EXPECT_EQ(selectedRow(matrix), 1);
    EXPECT_EQ(sent, 1);
    toggleAssistively(rows.at(2));
    EXPECT_EQ(selectedRow(matrix), 2);
    EXPECT_EQ(sent, 2);
}

TEST_F(OutletsTest, CheckBoxSendsOnceForAClickAKeyAndAnAssistiveToggle)
{
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    EXPECT_EQ(state(box), 1);
    EXPECT_EQ(sent, 1);
    QTest::keyClick(box, Qt::Key_Space);
    EXPECT_EQ(state(box), 0);
    EXPECT_EQ(sent, 2);
    toggleAssistively(box);
    EXPECT_EQ(state(box), 1);
    EXPECT_EQ(sent, 3);
}

TEST_F(OutletsTest, CheckBoxSendsForTheWayFromMixedToOn)
{
    box->setTristate(true);
    setState(box, -1);
    QTest::keyClick(box, Qt::Key_Space);
    EXPECT_EQ(state(box), 1);
    EXPECT_EQ(sent, 1);
}

TEST_F(OutletsTest, CheckBoxThatItsActionPutsBackSendsOnce)
{
    outlets.action("box", [this] { setState(box, 0); });
    outlets.connectTo(view.get());
    QTest::keyClick(box, Qt::Key_Space);
    EXPECT_EQ(state(box), 0);
    EXPECT_EQ(sent, 1);
}

TEST_F(OutletsTest, PopUpSendsOnceForAnArrowKeyAndOnceForALetter)
{
    show();
    QTest::keyClick(popUp, Qt::Key_Down);
    EXPECT_EQ(indexOfSelectedItem(popUp), 1);
    EXPECT_EQ(sent, 1);
    QTest::keyClick(popUp, Qt::Key_T);
    EXPECT_EQ(indexOfSelectedItem(popUp), 2);
    EXPECT_EQ(sent, 2);
}

TEST_F(OutletsTest, PopUpSendsOnceForAPickFromItsListAlsoOfTheSelectedItem)
{
    show();
    popUp->showPopup();
    QTest::keyClick(popUp->view(), Qt::Key_Down);
    EXPECT_EQ(sent, 0) << "moving in the list picks nothing";
    QTest::keyClick(popUp->view(), Qt::Key_Return);
    EXPECT_EQ(indexOfSelectedItem(popUp), 1);
    EXPECT_EQ(sent, 1);
    popUp->showPopup();
    QTest::keyClick(popUp->view(), Qt::Key_Return);
    EXPECT_EQ(indexOfSelectedItem(popUp), 1);
    EXPECT_EQ(sent, 2);
}

TEST_F(OutletsTest, PopUpSendsOnceForAnAssistiveSelectionAndOnceForThePickAfterIt)
{
    show();
    popUp->setCurrentIndex(2); // what a tool that selects an item does
    EXPECT_EQ(sent, 1);
    QCoreApplication::processEvents();
    popUp->showPopup();
    QTest::keyClick(popUp->view(), Qt::Key_Return);
    EXPECT_EQ(indexOfSelectedItem(popUp), 2);
    EXPECT_EQ(sent, 2);
}

TEST_F(OutletsTest, PopUpThatItsActionPutsBackSendsOnce)
{
    outlets.action("popUp", [this] { selectItemAtIndex(popUp, 0); });
    outlets.connectTo(view.get());
    show();
    QTest::keyClick(popUp, Qt::Key_Down);
    EXPECT_EQ(indexOfSelectedItem(popUp), 0);
    EXPECT_EQ(sent, 1);
}

TEST_F(OutletsTest, ButtonSendsOnceForAClickAndOnceForAnAssistivePress)
{
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(sent, 1);
    assistive(button)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_COMPARE(sent, 2);
}

TEST_F(OutletsTest, DroppedNameIsNullAndDumbAlsoWhenConnectedAgain)
{
    QSlider *control = slider;
    outlets.drop(QStringLiteral("slider"));
    EXPECT_FALSE(slider);
    EXPECT_TRUE(box);
    QTest::keyClick(control, Qt::Key_Right);
    outlets.connectTo(view.get());
    EXPECT_FALSE(slider);
    QTest::keyClick(control, Qt::Key_Right);
    EXPECT_EQ(control->value(), 2);
    EXPECT_EQ(sent, 0);
}

TEST_F(OutletsTest, NameDroppedBeforeTheLoadStaysUnconnected)
{
    Outlets early;
    early.drop(QStringLiteral("slider"));
    early.clear();
    early.add("slider", slider);
    early.connectTo(view.get());
    EXPECT_FALSE(slider);
}

TEST_F(OutletsTest, ConnectingAgainDoesNotSendTwice)
{
    outlets.connectTo(view.get());
    QTest::keyClick(slider, Qt::Key_Right);
    EXPECT_EQ(sent, 1);
}

TEST_F(OutletsTest, NothingIsSentOnceTheOutletsAreGone)
{
    {
        Outlets brief;
        brief.action("slider", [this] { sent += 100; });
        brief.connectTo(view.get());
    }
    QTest::keyClick(slider, Qt::Key_Right);
    EXPECT_EQ(sent, 1);
    outlets.clear();
    QTest::keyClick(slider, Qt::Key_Right);
    EXPECT_EQ(sent, 1);
    EXPECT_TRUE(slider) << "forgetting a field leaves it as it is";
}

} // namespace
