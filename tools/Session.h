// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "loading/BundleLoader.h"
#include "platform/Bundle.h"
#include "plugin/FormatterInspection.h"
#include "plugin/PanelInspection.h"
#include "plugin/PrintDialogExtension.h"
#include "tools/EventLog.h"
#include "tools/SessionDesktop.h"
#include "tools/SessionHost.h"

#include <QPointer>
#include <QWidget>

#include <memory>
#include <optional>

namespace tools {

/// What `open` asks for.
struct OpenSetup
{
    HostSetup host;
    SessionDesktop::Version systemVersion;
    std::optional<double> keyWindowHeight;
    QString panelType;
};

/// One panel at a time, with its plug-in and its host, and the events of all.
///
/// An operation that needs a panel is a RequestError while none is open. The interface thread only.
class Session
{
public:
    /// `code` outlives the session.
    explicit Session(const loading::BundleCode &code);
    ~Session();
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    struct Opened
    {
        bool plugIn = false; ///< whether the plug-in started
        std::optional<qint64> panels; ///< nothing where it answered nil
    };
    /// Drops the present panel and makes another one.
    Opened open(OpenSetup setup);

    PDEPanel &panel() const;
    PanelInspection &inspection() const;
    SessionHost &host() const;

    /// The panel's view, loaded on the first call; null when it cannot be loaded.
    QWidget *loadView();
    /// Null before it is loaded.
    QWidget *view() const { return mView; }

    /// Makes another formatter; it needs no open panel. The present one stays when there is a
    /// RequestError.
    void makeFormatter(const FormatterStart &start);
    /// A RequestError before makeFormatter.
    FormatterInspection &formatter() const;

    EventLog &events() { return mEvents; }
    SessionDesktop &desktop() { return mDesktop; }
    const loading::BundleCode &code() const { return mCode; }

private:
    void close();
    std::optional<QString> nameOf(const void *object) const;

    const loading::BundleCode &mCode;
    EventLog mEvents;
    SessionDesktop mDesktop;
    platform::Bundle mBundle;
    // Let go of in the reverse order.
    std::shared_ptr<SessionHost> mHost;
    std::unique_ptr<PDEPlugIn> mPlugIn;
    std::shared_ptr<const PDEPanelList> mPanels;
    QPointer<QWidget> mView;
    std::unique_ptr<FormatterInspection> mFormatter;
};

} // namespace tools
