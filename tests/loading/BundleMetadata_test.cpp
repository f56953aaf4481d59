// SPDX-License-Identifier: Apache-2.0
#include "loading/BundleMetadata.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gmock/gmock.h>

using loading::BundleMetadata;
using testing::HasSubstr;

namespace {

const QLatin1String kPrintPanels("BDB091F4-E57F-11D3-B5CC-0050E4603277");

class BundleMetadataTest : public testing::Test
{
protected:
    /// Empty when the metadata is right.
    std::string complaint() const { return complaintAbout(QJsonDocument(json).toJson()); }
    static std::string complaintAbout(const QByteArray &text)
    {
        const auto result = BundleMetadata::fromJson(text);
        const auto *complaint = std::get_if<QString>(&result);
        return complaint == nullptr ? std::string() : complaint->toStdString();
    }
    void set(const char *key, const QJsonValue &value) { json.insert(QLatin1String(key), value); }

    QJsonObject json{{QStringLiteral("interfaceVersion"), 1},
                     {QStringLiteral("principalClass"), QStringLiteral("Good_13")},
                     {QStringLiteral("executable"), QStringLiteral("Good.so")},
                     {QStringLiteral("panelTypes"), QJsonArray{kPrintPanels}}};
};

TEST_F(BundleMetadataTest, GivesClassAndProgramFileOfRightMetadata)
{
    const auto result = BundleMetadata::fromJson(QJsonDocument(json).toJson());
    const auto *metadata = std::get_if<BundleMetadata>(&result);
    ASSERT_NE(metadata, nullptr);
    EXPECT_EQ(metadata->principalClass(), QLatin1String("Good_13"));
    EXPECT_EQ(metadata->executable(), QLatin1String("Good.so"));
}

TEST_F(BundleMetadataTest, UnknownKeysDoNoHarm)
{
    set("comment", QStringLiteral("x"));
    EXPECT_EQ(complaint(), "");
}

TEST_F(BundleMetadataTest, DamagedJsonIsNamedWithItsPlace)
{
    EXPECT_THAT(complaintAbout("{ \"interfaceVersion\": 1,"),
                HasSubstr("its bundle.json is damaged ("));
    EXPECT_THAT(complaintAbout("{ \"interfaceVersion\": 1,"), HasSubstr("byte 24"));
    EXPECT_THAT(complaintAbout(""), HasSubstr("its bundle.json is damaged ("));
    EXPECT_THAT(complaintAbout("\xff\xfe\x00"), HasSubstr("its bundle.json is damaged ("));
    EXPECT_THAT(complaintAbout(QByteArray(60000, '[')), HasSubstr("is damaged"));
}

TEST_F(BundleMetadataTest, JsonThatIsNoObjectIsRefused)
{
    EXPECT_THAT(complaintAbout("[1, 2]"), HasSubstr("holds no JSON object"));
}

TEST_F(BundleMetadataTest, OtherInterfaceVersionIsRefusedWithBothNumbers)
{
    set("interfaceVersion", 2);
    EXPECT_THAT(complaint(),
                HasSubstr("made for version 2 of the print dialog's interface and "
                          "this is version 1;"));
    set("interfaceVersion", 0);
    EXPECT_THAT(complaint(), HasSubstr("made for version 0 "));
    set("interfaceVersion", 1.5);
    EXPECT_THAT(complaint(), HasSubstr("made for version 1.5 "));
}

TEST_F(BundleMetadataTest, MissingInterfaceVersionIsRefused)
{
    set("interfaceVersion", QStringLiteral("1"));
    EXPECT_THAT(complaint(), HasSubstr("names no interface version"));
    json.remove(QStringLiteral("interfaceVersion"));
    EXPECT_THAT(complaint(), HasSubstr("names no interface version"));
}

TEST_F(BundleMetadataTest, VersionIsJudgedBeforeTheRest)
{
    // Another version may spell the other keys in another way.
    EXPECT_THAT(complaintAbout("{ \"interfaceVersion\": 3 }"), HasSubstr("made for version 3"));
}

TEST_F(BundleMetadataTest, MissingOrIllFormedPrincipalClassIsRefused)
{
    const QStringList wrong{QString(),
                            QStringLiteral("1Good"),
                            QStringLiteral("Go od"),
                            QStringLiteral("Good\n"),
                            QStringLiteral("Gööd"),
                            QStringLiteral("a;b"),
                            QString(201, QLatin1Char('a'))};
    for (const QString &name : wrong) {
        set("principalClass", name);
        EXPECT_THAT(complaint(), HasSubstr("names no principal class")) << name.toStdString();
    }
    json.remove(QStringLiteral("principalClass"));
    EXPECT_THAT(complaint(), HasSubstr("names no principal class"));
}

TEST_F(BundleMetadataTest, ProgramFileMustBeAPlainFileName)
{
    const QStringList wrong{QString(),
                            QStringLiteral("."),
                            QStringLiteral(".."),
                            QStringLiteral("../Good.so"),
                            QStringLiteral("/usr/lib/Good.so"),
                            QStringLiteral("Resources/Good.so"),
                            QStringLiteral("Good.so\n"),
                            QStringLiteral("Good") + QChar(0) + QStringLiteral(".so")};
    for (const QString &name : wrong) {
        set("executable", name);
        EXPECT_THAT(complaint(), HasSubstr("by a plain file name")) << name.toStdString();
    }
    set("executable", 5);
    EXPECT_THAT(complaint(), HasSubstr("by a plain file name"));
}

TEST_F(BundleMetadataTest, PanelTypesMustHoldThePrintDialogsType)
{
    set("panelTypes", QJsonArray{QStringLiteral("other"), kPrintPanels});
    EXPECT_EQ(complaint(), "");
    set("panelTypes", QJsonArray{QString(kPrintPanels).toLower()});
    EXPECT_THAT(complaint(), HasSubstr("it has no panel for the print dialog"));
    set("panelTypes", QString(kPrintPanels));
    EXPECT_THAT(complaint(), HasSubstr("it has no panel for the print dialog"));
    json.remove(QStringLiteral("panelTypes"));
    EXPECT_THAT(complaint(), HasSubstr("it has no panel for the print dialog"));
}

} // namespace
