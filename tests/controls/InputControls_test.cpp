// SPDX-License-Identifier: Apache-2.0
#include "controls/InputControls.h"

#include "controls/CellButton.h"
#include "controls/PDEButtonCell.h"
#include "controls/PDETextField.h"
#include "platform/Bundle.h"
#include "platform/Outlets.h"
#include "platform/ViewHost.h"

#include <QDir>
#include <QFile>
#include <QPointer>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace {

constexpr auto kDescription = R"(<ui version="4.0"><class>Panel</class>
<widget class="QWidget" name="panel">
 <widget class="PDETextField13_v300_" name="field">
  <property name="text"><string notr="true">7</string></property>
  <property name="maxLength"><number>3</number></property>
 </widget>
 <widget class="PDEButtonCell13_v300_" name="button">
  <property name="text"><string notr="true">Title</string></property>
  <property name="checkable"><bool>true</bool></property>
 </widget>
</widget>
<customwidgets>
 <customwidget><class>PDETextField13_v300_</class><extends>QLineEdit</extends></customwidget>
 <customwidget><class>PDEButtonCell13_v300_</class><extends>QPushButton</extends></customwidget>
</customwidgets></ui>)";

TEST(InputControls, AnInterfaceDescriptionNamesThemAsClasses)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("Resources")));
    QFile file(folder.filePath(QStringLiteral("Resources/Panel.ui")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(kDescription);
    file.close();

    controls::registerInputControls();
    const platform::Bundle bundle(folder.path());
    QPointer<PDETextField13_v300_> field;
    QPointer<CellButton> button;
    platform::Outlets outlets;
    outlets.add("field", field);
    outlets.add("button", button);
    const auto view =
        platform::ViewHost::current().loadNibNamed(QStringLiteral("Panel"), bundle, outlets);
    ASSERT_TRUE(view);
    ASSERT_TRUE(field);
    EXPECT_EQ(field->text(), QStringLiteral("7"));
    EXPECT_EQ(field->maxLength(), 3);
    ASSERT_TRUE(button);
    EXPECT_EQ(button->text(), QStringLiteral("Title"));
    EXPECT_TRUE(button->isCheckable());
    EXPECT_TRUE(dynamic_cast<PDEButtonCell13_v300_ *>(&button->cell()));
}

} // namespace
