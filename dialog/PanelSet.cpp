// SPDX-License-Identifier: Apache-2.0
#include "dialog/PanelSet.h"

#include "dialog/PanelLog.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <exception>

namespace dialog {

PanelSet::PanelSet(PlugIns plugIns, const HostedJob &job, QObject *parent)
    : QObject(parent)
    , mMarks(
          job, [this](const OptionChoice &change) { tellAll(change); }, [this] { Q_EMIT marked(); })
    , mPlugIns(std::move(plugIns))
{
    for (std::size_t i = 0; i < mPlugIns.size(); ++i) {
        auto host = std::make_shared<PanelHost>(
            job, [this, i](const QString &option, const QString &choice) {
                requestMark(i, option, choice);
            });
        connect(host.get(), &PanelHost::viewResized, this, &PanelSet::viewResized);
        mHosts.push_back(std::move(host));
    }
}

PanelSet::~PanelSet()
{
    for (const auto &host : mHosts) {
        host->close();
    }
    mPanels.clear();
    mPlugIns.clear();
    mHosts.clear();
}

void PanelSet::start(Views views)
{
    mViews = views;
    mBefore = mMarks.all();
    mMarks.setTrial(true);
    for (std::size_t i = 0; i < mPlugIns.size(); ++i) {
        if (const auto panels = makePanels(i)) {
            addPanels(i, *panels);
        }
    }
    markAgain();
    if (views == Views::Made) {
        restorePanels();
        markAgain();
    }
    mMarks.setTrial(false);
    keepNewMarks();
}

std::shared_ptr<const PDEPanelList> PanelSet::makePanels(std::size_t plugIn)
{
    QString cause;
    try {
        const QScopedValueRollback<bool> claiming(mClaiming, true);
        return mPlugIns[plugIn]->plugIn().PDEPanelsForType(kPrintDialogPanelType, mHosts[plugIn]);
    } catch (const std::exception &error) {
        cause = QString::fromUtf8(error.what()).simplified();
    } catch (...) {
        cause = tr("unknown error");
    }
    fail({FailureKind::Panel, tr("plug-in %1 is left out").arg(mPlugIns[plugIn]->name()),
          tr("it failed to make its panels (%1); ask its maker for a newer version").arg(cause)});
    return {};
}

void PanelSet::addPanels(std::size_t plugIn, const PDEPanelList &panels)
{
    const QString name = mPlugIns[plugIn]->name();
    if (std::find(panels.begin(), panels.end(), nullptr) != panels.end()) {
        fail({FailureKind::Panel, tr("a panel of plug-in %1 is left out").arg(name),
              tr("the plug-in could not make it; install the plug-in again")});
    }
    for (const std::shared_ptr<PDEPanel> &panel : panels) {
        if (panel) {
            mPanels.push_back({std::make_unique<PanelGuard>(
                                   panel, name, [this](const Failure &failure) { fail(failure); }),
                               plugIn});
            startPanel(mPanels.back().guard.get());
        }
    }
}

void PanelSet::startPanel(PanelGuard *guard)
{
    guard->name();
    claimOptions(guard);
    if (mViews == Views::Made && !guard->isDropped()) {
        // The view is to be made from what the user has chosen.
        markAgain();
        guard->makeView();
        guard->showFirst();
    }
    if (guard->isDropped()) {
        // It never worked, so nothing was chosen in it, and the next one may have its options.
        releaseOptions(guard);
    }
}

void PanelSet::claimOptions(PanelGuard *guard)
{
    const QScopedValueRollback<bool> claiming(mClaiming, true);
    const QStringList keys = guard->supportedOptions();
    for (const QString &key : keys) {
        const QString option = mMarks.spelling(key);
        if (option.isEmpty()) {
            guard->drop(tr("it wants to set the option %1, which the printer does not have; "
                           "install the plug-in for this printer")
                            .arg(key));
            return;
        }
        if (mClaims.value(option, guard) != guard) {
            guard->drop(tr("it wants to set the option %1, which another panel sets already; "
                           "remove one of the two plug-ins")
                            .arg(option));
            return;
        }
        if (!mClaims.contains(option)) {
            mClaims.insert(option, guard);
            mClaimed << option;
        }
    }
}

void PanelSet::releaseOptions(const PanelGuard *guard)
{
    mClaimed.removeIf([&](const QString &option) { return mClaims.value(option) == guard; });
    mClaims.removeIf([&](const auto &claim) { return claim.value() == guard; });
}

void PanelSet::markAgain()
{
    const OptionChoices now = mMarks.all();
    for (const OptionChoice &mark : mBefore) {
        if (std::find(now.begin(), now.end(), mark) == now.end()) {
            mMarks.mark(mark.option, mark.choice);
        }
    }
}

void PanelSet::keepNewMarks()
{
    for (const OptionChoice &mark : claimedChoices()) {
        if (std::find(mBefore.begin(), mBefore.end(), mark) == mBefore.end()) {
            mMarks.mark(mark.option, mark.choice);
        }
    }
}

void PanelSet::restorePanels()
{
    for (const Entry &entry : mPanels) {
        if (const auto failure = entry.guard->restore()) {
            fail(*failure);
        }
    }
}

void PanelSet::apply(const OptionChoices &choices)
{
    for (const OptionChoice &choice : choices) {
        mMarks.mark(choice.option, choice.choice);
    }
    restorePanels();
}

std::optional<Failure> PanelSet::prepareJob()
{
    for (const Entry &entry : mPanels) {
        if (auto failure = entry.guard->save()) {
            return failure;
        }
    }
    for (const Entry &entry : mPanels) {
        if (!entry.guard->shouldPrint()) {
            return Failure{FailureKind::Panel, tr("panel %1").arg(entry.guard->name()),
                           tr("it does not let the job start; check its settings")};
        }
    }
    return {};
}

void PanelSet::windowWillClose(bool userCancelled)
{
    for (const Entry &entry : mPanels) {
        entry.guard->windowWillClose(userCancelled);
    }
}

std::vector<PanelGuard *> PanelSet::panels() const
{
    std::vector<PanelGuard *> working;
    for (const Entry &entry : mPanels) {
        if (!entry.guard->isDropped()) {
            working.push_back(entry.guard.get());
        }
    }
    return working;
}

bool PanelSet::isHost(const void *address) const
{
    return std::any_of(mHosts.begin(), mHosts.end(), [address](const auto &host) {
        return static_cast<const PDEPluginCallback13_v300_ *>(host.get()) == address;
    });
}

QStringList PanelSet::claimedOptions() const
{
    return mClaimed;
}

void PanelSet::requestMark(std::size_t plugIn, const QString &option, const QString &choice)
{
    const QString key = mMarks.spelling(option);
    if (key.isEmpty()) {
        return;
    }
    if (mayMark(plugIn, key)) {
        mMarks.mark(key, choice);
        return;
    }
    const QString fault = tr("it tried to set the option %1, which is not its own").arg(key);
    if (PanelGuard *guard = culprit(plugIn)) {
        guard->addFault(fault);
    } else {
        qCWarning(lcPanels).noquote() << mPlugIns[plugIn]->name() + QStringLiteral(":") << fault;
    }
}

bool PanelSet::mayMark(std::size_t plugIn, const QString &option) const
{
    const auto claim = mClaims.find(option);
    if (claim == mClaims.end()) {
        return mClaiming;
    }
    return std::any_of(mPanels.begin(), mPanels.end(), [&](const Entry &entry) {
        return entry.guard.get() == *claim && entry.plugIn == plugIn && !entry.guard->isDropped();
    });
}

PanelGuard *PanelSet::culprit(std::size_t plugIn) const
{
    PanelGuard *only = nullptr;
    int count = 0;
    for (const Entry &entry : mPanels) {
        if (entry.plugIn == plugIn) {
            if (entry.guard->isInCall()) {
                return entry.guard.get();
            }
            only = entry.guard.get();
            ++count;
        }
    }
    return count == 1 ? only : nullptr;
}

void PanelSet::tellAll(const OptionChoice &change)
{
    // By index: a panel may be added while the ones before it are told.
    for (std::size_t i = 0; i < mPanels.size(); ++i) {
        mPanels[i].guard->choiceDidChange(change.option, change.choice);
    }
    Q_EMIT choiceMarked(change.option, change.choice);
}

void PanelSet::fail(const Failure &failure)
{
    mFailures.push_back(failure);
    Q_EMIT failed(failure);
}

} // namespace dialog
