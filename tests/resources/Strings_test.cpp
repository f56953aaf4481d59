// SPDX-License-Identifier: Apache-2.0
#include "resources/LoadedPanel.h"

#include <QFile>
#include <QRegularExpression>
#include <QTranslator>

#include <gmock/gmock.h>

using platform::Bundle;
using testing::IsEmpty;

namespace {

/// The texts of the sample printer that `pattern` finds with its first group.
QStringList titlesOfSamplePrinter(const QString &pattern)
{
    QFile file(QStringLiteral(SOURCE_DIR "/resources/ppd/label-300.ppd"));
    QStringList titles;
    if (file.open(QIODevice::ReadOnly)) {
        const QRegularExpression line(pattern, QRegularExpression::MultilineOption);
        for (auto hit = line.globalMatch(QString::fromUtf8(file.readAll())); hit.hasNext();) {
            titles << hit.next().captured(1);
        }
    }
    return titles;
}

class Strings : public testing::TestWithParam<std::string>
{
protected:
    Strings()
        : bundle(QStringLiteral(BUNDLE_DIR), {language})
    { }

    QStringList missing(const QStringList &keys, const char *context = "Localizable") const
    {
        QStringList missing;
        for (const QString &key : keys) {
            if (!bundle.strings()
                || bundle.strings()->translate(context, key.toUtf8().constData()).isEmpty()) {
                missing << key;
            }
        }
        return missing;
    }

    QString text(const char *key) const { return bundle.localizedString(QLatin1String(key)); }

