// SPDX-License-Identifier: Apache-2.0
#include "plugin/BasePDE.h"

#include "TestPanel.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class BasePDE : public BasePanelTest
{ };

TEST_F(BasePDE, InitAsksTheHostOnceAndInOrder)
{
    EXPECT_EQ(panel->initWithCallback(host, &bundle), panel.get());
    EXPECT_THAT(host->calls,
                ElementsAre("printSession", "printSettings", "printSettings", "pageFormat",
                            "PMPrinter", "ppdFile"));
}

TEST_F(BasePDE, InitKeepsWhatTheHostGave)
{
    init();
    EXPECT_EQ(panel->pdePluginCallbackObject, host);
    EXPECT_EQ(panel->nsPDEBundle, &bundle);
    EXPECT_EQ(panel->printSession, &host->session);
    EXPECT_EQ(panel->pmPrintSettings, &host->settings);
    EXPECT_EQ(panel->printSettings, &host->settings);
    EXPECT_EQ(panel->formatSettings, &host->format);
    EXPECT_EQ(panel->printer, &host->usedPrinter);
    EXPECT_EQ(panel->ppd, testPpd.get());
    EXPECT_EQ(panel->supportedOptions(), nullptr);
    EXPECT_EQ(panel->imageModeFlag(), 0);
    EXPECT_FALSE(panel->mLoadedNibFlg);
    EXPECT_FALSE(panel->mFormattedItemFlg);
}

TEST_F(BasePDE, InitAnswersNilAndAsksNothingWhenTheInheritedInitialiserFails)
{
    panel->canBeMade = false;
    EXPECT_EQ(panel->initWithCallback(host, &bundle), nullptr);
    EXPECT_THAT(host->calls, IsEmpty());
    EXPECT_EQ(panel->pdePluginCallbackObject, nullptr);
}

TEST_F(BasePDE, InitWithoutAHostLeavesEverythingEmpty)
{
    EXPECT_EQ(panel->initWithCallback(nullptr, &bundle), panel.get());
    EXPECT_EQ(panel->printSession, nullptr);
    EXPECT_EQ(panel->printer, nullptr);
    EXPECT_EQ(panel->ppd, nullptr);
    EXPECT_STREQ(panel->deviceURI.data(), "");
}

TEST_F(BasePDE, HostIsRetainedUntilThePanelIsGone)
{
    init();
    const std::weak_ptr<RecordingHost> watched = host;
    panel->calls = nullptr;
    host.reset();
    EXPECT_FALSE(watched.expired());
    panel.reset();
    EXPECT_TRUE(watched.expired());
}

TEST_F(BasePDE, DeviceURIIsKeptAsThePrintSystemSpellsIt)
{
    host->usedPrinter.deviceURI = QStringLiteral("USB://Acme/Label%20Printer?serial=1");
    init();
    EXPECT_STREQ(panel->deviceURI.data(), "USB://Acme/Label%20Printer?serial=1");
}

TEST_F(BasePDE, DeviceURIIsEmptyWithoutAURIOrAPrinter)
{
    init();
    EXPECT_STREQ(panel->deviceURI.data(), "");
    host->hasPrinter = false;
    init();
    EXPECT_STREQ(panel->deviceURI.data(), "");
}

TEST_F(BasePDE, DeviceURIOf254BytesFitsAndOf255IsLeftOut)
{
    host->usedPrinter.deviceURI = QStringLiteral("usb:").leftJustified(254, u'x');
    init();
    EXPECT_EQ(std::string(panel->deviceURI.data()), "usb:" + std::string(250, 'x'));
    host->usedPrinter.deviceURI = QStringLiteral("usb:").leftJustified(255, u'x');
    init();
    EXPECT_STREQ(panel->deviceURI.data(), "");
}

TEST_F(BasePDE, DeviceURIIsMeasuredInBytesOfTheSystemEncoding)
{
    host->usedPrinter.deviceURI = QString(127, QChar(0xE9));
    init();
    EXPECT_EQ(std::string(panel->deviceURI.data()).size(), 254U);
    host->usedPrinter.deviceURI = QString(128, QChar(0xE9));
    init();
    EXPECT_STREQ(panel->deviceURI.data(), "");
}

TEST_F(BasePDE, DeviceURIThatDoesNotConvertIsLeftOut)
{
    host->usedPrinter.deviceURI = QStringLiteral("usb://x") + QChar(0xD83D);
    init();
    EXPECT_STREQ(panel->deviceURI.data(), "");
}

TEST_F(BasePDE, WillShowRunsTheThreeHooksInOrderEachTime)
{
    init();
    panel->willShow();
    EXPECT_THAT(host->calls, ElementsAre("initSetTitleTexts", "initUI", "setPDEItems"));
    panel->willShow();
    EXPECT_THAT(host->calls,
                ElementsAre("initSetTitleTexts", "initUI", "setPDEItems", "initSetTitleTexts",
                            "initUI", "setPDEItems"));
}

TEST_F(BasePDE, RestoreReadsTheValuesThenShowsThemAndNeverFails)
{
    init();
    QString error = QStringLiteral("untouched");
    EXPECT_TRUE(panel->restoreValuesAndReturnError(&error));
    EXPECT_THAT(host->calls, ElementsAre("setPDEItems2", "setPDEItems"));
    EXPECT_EQ(error, QStringLiteral("untouched"));
    EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
}

TEST_F(BasePDE, SaveWritesTheValuesAndNeverFails)
{
    init();
    QString error = QStringLiteral("untouched");
    EXPECT_TRUE(panel->saveValuesAndReturnError(&error));
    EXPECT_THAT(host->calls, ElementsAre("setValuesToKey"));
    EXPECT_EQ(error, QStringLiteral("untouched"));
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
}

