// SPDX-License-Identifier: Apache-2.0
#include "dialog/JobSettings.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>

using dialog::FailureKind;
using dialog::JobSettings;
using dialog::LabelSize;
using dialog::OptionChoices;
using dialog::PageRanges;
using dialog::Scaling;

namespace {

const QString kTicket = QStringLiteral("com.example.print.PrintSettingsTicket.KtE5");

JobSettings everythingSet()
{
    JobSettings settings;
    settings.setTitle(QStringLiteral("Jam & jelly <2024>"));
    settings.setCopies(3);
    settings.setPages(PageRanges(2, PageRanges::kToTheEnd));
    settings.setLabelSize(LabelSize::custom(60, 100.5));
    settings.setScaling(Scaling::ActualSize);
    settings.setChoice(QStringLiteral("CvContrast"), QStringLiteral("20"));
    settings.setChoice(QStringLiteral("CvBrightness"), QStringLiteral("-5"));
    settings.setValue(kTicket, QByteArray("\0<plist>\xff", 9));
    return settings;
}

JobSettings withPages(const char *text)
{
    JobSettings settings;
    settings.setPages(QString::fromLatin1(text));
    return settings;
}

TEST(JobSettings, FreshSettingsPrintEveryPageOnce)
{
    const JobSettings settings;
    EXPECT_EQ(settings.firstPage().value, 1U);
    EXPECT_EQ(settings.lastPage().value, 4294967295U);
    const OptionChoices expected{{QStringLiteral("copies"), QStringLiteral("1")},
                                 {QStringLiteral("print-scaling"), QStringLiteral("fit")}};
    EXPECT_EQ(settings.jobOptions(), expected);
}

TEST(JobSettings, JobOptionsAreTheJobsOwnThenTheChoicesInTheirOrder)
{
    const OptionChoices expected{
        {QStringLiteral("copies"), QStringLiteral("3")},
        {QStringLiteral("page-ranges"), QStringLiteral("2-")},
        {QStringLiteral("PageSize"), QStringLiteral("Custom.60x100.5mm")},
        {QStringLiteral("print-scaling"), QStringLiteral("none")},
        {QStringLiteral("CvContrast"), QStringLiteral("20")},
        {QStringLiteral("CvBrightness"), QStringLiteral("-5")},
    };
    EXPECT_EQ(everythingSet().jobOptions(), expected);
}

TEST(JobSettings, LabelSizeComesBeforeAChoiceForPageSize)
{
    JobSettings settings;
    settings.setChoice(QStringLiteral("PageSize"), QStringLiteral("DC17x54"));
    EXPECT_EQ(settings.jobOptions().back().choice, QStringLiteral("DC17x54"));
    settings.setLabelSize(LabelSize{QStringLiteral("DC62x29"), {}, 175.75, 82.2});
    const OptionChoices expected{{QStringLiteral("copies"), QStringLiteral("1")},
                                 {QStringLiteral("PageSize"), QStringLiteral("DC62x29")},
                                 {QStringLiteral("print-scaling"), QStringLiteral("fit")}};
    EXPECT_EQ(settings.jobOptions(), expected);
}

TEST(JobSettings, AnotherChoiceOfAnOptionTakesThePlaceOfTheFirst)
{
    JobSettings settings = everythingSet();
    settings.setChoice(QStringLiteral("CvContrast"), QStringLiteral("7"));
    EXPECT_EQ(settings.choice(QStringLiteral("CvContrast")), QStringLiteral("7"));
    EXPECT_EQ(settings.choices().front().option, QStringLiteral("CvContrast"));
    settings.removeChoice(QStringLiteral("CvContrast"));
    EXPECT_FALSE(settings.choice(QStringLiteral("CvContrast")));
    EXPECT_EQ(settings.choices().size(), 1U);
}

TEST(JobSettings, CopiesOutOfRangeAreRefusedAndTheOldOnesStay)
{
    JobSettings settings = everythingSet();
    for (int copies : {0, -1, 10000}) {
        ASSERT_TRUE(settings.setCopies(copies));
    }
    EXPECT_EQ(settings.setCopies(QStringLiteral("0"))->text(),
              QStringLiteral("0 copies: choose from 1 to 9999"));
    for (const char *text : {"many", "", "2x", "1.5", "99999999999"}) {
        const auto failure = settings.setCopies(QString::fromLatin1(text));
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->text(),
                  QStringLiteral("Copies “%1”: write a number from 1 to 9999")
                      .arg(QString::fromLatin1(text)));
    }
    EXPECT_EQ(settings.copies(), 3);
    EXPECT_FALSE(settings.setCopies(QStringLiteral(" 12 ")));
    EXPECT_EQ(settings.copies(), 12);
}

TEST(JobSettings, BadPagesAreRefusedAndTheOldOnesStay)
{
    JobSettings settings = withPages("1-3,5");
    ASSERT_TRUE(settings.setPages(QStringLiteral("3-1")));
    EXPECT_EQ(settings.pages().text(), QStringLiteral("1-3,5"));
}

TEST(JobSettings, ControlCharactersInATitleBecomeSpaces)
{
    JobSettings settings;
    settings.setTitle(QStringLiteral("a\nb\tc\u0001d"));
    EXPECT_EQ(settings.title(), QStringLiteral("a b c d"));
}

