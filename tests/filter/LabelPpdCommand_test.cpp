// SPDX-License-Identifier: Apache-2.0
#include "filter/SmallPpd.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <cups/file.h>
#include <gmock/gmock.h>
#include <sys/stat.h>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// The program, run in a folder of its own that holds small.ppd.
class LabelPpdCommand : public testing::Test
{
protected:
    LabelPpdCommand() { write("small.ppd", smallPpd()); }

    QString path(const char *name) const { return mFolder.filePath(QString::fromLatin1(name)); }

    void write(const char *name, const std::string &text) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(text.data(), static_cast<qint64>(text.size())),
                  static_cast<qint64>(text.size()));
    }

    std::string read(const char *name) const { return contentsOf(path(name).toStdString()); }

    /// The exit status; mSaid and mComplained are what the program wrote.
    int run(const QStringList &arguments, const std::string &input = {})
    {
        QProcess process;
        process.setWorkingDirectory(mFolder.path());
        process.start(QStringLiteral(LABEL_PPD), arguments);
        process.write(input.data(), static_cast<qint64>(input.size()));
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        mSaid = process.readAllStandardOutput().toStdString();
        mComplained = process.readAllStandardError().toStdString();
        return process.exitCode();
    }

    int run(const char *arguments, const std::string &input = {})
    {
        return run(QString::fromLatin1(arguments).split(QLatin1Char(' ')), input);
    }

    QStringList files() const { return QDir(mFolder.path()).entryList(QDir::Files | QDir::Hidden); }

    QTemporaryDir mFolder;
    std::string mSaid;
    std::string mComplained;
};

TEST_F(LabelPpdCommand, WritesToStandardOutput)
{
    EXPECT_EQ(run("small.ppd"), 0);
    EXPECT_THAT(mSaid,
                HasSubstr("*cupsPreFilter: \"application/vnd.cups-raster 0 labelgraphics\""));
    EXPECT_EQ(mComplained, "");
}

TEST_F(LabelPpdCommand, WritesToAFileAndLeavesThePpdAsItIs)
{
    EXPECT_EQ(run("small.ppd -o new.ppd"), 0);
    EXPECT_EQ(mSaid, "");
    EXPECT_THAT(read("new.ppd"), HasSubstr("*OpenUI *CvRedLevel"));
    EXPECT_EQ(read("small.ppd"), smallPpd());
    EXPECT_EQ(files(), QStringList({QStringLiteral("new.ppd"), QStringLiteral("small.ppd")}));
}

TEST_F(LabelPpdCommand, TakesThePpdFromStandardInput)
{
    EXPECT_EQ(run("small.ppd"), 0);
    const std::string expected = mSaid;
    EXPECT_EQ(run("-", smallPpd()), 0);
    EXPECT_EQ(mSaid, expected);
}

TEST_F(LabelPpdCommand, UnpacksACompressedPpd)
{
    EXPECT_EQ(run("small.ppd"), 0);
    const std::string expected = mSaid;
    cups_file_t *file = cupsFileOpen(path("small.ppd.gz").toUtf8().constData(), "w9");
    cupsFileWrite(file, smallPpd().data(), smallPpd().size());
    cupsFileClose(file);
    EXPECT_EQ(run("small.ppd.gz"), 0);
    EXPECT_EQ(mSaid, expected);

    // Cut in the middle, and cut behind the data: both lack a part.
    const std::string packed = read("small.ppd.gz");
    for (const std::size_t size : {packed.size() / 2, packed.size() - 6, std::size_t(3)}) {
        write("cut.ppd.gz", packed.substr(0, size));
        EXPECT_EQ(run("cut.ppd.gz"), 3);
        EXPECT_EQ(mComplained,
                  "label-ppd: cut.ppd.gz: the file is compressed, but cut off or "
                  "damaged; get it once more\n");
    }
}

TEST_F(LabelPpdCommand, ReplacesAnOlderResultButKeepsItsPermissions)
{
    write("new.ppd", "old");
    ASSERT_EQ(chmod(path("new.ppd").toUtf8().constData(), 0640), 0);
    EXPECT_EQ(run("-o new.ppd small.ppd"), 0);
    EXPECT_THAT(read("new.ppd"), StartsWith("*PPD-Adobe"));
    struct stat status
    { };
    ASSERT_EQ(stat(path("new.ppd").toUtf8().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & ALLPERMS, 0640U);
}

TEST_F(LabelPpdCommand, WritesToTheFileThatALinkNames)
{
    write("real.ppd", "old");
    ASSERT_TRUE(QFile::link(QStringLiteral("real.ppd"), path("link.ppd")));
    EXPECT_EQ(run("small.ppd -o link.ppd"), 0);
    EXPECT_THAT(read("real.ppd"), StartsWith("*PPD-Adobe"));
    EXPECT_TRUE(QFileInfo(path("link.ppd")).isSymLink());
}

TEST_F(LabelPpdCommand, NeverWritesOverThePpdItself)
{
    ASSERT_TRUE(QFile::link(QStringLiteral("small.ppd"), path("link.ppd")));
    ASSERT_EQ(link(path("small.ppd").toUtf8().constData(), path("twin.ppd").toUtf8().constData()),
              0);
    for (const char *name : {"small.ppd", "./small.ppd", "link.ppd", "twin.ppd"}) {
        EXPECT_EQ(
            run({QStringLiteral("small.ppd"), QStringLiteral("-o"), QString::fromLatin1(name)}), 3);
        EXPECT_THAT(mComplained, HasSubstr("this is the PPD itself"));
        EXPECT_EQ(read("small.ppd"), smallPpd());
    }
}

TEST_F(LabelPpdCommand, NeverAppendsToThePpdItself)
{
    QProcess process;
    process.setStandardOutputFile(path("small.ppd"), QIODevice::Append);
    process.start(QStringLiteral(LABEL_PPD), {path("small.ppd")});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 3);
    EXPECT_EQ(read("small.ppd"), smallPpd());
}

