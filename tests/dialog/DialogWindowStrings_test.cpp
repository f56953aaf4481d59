// SPDX-License-Identifier: Apache-2.0
#include "GraphicsBundle.h"
#include "TestDocuments.h"
#include "dialog/LibcupsServer.h"
#include "dialog/PrintDialog.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDirIterator>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTranslator>

#include <gmock/gmock.h>

using namespace dialog;
using testing::IsEmpty;

namespace {

/// A copy of the panel's bundle that has one language alone, whatever the system's is. It is one
/// folder for the whole run, so that the program file in it is loaded once.
QString bundleIn(const QString &language)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("GraphicsPDE.plugin"));
    const QString texts =
        QStringLiteral(BUNDLE_DIR "/Resources/%1.lproj/Localizable.qm").arg(language);
    for (QDirIterator files(QStringLiteral(BUNDLE_DIR), QDir::Files, QDirIterator::Subdirectories);
         files.hasNext();) {
        const QString file = files.next();
        const bool isTexts = file.endsWith(QLatin1String("Localizable.qm"));
        const QString copy = path + file.mid(QStringLiteral(BUNDLE_DIR).size());
        QDir().mkpath(QFileInfo(copy).path());
        if (isTexts) {
            QFile::remove(copy);
        }
        if (!QFile::exists(copy)) {
            EXPECT_TRUE(QFile::copy(isTexts ? texts : file, copy)) << copy.toStdString();
        }
    }
    return path;
}

/// The window with the real panel, all of it in one language.
class DialogWindowStrings : public DocumentFolder, public testing::WithParamInterface<const char *>
{
protected:
    DialogWindowStrings()
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                           folder.filePath(QStringLiteral("config")));
        EXPECT_TRUE(translator.load(QStringLiteral("dialog_") + language,
                                    QStringLiteral(DIALOG_STRINGS_DIR)));
        QCoreApplication::installTranslator(&translator);
        auto cups = std::make_shared<LibcupsServer>(QStringLiteral("/nonexistent/cups.sock"));
        auto panel = loading::BundleLoader().load(bundleIn(language));
        EXPECT_TRUE(panel);
        PlugIns plugIns{std::make_shared<loading::LoadedPlugIn>(std::move(panel).value())};
        const PrintController::Folder printTo{kSamplePpd, folder.filePath(QStringLiteral("out"))};
        controller =
            std::make_unique<PrintController>(cups, plugIns, printTo, PanelSet::Views::Made);
        printers = std::make_unique<PrinterList>(cups);
        window = std::make_unique<PrintDialog>(*controller, *printers);
        window->setDocument(opened(pdfOfPages(12)));
        window->wishPrinter(QStringLiteral("folder"));
        window->show();
        QTest::qWait(1);
    }
    template <class W> W *find(const char *name)
    {
        W *widget = window->findChild<W *>(QLatin1String(name));
        EXPECT_TRUE(widget) << name;
        return widget;
    }
    template <class W> QList<W *> shown() const
    {
        QList<W *> widgets = window->findChildren<W *>();
        widgets.removeIf([](const W *widget) { return !widget->isVisible(); });
        return widgets;
    }
    QStringList cutOff() const;
    QStringList keys() const;

    const QString language = QLatin1String(GetParam());
    QTranslator translator;
    std::unique_ptr<PrintController> controller;
    std::unique_ptr<PrinterList> printers;
    std::unique_ptr<PrintDialog> window;
};

std::string languageOf(const testing::TestParamInfo<const char *> &test)
{
    return test.param;
}

INSTANTIATE_TEST_SUITE_P(Languages, DialogWindowStrings,
                         testing::Values("en", "de", "fr", "es", "ja"), languageOf);

bool fits(const QLabel &label)
{
    return label.wordWrap()
        ? label.heightForWidth(label.width()) <= label.height()
        : label.sizeHint().width() <= label.width() && label.sizeHint().height() <= label.height();
}

bool fits(const QAbstractButton &button)
{
    return button.text().isEmpty()
        || (button.sizeHint().width() <= button.width()
            && button.sizeHint().height() <= button.height());
}

/// Whether the window shows the whole widget, not only a part that its scroll area leaves over.
bool isUncovered(const QWidget &widget)
{
    return widget.visibleRegion().boundingRect() == widget.rect();
}

