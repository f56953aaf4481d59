// SPDX-License-Identifier: Apache-2.0
#include "preview/HalftoneView.h"

#include "platform/Controls.h"
#include "preview/SamplePicture.h"

std::unique_ptr<HalftoneView13_v300_>
HalftoneView13_v300_::initWithFrame(const QRectF &frame, const platform::Bundle &bundle)
{
    return std::unique_ptr<HalftoneView13_v300_>(new HalftoneView13_v300_(frame, bundle));
}

HalftoneView13_v300_::HalftoneView13_v300_(const QRectF &frame, const platform::Bundle &bundle)
    : mHalfoneImg{preview::loadSample(bundle, QStringLiteral("Binary")),
                  preview::loadSample(bundle, QStringLiteral("Dither")),
                  preview::loadSample(bundle, QStringLiteral("Diffusion"))}
{
    resize(preview::widgetSize(frame));
}

HalftoneView13_v300_::~HalftoneView13_v300_()
{
    for (QImage &picture : mHalfoneImg) {
        picture = QImage();
    }
}

void HalftoneView13_v300_::setHlftnMatrix(platform::RadioMatrix *matrix)
{
    mHlftnMatrix = matrix;
}

qint32 HalftoneView13_v300_::halftoneCondition() const
{
    return platform::selectedRow(mHlftnMatrix);
}

QImage HalftoneView13_v300_::targetDrawImage() const
{
    const qint32 condition = halftoneCondition();
    const bool known = condition >= 0 && condition < qint32(mHalfoneImg.size());
    return known ? mHalfoneImg[std::size_t(condition)] : QImage();
}

void HalftoneView13_v300_::setNeedsDisplay(bool needed)
{
    if (needed) {
        update();
        Q_EMIT displayRequested();
    }
}

void HalftoneView13_v300_::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    const QImage picture = targetDrawImage();
    if (!picture.isNull()) {
        preview::drawSample(this, picture);
    }
}
