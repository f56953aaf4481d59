// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace dialog {

/// Counts how many shapes an SVG drawing has once every repetition (`use`) is drawn. A few lines
/// of repetitions of repetitions can mean more shapes than can be drawn in a lifetime.
class SvgComplexity
{
public:
    static constexpr double kMostShapes = 1'000'000;

    SvgComplexity();

    /// An element begins; `id` may be empty, and so may `repeats`, the id of what it repeats.
    void begin(const QString &id, const QString &repeats);
    /// The element that began last ends.
    void end();

    int depth() const { return int(mOpen.size()) - 1; }

    /// The number of shapes; counting stops above `kMostShapes`.
    double shapes();

private:
    struct Group
    {
        double own = 0;
        QStringList repeats;
        double total = -1;
        bool beingCounted = false;
    };

    double countGroup(const QString &key);

    QHash<QString, Group> mGroups;
    /// The group that each open element adds to.
    QStringList mOpen;
};

} // namespace dialog
