// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "preview/CIImage.h"

#include <QImage>
#include <QLineEdit>
#include <QPointer>
#include <QSlider>
#include <QWidget>

#include <memory>

namespace platform {
class Bundle;
}

/// The small picture beside the brightness and contrast sliders.
///
/// Draws the image resource "Effect" as the two sliders would change it, and after each drawing
/// brings the two number fields into line with their sliders. The panel makes it, places it, hands
/// it the four controls right away, and asks it to redraw; the controls stay the panel's and may be
/// missing. Nothing is kept from one drawing to the next. Interface thread only.
class BriConView13_v300_ : public QWidget
{
    Q_OBJECT
public:
    /// `frame` in points, counted from the lower-left corner of the superview; only its size is
    /// used here, the caller places the view. Without the resource the view stays blank.
    static std::unique_ptr<BriConView13_v300_> initWithFrame(const QRectF &frame,
                                                             const platform::Bundle &bundle);
    ~BriConView13_v300_() override;

    /// No: frames and drawing count from the lower edge.
    bool isFlipped() const { return false; }

    /// Brightness for the filter, -0.5 to 0.5; 0 without a slider.
    float inputBriValue() const;

    /// Contrast for the filter, 0.5 to 1.5; 1 without a slider.
    float inputCntstValue() const;

    /// Writes the sliders' values into their number fields where these read as another number.
    /// No action is sent.
    void drawValueStr();

    QSlider *brightnessSldr() const { return mBrightnessSldr; }
    void setBrightnessSldr(QSlider *slider);
    QSlider *contrastSldr() const { return mContrastSldr; }
    void setContrastSldr(QSlider *slider);
    QLineEdit *brightnessStr() const { return mBrightnessStr; }
    void setBrightnessStr(QLineEdit *field);
    QLineEdit *contrastStr() const { return mContrastStr; }
    void setContrastStr(QLineEdit *field);

    /// A picture of `size` points with the image at its own size in the lower-left corner.
    QImage ImageWithCIImage(const preview::CIImage &image, const QSizeF &size) const;

    /// A pixel copy as alpha, red, green, blue; a fraction of a point at the right and at the top
    /// is cut off. A picture of 3 bytes a pixel gets full alpha.
    static preview::CIImage CIImageWithNSImage(const QImage &image);

    /// A copy of all the pixels; the one that drawing uses.
    static preview::CIImage CIImageWithNSImage2(const QImage &image);

    /// Asks for a redraw. Requests may be drawn together; a hidden view draws when it is shown.
    void setNeedsDisplay(bool needed);

Q_SIGNALS:
    /// A redraw was asked for with setNeedsDisplay.
    void displayRequested();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    BriConView13_v300_(const QRectF &frame, const platform::Bundle &bundle);
    QImage filteredSample() const;

    QImage mBriConImg;
    QPointer<QSlider> mBrightnessSldr;
    QPointer<QSlider> mContrastSldr;
    QPointer<QLineEdit> mBrightnessStr;
    QPointer<QLineEdit> mContrastStr;
};
