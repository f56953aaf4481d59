// SPDX-License-Identifier: Apache-2.0
#include "dialog/PanelMarks.h"

#include "dialog/JobSettings.h"
#include "dialog/PanelLog.h"
#include "dialog/PpdFile.h"

namespace dialog {

PanelMarks::PanelMarks(const HostedJob &job, Report report, std::function<void()> marked)
    : mJob(job)
    , mReport(std::move(report))
    , mMarked(std::move(marked))
    , mOptions(job.ppd ? job.ppd->options() : QStringList())
{
    for (const QString &option : std::as_const(mOptions)) {
        mSpellings.insert(option.toLower(), option);
    }
}

QString PanelMarks::spelling(const QString &option) const
{
    return mSpellings.value(option.toLower());
}

bool PanelMarks::mark(const QString &option, const QString &choice)
{
    const QString key = spelling(option);
    if (key.isEmpty() || mJob.ppd->check(key, choice)) {
        return false;
    }
    if (mAtOnce == kMostAtOnce) {
        qCWarning(lcPanels) << "too many changes at once, left out:" << key << choice;
        return false;
    }
    const bool changed = mJob.ppd->mark(key, choice);
    mAtOnce += changed && mReporting ? 1 : 0;
    keep(key, choice);
    if (mMarked) {
        mMarked();
    }
    if (changed) {
        report({key, choice});
    }
    return changed;
}

void PanelMarks::keep(const QString &option, const QString &choice)
{
    if (!mJob.settings || mTrial) {
        return;
    }
    if (option == QLatin1String("PageSize")) {
        mJob.settings->setLabelSize(mJob.ppd->markedSize());
    } else {
        mJob.settings->setChoice(option, choice);
    }
}

void PanelMarks::report(const OptionChoice &change)
{
    mChanges.push_back(change);
    if (mReporting) {
        return;
    }
    mReporting = true;
    while (!mChanges.empty()) {
        const OptionChoice next = mChanges.front();
        mChanges.pop_front();
        mReport(next);
    }
    mReporting = false;
    mAtOnce = 0;
}

OptionChoices PanelMarks::all() const
{
    return of(mOptions);
}

OptionChoices PanelMarks::of(const QStringList &options) const
{
    OptionChoices marked;
    for (const QString &option : options) {
        if (const auto choice = mJob.ppd->markedChoice(option)) {
            marked.push_back({option, *choice});
        }
    }
    return marked;
}

} // namespace dialog
