// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Bundle.h"
#include "platform/NotificationCenter.h"
#include "platform/ViewHost.h"
#include "plugin/BasePDE.h"
#include "support/RecordingHost.h"

#include <gmock/gmock.h>

/// The base panel with hooks that write their names into the host's record.
class TestPanel : public BasePDE13_v300_
{
public:
    explicit TestPanel(std::vector<std::string> *record)
        : calls(record)
    { }

    using BasePDE13_v300_::awakeFromNib;
    using BasePDE13_v300_::deviceURI;
    using BasePDE13_v300_::formatSettings;
    using BasePDE13_v300_::kPDEView;
    using BasePDE13_v300_::mFormattedItemFlg;
    using BasePDE13_v300_::mImageModeFlag;
    using BasePDE13_v300_::mLoadedNibFlg;
    using BasePDE13_v300_::mOutlets;
    using BasePDE13_v300_::nsPDEBundle;
    using BasePDE13_v300_::pdePluginCallbackObject;
    using BasePDE13_v300_::pmPrintSettings;
    using BasePDE13_v300_::ppd;
    using BasePDE13_v300_::printer;
    using BasePDE13_v300_::printSession;
    using BasePDE13_v300_::printSettings;

    void initSetTitleTexts() override { calls->emplace_back("initSetTitleTexts"); }
    void initUI() override { calls->emplace_back("initUI"); }
    void getValuesFromKey() override { calls->emplace_back("getValuesFromKey"); }
    void setValuesToKey() override { calls->emplace_back("setValuesToKey"); }
    void setPDEItems() override { calls->emplace_back("setPDEItems"); }
    void setPDEItems2() override { calls->emplace_back("setPDEItems2"); }
    void updateUIItem(qint32 flags) override
    {
        calls->push_back("updateUIItem " + std::to_string(flags));
    }
    void updateMarkedSelections(qint32 flags) override
    {
        calls->push_back("updateMarkedSelections " + std::to_string(flags));
    }

    /// What the inherited initialiser answers.
    bool canBeMade = true;
    /// The field that the interface description connects.
    QPointer<QWidget> field;
    std::vector<std::string> *calls;

protected:
    bool init() override { return canBeMade; }
    void fillOutlets(platform::Outlets &outlets) override { outlets.add("field", field); }
    void awakeFromNib() override
    {
        calls->push_back(field && kPDEView ? "awakeFromNib" : "awakeFromNib too early");
    }
};

/// A desktop whose windows and interface descriptions a test decides.
class TestDesktop : public platform::ViewHost
{
public:
    TestDesktop() { setCurrent(this); }
    ~TestDesktop() override { setCurrent(nullptr); }

    std::unique_ptr<QWidget> loadNibNamed(const QString &name, const platform::Bundle &,
                                          platform::Outlets &owner) override
    {
        loads.push_back(name.toStdString());
        if (!canLoad) {
            return nullptr;
        }
        auto view = std::make_unique<QWidget>();
        view->resize(300, 400);
        (new QWidget(view.get()))->setObjectName(QStringLiteral("field"));
        owner.connectTo(view.get());
        return view;
    }
    std::optional<double> keyWindowHeight() const override { return keyWindow; }

    bool canLoad = true;
    std::vector<std::string> loads;
    std::optional<double> keyWindow;
};

/// A panel of a host whose PPD has no mark yet and two options: CvBrightness with choices 0 to 2
/// and default 1, CvNothing whose default is no choice.
class BasePanelTest : public testing::Test
{
protected:
    explicit BasePanelTest(const QByteArray &attributes = "*FileVersion: \"1.02\"\n")
        : testPpd(TestPpd::fromText("*PPD-Adobe: \"4.3\"\n" + attributes
                                    + "*OpenUI *CvBrightness/Brightness: PickOne\n"
                                      "*DefaultCvBrightness: 1\n"
                                      "*CvBrightness 0/Dark: \"\"\n"
                                      "*CvBrightness 1/Middle: \"\"\n"
                                      "*CvBrightness 2/Light: \"\"\n"
                                      "*CloseUI: *CvBrightness\n"
                                      "*OpenUI *CvNothing/Nothing: PickOne\n"
                                      "*DefaultCvNothing: gone\n"
                                      "*CvNothing a/A: \"\"\n"
                                      "*CvNothing b/B: \"\"\n"
                                      "*CloseUI: *CvNothing\n"))
        , host(std::make_shared<RecordingHost>(&testPpd))
        , bundle(QStringLiteral("/nowhere/GraphicsPDE.plugin"), {QStringLiteral("en")})
        , panel(std::make_shared<TestPanel>(&host->calls))
    { }

    /// Makes the panel known to its host and forgets the calls of that.
    void init()
    {
        EXPECT_EQ(panel->initWithCallback(host, &bundle), panel.get());
        host->calls.clear();
    }

    TestDesktop desktop;
    TestPpd testPpd;
    std::shared_ptr<RecordingHost> host;
    platform::Bundle bundle;
    std::shared_ptr<TestPanel> panel;
};