QStringList DialogWindowStrings::cutOff() const
{
    QStringList texts;
    for (const QLabel *label : shown<QLabel>()) {
        if (!label->text().isEmpty() && !(fits(*label) && isUncovered(*label))) {
            texts << label->text();
        }
    }
    for (const QAbstractButton *button : shown<QAbstractButton>()) {
        if (!button->text().isEmpty() && !(fits(*button) && isUncovered(*button))) {
            texts << button->text();
        }
    }
    for (const QTabBar *tabs : shown<QTabBar>()) {
        if (tabs->sizeHint().width() > tabs->width()) {
            texts << tabs->tabText(0);
        }
    }
    return texts;
}

/// The keys of what is shown, in the order of the widgets.
QStringList DialogWindowStrings::keys() const
{
    QStringList texts;
    for (const QLabel *label : shown<QLabel>()) {
        if (label->buddy()) {
            texts << label->text();
        }
    }
    for (const QAbstractButton *button : shown<QAbstractButton>()) {
        texts << button->text();
    }
    QStringList keys;
    for (const QString &text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        if (!key.isEmpty()) {
            keys << key;
        }
    }
    return keys;
}

TEST_P(DialogWindowStrings, GiveEachFieldAndButtonAKeyOfItsOwn)
{
    const QStringList all = keys();
    EXPECT_GE(all.size(), 7 + 5) << "of the window and of the panel";
    EXPECT_EQ(QSet<QString>(all.begin(), all.end()).size(), all.size())
        << all.join(u' ').toStdString();
}

TEST_P(DialogWindowStrings, AreInOneLanguage)
{
    const std::map<QString, QStringList> expected{
        {QStringLiteral("en"), {QStringLiteral("&Print"), QStringLiteral("&Brightness:")}},
        {QStringLiteral("de"), {QStringLiteral("&Drucken"), QStringLiteral("&Helligkeit:")}},
        {QStringLiteral("fr"), {QStringLiteral("&Imprimer"), QStringLiteral("&Luminosité\u00a0:")}},
        {QStringLiteral("es"), {QStringLiteral("&Imprimir"), QStringLiteral("&Brillo:")}},
        {QStringLiteral("ja"), {QStringLiteral("印刷(&P)"), QStringLiteral("明るさ(&B):")}}};
    QStringList labels;
    for (const QLabel *label : shown<QLabel>()) {
        labels << label->text();
    }
    EXPECT_EQ(find<QAbstractButton>("print")->text(), expected.at(language).at(0));
    EXPECT_TRUE(labels.contains(expected.at(language).at(1))) << labels.join(u' ').toStdString();
}

TEST_P(DialogWindowStrings, AreAllToBeReadAtTheWindowsFirstSize)
{
    EXPECT_EQ(window->size(), QSize(960, 700));
    ASSERT_GT(shown<QLabel>().size(), 10);
    EXPECT_THAT(cutOff(), IsEmpty());
    find<QTabWidget>("panels")->setCurrentIndex(1);
    QTest::qWait(1);
    EXPECT_THAT(cutOff(), IsEmpty());
    const auto *scaling = find<QComboBox>("scaling");
    EXPECT_LE(scaling->sizeHint().width(), scaling->width());
}

TEST_P(DialogWindowStrings, LeaveRoomForTheHintOfThePages)
{
    const auto *pages = find<QLineEdit>("pages");
    // A field wants room for 17 letters x, the rest of its width is its frame.
    const int frame =
        pages->sizeHint().width() - 17 * pages->fontMetrics().horizontalAdvance(QLatin1Char('x'));
    EXPECT_LE(pages->fontMetrics().horizontalAdvance(pages->placeholderText()) + frame,
              pages->width());
}

TEST_P(DialogWindowStrings, SayAllOfAClash)
{
    auto *colours = find<QComboBox>("mColorPUBtn");
    colours->setCurrentIndex(1);
    Q_EMIT colours->activated(1);
    find<QTabWidget>("panels")->setCurrentIndex(1);
    find<QComboBox>("option.Resolution")->setCurrentIndex(1);
    QTest::qWait(1);
    ASSERT_TRUE(find<QAbstractButton>("messageAction")->isVisible());
    EXPECT_THAT(cutOff(), IsEmpty());
}

} // namespace