TEST(JobSettings, WritingTheSamePagesBackKeepsTheRanges)
{
    JobSettings settings = withPages("1-3,5");
    EXPECT_EQ(settings.setFirstPage(settings.firstPage().value), 0);
    EXPECT_EQ(settings.setLastPage(settings.lastPage().value), 0);
    EXPECT_EQ(settings.pages().text(), QStringLiteral("1-3,5"));
    JobSettings all;
    EXPECT_EQ(all.setFirstPage(1), 0);
    EXPECT_EQ(all.setLastPage(4294967295U), 0);
    EXPECT_TRUE(all.pages().isAll());
}

TEST(JobSettings, AnotherFirstOrLastPageMakesOneRange)
{
    JobSettings settings = withPages("1-3,5");
    EXPECT_EQ(settings.setFirstPage(2), 0);
    EXPECT_EQ(settings.pages().text(), QStringLiteral("2-5"));
    EXPECT_EQ(settings.setFirstPage(8), 0);
    EXPECT_EQ(settings.pages().text(), QStringLiteral("8"));
    EXPECT_EQ(settings.setLastPage(4), 0);
    EXPECT_EQ(settings.pages().text(), QStringLiteral("4"));
    EXPECT_EQ(settings.setFirstPage(0), JobSettings::kInvalidPage);
    EXPECT_EQ(settings.setLastPage(0), JobSettings::kInvalidPage);
    EXPECT_EQ(settings.pages().text(), QStringLiteral("4"));
}

TEST(JobSettings, ValueUnderAKeyIsKeptByteForByte)
{
    JobSettings settings = everythingSet();
    EXPECT_EQ(settings.value(kTicket), QByteArray("\0<plist>\xff", 9));
    EXPECT_FALSE(settings.value(QStringLiteral("other")));
    settings.removeValue(kTicket);
    EXPECT_FALSE(settings.value(kTicket));
}

TEST(JobSettings, PropertyListBringsEverythingBack)
{
    const JobSettings settings = everythingSet();
    const auto xml = settings.dataRepresentation();
    ASSERT_TRUE(xml);
    const auto read = JobSettings::fromDataRepresentation(*xml, QStringLiteral("job.plist"));
    ASSERT_TRUE(read) << read.failure().text().toStdString();
    EXPECT_EQ(read.value(), settings);
    EXPECT_EQ(read.value().jobOptions(), settings.jobOptions());
}

TEST(JobSettings, SettingsThatXmlCannotHoldAreNotWritten)
{
    JobSettings settings;
    settings.setValue(QString(QChar(1)), "bytes");
    EXPECT_FALSE(settings.dataRepresentation());
}

struct Break
{
    const char *name;
    const char *from;
    const char *to;
};

void PrintTo(const Break &change, std::ostream *out)
{
    *out << change.name;
}

class BrokenSettings : public testing::TestWithParam<Break>
{ };

TEST_P(BrokenSettings, AreRefusedWithTheSettingsName)
{
    QByteArray xml = *everythingSet().dataRepresentation();
    ASSERT_TRUE(xml.contains(GetParam().from));
    xml.replace(GetParam().from, GetParam().to);
    const auto read = JobSettings::fromDataRepresentation(xml, QStringLiteral("job.plist"));
    ASSERT_FALSE(read);
    EXPECT_EQ(read.failure().what, QStringLiteral("job.plist"));
    EXPECT_TRUE(read.failure().why.endsWith(QStringLiteral(" is missing or cannot be used")));
}

INSTANTIATE_TEST_SUITE_P(
    JobSettings, BrokenSettings,
    testing::Values(Break{"NoCopies", "<integer>3<", "<integer>0<"},
                    Break{"CopiesOf64Bits", "<integer>3<", "<integer>4294967297<"},
                    Break{"NegativeCopies", "<integer>3<", "<integer>-3<"},
                    Break{"PagesBackwards", "<string>2-<", "<string>3-2<"},
                    Break{"MissingPages", "<key>Pages<", "<key>Seiten<"},
                    Break{"UnknownScaling", "<string>none<", "<string>big<"},
                    Break{"SizeWithoutWidth", "<key>WidthPoints<", "<key>Width<"},
                    Break{"OptionWithoutChoice", "<key>Choice<", "<key>Value<"}),
    [](const auto &change) { return std::string(change.param.name); });

TEST(JobSettings, WholeDotsAreKeptAndAreFitToThePrintSystem)
{
    JobSettings settings;
    settings.setScaling(Scaling::WholeDots);
    EXPECT_EQ(settings.jobOptions().back(),
              (dialog::OptionChoice{QStringLiteral("print-scaling"), QStringLiteral("fit")}));
    const auto read = JobSettings::fromDataRepresentation(*settings.dataRepresentation(),
                                                          QStringLiteral("job.plist"));
    ASSERT_TRUE(read);
    EXPECT_EQ(read.value().scaling(), Scaling::WholeDots);
}

TEST(JobSettings, DataThatIsNoPropertyListIsRefused)
{
    const auto read = JobSettings::fromDataRepresentation("text", QStringLiteral("job.plist"));
    ASSERT_FALSE(read);
    EXPECT_EQ(read.failure().kind, FailureKind::Settings);
    EXPECT_EQ(read.failure().text(),
              QStringLiteral("job.plist: is no XML property list of settings"));
}

} // namespace
