// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CodePictures.h"
#include "TestDocuments.h"
#include "dialog/CodeCheck.h"

#include <QBuffer>
#include <QPainter>

#include <cmath>

/// A picture of `dotsPerInch` with codes on it, as a PNG file.
class CodeLabel
{
public:
    explicit CodeLabel(const QSize &pixels, int dotsPerInch = 300)
        : mImage(pixels, QImage::Format_RGB32)
    {
        mImage.fill(Qt::white);
        constexpr double kInchesPerMetre = 1 / 0.0254;
        mImage.setDotsPerMeterX(int(std::lround(dotsPerInch * kInchesPerMetre)));
        mImage.setDotsPerMeterY(mImage.dotsPerMeterX());
    }
    /// Puts a code there, turned clockwise by `angle` degrees, in `ink` on `paper`.
    CodeLabel &with(const QPoint &at, const char *format, const char *text, int module,
                    int angle = 0, QRgb ink = qRgb(0, 0, 0), QRgb paper = qRgb(255, 255, 255))
    {
        QImage code = codePicture(format, text, module)
                          .transformed(QTransform().rotate(angle))
                          .convertToFormat(QImage::Format_RGB32);
        EXPECT_FALSE(code.isNull()) << format;
        for (int y = 0; y < code.height(); ++y) {
            for (int x = 0; x < code.width(); ++x) {
                code.setPixel(x, y, qRed(code.pixel(x, y)) < 128 ? ink : paper);
            }
        }
        QPainter(&mImage).drawImage(at, code);
        return *this;
    }
    QByteArray png() const
    {
        QByteArray content;
        QBuffer buffer(&content);
        EXPECT_TRUE(buffer.open(QIODevice::WriteOnly) && mImage.save(&buffer, "png"));
        return content;
    }

private:
    QImage mImage;
};

/// A page of `document` on a label of so many dots with 300 of them an inch, without edges that
/// cannot be reached.
inline dialog::PrintedPage onLabel(std::shared_ptr<const dialog::DocumentPages> document,
                                   const QSize &dots = QSize(732, 1181))
{
    dialog::PrintedPage printed;
    printed.document = std::move(document);
    printed.sheet = {QSizeF(dots) * 72 / 300, QMarginsF()};
    printed.form.resolution = QSize(300, 300);
    printed.form.dots = dots;
    printed.mayHaveWholeDots = !printed.document->pixelSize(0).isEmpty();
    return printed;
}