TEST_F(BasePDE, UpdateUIShowsTheCurrentValues)
{
    init();
    panel->updateUI();
    EXPECT_THAT(host->calls, ElementsAre("setPDEItems"));
}

TEST_F(BasePDE, SupportedKeysWriteTheValuesAndClaimNothing)
{
    init();
    EXPECT_EQ(panel->supportedPPDOptionKeys(), nullptr);
    EXPECT_THAT(host->calls, ElementsAre("setValuesToKey"));
}

TEST_F(BasePDE, MayAlwaysHideAndPrintAndHasNoHelp)
{
    init();
    EXPECT_TRUE(panel->shouldHide());
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_FALSE(panel->shouldShowHelp());
    EXPECT_THAT(host->calls, IsEmpty());
}

TEST_F(BasePDE, HasNoSummary)
{
    init();
    EXPECT_EQ(panel->summaryInfo(), std::nullopt);
    EXPECT_EQ(panel->indexForSummary(32), 0);
}

TEST_F(BasePDE, KindIsAReverseDomainName)
{
    EXPECT_TRUE(
        panel->panelKind().endsWith(QStringLiteral(".printer.cups.pde.CVKTVLGraphicsPDEKind")));
}

TEST_F(BasePDE, HooksDoNothingByThemselves)
{
    BasePDE13_v300_ plain;
    ASSERT_TRUE(plain.initWithCallback(host, &bundle));
    host->calls.clear();
    plain.initSetTitleTexts();
    plain.initUI();
    plain.getValuesFromKey();
    plain.setValuesToKey();
    plain.setPDEItems();
    plain.setPDEItems2();
    plain.updateUIItem(-1);
    plain.updateMarkedSelections(-1);
    plain.PPDOptionKeyValueDidChange(QStringLiteral("CvBrightness"), QStringLiteral("2"));
    plain.PPDOptionKeyValueDidChange({}, {});
    plain.printWindowWillClose(true);
    plain.finalize();
    EXPECT_THAT(host->calls, IsEmpty());
    EXPECT_EQ(testPpd.marked("CvBrightness"), "");
}

TEST_F(BasePDE, SupportedOptionsAreTheListThatWasStoredAndNothingBefore)
{
    init();
    const auto first = std::make_shared<QStringList>();
    panel->setSupportedOptions(first);
    EXPECT_EQ(panel->supportedOptions(), first);
    first->append(QStringLiteral("CvBrightness"));
    EXPECT_EQ(*panel->supportedOptions(), QStringList(QStringLiteral("CvBrightness")));
    const auto second = std::make_shared<QStringList>(*first);
    panel->setSupportedOptions(second);
    EXPECT_EQ(panel->supportedOptions(), second);
    panel->setSupportedOptions(second);
    EXPECT_EQ(second.use_count(), 2);
    EXPECT_EQ(first.use_count(), 1) << "the former list is let go";
}

TEST_F(BasePDE, ImageModeFlagReadsTheField)
{
    init();
    panel->mImageModeFlag = qint16(-32767);
    EXPECT_EQ(panel->imageModeFlag(), -32767);
}

TEST_F(BasePDE, NameIsLookedUpOnceInTheBundle)
{
    platform::Bundle german(QStringLiteral(SAMPLE_BUNDLE_DIR), {QStringLiteral("de")});
    panel->initWithCallback(host, &german);
    EXPECT_EQ(panel->panelName(), QStringLiteral("Grafik"));
    panel->nsPDEBundle = &bundle;
    EXPECT_EQ(panel->panelName(), QStringLiteral("Grafik"));
}

TEST_F(BasePDE, NameWithoutAStringsTableIsItsKeyAndWithoutABundleEmpty)
{
    init();
    EXPECT_EQ(panel->panelName(), QStringLiteral("AD_PANEL_NAME"));
    panel->initWithCallback(host, nullptr);
    EXPECT_EQ(panel->panelName(), QString());
}

class BasePDEAttributes : public testing::Test
{
protected:
    void open(const QByteArray &attributes)
    {
        ppd = TestPpd::fromText("*PPD-Adobe: \"4.3\"\n" + attributes);
        panel.initWithCallback(std::make_shared<RecordingHost>(&*ppd), nullptr);
    }

    std::optional<TestPpd> ppd;
    BasePDE13_v300_ panel;
};

TEST_F(BasePDEAttributes, FileVersionIsTheAttributesValueOrNothing)
{
    open("*FileVersion: \"1.02\"\n");
    EXPECT_EQ(panel.fileVerString(), QStringLiteral("1.02"));
    open("");
    EXPECT_EQ(panel.fileVerString(), std::nullopt);
}

TEST_F(BasePDEAttributes, VLPrinterIsOneWhoseTapeTypeIsExactlyVL)
{
    open("*CvTapeType: \"VL\"\n");
    EXPECT_TRUE(panel.isVLPrinter());
    for (const char *other : {"*CvTapeType: \"vl\"\n", "*CvTapeType: \"VL2\"\n",
                              "*CvTapeType: \"\"\n", "*CvTapeType: \" VL\"\n", ""}) {
        open(other);
        EXPECT_FALSE(panel.isVLPrinter()) << other;
    }
}

TEST_F(BasePDEAttributes, WithoutAPPDThereIsNoVersionAndNoVLPrinter)
{
    panel.initWithCallback(std::make_shared<RecordingHost>(), nullptr);
    EXPECT_EQ(panel.fileVerString(), std::nullopt);
    EXPECT_FALSE(panel.isVLPrinter());
}

} // namespace
