// SPDX-License-Identifier: Apache-2.0
#include "dialog/DocumentToPdf.h"

#include "dialog/PageSource.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include <cmath>
#include <vector>

namespace dialog {

namespace {

constexpr int kResolution = 1200;
constexpr double kDotsPerPoint = kResolution / 72.0;

// The writer knows whole points only; the page is cut to its true size afterwards.
QPageSize paperFor(const QSizeF &size)
{
    return QPageSize(QSizeF(std::ceil(size.width()), std::ceil(size.height())), QPageSize::Point,
                     QString(), QPageSize::ExactMatch);
}

// The page stands in the bottom left corner of its paper, where a PDF page has its origin.
QRectF placeOnPaper(const QSizeF &size)
{
    const double gap = std::ceil(size.height()) - size.height();
    return {0, gap * kDotsPerPoint, size.width() * kDotsPerPoint, size.height() * kDotsPerPoint};
}

// The new box takes no more bytes than the old one, so that every place in the file stays valid.
bool cutPages(QByteArray &pdf, const std::vector<QSizeF> &sizes)
{
    qsizetype from = 0;
    for (const QSizeF &size : sizes) {
        const QByteArray start("/MediaBox [0 0 ");
        const qsizetype box = pdf.indexOf(start, from) + start.size();
        const qsizetype end = pdf.indexOf(']', box);
        if (box < start.size() || end < 0) {
            return false;
        }
        const QByteArray cut = QByteArray::number(size.width(), 'f', 4) + ' '
            + QByteArray::number(size.height(), 'f', 4);
        if (cut.size() > end - box) {
            return false;
        }
        pdf.replace(box, end - box, cut.leftJustified(end - box));
        from = end;
    }
    return true;
}

bool paintPages(const PageSource &source, QPdfWriter &writer, std::vector<QSizeF> &sizes)
{
    QPainter painter;
    for (int page = 0; page < source.pageCount(); ++page) {
        const QSizeF size = source.pageSize(page);
        if (size.isEmpty()) {
            return false;
        }
        writer.setPageSize(paperFor(size));
        if (page == 0 ? !painter.begin(&writer) : !writer.newPage()) {
            return false;
        }
        painter.setRenderHint(QPainter::LosslessImageRendering);
        const QRectF place = placeOnPaper(size);
        if (!source.paint(page, painter, place, place)) {
            return false;
        }
        sizes.push_back(size);
    }
    return true;
}

} // namespace

std::optional<QByteArray> documentToPdf(const PageSource &source, const QString &title)
{
    QByteArray pdf;
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    std::vector<QSizeF> sizes;
    {
        QPdfWriter writer(&buffer);
        writer.setTitle(title);
        writer.setCreator(QStringLiteral("label-print"));
        writer.setResolution(kResolution);
        writer.setPageMargins(QMarginsF(0, 0, 0, 0));
        if (!paintPages(source, writer, sizes)) {
            return {};
        }
    }
    if (!cutPages(pdf, sizes)) {
        return {};
    }
    return pdf;
}

} // namespace dialog
