// SPDX-License-Identifier: Apache-2.0
#include "platform/Bundle.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using platform::Bundle;

namespace {

class BundleTest : public testing::Test
{
protected:
    void write(const QString &name)
    {
        const QString file = folder.filePath(QStringLiteral("Resources/") + name);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(file).path()));
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    }
    QString resource(const QString &name) const
    {
        return folder.filePath(QStringLiteral("Resources/") + name);
    }

    QTemporaryDir folder;
};

TEST_F(BundleTest, TextWithoutATableIsTheKeyItself)
{
    const Bundle bundle(folder.path());
    EXPECT_EQ(bundle.localizedString(QStringLiteral("HC_Binary")), QStringLiteral("HC_Binary"));
    EXPECT_EQ(bundle.localizedString(QString(QLatin1String(""))), QString());
    EXPECT_EQ(bundle.localizedString({}), QString());
}

TEST_F(BundleTest, ResourceAtTheTopComesBeforeLanguages)
{
    write(QStringLiteral("de.lproj/a.ui"));
    write(QStringLiteral("a.ui"));
    const Bundle bundle(folder.path(), {QStringLiteral("de-DE")});
    EXPECT_EQ(bundle.pathForResource(QStringLiteral("a.ui")), resource(QStringLiteral("a.ui")));
}

TEST_F(BundleTest, RegionComesBeforeLanguageAndEnglishLast)
{
    write(QStringLiteral("en.lproj/a.ui"));
    const Bundle german(folder.path(), {QStringLiteral("de-DE")});
    EXPECT_EQ(german.pathForResource(QStringLiteral("a.ui")),
              resource(QStringLiteral("en.lproj/a.ui")));
    write(QStringLiteral("de.lproj/a.ui"));
    EXPECT_EQ(german.pathForResource(QStringLiteral("a.ui")),
              resource(QStringLiteral("de.lproj/a.ui")));
    write(QStringLiteral("de_DE.lproj/a.ui"));
    EXPECT_EQ(german.pathForResource(QStringLiteral("a.ui")),
              resource(QStringLiteral("de_DE.lproj/a.ui")));
}

TEST_F(BundleTest, ImageIsFoundByItsNameWhateverItsExtension)
{
    const Bundle bundle(folder.path());
    EXPECT_FALSE(bundle.pathForImageResource(QStringLiteral("Effect")));
    write(QStringLiteral("Effect.bmp"));
    EXPECT_EQ(bundle.pathForImageResource(QStringLiteral("Effect")),
              resource(QStringLiteral("Effect.bmp")));
    write(QStringLiteral("Effect.png"));
    EXPECT_EQ(bundle.pathForImageResource(QStringLiteral("Effect")),
              resource(QStringLiteral("Effect.png")));
    EXPECT_FALSE(bundle.pathForImageResource(QStringLiteral("effect")));
}

} // namespace
