// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/PanelFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QList<QByteArray> kOptions{"CvHalftonePattern", "CvBrightness", "CvContrast",
                                 "CvBiDiPrint",       "CvMultiColor", "CvRedLevel"};

class GraphicsPDEBinding : public PanelTest
{
protected:
    std::vector<size_t> choiceCounts()
    {
        std::vector<size_t> counts;
        for (const QByteArray &option : kOptions) {
            const ChoiceList *choices = GraphicsPDETestAccess(*panel).choices(option);
            counts.push_back(choices ? choices->size() : 0);
        }
        return counts;
    }
    void expectNothingBound()
    {
        for (const QByteArray &option : kOptions) {
            EXPECT_FALSE(GraphicsPDETestAccess(*panel).hasRecord(option)) << option.constData();
            EXPECT_EQ(GraphicsPDETestAccess(*panel).choices(option), nullptr);
        }
    }
    void useUri(const std::optional<QString> &uri)
    {
        host = std::make_shared<RecordingHost>(&*ppd);
        host->usedPrinter.deviceURI = uri;
    }
};

TEST_F(GraphicsPDEBinding, BindsEachOptionWithItsChoicesInOrderOfThePPD)
{
    makePanel();
    EXPECT_THAT(choiceCounts(), ElementsAre(3, 41, 41, 2, 2, 41));
    const ChoiceList &halftone = *GraphicsPDETestAccess(*panel).choices("CvHalftonePattern");
    EXPECT_EQ(halftone[0]->ppdTitle(), QStringLiteral("Binary"));
    EXPECT_EQ(halftone[1]->ppdTitle(), QStringLiteral("Dither"));
    EXPECT_EQ(halftone[2]->ppdTitle(), QStringLiteral("ErrorDiffusion"));
    EXPECT_EQ(halftone[2]->choice()->option, ppd->option("CvHalftonePattern"));
}

TEST_F(GraphicsPDEBinding, AsksTheHostInAFixedOrder)
{
    makePanel();
    EXPECT_THAT(takeCalls(),
                ElementsAre("printSession", "printSettings", "printSettings", "pageFormat",
                            "PMPrinter", "ppdFile", "PMPrinter"));
}

TEST_F(GraphicsPDEBinding, BeginsWithoutSelectionsAndWithClearFlags)
{
    ppd->markDefaults();
    makePanel();
    for (const QByteArray &option : kOptions) {
        EXPECT_EQ(selected(option), -1) << option.constData();
    }
    const GraphicsPDETestAccess access(*panel);
    EXPECT_EQ(access.columnDec(), 0);
    EXPECT_EQ(access.formatSetting(), 0);
    EXPECT_EQ(access.usbDec(), 0);
    EXPECT_EQ(access.halftoneView(), nullptr);
    EXPECT_EQ(access.briConView(), nullptr);
    EXPECT_EQ(panel->imageModeFlag(), 0);
}

TEST_F(GraphicsPDEBinding, KeywordInOtherLettersIsFound)
{
    usePpdFile(QStringLiteral("other-spelling.ppd"));
    makePanel();
    EXPECT_TRUE(GraphicsPDETestAccess(*panel).hasRecord("CvBrightness"));
    EXPECT_THAT(choiceCounts(), ElementsAre(3, 41, 41, 2, 2, 41));
}

TEST_F(GraphicsPDEBinding, KeywordThatIsListedTwiceMakesTwoChoices)
{
    usePpdFile(QStringLiteral("duplicate-choices.ppd"));
    makePanel();
    const ChoiceList &choices = *GraphicsPDETestAccess(*panel).choices("CvBrightness");
    ASSERT_EQ(choices.size(), 42U);
    size_t twins = 0;
    for (size_t i = 1; i < choices.size(); ++i) {
        twins += choices[i]->ppdTitle() == choices[i - 1]->ppdTitle() ? 1 : 0;
    }
    EXPECT_EQ(twins, 1U);
}

TEST_F(GraphicsPDEBinding, PrinterWithoutPPDBindsNothing)
{
    useNoPpd();
    makePanel();
    expectNothingBound();
}

TEST_F(GraphicsPDEBinding, PrinterWithoutPPDIsShownAndAsksForNoMarks)
{
    useNoPpd();
    makeView();
    panel->willShow();
    EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
    moveSlider("mBrightnessSlider", 5);
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_THAT(*panel->supportedPPDOptionKeys(), IsEmpty());
    EXPECT_THAT(takeChanges(), IsEmpty());
    EXPECT_EQ(label("mHalftoneTitle"), "HC_Halftone");
    EXPECT_EQ(label("mBrightnessTitle"), "HC_Brightness");
    EXPECT_FALSE(control<QCheckBox>("mBiDiPrintChkBx")->isEnabled());
}

