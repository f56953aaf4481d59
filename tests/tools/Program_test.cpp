// SPDX-License-Identifier: Apache-2.0
#include "support/TestBundles.h"

#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using testing::HasSubstr;

namespace {

/// The program as its user starts it, without any display.
struct Ended
{
    int status = -1;
    std::string output;
    std::string errors;
};

Ended run(const QStringList &arguments, const QByteArray &input = {})
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR"}) {
        environment.remove(QLatin1String(name));
    }
    // Plug-ins of the tester's own would come before the build's.
    const QTemporaryDir home;
    environment.insert(QStringLiteral("HOME"), home.path());
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home.path());
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(PROGRAM), arguments);
    program.write(input);
    program.closeWriteChannel();
    EXPECT_TRUE(program.waitForFinished(60000)) << program.errorString().toStdString();
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    return {program.exitCode(), program.readAllStandardOutput().toStdString(),
            program.readAllStandardError().toStdString()};
}

void expectRefused(const Ended &ended, const char *why)
{
    EXPECT_EQ(ended.status, 2);
    EXPECT_EQ(ended.output, "");
    EXPECT_THAT(ended.errors, HasSubstr(why));
    EXPECT_EQ(std::count(ended.errors.begin(), ended.errors.end(), '\n'), 1) << ended.errors;
}

const QStringList kBundle{QStringLiteral("--plugin"), QStringLiteral(BUNDLE_DIR)};

TEST(PanelSessionProgram, EndsWithZeroWhateverTheRepliesSaid)
{
    const Ended ended = run(kBundle, "nonsense\n\n{\"do\":\"panelName\"}");
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(std::count(ended.output.begin(), ended.output.end(), '\n'), 3);
    EXPECT_EQ(ended.errors, "");
    EXPECT_EQ(run(kBundle).status, 0);
}

TEST(PanelSessionProgram, FindsThePlugInAsTheDialogDoesWhenNoneIsNamed)
{
    EXPECT_THAT(run({}, "{\"do\":\"open\",\"ppd\":null}\n").output, HasSubstr("\"panels\":1"));
}

TEST(PanelSessionProgram, OfSeveralPlugInsTakesTheOneThatCanBeLookedInto)
{
    TestBundles bundles;
    bundles.copy(QStringLiteral("Good"));
    const QString bundle = QStringLiteral(BUNDLE_DIR);
    TestBundles::link(bundle, bundles.path() + QStringLiteral("/Panel.plugin"));
    const QStringList folder{QStringLiteral("--plugin"), bundles.path()};
    EXPECT_THAT(run(folder, "{\"do\":\"formatter.new\"}\n").output, HasSubstr("\"ok\":true"));
}

TEST(PanelSessionProgram, FlushesEveryReply)
{
    QProcess program;
    program.start(QStringLiteral(PROGRAM), kBundle);
    for (int i = 0; i < 3; ++i) {
        program.write("{\"do\":\"panelName\"}\n");
        QByteArray reply;
        while (!reply.endsWith('\n') && program.waitForReadyRead(30000)) {
            reply += program.readAllStandardOutput();
        }
        EXPECT_EQ(reply.count('\n'), 1);
    }
    program.closeWriteChannel();
    EXPECT_TRUE(program.waitForFinished(30000));
}

TEST(PanelSessionProgram, RefusesUnusableArgumentsWithOneLine)
{
    expectRefused(run({QStringLiteral("--bogus")}), "bogus");
    expectRefused(run({QStringLiteral("a.jsonl")}), "a.jsonl: requests are read from");
}

TEST(PanelSessionProgram, RefusesABundleThatCannotBeLoadedWithOneLine)
{
    TestBundles bundles;
    const QString plugin = QStringLiteral("--plugin");
    expectRefused(run({plugin, QStringLiteral("/nonexistent")}), "there is no such folder");
    expectRefused(run({plugin, bundles.copy(QStringLiteral("WrongVersion"))}),
                  "plug-in WrongVersion is left out: it is made for version 2");
    expectRefused(run({plugin, bundles.copy(QStringLiteral("NotASharedObject"))}),
                  "cannot be loaded");
}

TEST(PanelSessionProgram, HelpAndVersionGoToStandardOutput)
{
    const Ended help = run({QStringLiteral("--help")});
    EXPECT_EQ(help.status, 0);
    EXPECT_THAT(help.output, HasSubstr("Usage: panel-session [options]"));
    const Ended version = run({QStringLiteral("--version")});
    EXPECT_EQ(version.status, 0);
    EXPECT_THAT(version.output, HasSubstr("panel-session 0."));
}

} // namespace
