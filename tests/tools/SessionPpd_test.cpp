// SPDX-License-Identifier: Apache-2.0
#include "tools/SessionPpd.h"

#include "tools/RequestError.h"

#include <QDir>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <sys/stat.h>

using testing::HasSubstr;
using tools::SessionPpd;

namespace {

const QString kBrightness = QStringLiteral("CvBrightness");

QString fileOf(const char *name)
{
    return QStringLiteral(TEST_DATA_DIR "/ppd/") + QLatin1String(name);
}

std::string complaintAbout(const QString &path)
{
    try {
        SessionPpd::open(path);
    } catch (const tools::RequestError &error) {
        return error.text.toStdString();
    }
    return {};
}

TEST(SessionPpd, HasNothingMarkedAtFirst)
{
    const auto ppd = SessionPpd::open(fileOf("six-options.ppd"));
    EXPECT_EQ(ppd->marked(kBrightness), std::nullopt);
    ppd->markDefaults();
    EXPECT_EQ(ppd->marked(kBrightness), QStringLiteral("0"));
}

TEST(SessionPpd, AMarkThatIsThereAlreadyIsNoChange)
{
    const auto ppd = SessionPpd::open(fileOf("six-options.ppd"));
    EXPECT_TRUE(ppd->mark(kBrightness, QStringLiteral("5")));
    EXPECT_FALSE(ppd->mark(kBrightness, QStringLiteral("5")));
    EXPECT_TRUE(ppd->mark(kBrightness, QStringLiteral("6")));
    EXPECT_EQ(ppd->marked(kBrightness), QStringLiteral("6"));
}

TEST(SessionPpd, WordsThatItDoesNotKnowChangeNothing)
{
    const auto ppd = SessionPpd::open(fileOf("six-options.ppd"));
    ppd->markDefaults();
    EXPECT_FALSE(ppd->mark(kBrightness, QStringLiteral("no such level")));
    EXPECT_FALSE(ppd->mark(QStringLiteral("NoSuchOption"), QStringLiteral("5")));
    EXPECT_FALSE(ppd->mark(kBrightness, QString()));
    ppd->unmark(QStringLiteral("NoSuchOption"));
    EXPECT_EQ(ppd->marked(kBrightness), QStringLiteral("0"));
}

// libcups would read both words up to the zero, and so know them.
TEST(SessionPpd, AWordWithAZeroInItIsNotKnown)
{
    const auto ppd = SessionPpd::open(fileOf("six-options.ppd"));
    const QString zero(1, QChar::Null);
    EXPECT_FALSE(ppd->mark(kBrightness + zero, QStringLiteral("5")));
    EXPECT_FALSE(ppd->mark(kBrightness, QStringLiteral("5") + zero));
    EXPECT_EQ(ppd->marked(kBrightness), std::nullopt);
    ppd->markDefaults();
    EXPECT_EQ(ppd->marked(kBrightness + zero), std::nullopt);
    ppd->unmark(kBrightness + zero);
    EXPECT_EQ(ppd->marked(kBrightness), QStringLiteral("0"));
}

TEST(SessionPpd, AnUnmarkedOptionCanBeMarkedAgain)
{
    const auto ppd = SessionPpd::open(fileOf("six-options.ppd"));
    ppd->markDefaults();
    ppd->unmark(kBrightness);
    EXPECT_EQ(ppd->marked(kBrightness), std::nullopt);
    EXPECT_EQ(ppd->marked(QStringLiteral("CvContrast")), QStringLiteral("0"));
    ppd->unmark(kBrightness);
    EXPECT_TRUE(ppd->mark(kBrightness, QStringLiteral("5")));
    EXPECT_EQ(ppd->marked(kBrightness), QStringLiteral("5"));
}

TEST(SessionPpd, AFileThatIsNoPpdIsNamed)
{
    EXPECT_THAT(complaintAbout(fileOf("none.ppd")), HasSubstr("none.ppd: there is no such file"));
    EXPECT_THAT(complaintAbout(fileOf("")), HasSubstr("there is no such file"));
    EXPECT_THAT(complaintAbout(QString()), HasSubstr("there is no such file"));
    EXPECT_THAT(complaintAbout(fileOf("not-a-ppd.ppd")), HasSubstr("is not a usable PPD (line 1"));
}

// Opening it would wait for a writer for ever.
TEST(SessionPpd, APipeIsNoFile)
{
    const QTemporaryDir folder;
    const QByteArray pipe = QFile::encodeName(folder.filePath(QStringLiteral("pipe.ppd")));
    ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
    EXPECT_THAT(complaintAbout(QFile::decodeName(pipe)), HasSubstr("there is no such file"));
}

} // namespace