TEST_F(GraphicsPDEBinding, DecliningBaseStillAnswersThePanelButBindsNothing)
{
    host = std::make_shared<RecordingHost>(&*ppd);
    panel = std::make_shared<RecordingPanel>();
    panel->baseDeclines = true;
    EXPECT_EQ(panel->initWithCallback(host, nullptr), panel.get());
    EXPECT_THAT(host->calls, IsEmpty());
    expectNothingBound();
}

TEST_F(GraphicsPDEBinding, MissingHostBindsNothingAndHarmsNothing)
{
    panel = std::make_shared<RecordingPanel>();
    EXPECT_EQ(panel->initWithCallback(nullptr, nullptr), panel.get());
    expectNothingBound();
    EXPECT_EQ(panel->panelView(), nullptr);
    panel->willShow();
    EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_THAT(*panel->supportedPPDOptionKeys(), IsEmpty());
    EXPECT_EQ(panel->summaryInfo()->value(kSummaryDisplayOrder), QVariant(QStringList()));
}

/// Each option in turn is missing.
class GraphicsPDEWithoutOption : public PanelTest, public testing::WithParamInterface<int>
{ };

TEST_P(GraphicsPDEWithoutOption, HasNeitherRecordNorChoicesForItOnly)
{
    auto options = sixOptions();
    options.erase(options.begin() + GetParam());
    usePpd(options);
    makePanel();
    const GraphicsPDETestAccess access(*panel);
    for (int i = 0; i < kOptions.size(); ++i) {
        EXPECT_EQ(access.hasRecord(kOptions[i]), i != GetParam()) << kOptions[i].constData();
        EXPECT_EQ(access.choices(kOptions[i]) != nullptr, i != GetParam());
    }
}

TEST_P(GraphicsPDEWithoutOption, ShowsSavesRestoresAndPrintsAllTheSame)
{
    auto options = sixOptions();
    const std::string missing = options[size_t(GetParam())].keyword.toStdString() + "=";
    options.erase(options.begin() + GetParam());
    usePpd(options);
    makeView();
    panel->willShow();
    EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    EXPECT_TRUE(panel->shouldPrint());
    for (const std::string &change : host->changes()) {
        EXPECT_FALSE(change.starts_with(missing)) << change;
    }
    EXPECT_FALSE(host->changes().empty());
}

std::string optionName(const testing::TestParamInfo<int> &info)
{
    return kOptions[info.param].toStdString();
}

INSTANTIATE_TEST_SUITE_P(EachOption, GraphicsPDEWithoutOption,
                         testing::Range(0, int(kOptions.size())), optionName);

struct Uri
{
    const char *name;
    const char *uri;
    int usb;
};

void PrintTo(const Uri &uri, std::ostream *out)
{
    *out << uri.uri;
}

class GraphicsPDEDeviceURI : public GraphicsPDEBinding, public testing::WithParamInterface<Uri>
{ };

TEST_P(GraphicsPDEDeviceURI, SchemeDecidesUsbDec)
{
    useUri(QString::fromLatin1(GetParam().uri));
    makePanel();
    EXPECT_EQ(GraphicsPDETestAccess(*panel).usbDec(), GetParam().usb);
}

std::string uriName(const testing::TestParamInfo<Uri> &info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(
    Schemes, GraphicsPDEDeviceURI,
    testing::Values(Uri{"Usb", "usb://A/B?serial=1", 1}, Uri{"Vendor", "CVKTUSB://x", 1},
                    Uri{"UsbInCapitals", "USB://x", 0}, Uri{"UsbCapitalised", "Usb:x", 0},
                    Uri{"VendorInSmallLetters", "cvktusb://x", 0}, Uri{"Usb2", "usb2://x", 0},
                    Uri{"UsbAsHost", "ipp://usb/", 0}, Uri{"NoColon", "usb", 0},
                    Uri{"Path", "/dev/usb", 0}, Uri{"NoScheme", "://x", 0},
                    Uri{"SchemeBeginsWithDigit", "1usb:x", 0}, Uri{"Empty", "", 0}),
    uriName);

TEST_F(GraphicsPDEBinding, WithoutURIOrPrinterUsbDecIsClear)
{
    useUri({});
    makePanel();
    EXPECT_EQ(GraphicsPDETestAccess(*panel).usbDec(), 0);
    useUri(QStringLiteral("usb://x"));
    host->hasPrinter = false;
    makePanel();
    EXPECT_EQ(GraphicsPDETestAccess(*panel).usbDec(), 0);
}

} // namespace
