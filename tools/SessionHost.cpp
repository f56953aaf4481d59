// SPDX-License-Identifier: Apache-2.0
#include "tools/SessionHost.h"

#include "tools/EventLog.h"

#include <utility>

namespace tools {

SessionHost::SessionHost(HostSetup setup, EventLog &events)
    : mSetup(std::move(setup))
    , mPrinter(mSetup.deviceURI)
    , mEvents(events)
{ }

SessionHost::~SessionHost() = default;

PMPrintSession *SessionHost::printSession() const
{
    return &mSession;
}

PMPrintSettings *SessionHost::printSettings() const
{
    return mSetup.settings.get();
}

PMPageFormat *SessionHost::pageFormat() const
{
    return &mSetup.pageFormat;
}

::PMPrinter *SessionHost::PMPrinter() const
{
    return &mPrinter;
}

ppd_file_t *SessionHost::ppdFile() const
{
    return mSetup.ppd ? mSetup.ppd->file() : nullptr;
}

void SessionHost::willChangePPDOptionKeyValue(const QString &option,
                                              const std::optional<QString> &ppdChoice)
{
    mEvents.willChange(option, ppdChoice);
    if (!ppdChoice) {
        return;
    }
    const bool changed = mSetup.ppd && mSetup.ppd->mark(option, *ppdChoice);
    if (mSetup.settings) {
        mSetup.settings->setValue(option, ppdChoice->toUtf8());
    }
    if (changed && mSetup.reports && mPanel) {
        mPanel->PPDOptionKeyValueDidChange(option, ppdChoice);
    }
}

bool SessionHost::respondsToSelector(QLatin1String operation) const
{
    return mSetup.resizes && operation == QLatin1String("panelViewDidResize");
}

void SessionHost::panelViewDidResize()
{
    mEvents.panelViewDidResize();
}

} // namespace tools
