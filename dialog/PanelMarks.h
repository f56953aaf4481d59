// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/OptionChoice.h"
#include "dialog/PanelHost.h"

#include <QHash>
#include <QString>

#include <deque>
#include <functional>

namespace dialog {

/// The marks of the PPD, and the print settings that follow them.
///
/// Each mark that changed is reported once, after it was made. A mark that is made while another
/// one is reported takes effect at once and is reported afterwards, so that everybody hears of all
/// changes in the order in which they were made. The interface thread only.
class PanelMarks
{
public:
    /// Marks that one change may bring about; panels that answer each other for ever end here.
    static constexpr int kMostAtOnce = 200;

    using Report = std::function<void(const OptionChoice &)>;

    /// `marked` is called after each mark, before anybody hears of it: what else of the job follows
    /// the marks is brought up to date there.
    PanelMarks(const HostedJob &job, Report report, std::function<void()> marked = {});

    /// The option as the PPD spells it; empty when it has none of that name, in any letters.
    QString spelling(const QString &option) const;

    /// Marks a choice. False when nothing changed: marked already, or unknown.
    bool mark(const QString &option, const QString &choice);

    /// The marked choice of each option that has one, in PPD order.
    OptionChoices all() const;

    /// The same for these options only.
    OptionChoices of(const QStringList &options) const;

    /// Whether marks are kept from the print settings.
    void setTrial(bool trial) { mTrial = trial; }

private:
    void report(const OptionChoice &change);
    void keep(const QString &option, const QString &choice);

    HostedJob mJob;
    Report mReport;
    std::function<void()> mMarked;
    QStringList mOptions;
    QHash<QString, QString> mSpellings;
    std::deque<OptionChoice> mChanges;
    int mAtOnce = 0;
    bool mReporting = false;
    bool mTrial = false;
};

} // namespace dialog
