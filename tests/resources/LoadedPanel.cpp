// SPDX-License-Identifier: Apache-2.0
#include "resources/LoadedPanel.h"

#include "controls/InputControls.h"
#include "platform/ViewHost.h"

#include <QFile>
#include <QRadioButton>
#include <QXmlStreamReader>

LoadedPanel::LoadedPanel(const QString &language)
    : mBundle(QStringLiteral(BUNDLE_DIR), {language})
{
    controls::registerInputControls();
    mView = platform::ViewHost::current().loadNibNamed(QStringLiteral("GraphicsPDE"), mBundle,
                                                       mOutlets);
}

QString LoadedPanel::nameOf(const QWidget *control)
{
    if (qobject_cast<const QRadioButton *>(control)) {
        control = control->parentWidget();
    }
    return control ? control->objectName() : QString();
}

QStringList panelKeys()
{
    return {QStringLiteral("AD_PANEL_NAME"),
            QStringLiteral("HC_Halftone"),
            QStringLiteral("HC_Binary"),
            QStringLiteral("HC_Dither"),
            QStringLiteral("HC_ErrorDiffusion"),
            QStringLiteral("HC_MinValue"),
            QStringLiteral("HC_MidValue"),
            QStringLiteral("HC_MaxValue"),
            QStringLiteral("HC_Brightness"),
            QStringLiteral("HC_Contrast"),
            QStringLiteral("RS_BiDiPrint"),
            QStringLiteral("HC_Color"),
            QStringLiteral("HC_Monochrome"),
            QStringLiteral("HC_BlackRed"),
            QStringLiteral("HC_RedLevel"),
            QStringLiteral("HC_LevelRange"),
            QStringLiteral("HC_LevelMissing"),
            QStringLiteral("HC_STitle_Halftone"),
            QStringLiteral("HC_STitle_Brightness"),
            QStringLiteral("HC_STitle_Contrast"),
            QStringLiteral("RS_STitle_BiDiPrint"),
            QStringLiteral("HC_STitle_Color"),
            QStringLiteral("HC_STitle_RedLevel"),
            QStringLiteral("RS_STitle_Yes"),
            QStringLiteral("RS_STitle_No")};
}

QList<TextPlace> titlePlaces()
{
    const auto place = [](const char *control, const char *key, const char *printersTitle) {
        return TextPlace{QLatin1String(control),
                         {QLatin1String(key), QLatin1String(printersTitle)}};
    };
    return {place("mHalftoneTitle", "HC_Halftone", "Halftone : "),
            place("mBrightnessTitle", "HC_Brightness", "Brightness : "),
            place("mContrustTitle", "HC_Contrast", "Contrast : "),
            place("mColorTitle", "HC_Color", "Colour mode : "),
            place("mRedLevelTitle", "HC_RedLevel", "Red level : ")};
}

QStringList fixedTexts()
{
    QFile file(QStringLiteral(SOURCE_DIR "/resources/GraphicsPDE.ui"));
    QStringList texts;
    if (file.open(QIODevice::ReadOnly)) {
        QXmlStreamReader xml(&file);
        bool forTranslators = true;
        while (!xml.atEnd()) {
            if (!xml.readNextStartElement()) {
                continue;
            }
            const bool notForTranslators =
                xml.attributes().value(QLatin1String("notr")) == QLatin1String("true");
            if (xml.name() == QLatin1String("stringlist")) {
                forTranslators = !notForTranslators;
            } else if (xml.name() == QLatin1String("property")) {
                forTranslators = true;
            } else if (xml.name() == QLatin1String("string") && forTranslators
                       && !notForTranslators) {
                texts << xml.readElementText();
            }
        }
    }
    texts.removeDuplicates();
    return texts;
}

std::vector<std::string> translatedLanguages()
{
    return {"de", "fr", "es", "ja"};
}

std::vector<std::string> languages()
{
    return {"en", "de", "fr", "es", "ja"};
}

std::string languageOf(const testing::TestParamInfo<std::string> &test)
{
    return test.param;
}
