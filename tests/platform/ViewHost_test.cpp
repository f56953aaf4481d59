// SPDX-License-Identifier: Apache-2.0
#include "platform/ViewHost.h"

#include "platform/Bundle.h"
#include "platform/Outlets.h"
#include "platform/RadioMatrix.h"

#include <QApplication>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTest>

#include <gmock/gmock.h>

using namespace platform;

namespace {

class ViewHostTest : public testing::Test
{
protected:
    ~ViewHostTest() override { ViewHost::setCurrent(nullptr); }

    std::unique_ptr<QWidget> load(const char *name,
                                  const QStringList &languages = {QStringLiteral("en")})
    {
        bundle = std::make_unique<Bundle>(QStringLiteral(SAMPLE_BUNDLE_DIR), languages);
        return ViewHost::current().loadNibNamed(QLatin1String(name), *bundle, outlets);
    }

    std::unique_ptr<Bundle> bundle;
    Outlets outlets;
};

TEST_F(ViewHostTest, LoadsTheTopViewWithoutAParentAndConnectsItsOwner)
{
    QPointer<QSlider> slider;
    int sent = 0;
    outlets.add("slider", slider);
    outlets.action("slider", [&] { ++sent; });
    const auto view = load("Controls");
    ASSERT_TRUE(view);
    EXPECT_EQ(view->parent(), nullptr);
    EXPECT_EQ(view->size(), QSize(300, 400));
    ASSERT_TRUE(slider);
    EXPECT_EQ(slider->minimum(), -20);
    QTest::keyClick(slider, Qt::Key_Right);
    EXPECT_EQ(sent, 1);
}

TEST_F(ViewHostTest, KnowsTheRadioMatrixAndItsRows)
{
    const auto view = load("Controls");
    ASSERT_TRUE(view);
    const auto *matrix = view->findChild<RadioMatrix *>(QStringLiteral("matrix"));
    ASSERT_TRUE(matrix);
    EXPECT_EQ(matrix->titles(),
              QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}));
}

class SampleField : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;
};

TEST_F(ViewHostTest, RegisteredClassesAreMadeAndUnregisteredOnesFallBackToTheClassTheyExtend)
{
    const auto before = load("Controls");
    ASSERT_TRUE(before);
    auto *plain = before->findChild<QLineEdit *>(QStringLiteral("field"));
    ASSERT_TRUE(plain);
    EXPECT_FALSE(dynamic_cast<SampleField *>(plain));
    registerWidgetClass(QStringLiteral("sample::Field"),
                        [](QWidget *parent) { return new SampleField(parent); });
    const auto view = load("Controls");
    ASSERT_TRUE(view);
    auto *field = view->findChild<QLineEdit *>(QStringLiteral("field"));
    EXPECT_TRUE(dynamic_cast<SampleField *>(field));
    EXPECT_EQ(field->geometry(), QRect(10, 230, 100, 20));
}

TEST_F(ViewHostTest, FixedTextsComeInTheLanguageOfTheBundle)
{
    const auto german = load("Controls", {QStringLiteral("de-DE")});
    ASSERT_TRUE(german);
    EXPECT_EQ(german->findChild<QLabel *>()->text(), QStringLiteral("Muster"));
    EXPECT_EQ(german->findChild<QSlider *>()->accessibleName(), QStringLiteral("Stufe"));
    EXPECT_EQ(german->findChild<QComboBox *>()->itemText(1), QStringLiteral("zweites"));
    EXPECT_EQ(german->findChild<QComboBox *>()->itemText(0), QStringLiteral("first"));
    EXPECT_EQ(QCoreApplication::translate("SampleView", "Sample"), QStringLiteral("Sample"))
        << "the texts are the application's only while the view is made";
    const auto english = load("Controls");
    ASSERT_TRUE(english);
    EXPECT_EQ(english->findChild<QLabel *>()->text(), QStringLiteral("Sample"));
}

/// Counts how often it is told of another language.
class Listener : public QWidget
{
public:
    int told = 0;

protected:
    void changeEvent(QEvent *event) override { told += event->type() == QEvent::LanguageChange; }
};

TEST_F(ViewHostTest, WindowsAreNotToldOfAnotherLanguage)
{
    Listener window;
    const auto view = load("Controls", {QStringLiteral("de")});
    ASSERT_TRUE(view);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.told, 0);
}

class BrokenDescription : public ViewHostTest, public testing::WithParamInterface<const char *>
{ };

TEST_P(BrokenDescription, GivesNoViewAndConnectsNothing)
{
    QSlider kept;
    QPointer<QSlider> slider(&kept);
    outlets.add("slider", slider);
    const auto widgets = QApplication::allWidgets().size();
    EXPECT_FALSE(load(GetParam(), {QStringLiteral("de")}));
    EXPECT_EQ(slider, &kept);
    EXPECT_EQ(QApplication::allWidgets().size(), widgets) << "nothing is left behind";
    EXPECT_EQ(QCoreApplication::translate("SampleView", "Sample"), QStringLiteral("Sample"));
}

INSTANTIATE_TEST_SUITE_P(Files, BrokenDescription,
                         testing::Values("Missing", "Truncated", "NoView", "NoXml", "UnknownClass"),
                         [](const auto &file) { return std::string(file.param); });

TEST_F(ViewHostTest, DescriptionThatCannotBeReadIsNamedInOneSentence)
{
    QStringList lines;
    static QStringList *sink;
    sink = &lines;
    const auto former = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &text) { *sink << text; });
    load("Missing");
    qInstallMessageHandler(former);
    EXPECT_EQ(
        lines,
        QStringList(QStringLiteral(SAMPLE_BUNDLE_DIR " has no interface description "
                                                     "Missing.ui; install the panel again.")));
}

TEST_F(ViewHostTest, KeyWindowHeightIsThatOfTheActiveWindowWithItsFrame)
{
    EXPECT_EQ(ViewHost::current().keyWindowHeight(), std::nullopt);
    QWidget window;
    window.resize(200, 300);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const auto height = ViewHost::current().keyWindowHeight();
    ASSERT_TRUE(height);
    EXPECT_EQ(*height, window.frameGeometry().height());
    EXPECT_GE(*height, 300);
}

class DeafHost : public ViewHost
{
public:
    std::unique_ptr<QWidget> loadNibNamed(const QString &, const Bundle &, Outlets &) override
    {
        return nullptr;
    }
    std::optional<double> keyWindowHeight() const override { return 1.5; }
};

TEST_F(ViewHostTest, AnotherHostStandsInForTheDesktopUntilItIsTakenBack)
{
    DeafHost host;
    ViewHost::setCurrent(&host);
    EXPECT_EQ(ViewHost::current().keyWindowHeight(), 1.5);
    EXPECT_FALSE(load("Controls"));
    ViewHost::setCurrent(nullptr);
    EXPECT_TRUE(load("Controls"));
}

} // namespace
