// SPDX-License-Identifier: Apache-2.0
#include "dialog/PanelGuard.h"

#include "dialog/PanelLog.h"

#include <QScopeGuard>

#include <exception>
#include <stdexcept>

namespace dialog {

PanelGuard::PanelGuard(std::shared_ptr<PDEPanel> panel, const QString &plugIn, Report report)
    : mPanel(std::move(panel))
    , mPlugIn(plugIn)
    , mReport(std::move(report))
{ }

PanelGuard::~PanelGuard()
{
    if (mView && mView->parentWidget() != nullptr) {
        mView->setParent(nullptr);
    }
}

template <class Value, class Call>
Value PanelGuard::fenced(const char *operation, Cost cost, Value fallback, Call call)
{
    if (mDropped) {
        return fallback;
    }
    ++mCalls;
    const auto done = qScopeGuard([this] { --mCalls; });
    try {
        return call();
    } catch (const std::exception &error) {
        callFailed(operation, QString::fromUtf8(error.what()).simplified(), cost);
    } catch (...) {
        callFailed(operation, PanelGuard::tr("unknown error"), cost);
    }
    return fallback;
}

void PanelGuard::callFailed(const char *operation, const QString &cause, Cost cost)
{
    const QString fault = tr("its operation %1 failed (%2)").arg(QLatin1String(operation), cause);
    if (cost == Cost::Panel) {
        drop(tr("%1; ask its maker for a newer version").arg(fault));
    } else {
        addFault(fault);
    }
}

void PanelGuard::addFault(const QString &fault)
{
    if (mDropped) {
        return;
    }
    ++mFaults;
    qCWarning(lcPanels).noquote() << title() + QStringLiteral(":") << fault;
    if (mFaults == kMostFaults) {
        drop(tr("%1, its third fault; ask its maker for a newer version").arg(fault));
    }
}

void PanelGuard::drop(const QString &why)
{
    if (mDropped) {
        return;
    }
    const Failure failure{FailureKind::Panel, tr("%1 is switched off").arg(title()), why};
    mDropped = true;
    qCWarning(lcPanels).noquote() << failure.text();
    if (mReport) {
        mReport(failure);
    }
}

QString PanelGuard::title() const
{
    return mName && *mName != mPlugIn ? tr("panel %1 of plug-in %2").arg(*mName, mPlugIn)
                                      : tr("panel of plug-in %1").arg(mPlugIn);
}

QString PanelGuard::name()
{
    if (!mName) {
        const QString name = fenced("panelName", Cost::Fault, QString(),
                                    [this] { return mPanel->panelName().simplified(); });
        mName = name.isEmpty() ? mPlugIn : name;
    }
    return *mName;
}

QString PanelGuard::kind()
{
    return fenced("panelKind", Cost::Fault, QString(), [this] { return mPanel->panelKind(); });
}

QStringList PanelGuard::supportedOptions()
{
    return fenced("supportedPPDOptionKeys", Cost::Panel, QStringList(), [this] {
        const auto keys = mPanel->supportedPPDOptionKeys();
        return keys ? *keys : QStringList();
    });
}

void PanelGuard::makeView()
{
    mView = fenced("panelView", Cost::Panel, static_cast<QWidget *>(nullptr),
                   [this] { return mPanel->panelView(); });
    if (!mView) {
        drop(tr("it has no view; install the plug-in again"));
    }
}

void PanelGuard::showFirst()
{
    fenced("willShow", Cost::Panel, false, [this] {
        mPanel->willShow();
        return true;
    });
}

void PanelGuard::willShow()
{
    fenced("willShow", Cost::Fault, false, [this] {
        mPanel->willShow();
        return true;
    });
}

bool PanelGuard::shouldHide()
{
    return fenced("shouldHide", Cost::Fault, true, [this] { return mPanel->shouldHide(); });
}

bool PanelGuard::shouldPrint()
{
    return fenced("shouldPrint", Cost::Fault, true, [this] { return mPanel->shouldPrint(); });
}

bool PanelGuard::shouldShowHelp()
{
    return fenced("shouldShowHelp", Cost::Fault, false,
                  [this] { return mPanel->shouldShowHelp(); });
}

void PanelGuard::choiceDidChange(const QString &option, const QString &choice)
{
    fenced("PPDOptionKeyValueDidChange", Cost::Fault, false, [&] {
        mPanel->PPDOptionKeyValueDidChange(option, choice);
        return true;
    });
}

std::optional<Failure> PanelGuard::restore()
{
    return restoreOrSave("restoreValuesAndReturnError", &PDEPanel::restoreValuesAndReturnError);
}

std::optional<Failure> PanelGuard::save()
{
    return restoreOrSave("saveValuesAndReturnError", &PDEPanel::saveValuesAndReturnError);
}

std::optional<Failure> PanelGuard::restoreOrSave(const char *operation, Restorer call)
{
    QString error;
    if (fenced(operation, Cost::Fault, true, [&] { return (mPanel.get()->*call)(&error); })) {
        return {};
    }
    if (error.isEmpty()) {
        error = tr("it cannot take over its settings; check them");
    }
    return Failure{FailureKind::Panel, title(), error};
}

std::optional<QVariantMap> PanelGuard::summary()
{
    if (!mHasSummary) {
        return {};
    }
    mHasSummary = false;
    return fenced("summaryInfo", Cost::Fault, std::optional<QVariantMap>(),
                  [this]() -> std::optional<QVariantMap> {
                      std::optional<QVariantMap> info;
                      try {
                          info = mPanel->summaryInfo();
                      } catch (const std::invalid_argument &error) {
                          // The one failure that the contract allows: no summary, no fault.
                          qCInfo(lcPanels).noquote()
                              << title() << "has no summary:" << error.what();
                      }
                      mHasSummary = true;
                      return info;
                  });
}

void PanelGuard::windowWillClose(bool userCancelled)
{
    fenced("printWindowWillClose", Cost::Fault, false, [&] {
        mPanel->printWindowWillClose(userCancelled);
        return true;
    });
}

} // namespace dialog
