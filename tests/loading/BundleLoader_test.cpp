// SPDX-License-Identifier: Apache-2.0
#include "loading/BundleLoader.h"

#include "support/TestBundles.h"

#include <QFile>
#include <QFileInfo>

#include <gmock/gmock.h>

using loading::BundleLoader;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

class BundleLoaderTest : public testing::Test
{
protected:
    /// The sentence with which the bundle at `path` is left out; empty when it is taken.
    static std::string sentence(const QString &path)
    {
        const auto result = BundleLoader().load(path);
        if (result) {
            return {};
        }
        return result.failure().text().toStdString();
    }
    std::string sentenceFor(const char *name)
    {
        const std::string text = sentence(bundles.copy(QLatin1String(name)));
        EXPECT_THAT(text, StartsWith("plug-in " + std::string(name) + " is left out: "));
        EXPECT_THAT(text, HasSubstr("; ")) << "says what to do";
        return text;
    }

    TestBundles bundles;
};

TEST_F(BundleLoaderTest, LoadsAGoodBundle)
{
    const QString path = bundles.copy(QStringLiteral("Good"));
    const auto result = BundleLoader().load(path);
    ASSERT_TRUE(result) << result.failure().text().toStdString();
    EXPECT_EQ(result.value().name(), QLatin1String("Good"));
    EXPECT_EQ(result.value().bundle().path(), QFileInfo(path).canonicalFilePath());
    EXPECT_TRUE(TestBundles::codeRan());
    const auto panels = result.value().plugIn().PDEPanelsForType(kPrintDialogPanelType, nullptr);
    ASSERT_TRUE(panels);
    ASSERT_EQ(panels->size(), 1U);
    EXPECT_EQ(panels->front()->panelKind(), QLatin1String("org.example.test"));
}

TEST_F(BundleLoaderTest, OneBundleCanBeLoadedTwice)
{
    const QString path = bundles.copy(QStringLiteral("Good"));
    const auto first = BundleLoader().load(path);
    const auto second = BundleLoader().load(path);
    ASSERT_TRUE(first && second);
    EXPECT_NE(&first.value().plugIn(), &second.value().plugIn());
}

TEST_F(BundleLoaderTest, ALinkInTheBundleMayBeItsProgramFile)
{
    const QString path = bundles.copy(QStringLiteral("Good"));
    ASSERT_TRUE(QFile::rename(path + QStringLiteral("/Good.so"), path + QStringLiteral("/G.1")));
    TestBundles::link(QStringLiteral("G.1"), path + QStringLiteral("/Good.so"));
    EXPECT_EQ(sentence(path), "");
}

TEST_F(BundleLoaderTest, OtherInterfaceVersionIsLeftOut)
{
    EXPECT_THAT(sentenceFor("WrongVersion"), HasSubstr("made for version 2"));
    EXPECT_FALSE(TestBundles::codeRan());
}

TEST_F(BundleLoaderTest, MissingPrincipalClassIsLeftOut)
{
    EXPECT_THAT(sentenceFor("NoPrincipalClass"), HasSubstr("names no principal class"));
    EXPECT_FALSE(TestBundles::codeRan());
}

TEST_F(BundleLoaderTest, OtherPanelTypeIsLeftOut)
{
    EXPECT_THAT(sentenceFor("OtherPanelType"), HasSubstr("no panel for the print dialog"));
    EXPECT_FALSE(TestBundles::codeRan());
}

TEST_F(BundleLoaderTest, DamagedMetadataIsLeftOut)
{
    EXPECT_THAT(sentenceFor("DamagedMetadata"), HasSubstr("its bundle.json is damaged"));
    EXPECT_FALSE(TestBundles::codeRan());
}

TEST_F(BundleLoaderTest, MissingMetadataIsLeftOut)
{
    const QString path = bundles.copy(QStringLiteral("Good"));
    ASSERT_TRUE(QFile::remove(path + QStringLiteral("/bundle.json")));
    EXPECT_EQ(sentence(path),
              "plug-in Good is left out: its bundle.json is missing or cannot be read; install the "
              "plug-in again");
    EXPECT_FALSE(TestBundles::codeRan());
}