    const QString language = QString::fromStdString(GetParam());
    Bundle bundle;
};

INSTANTIATE_TEST_SUITE_P(Languages, Strings, testing::ValuesIn(languages()), languageOf);

TEST_P(Strings, AreInTheLanguageAskedFor)
{
    ASSERT_NE(bundle.strings(), nullptr);
    EXPECT_EQ(bundle.strings()->language(), language);
}

TEST_P(Strings, HaveATextForEveryKeyOfThePanel)
{
    EXPECT_THAT(missing(panelKeys()), IsEmpty());
}

TEST_P(Strings, HaveALabelForEveryTitleOfTheSamplePrinter)
{
    const QStringList titles =
        titlesOfSamplePrinter(QStringLiteral(R"(^\*OpenUI \*Cv(?!BiDi)\w+/([^:]+):)"));
    ASSERT_EQ(titles.size(), 5);
    for (const QString &title : titles) {
        const QString label = bundle.localizedString(title + QStringLiteral(" : "));
        EXPECT_NE(label, title + QStringLiteral(" : "));
        EXPECT_TRUE(label.endsWith(QLatin1Char(':'))) << label.toStdString();
    }
}

TEST_P(Strings, HaveTheTitlesAndColoursOfTheSamplePrinterForSummaryAndPopUp)
{
    const QStringList titles =
        titlesOfSamplePrinter(QStringLiteral(R"(^\*OpenUI \*Cv\w+/([^:]+):)"))
        + titlesOfSamplePrinter(QStringLiteral(R"(^\*CvMultiColor \w+/([^:]+):)"));
    ASSERT_EQ(titles.size(), 8);
    EXPECT_THAT(missing(titles), IsEmpty());
}

TEST_P(Strings, SayTheSameForAPrintersTitleAsWithoutOne)
{
    for (const TextPlace &place : titlePlaces()) {
        EXPECT_EQ(bundle.localizedString(place.keys.at(0)),
                  bundle.localizedString(place.keys.at(1)));
    }
    EXPECT_EQ(text("RS_BiDiPrint"), text("Bi-directional printing"));
    EXPECT_EQ(text("HC_STitle_Halftone"), text("Halftone"));
    EXPECT_EQ(text("HC_STitle_Brightness"), text("Brightness"));
    EXPECT_EQ(text("HC_STitle_Contrast"), text("Contrast"));
    EXPECT_EQ(text("RS_STitle_BiDiPrint"), text("Bi-directional printing"));
    EXPECT_EQ(text("HC_STitle_Color"), text("Colour mode"));
    EXPECT_EQ(text("HC_STitle_RedLevel"), text("Red level"));
    EXPECT_EQ(text("HC_Monochrome"), text("Monochrome"));
    EXPECT_EQ(text("HC_BlackRed"), text("Black and red"));
}

TEST_P(Strings, TellTheHalftoneMethodsAndTheTwoAnswersApart)
{
    EXPECT_EQ(
        QSet<QString>({text("HC_Binary"), text("HC_Dither"), text("HC_ErrorDiffusion")}).size(), 3);
    EXPECT_NE(text("RS_STitle_Yes"), text("RS_STitle_No"));
    EXPECT_NE(text("HC_Monochrome"), text("HC_BlackRed"));
}

TEST_P(Strings, HaveNoUnfinishedTranslation)
{
    QFile file(QStringLiteral(SOURCE_DIR "/resources/strings/Localizable_%1.ts").arg(language));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray table = file.readAll();
    EXPECT_FALSE(table.contains("type=\"unfinished\""));
    EXPECT_FALSE(table.contains("type=\"vanished\""));
    EXPECT_FALSE(table.contains("<translation/>"));
    EXPECT_FALSE(table.contains("<translation></translation>"));
}

class TranslatedStrings : public Strings
{ };

INSTANTIATE_TEST_SUITE_P(Languages, TranslatedStrings, testing::ValuesIn(translatedLanguages()),
                         languageOf);

TEST_P(TranslatedStrings, HaveEveryFixedTextOfTheInterfaceDescription)
{
    ASSERT_GT(fixedTexts().size(), 15);
    EXPECT_THAT(missing(fixedTexts(), "GraphicsPDE"), IsEmpty());
}

TEST_P(TranslatedStrings, HaveNoTextThatTheInterfaceDescriptionDropped)
{
    QFile file(QStringLiteral(SOURCE_DIR "/resources/strings/Localizable_%1.ts").arg(language));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString context =
        QString::fromUtf8(file.readAll()).section(QLatin1String("</context>"), 0, 0);
    ASSERT_TRUE(context.contains(QLatin1String("<name>GraphicsPDE</name>")));
    const qsizetype sources = context.count(QLatin1String("<source>"));
    EXPECT_EQ(sources, fixedTexts().size());
}

class PrintersOwnLanguage : public Strings
{ };

INSTANTIATE_TEST_SUITE_P(Languages, PrintersOwnLanguage, testing::Values("de", "ja"), languageOf);

TEST_P(PrintersOwnLanguage, TitlesAreShownAsTheSameLabels)
{
    const QString inEnglish = QStringLiteral(R"(^\*OpenUI \*Cv(?!BiDi)\w+/([^:]+):)");
    const QString inPrinters = QStringLiteral(R"(^\*%1\.Translation Cv(?!BiDi)\w+/([^:]+):)");
    const QStringList english = titlesOfSamplePrinter(inEnglish);
    const QStringList printers = titlesOfSamplePrinter(inPrinters.arg(language));
    ASSERT_EQ(printers.size(), english.size());
    for (int i = 0; i < printers.size(); ++i) {
        EXPECT_EQ(bundle.localizedString(printers.at(i) + QStringLiteral(" : ")),
                  bundle.localizedString(english.at(i) + QStringLiteral(" : ")));
    }
}

QString halftoneFor(const QStringList &languages)
{
    return Bundle(QStringLiteral(BUNDLE_DIR), languages)
        .localizedString(QStringLiteral("HC_STitle_Halftone"));
}

TEST(StringsOfTheUser, AreThoseOfTheFirstLanguageThatHasATable)
{
    EXPECT_EQ(halftoneFor({QStringLiteral("en-GB")}), QStringLiteral("Halftone"));
    EXPECT_EQ(halftoneFor({QStringLiteral("de-AT")}), QStringLiteral("Raster"));
    EXPECT_EQ(halftoneFor({QStringLiteral("fr_CA")}), QStringLiteral("Tramage"));
    EXPECT_EQ(halftoneFor({QStringLiteral("es")}), QStringLiteral("Tramado"));
    EXPECT_EQ(halftoneFor({QStringLiteral("it"), QStringLiteral("ja-JP")}),
              QStringLiteral("ハーフトーン"));
    EXPECT_EQ(halftoneFor({QStringLiteral("it")}), QStringLiteral("Halftone"));
}

TEST(StringsOfTheUser, LeaveAnUnknownTitleAsItIs)
{
    const Bundle bundle(QStringLiteral(BUNDLE_DIR), {QStringLiteral("de")});
    EXPECT_EQ(bundle.localizedString(QStringLiteral("Gamma : ")), QStringLiteral("Gamma : "));
}

} // namespace
