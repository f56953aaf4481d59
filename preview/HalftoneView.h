// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/RadioMatrix.h"

#include <QImage>
#include <QPointer>
#include <QWidget>

#include <array>
#include <memory>

namespace platform {
class Bundle;
}

/// A sample picture of the halftone method that is selected in the panel's radio matrix.
///
/// Asks the matrix at each drawing and keeps no copy of the selection. The panel makes it, places
/// it, hands it the matrix, which stays the panel's, and asks it to redraw. Interface thread only.
class HalftoneView13_v300_ : public QWidget
{
    Q_OBJECT
public:
    /// `frame` in points, counted from the lower-left corner of the superview; only its size is
    /// used here, the caller places the view. A method whose picture is missing draws nothing.
    static std::unique_ptr<HalftoneView13_v300_> initWithFrame(const QRectF &frame,
                                                               const platform::Bundle &bundle);
    ~HalftoneView13_v300_() override;

    /// No: frames and drawing count from the lower edge.
    bool isFlipped() const { return false; }

    void setHlftnMatrix(platform::RadioMatrix *matrix);
    platform::RadioMatrix *hlftnMatrix() const { return mHlftnMatrix; }

    /// The selected row: 0 binary, 1 dither, 2 error diffusion, -1 none; 0 without a matrix.
    qint32 halftoneCondition() const;

    /// The picture for the halftone condition; null for a condition without one.
    QImage targetDrawImage() const;

    /// Asks for a redraw. Requests may be drawn together; a hidden view draws when it is shown.
    void setNeedsDisplay(bool needed);

Q_SIGNALS:
    /// A redraw was asked for with setNeedsDisplay.
    void displayRequested();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    HalftoneView13_v300_(const QRectF &frame, const platform::Bundle &bundle);

    std::array<QImage, 3> mHalfoneImg;
    QPointer<platform::RadioMatrix> mHlftnMatrix;
};