TEST_F(LabelPpdCommand, ARefusedPpdLeavesAnOlderResultAsItIs)
{
    write("new.ppd", "old");
    EXPECT_EQ(run("--two-colour small.ppd -o new.ppd"), 1);
    EXPECT_EQ(mComplained,
              "label-ppd: small.ppd: no choice of it asks for raster in colour, so that red would "
              "come out black; leave --two-colour out\n");
    EXPECT_EQ(read("new.ppd"), "old");
    EXPECT_EQ(mSaid, "");
}

struct Complaint
{
    const char *name;
    const char *arguments;
    int status;
    const char *text;
};

class LabelPpdComplaint : public LabelPpdCommand, public testing::WithParamInterface<Complaint>
{ };

TEST_P(LabelPpdComplaint, IsOneSentenceAndAStatus)
{
    ASSERT_TRUE(QDir(mFolder.path()).mkdir(QStringLiteral("folder")));
    EXPECT_EQ(run(GetParam().arguments), GetParam().status);
    EXPECT_EQ(mComplained, std::string("label-ppd: ") + GetParam().text + "\n");
    EXPECT_EQ(mSaid, "");
}

INSTANTIATE_TEST_SUITE_P(
    All, LabelPpdComplaint,
    testing::Values(
        Complaint{"NoPpd", "--two-colour", 2,
                  "PPD: name the PPD that gets the options, or - for standard input"},
        Complaint{"UnknownOption", "--red small.ppd", 2,
                  "--red: there is no such option; label-ppd --help lists them"},
        Complaint{"TwoPpds", "small.ppd small.ppd", 2,
                  "small.ppd: one PPD at a time; small.ppd is named already"},
        Complaint{"NoOutputName", "small.ppd -o", 2, "-o: name the file that the result goes to"},
        Complaint{"TwoOutputs", "small.ppd -o a --output=b", 2,
                  "--output: the result goes to one file; a is named already"},
        Complaint{"NoSuchFile", "none.ppd", 3,
                  "none.ppd: the file cannot be read: No such file or directory"},
        Complaint{"Folder", "folder", 3, "folder: the file cannot be read: Is a directory"},
        Complaint{"Endless", "/dev/zero", 3,
                  "/dev/zero: the file is larger than 16 MiB, so that it cannot be a PPD"},
        Complaint{"OutputIsFolder", "small.ppd -o folder", 3,
                  "folder: this is not an ordinary file; name another one, or leave -o out for "
                  "standard output"},
        Complaint{"OutputIsDevice", "small.ppd -o /dev/null", 3,
                  "/dev/null: this is not an ordinary file; name another one, or leave -o out for "
                  "standard output"},
        Complaint{"OutputFolderIsMissing", "small.ppd --output none/new.ppd", 3,
                  "none/new.ppd: the file cannot be written: No such file or directory"},
        Complaint{"NotAPpd", "-- -", 1, "standard input: the file is empty; give a PPD"}),
    [](const auto &complaint) { return complaint.param.name; });

TEST_F(LabelPpdCommand, AFullDeviceIsAFailure)
{
    QProcess process;
    process.setStandardOutputFile(QStringLiteral("/dev/full"));
    process.start(QStringLiteral(LABEL_PPD), {path("small.ppd")});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 3);
    EXPECT_EQ(process.readAllStandardError().toStdString(),
              "label-ppd: standard output: the PPD cannot be written: No space left on device\n");
}

TEST_F(LabelPpdCommand, NoControlCharacterOfThePpdReachesTheTerminal)
{
    EXPECT_EQ(run("-",
                  with(smallPpd(), "50 rastertolabel",
                       "50 a\x1b[2Jb\"\n*cupsFilter: "
                       "\"text/plain 0 c\x1b[2Jd")),
              1);
    EXPECT_THAT(mComplained, HasSubstr("the filter c?[2Jd takes text/plain"));
    EXPECT_THAT(mComplained, Not(HasSubstr("\x1b")));
}

TEST_F(LabelPpdCommand, HelpNamesEveryOptionAndStatus)
{
    EXPECT_EQ(run("--help"), 0);
    for (const char *word : {"--output", "--two-colour", "--version", "Exit status: 0"}) {
        EXPECT_THAT(mSaid, HasSubstr(word));
    }
    const std::string help = mSaid;
    EXPECT_EQ(run("small.ppd -h"), 0);
    EXPECT_EQ(mSaid, help);
}

TEST_F(LabelPpdCommand, VersionIsThatOfTheProject)
{
    EXPECT_EQ(run("--version"), 0);
    EXPECT_EQ(mSaid, "label-ppd " LABELPRINT_VERSION "\n");
}

} // namespace
