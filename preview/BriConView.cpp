// SPDX-License-Identifier: Apache-2.0
#include "preview/BriConView.h"

#include "imaging/ColorControls.h"
#include "platform/Controls.h"
#include "preview/SamplePicture.h"

#include <QPainter>

#include <algorithm>

using preview::CIImage;
using preview::PixelFormat;

namespace {

constexpr float kLevelsPerUnit = 40.0F;

void showValue(QLineEdit *field, const QSlider *slider)
{
    const qint32 value = platform::intValue(slider);
    if (platform::intValue(field) != value) {
        platform::setIntValue(field, value);
    }
}

/// The lower-left part of the image in whole points, one pixel a point: as it is when it has 3
/// bytes a pixel, else as red, green, blue, alpha.
QImage captured(const QImage &image)
{
    const QSizeF size = image.deviceIndependentSize();
    const QSize whole(int(size.width()), int(size.height()));
    QImage pixels = image;
    if (whole != image.size()) {
        pixels = QImage(whole, QImage::Format_RGBA8888);
        pixels.fill(Qt::transparent);
        QPainter painter(&pixels);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QPointF(0.0, whole.height() - size.height()), image);
    }
    const bool threeBytes = pixels.depth() == 24;
    return pixels.convertToFormat(threeBytes ? QImage::Format_RGB888 : QImage::Format_RGBA8888);
}

} // namespace

std::unique_ptr<BriConView13_v300_>
BriConView13_v300_::initWithFrame(const QRectF &frame, const platform::Bundle &bundle)
{
    return std::unique_ptr<BriConView13_v300_>(new BriConView13_v300_(frame, bundle));
}

BriConView13_v300_::BriConView13_v300_(const QRectF &frame, const platform::Bundle &bundle)
    : mBriConImg(preview::loadSample(bundle, QStringLiteral("Effect")))
{
    resize(preview::widgetSize(frame));
}

BriConView13_v300_::~BriConView13_v300_() = default;

float BriConView13_v300_::inputBriValue() const
{
    return std::clamp(platform::floatValue(mBrightnessSldr) / kLevelsPerUnit, -0.5F, 0.5F);
}

float BriConView13_v300_::inputCntstValue() const
{
    return std::clamp(platform::floatValue(mContrastSldr) / kLevelsPerUnit + 1.0F, 0.5F, 1.5F);
}

void BriConView13_v300_::drawValueStr()
{
    showValue(mBrightnessStr, mBrightnessSldr);
    showValue(mContrastStr, mContrastSldr);
}

void BriConView13_v300_::setBrightnessSldr(QSlider *slider)
{
    mBrightnessSldr = slider;
}

void BriConView13_v300_::setContrastSldr(QSlider *slider)
{
    mContrastSldr = slider;
}

void BriConView13_v300_::setBrightnessStr(QLineEdit *field)
{
    mBrightnessStr = field;
}

void BriConView13_v300_::setContrastStr(QLineEdit *field)
{
    mContrastStr = field;
}

QImage BriConView13_v300_::ImageWithCIImage(const CIImage &image, const QSizeF &size) const
{
    QImage picture(preview::widgetSize({QPointF(), size}), QImage::Format_RGBA8888);
    picture.fill(Qt::transparent);
    if (!picture.isNull()) {
        QPainter painter(&picture);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        painter.drawImage(0, picture.height() - image.height, preview::toQImage(image));
    }
    return picture;
}

CIImage BriConView13_v300_::CIImageWithNSImage(const QImage &image)
{
    const QImage capture = captured(image);
    const int samples = capture.depth() / 8;
    CIImage result{
        {}, capture.width(), capture.height(), qsizetype(capture.width()) * 4, PixelFormat::ARGB8};
    result.bytes.reserve(result.bytesPerRow * result.height);
    for (int y = 0; y < result.height; ++y) {
        const auto *pixel = reinterpret_cast<const char *>(capture.constScanLine(y));
        for (int x = 0; x < result.width; ++x, pixel += samples) {
            result.bytes.append(samples == 3 ? '\xFF' : pixel[3]).append(pixel, 3);
        }
    }
    return result;
}

CIImage BriConView13_v300_::CIImageWithNSImage2(const QImage &image)
{
    const QImage pixels = image.convertToFormat(QImage::Format_RGBA8888);
    return {QByteArray(reinterpret_cast<const char *>(pixels.constBits()), pixels.sizeInBytes()),
            pixels.width(), pixels.height(), pixels.bytesPerLine(), PixelFormat::RGBA8};
}

void BriConView13_v300_::setNeedsDisplay(bool needed)
{
    if (needed) {
        update();
        Q_EMIT displayRequested();
    }
}

void BriConView13_v300_::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    if (!mBriConImg.isNull()) {
        preview::drawSample(this, filteredSample());
    }
    drawValueStr();
}

QImage BriConView13_v300_::filteredSample() const
{
    CIImage image = CIImageWithNSImage2(mBriConImg);
    // Two passes, brightness first: contrast works on the already brightened picture.
    const imaging::ColorControls filter({inputBriValue(), 1.0F}, {0.0F, inputCntstValue()});
    const auto width = std::size_t(image.width);
    const auto height = std::size_t(image.height);
    const auto bytesPerRow = std::size_t(image.bytesPerRow);
    auto *bytes = reinterpret_cast<std::uint8_t *>(image.bytes.data());
    filter.apply({bytes, width, height, bytesPerRow}, {bytes, width, height, bytesPerRow});
    return preview::toQImage(image);
}
