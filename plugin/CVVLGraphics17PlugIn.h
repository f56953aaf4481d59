// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plugin/PrintDialogExtension.h"

#include <memory>

/// The bundle's principal class: makes the Graphics panel for a print dialog.
///
/// Made by the dialog through the bundle's exported function, one for each dialog. Keeps the panels
/// that it made last for as long as it lives.
class CVVLGraphics17PlugIn13_v300_ : public PDEPlugIn
{
public:
    CVVLGraphics17PlugIn13_v300_();
    ~CVVLGraphics17PlugIn13_v300_() override;
    CVVLGraphics17PlugIn13_v300_(const CVVLGraphics17PlugIn13_v300_ &) = delete;
    CVVLGraphics17PlugIn13_v300_ &operator=(const CVVLGraphics17PlugIn13_v300_ &) = delete;

    /// Whether the system's version is 10.5 or later. Asks once in a process, whatever the answer.
    bool runningOnLeopardOrLater() const;

    /// Borrows the bundle. Answers this plug-in, or null on an older system; it is of no use then.
    CVVLGraphics17PlugIn13_v300_ *initWithBundle(platform::Bundle *bundle);

    /// One fresh Graphics panel for the print dialog's type, null when it cannot be made. An empty
    /// list for any other type.
    std::shared_ptr<const PDEPanelList>
    PDEPanelsForType(const QString &type,
                     const std::shared_ptr<PDEPluginCallback13_v300_> &withHostInfo) override;

protected:
    /// Null when the panel cannot be made.
    virtual std::shared_ptr<PDEPanel>
    makePanel(const std::shared_ptr<PDEPluginCallback13_v300_> &host);

    platform::Bundle *pluginBundle = nullptr;
    std::shared_ptr<PDEPanelList> pdes;

private:
    friend class PlugInTestAccess;
    static std::optional<bool> sRunningOnLeopardOrLater;
};

/// What the dialog calls first. Null: the plug-in declines.
extern "C" Q_DECL_EXPORT PDEPlugIn *
CVVLGraphics17PlugIn13_v300__initWithBundle(platform::Bundle *bundle);
