// SPDX-License-Identifier: Apache-2.0
#include "platform/Bundle.h"
#include "plugin/PrintDialogExtension.h"
#include "support/RecordingHost.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibrary>
#include <QProcess>
#include <QRegularExpression>
#include <QWidget>

#include <gmock/gmock.h>

// The bundle as a print dialog sees it: nothing of the panel is linked here.

namespace {

QString inBundle(const char *name)
{
    return QStringLiteral(BUNDLE_DIR "/") + QLatin1String(name);
}

QJsonObject metadata()
{
    QFile file(inBundle("bundle.json"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QJsonDocument::fromJson(file.readAll()).object();
}

QString executable()
{
    return QStringLiteral(BUNDLE_DIR "/") + metadata().value(u"executable").toString();
}

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

QStringList listedExports()
{
    QFile file(QStringLiteral(SOURCE_DIR "/plugin/bundle/exports.map"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QRegularExpression line(QStringLiteral("^ +([A-Za-z0-9_]+);$"),
                                  QRegularExpression::MultilineOption);
    QStringList names;
    for (const auto &match : line.globalMatch(QString::fromUtf8(file.readAll()))) {
        names << match.captured(1);
    }
    return sorted(names);
}

QStringList dynamicSymbols()
{
    QProcess nm;
    nm.start(QStringLiteral(NM_PROGRAM),
             {QStringLiteral("-D"), QStringLiteral("--defined-only"), QStringLiteral("-j"),
              executable()});
    EXPECT_TRUE(nm.waitForFinished());
    EXPECT_EQ(nm.exitCode(), 0);
    return sorted(QString::fromUtf8(nm.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts));
}

TEST(GraphicsBundle, MetadataFitsTheContract)
{
    const QJsonObject object = metadata();
    EXPECT_EQ(object.value(u"interfaceVersion").toInt(), kPDEInterfaceVersion);
    EXPECT_EQ(object.value(u"principalClass").toString(),
              QStringLiteral("CVVLGraphics17PlugIn13_v300_"));
    EXPECT_EQ(object.value(u"panelTypes").toArray(), QJsonArray{QString(kPrintDialogPanelType)});
    EXPECT_TRUE(QFileInfo(executable()).isFile());
    EXPECT_EQ(object.value(u"executable").toString(), QFileInfo(executable()).fileName());
}

TEST(GraphicsBundle, ExportsTheListedNamesAndNoOthers)
{
    EXPECT_EQ(dynamicSymbols(), listedExports());
}

TEST(GraphicsBundle, ExportsThePlugInTheTapeQueriesAndTheDiagnostics)
{
    QStringList expected;
    for (const char *name : {"CVVLGraphics17PlugIn13_v300__initWithBundle",
                             "Get_MenuCount",
                             "Get_MenuKeyStr",
                             "GetTapeInfo",
                             "GetTapeInfo2",
                             "GetTapeInfo3",
                             "GetTicketFromSession",
                             "GetColorSetting",
                             "RoundDouble",
                             "MiriToInch",
                             "InchToMiri",
                             "OP_MENU",
                             "QUAL_MENU",
                             "_PDEProlog",
                             "_PDEEpilog",
                             "_PDELog",
                             "_PDELog_ppd_option_t",
                             "_PDELog_PMPrintSettings_WriteToFile",
                             "debugLog",
                             "debugLogFd",
                             "memoryCheck",
                             "memoryCheckFd"}) {
        expected << QLatin1String(name);
    }
    for (const QString &name : dynamicSymbols()) {
        expected.removeAll(name);
    }
    EXPECT_EQ(expected, QStringList());
}

TEST(GraphicsBundle, OnlyItsOwnerMayWriteToIt)
{
    QStringList open;
    const auto look = [&open](const QFileInfo &file) {
        if (file.permissions() & (QFile::WriteGroup | QFile::WriteOther)) {
            open << file.filePath();
        }
    };
    look(QFileInfo(QStringLiteral(BUNDLE_DIR)));
    QDirIterator files(QStringLiteral(BUNDLE_DIR), QDir::AllEntries | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        look(files.fileInfo());
    }
    EXPECT_EQ(open, QStringList());
}

class LoadedBundle : public testing::Test
{
protected:
    LoadedBundle()
        : library(executable())
        , bundle(QStringLiteral(BUNDLE_DIR), {QStringLiteral("en")})
        , testPpd(TestPpd::fromFile(QStringLiteral("six-options.ppd")))
        , host(std::make_shared<RecordingHost>(&testPpd))
    {
        library.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
        EXPECT_TRUE(library.load()) << library.errorString().toStdString();
        const auto init = reinterpret_cast<PDEInitWithBundle>(
            library.resolve("CVVLGraphics17PlugIn13_v300__initWithBundle"));
        plugIn.reset(init ? init(&bundle) : nullptr);
    }

    QLibrary library;
    platform::Bundle bundle;
    TestPpd testPpd;
    std::shared_ptr<RecordingHost> host;
    std::unique_ptr<PDEPlugIn> plugIn;
};

TEST_F(LoadedBundle, GivesAPanelWithAViewFromItsResources)
{
    ASSERT_TRUE(plugIn);
    const auto panels = plugIn->PDEPanelsForType(kPrintDialogPanelType, host);
    ASSERT_TRUE(panels);
    ASSERT_EQ(panels->size(), 1U);
    PDEPanel &panel = *panels->front();
    EXPECT_EQ(panel.panelName(), QStringLiteral("Graphics"));
    const QWidget *view = panel.panelView();
    ASSERT_TRUE(view);
    EXPECT_GT(view->width(), 0);
    EXPECT_TRUE(view->findChild<QWidget *>(QStringLiteral("mBrightnessSlider")));
}

TEST_F(LoadedBundle, PanelAnswersTheWholeOrderOfCalls)
{
    ASSERT_TRUE(plugIn);
    const auto panels = plugIn->PDEPanelsForType(kPrintDialogPanelType, host);
    ASSERT_TRUE(panels);
    PDEPanel &panel = *panels->front();
    const auto keys = panel.supportedPPDOptionKeys();
    ASSERT_TRUE(keys);
    EXPECT_EQ(keys->size(), 6);
    ASSERT_TRUE(panel.panelView());
    panel.willShow();
    EXPECT_TRUE(panel.restoreValuesAndReturnError(nullptr));
    EXPECT_TRUE(panel.saveValuesAndReturnError(nullptr));
    EXPECT_TRUE(panel.shouldPrint());
    EXPECT_TRUE(panel.summaryInfo());
    for (const QString &key : *keys) {
        EXPECT_NE(testPpd.marked(key.toUtf8()), QByteArray()) << key.toStdString();
    }
    panel.printWindowWillClose(false);
}

} // namespace
