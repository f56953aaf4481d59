// SPDX-License-Identifier: Apache-2.0
#include "plugin/CVVLGraphics17PlugIn.h"

#include "graphics_panel/GraphicsPDE.h"
#include "platform/SystemVersion.h"

using platform::systemVersion;
using platform::SystemVersionPart;

std::optional<bool> CVVLGraphics17PlugIn13_v300_::sRunningOnLeopardOrLater;

CVVLGraphics17PlugIn13_v300_::CVVLGraphics17PlugIn13_v300_() = default;

CVVLGraphics17PlugIn13_v300_::~CVVLGraphics17PlugIn13_v300_() = default;

bool CVVLGraphics17PlugIn13_v300_::runningOnLeopardOrLater() const
{
    if (!sRunningOnLeopardOrLater) {
        // Meant: a part that cannot be found out counts as that of 10.4.0.
        const qint32 major = systemVersion(SystemVersionPart::Major).value_or(10);
        const qint32 minor = systemVersion(SystemVersionPart::Minor).value_or(4);
        // Meant: asked for, but of no consequence.
        systemVersion(SystemVersionPart::BugFix);
        sRunningOnLeopardOrLater = major >= 11 || (major == 10 && minor > 4);
    }
    return *sRunningOnLeopardOrLater;
}

CVVLGraphics17PlugIn13_v300_ *CVVLGraphics17PlugIn13_v300_::initWithBundle(platform::Bundle *bundle)
{
    if (!runningOnLeopardOrLater()) {
        return nullptr;
    }
    pluginBundle = bundle;
    return this;
}

std::shared_ptr<const PDEPanelList> CVVLGraphics17PlugIn13_v300_::PDEPanelsForType(
    const QString &type, const std::shared_ptr<PDEPluginCallback13_v300_> &withHostInfo)
{
    pdes = std::make_shared<PDEPanelList>();
    if (type == kPrintDialogPanelType) {
        if (auto panel = makePanel(withHostInfo)) {
            pdes->push_back(std::move(panel));
        }
        // Meant: only the print dialog's type turns an empty list into nothing.
        if (pdes->empty()) {
            pdes.reset();
        }
    }
    return pdes;
}

std::shared_ptr<PDEPanel>
CVVLGraphics17PlugIn13_v300_::makePanel(const std::shared_ptr<PDEPluginCallback13_v300_> &host)
{
    auto panel = std::make_shared<GraphicsPDE13_v300_>();
    return panel->initWithCallback(host, pluginBundle) ? panel : nullptr;
}

PDEPlugIn *CVVLGraphics17PlugIn13_v300__initWithBundle(platform::Bundle *bundle)
{
    auto plugIn = std::make_unique<CVVLGraphics17PlugIn13_v300_>();
    return plugIn->initWithBundle(bundle) ? plugIn.release() : nullptr;
}
