// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/Failure.h"

#include <QCoreApplication>
#include <QString>

#include <limits>
#include <vector>

namespace dialog {

/// The pages of a document that are printed: spans in rising order that neither overlap nor touch.
/// No span at all means every page.
class PageRanges
{
    Q_DECLARE_TR_FUNCTIONS(dialog::PageRanges)

public:
    /// As last page: to the end of the document.
    static constexpr quint32 kToTheEnd = std::numeric_limits<quint32>::max();

    struct Span
    {
        quint32 first = 1;
        quint32 last = kToTheEnd;

        bool operator==(const Span &) const = default;
    };

    PageRanges() = default;

    /// One span; 1 to kToTheEnd is every page.
    PageRanges(quint32 first, quint32 last)
        : PageRanges(std::vector<Span>{{first, last}})
    { }

    /// Reads "1-3,5", "4-" and "-3" in any order; empty is every page.
    static Result<PageRanges> parse(const QString &text);

    bool isAll() const { return mSpans.empty(); }
    const std::vector<Span> &spans() const { return mSpans; }
    quint32 first() const { return isAll() ? 1 : mSpans.front().first; }
    quint32 last() const { return isAll() ? kToTheEnd : mSpans.back().last; }
    bool contains(quint32 page) const;

    /// A failure when none of the pages is among the document's `pageCount` pages.
    std::optional<Failure> check(quint32 pageCount) const;

    /// As parse() reads it, which is also the form of a job's page-ranges; empty for every page.
    QString text() const;

    bool operator==(const PageRanges &) const = default;

private:
    explicit PageRanges(std::vector<Span> spans);

    std::vector<Span> mSpans;
};

} // namespace dialog
