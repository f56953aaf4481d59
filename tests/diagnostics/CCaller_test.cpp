// SPDX-License-Identifier: Apache-2.0
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <gmock/gmock.h>

namespace {

const char kPpd[] = R"(*PPD-Adobe: "4.3"
*OpenUI *CvHalftonePattern/Halftone: PickOne
*OrderDependency: 20.5 AnySetup *CvHalftonePattern
*DefaultCvHalftonePattern: ErrorDiffusion
*CvHalftonePattern Binary/Two tones: ""
*CvHalftonePattern Dither/Dither: ""
*CvHalftonePattern ErrorDiffusion/Error diffusion: ""
*CloseUI: *CvHalftonePattern
)";

/// The program in C, run once.
class CCaller : public testing::Test
{
protected:
    CCaller()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LABEL_PRINT_DUMP_FOLDER"), folder.path());
        // File names are UTF-8 in every locale.
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
        program.setProcessEnvironment(environment);
        EXPECT_TRUE(ppd.open());
        ppd.write(kPpd);
        ppd.close();
        program.start(QStringLiteral(C_CALLER), {ppd.fileName()});
        EXPECT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(program.exitCode(), 0);
    }

    QTemporaryFile ppd;
    QTemporaryDir folder;
    QProcess program;
};

TEST_F(CCaller, LogsAndWritesToItsStandardOutput)
{
    EXPECT_EQ(program.readAllStandardOutput().toStdString(),
              "BEGIN self(Panel 7) 1 of two\n"
              "LOG 3 items, Panel 7 and 2.5\n"
              "END self(Panel 7) (null)\n"
              "PPD file is not loaded!!\n"
              "ppdOptionName is NULL!!\n"
              "+-+-+-+-+-+-+-+-+-+- start is CvHalftonePattern\n"
              "***** conflicted | \n"
              "***** keyword | CvHalftonePattern\n"
              "***** defchoice | ErrorDiffusion\n"
              "***** text | Halftone\n"
              "***** ui == 1\n"
              "***** section == 0\n"
              "***** order == 20.500000\n"
              "***** num_choices == 3\n"
              "***** choices->marked | \n"
              "***** choices->choice | Binary\n"
              "***** choices->text | Two tones\n"
              "+-+-+-+-+-+-+-+-+-+- end is CvHalftonePattern\n"
              "to a descriptor\n"
              "000102030405060708090a0b0c0d0e0f\n"
              "10111213\n");
}

TEST_F(CCaller, WritesToItsStandardErrorStream)
{
    EXPECT_EQ(program.readAllStandardError().toStdString(),
              "DEBUG: Panel 7 € 5000000000\n"
              "DEBUG:000102030405060708090a0b0c0d0e0fDEBUG:10111213");
}

TEST_F(CCaller, WritesThePrintSettings)
{
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden),
              QStringList{QStringLiteral("CvPDE_\u00E9.plist")});
    QFile file(folder.filePath(QStringLiteral("CvPDE_\u00E9.plist")));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "<plist/>\n");
}

TEST(TraceExample, OfTheGuideWritesWhatItsCommentsSay)
{
    QProcess program;
    program.start(QStringLiteral(TRACE_EXAMPLE), QStringList());
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(program.readAllStandardError().toStdString(), "DEBUG: Colours has 41 choices\n");
    EXPECT_EQ(program.readAllStandardOutput().toStdString(), "4142\n");
}

} // namespace
