// SPDX-License-Identifier: Apache-2.0
#include "dialog/SvgPages.h"

#include "dialog/SvgContent.h"

#include <QPainter>
#include <QSvgRenderer>

namespace dialog {

namespace {

constexpr double kPointsPerPixel = 0.75;

} // namespace

SvgPages::SvgPages(const QByteArray &content, const QSizeF &size, bool stretched)
    : mContent(content)
    , mSize(size)
    , mStretched(stretched)
{ }

Result<std::shared_ptr<const PageSource>> SvgPages::open(const QByteArray &content,
                                                         const QString &name)
{
    const Result<SvgContent> drawing = SvgContent::read(content, name);
    if (!drawing) {
        return drawing.failure();
    }
    QSvgRenderer renderer;
    if (!renderer.load(content)) {
        return Failure{FailureKind::Document, name,
                       tr("is an SVG drawing that cannot be drawn; export it once more")};
    }
    // A drawing without a size is as large as what is drawn.
    const QSizeF size = drawing.value().size().isEmpty()
        ? renderer.viewBoxF().size() * kPointsPerPixel
        : drawing.value().size();
    if (size.isEmpty()) {
        return Failure{FailureKind::Document, name,
                       tr("is an SVG drawing of no size; give it a width and a height")};
    }
    if (size.width() > kLongestSide || size.height() > kLongestSide) {
        return Failure{FailureKind::Document, name,
                       tr("is an SVG drawing of more than five metres; make it smaller")};
    }
    return std::shared_ptr<const PageSource>(
        new SvgPages(content, size, drawing.value().isStretched()));
}

QSizeF SvgPages::pageSize(int page) const
{
    return page == 0 ? mSize : QSizeF(0, 0);
}

// The renderer belongs to its thread, so every call has its own.
bool SvgPages::paint(int page, QPainter &painter, const QRectF &target, const QRectF &) const
{
    QSvgRenderer renderer;
    if (page != 0 || !renderer.load(mContent)) {
        return false;
    }
    renderer.setAspectRatioMode(mStretched ? Qt::IgnoreAspectRatio : Qt::KeepAspectRatio);
    renderer.render(&painter, target);
    return true;
}

} // namespace dialog
