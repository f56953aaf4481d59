// SPDX-License-Identifier: Apache-2.0
#include "loading/BundleFinder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using loading::BundleFinder;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class BundleFinderTest : public testing::Test
{
protected:
    QString folder(const QString &name)
    {
        EXPECT_TRUE(QDir().mkpath(home.filePath(name)));
        return home.filePath(name);
    }
    QString file(const QString &name)
    {
        QFile out(home.filePath(name));
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        return out.fileName();
    }
    BundleFinder::Found find(const QStringList &asked, const QStringList &standard = {})
    {
        return BundleFinder(asked, standard).find();
    }
    QString onlyFailure(const QString &asked)
    {
        const BundleFinder::Found found = find({asked});
        EXPECT_THAT(found.bundles, IsEmpty());
        EXPECT_EQ(found.failures.size(), 1U);
        return found.failures.empty() ? QString() : found.failures.front().text();
    }

    QTemporaryDir home;
};

TEST_F(BundleFinderTest, FindsBundlesOfAFolderByNameAndNothingElse)
{
    folder(QStringLiteral("b.plugin"));
    folder(QStringLiteral("a.plugin"));
    folder(QStringLiteral("plain"));
    file(QStringLiteral("c.plugin"));
    EXPECT_THAT(find({}, {home.path()}).bundles,
                ElementsAre(home.filePath(QStringLiteral("a.plugin")),
                            home.filePath(QStringLiteral("b.plugin"))));
}

TEST_F(BundleFinderTest, AnAskedForPathMayBeTheBundleItself)
{
    const QString bundle = folder(QStringLiteral("a.plugin"));
    EXPECT_THAT(find({bundle}).bundles, ElementsAre(bundle));
    EXPECT_THAT(find({bundle + QLatin1Char('/')}).bundles, ElementsAre(bundle));
}

TEST_F(BundleFinderTest, AnAskedForPathMayBeAFolderOfBundles)
{
    const QString bundle = folder(QStringLiteral("mine/a.plugin"));
    EXPECT_THAT(find({home.filePath(QStringLiteral("mine"))}).bundles, ElementsAre(bundle));
}

TEST_F(BundleFinderTest, ARelativePathStartsAtTheWorkingFolder)
{
    const QString bundle = folder(QStringLiteral("a.plugin"));
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(home.path()));
    EXPECT_THAT(find({QStringLiteral("a.plugin")}).bundles,
                ElementsAre(QDir(QDir::currentPath()).filePath(QStringLiteral("a.plugin"))));
    QDir::setCurrent(before);
}

TEST_F(BundleFinderTest, OfTwoBundlesWithOneNameTheFirstCounts)
{
    const QString asked = folder(QStringLiteral("asked/a.plugin"));
    const QString user = folder(QStringLiteral("user/b.plugin"));
    folder(QStringLiteral("user/a.plugin"));
    folder(QStringLiteral("system/b.plugin"));
    const QString system = folder(QStringLiteral("system/c.plugin"));
    EXPECT_THAT(
        find({asked},
             {home.filePath(QStringLiteral("user")), home.filePath(QStringLiteral("system"))})
            .bundles,
        ElementsAre(asked, user, system));
}

TEST_F(BundleFinderTest, AStandardFolderThatIsNotThereIsNoFailure)
{
    const BundleFinder::Found found = find({}, {home.filePath(QStringLiteral("none"))});
    EXPECT_THAT(found.bundles, IsEmpty());
    EXPECT_THAT(found.failures, IsEmpty());
}

TEST_F(BundleFinderTest, AnAskedForPathThatIsNotThereIsNamed)
{
    const QString missing = home.filePath(QStringLiteral("none"));
    EXPECT_EQ(onlyFailure(missing),
              missing
                  + QStringLiteral(
                      ": there is no such folder; give --plugin the path of a plug-in's folder"));
}

TEST_F(BundleFinderTest, AnEmptyPathIsNotTheWorkingFolder)
{
    folder(QStringLiteral("a.plugin"));
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(home.path()));
    EXPECT_TRUE(onlyFailure(QString()).contains(QLatin1String("there is no such folder")));
    QDir::setCurrent(before);
}

TEST_F(BundleFinderTest, AnAskedForFileIsNamedAsAFile)
{
    EXPECT_TRUE(onlyFailure(file(QStringLiteral("a.plugin")))
                    .endsWith(QLatin1String(
                        "this is a file; give --plugin the path of a plug-in's folder")));
}

TEST_F(BundleFinderTest, AnAskedForFolderWithoutBundlesIsNamed)
{
    EXPECT_TRUE(
        onlyFailure(home.path()).contains(QLatin1String(": there is no plug-in in this folder;")));
}

TEST_F(BundleFinderTest, OneWrongPathDoesNotHideTheOthers)
{
    const QString bundle = folder(QStringLiteral("a.plugin"));
    const BundleFinder::Found found = find({home.filePath(QStringLiteral("none")), bundle});
    EXPECT_THAT(found.bundles, ElementsAre(bundle));
    EXPECT_EQ(found.failures.size(), 1U);
}

TEST_F(BundleFinderTest, LooksInTheUsersFolderThenBesideTheProgramThenInTheInstallation)
{
    qputenv("XDG_DATA_HOME", home.path().toUtf8());
    const QStringList folders = BundleFinder::standardFolders();
    qunsetenv("XDG_DATA_HOME");
    ASSERT_EQ(folders.size(), 3);
    EXPECT_EQ(folders[0], home.filePath(QStringLiteral("label-print/panels")));
    EXPECT_EQ(folders[1],
              QDir::cleanPath(QCoreApplication::applicationDirPath()
                              + QStringLiteral("/../lib/label-print/panels")));
    EXPECT_TRUE(folders[2].startsWith(QLatin1Char('/')));
    EXPECT_TRUE(folders[2].endsWith(QLatin1String("/label-print/panels")));
}

} // namespace
