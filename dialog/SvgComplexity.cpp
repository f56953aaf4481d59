// SPDX-License-Identifier: Apache-2.0
#include "dialog/SvgComplexity.h"

namespace dialog {

SvgComplexity::SvgComplexity()
    : mOpen(QString())
{ }

void SvgComplexity::begin(const QString &id, const QString &repeats)
{
    QString group = mOpen.last();
    if (!id.isEmpty() && id != group) {
        mGroups[group].repeats << id;
        group = id;
    }
    Group &counted = mGroups[group];
    counted.own += 1;
    if (!repeats.isEmpty()) {
        counted.repeats << repeats;
    }
    mOpen << group;
}

void SvgComplexity::end()
{
    mOpen.removeLast();
}

double SvgComplexity::shapes()
{
    return countGroup(QString());
}

// As deep as the chain of repetitions is long; each group is counted once.
double SvgComplexity::countGroup(const QString &key)
{
    const auto found = mGroups.constFind(key);
    // The renderer leaves out what repeats itself.
    if (found == mGroups.constEnd() || found->beingCounted) {
        return 0;
    }
    if (found->total >= 0) {
        return found->total;
    }
    const QStringList repeats = found->repeats;
    double total = found->own;
    mGroups[key].beingCounted = true;
    for (const QString &repeated : repeats) {
        total += total > kMostShapes ? 0 : countGroup(repeated);
    }
    mGroups[key].beingCounted = false;
    mGroups[key].total = total;
    return total;
}

} // namespace dialog
