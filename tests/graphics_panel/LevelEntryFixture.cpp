// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/LevelEntryFixture.h"

#include "platform/Beep.h"

#include <QApplication>
#include <QTest>
#include <QToolTip>

LevelEntryTest::LevelEntryTest()
{
    platform::setBeep([this] { ++beeps; });
}

LevelEntryTest::~LevelEntryTest()
{
    platform::setBeep({});
    QToolTip::hideText();
    panel.reset();
}

void LevelEntryTest::open(const QStringList &missing)
{
    showPanel(missing);
    view->show();
    view->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(view));
    if (PDETextField13_v300_ *text = field()) {
        text->setFocus();
    }
    takeCalls();
}

PDETextField13_v300_ *LevelEntryTest::field() const
{
    return control<PDETextField13_v300_>(GetParam().text);
}

QSlider *LevelEntryTest::levelSlider() const
{
    return control<QSlider>(GetParam().slider);
}

void LevelEntryTest::type(const char *text)
{
    field()->selectAll();
    QTest::keyClicks(field(), QLatin1String(text));
}

void LevelEntryTest::key(Qt::Key key)
{
    QTest::keyClick(field(), key);
}

std::vector<std::string> LevelEntryTest::committed()
{
    return takeChanges();
}

std::string LevelEntryTest::toolTip()
{
    QTest::qWait(20);
    return QToolTip::isVisible() ? QToolTip::text().toStdString() : std::string();
}