TEST_F(BundleLoaderTest, AFolderAsMetadataIsLeftOut)
{
    const QString path = bundles.copy(QStringLiteral("Good"));
    ASSERT_TRUE(QFile::remove(path + QStringLiteral("/bundle.json")));
    TestBundles::write(path + QStringLiteral("/bundle.json/x"), "x");
    EXPECT_THAT(sentence(path), HasSubstr("its bundle.json is missing or cannot be read"));
}

TEST_F(BundleLoaderTest, TooLargeMetadataIsLeftOut)
{
    const QString path = bundles.copy(QStringLiteral("Good"));
    TestBundles::write(path + QStringLiteral("/bundle.json"), QByteArray(64 * 1024 + 1, ' '));
    EXPECT_THAT(sentence(path), HasSubstr("its bundle.json is larger than 65536 bytes"));
    EXPECT_FALSE(TestBundles::codeRan());
}

TEST_F(BundleLoaderTest, MissingProgramFileIsLeftOut)
{
    EXPECT_THAT(sentenceFor("NoSharedObject"),
                HasSubstr("its program file \"Good.so\" is missing"));
}

TEST_F(BundleLoaderTest, FileThatIsNoSharedObjectIsLeftOutWithTheLoadersReason)
{
    const std::string text = sentenceFor("NotASharedObject");
    EXPECT_THAT(text, HasSubstr("its program file \"Good.so\" cannot be loaded ("));
    EXPECT_THAT(text, HasSubstr("ELF"));
}

TEST_F(BundleLoaderTest, PrincipalClassWithoutItsFunctionIsLeftOut)
{
    EXPECT_THAT(sentenceFor("NoFunction"), HasSubstr("lacks the function Absent_initWithBundle"));
}

TEST_F(BundleLoaderTest, PlugInThatDeclinesIsLeftOut)
{
    EXPECT_THAT(sentenceFor("Declining"), HasSubstr("it declines to work here"));
}

TEST_F(BundleLoaderTest, PlugInThatThrowsAtItsStartIsLeftOutWithItsReason)
{
    EXPECT_THAT(sentenceFor("ThrowingAtStart"), HasSubstr("it failed to start (no licence)"));
}

TEST_F(BundleLoaderTest, PlugInThatThrowsNoExceptionClassIsLeftOut)
{
    EXPECT_THAT(sentenceFor("ThrowingNonsense"), HasSubstr("it failed to start (unknown error)"));
}

TEST_F(BundleLoaderTest, BundleThatOthersMayWriteToIsLeftOutBeforeAnyOfItIsRead)
{
    const QString path = bundles.copy(QStringLiteral("DamagedMetadata"), QStringLiteral("Open"));
    TestBundles::setMode(path + QStringLiteral("/Good.so"), 0666);
    EXPECT_THAT(sentence(path),
                StartsWith("plug-in Open is left out: others can write to \"Good.so\""));
    EXPECT_FALSE(TestBundles::codeRan());
}

TEST_F(BundleLoaderTest, ProgramFileOutsideTheBundleIsLeftOut)
{
    const QString other = bundles.copy(QStringLiteral("Good"), QStringLiteral("Other"));
    const QString path = bundles.copy(QStringLiteral("Good"));
    ASSERT_TRUE(QFile::remove(path + QStringLiteral("/Good.so")));
    TestBundles::link(other + QStringLiteral("/Good.so"), path + QStringLiteral("/Good.so"));
    EXPECT_THAT(sentence(path), HasSubstr("the link \"Good.so\" in it leads out of its folder"));
    EXPECT_FALSE(TestBundles::codeRan());
}

TEST_F(BundleLoaderTest, BundleThatIsNotThereIsLeftOut)
{
    EXPECT_THAT(
        sentence(bundles.path() + QStringLiteral("/None.plugin/")),
        EndsWith("plug-in None is left out: it is not a folder; install the plug-in again"));
}

TEST_F(BundleLoaderTest, AStrangersBundleIsLeftOutForTheUserWhoRunsTheProgram)
{
    const QString path = bundles.copy(QStringLiteral("Good"));
    const auto result = BundleLoader(4711).load(path);
    // Root's bundles are everybody's.
    EXPECT_EQ(bool(result), QFileInfo(path).ownerId() == 0);
}

} // namespace
