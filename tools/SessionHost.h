// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plugin/PrintDialogExtension.h"
#include "tools/SessionJob.h"
#include "tools/SessionPpd.h"

#include <memory>
#include <optional>

namespace tools {

class EventLog;

/// What the host of a session gives to the panel, and how it behaves.
struct HostSetup
{
    std::unique_ptr<SessionPpd> ppd; ///< may be null
    std::unique_ptr<SessionSettings> settings; ///< may be null
    SessionPageFormat pageFormat;
    std::optional<QString> deviceURI;
    bool reports = true; ///< tells the panel of changed marks
    bool resizes = true; ///< answers panelViewDidResize
};

/// The panel host of a session: marks what the panel asks for in its PPD, records it in its print
/// settings, and writes both down as events.
class SessionHost : public PDEPluginCallback13_v300_
{
public:
    /// `events` outlives the host.
    SessionHost(HostSetup setup, EventLog &events);
    ~SessionHost() override;

    /// Whom to tell of changed marks; null for nobody. Borrowed.
    void setPanel(PDEPanel *panel) { mPanel = panel; }

    /// Null without a PPD.
    SessionPpd *ppd() const { return mSetup.ppd.get(); }
    /// Null without print settings.
    const SessionSettings *settings() const { return mSetup.settings.get(); }

    PMPrintSession *printSession() const override;
    PMPrintSettings *printSettings() const override;
    PMPageFormat *pageFormat() const override;
    ::PMPrinter *PMPrinter() const override;
    ppd_file_t *ppdFile() const override;
    void willChangePPDOptionKeyValue(const QString &option,
                                     const std::optional<QString> &ppdChoice) override;
    bool respondsToSelector(QLatin1String operation) const override;
    void panelViewDidResize() override;

private:
    // The contract hands out what may be changed from operations that change nothing.
    mutable HostSetup mSetup;
    mutable SessionData mSession;
    mutable SessionPrinter mPrinter;
    EventLog &mEvents;
    PDEPanel *mPanel = nullptr;
};

} // namespace tools
