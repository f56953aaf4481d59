// SPDX-License-Identifier: Apache-2.0
#include "tools/SessionDesktop.h"

#include "platform/Beep.h"
#include "platform/SystemLog.h"
#include "tools/EventLog.h"

namespace tools {

using platform::SystemVersionPart;

SessionDesktop::SessionDesktop(EventLog &events)
    : mReal(platform::ViewHost::current())
{
    platform::ViewHost::setCurrent(this);
    platform::setSystemVersionQuery(
        [this](SystemVersionPart part) { return mVersion.at(std::size_t(part)); });
    platform::setBeep([&events] { events.beep(); });
    platform::setSystemLogSink([&events](const QString &line) { events.log(line); });
}

SessionDesktop::~SessionDesktop()
{
    platform::setSystemLogSink({});
    platform::setBeep({});
    platform::setSystemVersionQuery({});
    platform::ViewHost::setCurrent(nullptr);
}

std::unique_ptr<QWidget> SessionDesktop::loadNibNamed(const QString &name,
                                                      const platform::Bundle &bundle,
                                                      platform::Outlets &owner)
{
    return mReal.loadNibNamed(name, bundle, owner);
}

} // namespace tools
