// SPDX-License-Identifier: Apache-2.0
#include "tools/Session.h"

#include "tools/RequestError.h"

#include <QLineEdit>

#include <algorithm>

namespace tools {

Session::Session(const loading::BundleCode &code)
    : mCode(code)
    , mDesktop(mEvents)
    , mBundle(code.path())
{
    mEvents.setNames([this](const void *object) { return nameOf(object); });
}

Session::~Session()
{
    close();
}

void Session::close()
{
    if (mHost) {
        mHost->setPanel(nullptr);
    }
    mPanels.reset();
    mPlugIn.reset();
    mHost.reset();
    mView.clear();
}

Session::Opened Session::open(OpenSetup setup)
{
    close();
    mDesktop.setSystemVersion(setup.systemVersion);
    mDesktop.setKeyWindowHeight(setup.keyWindowHeight);
    mPlugIn = mCode.makePlugIn(&mBundle);
    if (!mPlugIn) {
        return {};
    }
    mHost = std::make_shared<SessionHost>(std::move(setup.host), mEvents);
    mPanels = mPlugIn->PDEPanelsForType(setup.panelType, mHost);
    if (mPanels && !mPanels->empty()) {
        mHost->setPanel(mPanels->front().get());
    }
    return {true, mPanels ? std::optional(qint64(mPanels->size())) : std::nullopt};
}

PDEPanel &Session::panel() const
{
    if (!mPanels || mPanels->empty()) {
        throw RequestError(QStringLiteral("no panel is open; send \"open\" first"));
    }
    return *mPanels->front();
}

PanelInspection &Session::inspection() const
{
    auto *inspection = dynamic_cast<PanelInspection *>(&panel());
    if (!inspection) {
        throw RequestError(QStringLiteral("the panel of this plug-in cannot be looked into"));
    }
    return *inspection;
}

SessionHost &Session::host() const
{
    panel();
    return *mHost;
}

QWidget *Session::loadView()
{
    const bool wasLoaded = !mView.isNull();
    mView = panel().panelView();
    if (mView && !wasLoaded) {
        if (auto *inspection = dynamic_cast<PanelInspection *>(&panel())) {
            inspection->watchPreviews([this](const QString &view) { mEvents.display(view); });
        }
    }
    return mView;
}

void Session::makeFormatter(const FormatterStart &start)
{
    const auto make = reinterpret_cast<MakeFormatter>(mCode.function(kMakeFormatterFunction));
    if (!make) {
        throw RequestError(QStringLiteral("the plug-in has no formatters"));
    }
    mFormatter.reset(make(start));
}

FormatterInspection &Session::formatter() const
{
    if (!mFormatter) {
        throw RequestError(QStringLiteral("there is no formatter; send \"formatter.new\" first"));
    }
    return *mFormatter;
}

std::optional<QString> Session::nameOf(const void *object) const
{
    if (mHost && object == static_cast<const PDEPluginCallback13_v300_ *>(mHost.get())) {
        return QStringLiteral("host");
    }
    const auto *panel = mPanels && !mPanels->empty()
        ? dynamic_cast<const PanelInspection *>(mPanels->front().get())
        : nullptr;
    if ((mFormatter && object == mFormatter->address()) || (panel && panel->isFormatter(object))) {
        return QStringLiteral("formatter");
    }
    const QList<QLineEdit *> fields =
        mView ? mView->findChildren<QLineEdit *>() : QList<QLineEdit *>();
    const bool isField = std::any_of(fields.begin(), fields.end(), [object](QLineEdit *field) {
        return object == static_cast<const void *>(field);
    });
    return isField ? std::optional(QStringLiteral("field")) : std::nullopt;
}

} // namespace tools
