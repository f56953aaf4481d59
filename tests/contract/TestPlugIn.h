// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plugin/PrintDialogExtension.h"

#include <memory>

class QComboBox;

// What the test bundles share. Loading the code of any of them sets the environment variable
// LABELPRINT_TEST_CODE_RAN.

/// A panel that does nothing wrong: it sets CvHalftonePattern with a combo box of its keywords.
/// The bad bundles override the operation that they get wrong.
class TestPanel : public PDEPanel
{
public:
    explicit TestPanel(std::shared_ptr<PDEPluginCallback13_v300_> host);
    ~TestPanel() override;

    QWidget *panelView() override;
    QString panelName() override;
    QString panelKind() const override;
    std::shared_ptr<const QStringList> supportedPPDOptionKeys() override;
    void printWindowWillClose(bool userCancelled) override;
    /// The first time, marks the first choice, whatever was marked before.
    void willShow() override;
    bool shouldHide() override;
    bool shouldPrint() override;
    bool shouldShowHelp() override;
    void PPDOptionKeyValueDidChange(const std::optional<QString> &option,
                                    const std::optional<QString> &ppdChoice) override;
    bool restoreValuesAndReturnError(QString *error) override;
    bool saveValuesAndReturnError(QString *error) override;
    std::optional<QVariantMap> summaryInfo() override;

protected:
    PDEPluginCallback13_v300_ &host() { return *mHost; }

private:
    void choose(int index);

    std::shared_ptr<PDEPluginCallback13_v300_> mHost;
    std::shared_ptr<const QStringList> mKeys;
    std::unique_ptr<QComboBox> mView;
    bool mShown = false;
};

/// A plug-in with one panel of class `Panel`.
template <class Panel> class TestPlugIn : public PDEPlugIn
{
public:
    std::shared_ptr<const PDEPanelList>
    PDEPanelsForType(const QString &type,
                     const std::shared_ptr<PDEPluginCallback13_v300_> &host) override
    {
        auto panels = std::make_shared<PDEPanelList>();
        if (type == kPrintDialogPanelType) {
            panels->push_back(std::make_shared<Panel>(host));
        }
        return panels;
    }
};

#define TEST_PLUGIN_EXPORT extern "C" Q_DECL_EXPORT
