// SPDX-License-Identifier: Apache-2.0
#include "loading/BundleTrust.h"

#include "support/TestBundles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gmock/gmock.h>

#include <unistd.h>

using loading::BundleTrust;
using testing::HasSubstr;

namespace {

constexpr uid_t kUser = 1000;

bool isSafe(mode_t mode, uid_t owner)
{
    struct stat status = {};
    status.st_mode = S_IFREG | mode;
    status.st_uid = owner;
    return BundleTrust(kUser).isSafe(status);
}

TEST(BundleTrust, OnlyRootAndTheUserMayOwnAFile)
{
    EXPECT_TRUE(isSafe(0644, kUser));
    EXPECT_TRUE(isSafe(0644, 0));
    EXPECT_FALSE(isSafe(0644, kUser + 1));
    EXPECT_FALSE(BundleTrust(0).isSafe([] {
        struct stat status = {};
        status.st_uid = kUser;
        return status;
    }()));
}

TEST(BundleTrust, NobodyButTheOwnerMayWrite)
{
    EXPECT_TRUE(isSafe(0755, kUser));
    EXPECT_FALSE(isSafe(0664, kUser));
    EXPECT_FALSE(isSafe(0646, kUser));
    EXPECT_FALSE(isSafe(0620, 0));
}

class BundleTrustOnDisk : public testing::Test
{
protected:
    BundleTrustOnDisk()
        : bundle(QFileInfo(bundles.copy(QStringLiteral("Good"))).canonicalFilePath())
    {
        TestBundles::write(in("Resources/en.lproj/a.txt"), "text");
    }
    QString in(const char *name) const { return bundle + QLatin1Char('/') + QLatin1String(name); }
    /// Empty when the bundle is trusted.
    std::string complaint() const
    {
        return BundleTrust(geteuid()).complaintAbout(bundle).value_or(QString()).toStdString();
    }

    TestBundles bundles;
    QString bundle;
};

TEST_F(BundleTrustOnDisk, TrustsABundleThatOnlyItsOwnerMayWriteTo)
{
    EXPECT_EQ(complaint(), "");
}

TEST_F(BundleTrustOnDisk, EveryFileAndFolderOfTheBundleCounts)
{
    for (const char *name : {"bundle.json", "Good.so", "Resources", "Resources/en.lproj",
                             "Resources/en.lproj/a.txt"}) {
        const mode_t before = QFileInfo(in(name)).isDir() ? 0755 : 0644;
        for (const mode_t others : {0020, 0002}) {
            TestBundles::setMode(in(name), before | others);
            EXPECT_THAT(complaint(), HasSubstr("others can write to \"" + std::string(name) + '"'));
        }
        TestBundles::setMode(in(name), before);
    }
    EXPECT_EQ(complaint(), "");
}

TEST_F(BundleTrustOnDisk, TheBundlesOwnFolderCountsAndTheWayOutIsNamed)
{
    TestBundles::setMode(bundle, 0775);
    EXPECT_EQ(complaint(),
              "others can write to \"Good.plugin\" and so change what it does; run chmod -R go-w \""
                  + bundle.toStdString() + "\" if you trust its content");
}

TEST_F(BundleTrustOnDisk, HiddenFilesCountToo)
{
    TestBundles::write(in(".hidden"), "x");
    TestBundles::setMode(in(".hidden"), 0666);
    EXPECT_THAT(complaint(), HasSubstr("\".hidden\""));
}

TEST_F(BundleTrustOnDisk, ALinkWithinTheBundleIsFine)
{
    TestBundles::link(QStringLiteral("Good.so"), in("Good.so.1"));
    EXPECT_EQ(complaint(), "");
}

TEST_F(BundleTrustOnDisk, ALinkOutOfTheBundleIsRefused)
{
    TestBundles::write(bundles.path() + QStringLiteral("/outside"), "x");
    TestBundles::link(QStringLiteral("../outside"), in("Resources.txt"));
    EXPECT_THAT(complaint(), HasSubstr("the link \"Resources.txt\" in it leads out"));
}

TEST_F(BundleTrustOnDisk, ALinkIntoAFolderWhoseNameOnlyBeginsLikeTheBundlesIsRefused)
{
    TestBundles::write(bundle + QStringLiteral("2/x"), "x");
    TestBundles::link(QStringLiteral("../Good.plugin2/x"), in("x"));
    EXPECT_THAT(complaint(), HasSubstr("the link \"x\" in it leads out"));
}

TEST_F(BundleTrustOnDisk, ALinkToNowhereIsRefused)
{
    TestBundles::link(QStringLiteral("none"), in("x"));
    EXPECT_THAT(complaint(), HasSubstr("the link \"x\" in it leads out of its folder or nowhere"));
}

TEST_F(BundleTrustOnDisk, APipeIsRefusedWithoutBeingOpened)
{
    const QByteArray pipe = QFile::encodeName(in("pipe"));
    ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
    EXPECT_THAT(complaint(), HasSubstr("\"pipe\" in it is neither a file nor a folder"));
}

TEST_F(BundleTrustOnDisk, AStrangersFileIsRefused)
{
    uid_t user = geteuid();
    if (user == 0) {
        const QByteArray file = QFile::encodeName(in("Good.so"));
        ASSERT_EQ(chown(file.constData(), 4711, static_cast<gid_t>(-1)), 0);
    } else {
        ++user;
    }
    EXPECT_THAT(BundleTrust(user).complaintAbout(bundle).value_or(QString()).toStdString(),
                HasSubstr("belongs to another user"));
}

TEST_F(BundleTrustOnDisk, ABundleOfMoreFilesThanAnyNeedsIsRefused)
{
    for (int i = 0; i <= 10000; ++i) {
        const QByteArray file = QFile::encodeName(in("Resources/") + QString::number(i));
        ASSERT_EQ(::link(QFile::encodeName(in("bundle.json")).constData(), file.constData()), 0);
    }
    EXPECT_THAT(complaint(), HasSubstr("it holds more than 10000 files"));
}

} // namespace
