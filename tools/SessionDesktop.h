// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/SystemVersion.h"
#include "platform/ViewHost.h"

#include <array>
#include <optional>

namespace tools {

class EventLog;

/// The desktop around the panel of a session: a key window and a system version as the session
/// says, beeps and lines for the system log that are written down as events, and views that are
/// really loaded. It stands in the desktop's place for the whole process as long as it lives.
class SessionDesktop : public platform::ViewHost
{
public:
    /// `events` outlives the desktop.
    explicit SessionDesktop(EventLog &events);
    ~SessionDesktop() override;
    SessionDesktop(const SessionDesktop &) = delete;
    SessionDesktop &operator=(const SessionDesktop &) = delete;

    /// In points; nothing for no key window.
    void setKeyWindowHeight(std::optional<double> height) { mKeyWindowHeight = height; }

    /// Major, minor, bug fix; nothing for a query that fails.
    using Version = std::array<std::optional<qint32>, 3>;
    void setSystemVersion(const Version &version) { mVersion = version; }

    std::unique_ptr<QWidget> loadNibNamed(const QString &name, const platform::Bundle &bundle,
                                          platform::Outlets &owner) override;
    std::optional<double> keyWindowHeight() const override { return mKeyWindowHeight; }

private:
    platform::ViewHost &mReal;
    std::optional<double> mKeyWindowHeight;
    Version mVersion;
};

} // namespace tools
