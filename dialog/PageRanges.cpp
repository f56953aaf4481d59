// SPDX-License-Identifier: Apache-2.0
#include "dialog/PageRanges.h"

#include <QStringList>

#include <algorithm>

namespace dialog {

namespace {

// The print system's page numbers are signed.
constexpr quint32 kHighestPage = std::numeric_limits<qint32>::max();

Failure bad(const QString &text, const QString &why)
{
    return {FailureKind::Settings, PageRanges::tr("Pages “%1”").arg(text), why};
}

/// A page number, or nothing. Only ASCII digits: that is what the job's option takes.
std::optional<quint32> pageOf(const QString &text)
{
    const QString digits = text.trimmed();
    const bool isNumber = !digits.isEmpty()
        && std::all_of(digits.begin(), digits.end(),
                       [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); });
    bool fits = false;
    const quint32 page = digits.toUInt(&fits);
    return isNumber && fits && page <= kHighestPage ? std::optional(page) : std::nullopt;
}

std::optional<PageRanges::Span> spanOf(const QString &text)
{
    const QStringList ends = text.split(QLatin1Char('-'));
    if (ends.size() == 1) {
        const auto page = pageOf(text);
        return page ? std::optional(PageRanges::Span{*page, *page}) : std::nullopt;
    }
    const bool openStart = ends.first().trimmed().isEmpty();
    const bool openEnd = ends.last().trimmed().isEmpty();
    if (ends.size() != 2 || (openStart && openEnd)) {
        return {};
    }
    const auto first = openStart ? std::optional<quint32>(1) : pageOf(ends.first());
    const auto last = openEnd ? std::optional(PageRanges::kToTheEnd) : pageOf(ends.last());
    return first && last ? std::optional(PageRanges::Span{*first, *last}) : std::nullopt;
}

QString textOf(const PageRanges::Span &span)
{
    const QString first = QString::number(span.first);
    if (span.last == PageRanges::kToTheEnd) {
        return first + QLatin1Char('-');
    }
    return span.first == span.last ? first : first + QLatin1Char('-') + QString::number(span.last);
}

} // namespace

/// Takes spans in any order, joins those that overlap or touch.
PageRanges::PageRanges(std::vector<Span> spans)
{
    std::sort(spans.begin(), spans.end(),
              [](const Span &a, const Span &b) { return a.first < b.first; });
    for (const Span &span : spans) {
        if (!mSpans.empty() && span.first - 1 <= mSpans.back().last) {
            mSpans.back().last = std::max(mSpans.back().last, span.last);
        } else {
            mSpans.push_back(span);
        }
    }
    if (mSpans == std::vector{Span{}}) {
        mSpans.clear();
    }
}

Result<PageRanges> PageRanges::parse(const QString &text)
{
    if (text.trimmed().isEmpty()) {
        return PageRanges();
    }
    // Word processors turn a hyphen between numbers into a dash.
    QString plain = text;
    plain.replace(QChar(0x2013), QLatin1Char('-'));
    std::vector<Span> spans;
    for (const QString &piece : plain.split(QLatin1Char(','))) {
        const auto span = spanOf(piece);
        if (!span) {
            return bad(text, tr("write page numbers and ranges like 1-3,5"));
        }
        if (span->first == 0 || span->last == 0) {
            return bad(text, tr("pages are counted from 1"));
        }
        if (span->first > span->last) {
            return bad(text,
                       tr("a range begins with its smaller number; write %1-%2")
                           .arg(span->last)
                           .arg(span->first));
        }
        spans.push_back(*span);
    }
    return PageRanges(std::move(spans));
}

bool PageRanges::contains(quint32 page) const
{
    return page > 0
        && (isAll() || std::any_of(mSpans.begin(), mSpans.end(), [page](const Span &span) {
                return span.first <= page && page <= span.last;
            }));
}

std::optional<Failure> PageRanges::check(quint32 pageCount) const
{
    if (first() <= pageCount) {
        return {};
    }
    return bad(text(), tr("the document has only %n pages", nullptr, int(pageCount)));
}

QString PageRanges::text() const
{
    QStringList pieces;
    std::transform(mSpans.begin(), mSpans.end(), std::back_inserter(pieces), textOf);
    return pieces.join(QLatin1Char(','));
}

} // namespace dialog
