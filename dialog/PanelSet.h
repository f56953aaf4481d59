// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/Failure.h"
#include "dialog/OptionChoice.h"
#include "dialog/PanelGuard.h"
#include "dialog/PanelHost.h"
#include "dialog/PanelMarks.h"
#include "loading/BundleLoader.h"

#include <QMap>
#include <QObject>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

namespace dialog {

using PlugIns = std::vector<std::shared_ptr<loading::LoadedPlugIn>>;

/// The panels of all plug-ins for one printer, from their start to the end of the dialog.
///
/// Order of calls: start() once; then mark(), apply() and prepareJob() as often as needed;
/// windowWillClose() before the end. Destroy the set before any widget that shows a panel's view,
/// and not from within a call into a panel. The interface thread only.
class PanelSet : public QObject
{
    Q_OBJECT

public:
    enum class Views
    {
        Made,
        None ///< nobody looks: a job without a dialog
    };

    PanelSet(PlugIns plugIns, const HostedJob &job, QObject *parent = nullptr);
    /// Lets go of the panels, then the plug-ins, then the hosts.
    ~PanelSet() override;

    /// Makes the panels and brings them to agree with the marks of the PPD, whatever they mark
    /// meanwhile. The job's settings stay as they are. An option that had no marked choice keeps
    /// the one that its panel gave it.
    void start(Views views);

    /// The panels that work, in the order of their plug-ins. Owned by the set.
    std::vector<PanelGuard *> panels() const;

    /// Whether `address` is that of a panel host of these panels: the object of what they post.
    bool isHost(const void *address) const;

    /// The options that the panels set, as the PPD spells them, each once. A panel that is dropped
    /// after the start leaves its options here: what the user chose in it is printed.
    QStringList claimedOptions() const;

    /// The marked choice of each claimed option: what goes with the job.
    OptionChoices claimedChoices() const { return mMarks.of(claimedOptions()); }

    /// Marks a choice that the dialog itself makes, in the PPD and in the print settings, and tells
    /// every panel. False when nothing changed.
    bool mark(const QString &option, const QString &choice) { return mMarks.mark(option, choice); }

    /// Marks many choices from outside, then lets the panels take them over into their controls.
    void apply(const OptionChoices &choices);

    /// Lets the panels save, then asks each whether the job may start. Stops at the first that
    /// objects.
    std::optional<Failure> prepareJob();

    void windowWillClose(bool userCancelled);

    /// All failures so far, those of the start included.
    const std::vector<Failure> &failures() const { return mFailures; }

Q_SIGNALS:
    /// Comes in the middle of a call into a panel: hide the panel's view, but delete nothing.
    void failed(const dialog::Failure &failure);
    /// A choice was marked; no panel has heard of it yet.
    void marked();
    /// All panels have heard of it.
    void choiceMarked(const QString &option, const QString &choice);
    /// A panel's view has a new size.
    void viewResized();

private:
    struct Entry
    {
        std::unique_ptr<PanelGuard> guard;
        std::size_t plugIn = 0;
    };

    std::shared_ptr<const PDEPanelList> makePanels(std::size_t plugIn);
    void addPanels(std::size_t plugIn, const PDEPanelList &panels);
    void startPanel(PanelGuard *guard);
    void claimOptions(PanelGuard *guard);
    void releaseOptions(const PanelGuard *guard);
    void markAgain();
    void keepNewMarks();
    void restorePanels();
    void requestMark(std::size_t plugIn, const QString &option, const QString &choice);
    bool mayMark(std::size_t plugIn, const QString &option) const;
    PanelGuard *culprit(std::size_t plugIn) const;
    void tellAll(const OptionChoice &change);
    void fail(const Failure &failure);

    PanelMarks mMarks;
    // Let go of in the reverse order.
    std::vector<std::shared_ptr<PanelHost>> mHosts;
    PlugIns mPlugIns;
    std::vector<Entry> mPanels;
    /// By the PPD's spelling.
    QMap<QString, const PanelGuard *> mClaims;
    QStringList mClaimed; ///< in the order in which they were claimed
    std::vector<Failure> mFailures;
    OptionChoices mBefore;
    Views mViews = Views::None;
    /// Whether panels may mark what nobody has claimed: they are being made or asked for claims.
    bool mClaiming = false;
};

} // namespace dialog
