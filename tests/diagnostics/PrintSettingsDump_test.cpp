// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/PrintSettingsDump.h"

#include "diagnostics/Diagnostics.h"
#include "platform/PrintCore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <sys/stat.h>

using diagnostics::dumpFolder;
using diagnostics::writeDump;

namespace {

const QByteArray kXml = "<?xml version=\"1.0\"?>\n<plist version=\"1.0\"><dict/></plist>\n";

struct DumpedSettings : PMPrintSettings
{
    std::optional<QByteArray> data = kXml;

    std::optional<QByteArray> value(const QString &) const override { return std::nullopt; }
    PMResult<quint32> firstPage() const override { return {}; }
    OSStatus setFirstPage(quint32) override { return 0; }
    PMResult<quint32> lastPage() const override { return {}; }
    OSStatus setLastPage(quint32) override { return 0; }
    std::optional<QByteArray> dataRepresentation() const override { return data; }
};

class PrintSettingsDump : public testing::Test
{
protected:
    PrintSettingsDump() { qputenv("LABEL_PRINT_DUMP_FOLDER", QFile::encodeName(folder.path())); }
    ~PrintSettingsDump() override { qunsetenv("LABEL_PRINT_DUMP_FOLDER"); }

    QStringList files() const
    {
        return QDir(folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    QString path(const char *name) const { return folder.filePath(QString::fromUtf8(name)); }

    QByteArray content(const char *name) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        return file.readAll();
    }

    void put(const QString &file, const QByteArray &data)
    {
        QFile out(file);
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(data);
    }

    QTemporaryDir folder;
    DumpedSettings settings;
};

TEST_F(PrintSettingsDump, WritesThePropertyList)
{
    _PDELog_PMPrintSettings_WriteToFile(&settings, "job");
    EXPECT_EQ(files(), QStringList{QStringLiteral("CvPDE_job.plist")});
    EXPECT_EQ(content("CvPDE_job.plist"), kXml);
}

TEST_F(PrintSettingsDump, NameGoesInAsItStands)
{
    for (const char *name : {"", "%d%@", "a b", "é", ".."}) {
        _PDELog_PMPrintSettings_WriteToFile(&settings, name);
        const QByteArray file = QByteArray("CvPDE_") + name + ".plist";
        EXPECT_EQ(content(file.constData()), kXml);
        QFile::remove(path(file.constData()));
    }
    EXPECT_EQ(files(), QStringList());
}

TEST_F(PrintSettingsDump, NothingToWriteWritesNoFile)
{
    _PDELog_PMPrintSettings_WriteToFile(nullptr, "job");
    _PDELog_PMPrintSettings_WriteToFile(&settings, nullptr);
    settings.data.reset();
    _PDELog_PMPrintSettings_WriteToFile(&settings, "job");
    EXPECT_EQ(files(), QStringList());
}

TEST_F(PrintSettingsDump, NamesOfOtherFoldersAreRefused)
{
    QDir(folder.path()).mkdir(QStringLiteral("CvPDE_a"));
    _PDELog_PMPrintSettings_WriteToFile(&settings, "a/b");
    _PDELog_PMPrintSettings_WriteToFile(&settings, "x/../../y");
    writeDump(folder.path(), QStringLiteral("z\0b"), kXml);
    EXPECT_EQ(files(), QStringList{QStringLiteral("CvPDE_a")});
    EXPECT_TRUE(QDir(path("CvPDE_a")).isEmpty());
}

TEST_F(PrintSettingsDump, OnlyTheOwnerMayReadIt)
{
    const mode_t former = umask(0);
    put(path("CvPDE_old.plist"), "old");
    writeDump(folder.path(), QStringLiteral("new"), kXml);
    writeDump(folder.path(), QStringLiteral("old"), kXml);
    umask(former);
    for (const char *name : {"CvPDE_new.plist", "CvPDE_old.plist"}) {
        EXPECT_EQ(QFileInfo(path(name)).permissions(),
                  QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser)
            << name;
    }
    EXPECT_EQ(content("CvPDE_old.plist"), kXml);
}

TEST_F(PrintSettingsDump, LinkIsReplacedNotFollowed)
{
    put(path("victim"), "precious");
    QFile::link(path("victim"), path("CvPDE_job.plist"));
    writeDump(folder.path(), QStringLiteral("job"), kXml);
    EXPECT_FALSE(QFileInfo(path("CvPDE_job.plist")).isSymLink());
    EXPECT_EQ(content("CvPDE_job.plist"), kXml);
    EXPECT_EQ(content("victim"), "precious");
}

TEST_F(PrintSettingsDump, LinkToNowhereMakesNoFileThere)
{
    QFile::link(path("elsewhere"), path("CvPDE_job.plist"));
    writeDump(folder.path(), QStringLiteral("job"), kXml);
    EXPECT_EQ(files(), QStringList{QStringLiteral("CvPDE_job.plist")});
    EXPECT_EQ(content("CvPDE_job.plist"), kXml);
}

TEST_F(PrintSettingsDump, FailureLeavesNothingBehind)
{
    QDir(folder.path()).mkdir(QStringLiteral("CvPDE_taken.plist"));
    put(path("CvPDE_taken.plist/in"), "it");
    writeDump(folder.path(), QStringLiteral("taken"), kXml);
    writeDump(folder.path(), QString(300, u'n'), kXml);
    writeDump(path("missing"), QStringLiteral("job"), kXml);
    EXPECT_EQ(files(), QStringList{QStringLiteral("CvPDE_taken.plist")});
    EXPECT_EQ(content("CvPDE_taken.plist/in"), "it");
}

TEST_F(PrintSettingsDump, FolderIsTheChosenThenTheRootThenTheTemporary)
{
    const QString chosen = QStringLiteral("/chosen");
    EXPECT_EQ(dumpFolder(chosen, folder.path()), chosen);
    EXPECT_EQ(dumpFolder({}, folder.path()), folder.path());
    EXPECT_EQ(dumpFolder({}, path("missing")), QDir::tempPath());
}

} // namespace
