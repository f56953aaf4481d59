// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/Failure.h"
#include "plugin/PrintDialogExtension.h"

#include <QCoreApplication>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace dialog {

/// The fence around one panel: the only way to call it.
///
/// Nothing that a panel throws gets out. What goes wrong while the panel starts, or goes wrong for
/// the third time later, drops the panel: it is not called again, and the user gets one sentence.
/// A call into a dropped panel answers what does no harm to the job. The interface thread only.
class PanelGuard
{
    Q_DECLARE_TR_FUNCTIONS(dialog::PanelGuard)

public:
    static constexpr int kMostFaults = 3;

    /// Gets the one sentence, in the middle of a call into the panel: it may hide the view, but
    /// must delete neither view nor guard.
    using Report = std::function<void(const Failure &)>;

    /// `panel` is not null. `plugIn` is the plug-in's name.
    PanelGuard(std::shared_ptr<PDEPanel> panel, const QString &plugIn, Report report);
    /// Takes the view out of its parent, because it is the panel's, and lets go of the panel.
    ~PanelGuard();
    PanelGuard(const PanelGuard &) = delete;
    PanelGuard &operator=(const PanelGuard &) = delete;

    bool isDropped() const { return mDropped; }

    /// Whether a call into the panel has not come back yet.
    bool isInCall() const { return mCalls > 0; }

    /// The panel's name, or the plug-in's when the panel has none to tell. Asked once.
    QString name();
    QString kind();

    /// Steps of the start: one that fails drops the panel.
    QStringList supportedOptions();
    void makeView();
    void showFirst();

    /// Null before makeView(), after it failed, and when the panel deleted its view itself.
    QWidget *view() const { return mView; }

    /// The view is about to be seen again.
    void willShow();

    bool shouldHide();
    /// Yes when the panel throws: a broken panel does not hold a job back.
    bool shouldPrint();
    bool shouldShowHelp();
    void choiceDidChange(const QString &option, const QString &choice);

    /// What the panel says when it cannot do it; nothing when it throws.
    std::optional<Failure> restore();
    std::optional<Failure> save();

    /// Nothing when the panel has no summary or cannot make it. It is asked after every change, so
    /// that one that throws what it may not is one fault and is not asked again.
    std::optional<QVariantMap> summary();

    void windowWillClose(bool userCancelled);

    /// Takes note of something that the panel did wrong: "REASON", for the user.
    void addFault(const QString &fault);

    /// `why` is "REASON; ADVICE".
    void drop(const QString &why);

private:
    /// What a failed call costs.
    enum class Cost
    {
        Fault,
        Panel
    };
    using Restorer = bool (PDEPanel::*)(QString *);

    template <class Value, class Call>
    Value fenced(const char *operation, Cost cost, Value fallback, Call call);
    void callFailed(const char *operation, const QString &cause, Cost cost);
    std::optional<Failure> restoreOrSave(const char *operation, Restorer call);
    QString title() const;

    std::shared_ptr<PDEPanel> mPanel;
    QString mPlugIn;
    Report mReport;
    std::optional<QString> mName;
    QPointer<QWidget> mView;
    int mCalls = 0;
    int mFaults = 0;
    bool mHasSummary = true;
    bool mDropped = false;
};

} // namespace dialog
