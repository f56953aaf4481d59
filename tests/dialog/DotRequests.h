// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DotMaker.h"

#include <QSemaphore>

#include <atomic>

/// The dots of a label of so many millimetres without margins.
inline dialog::DotForm dotForm(const QSizeF &millimetres, const QSize &resolution = {300, 300},
                               const imaging::PageSettings &settings = {})
{
    const QSize dots(qRound(millimetres.width() / 25.4 * resolution.width()),
                     qRound(millimetres.height() / 25.4 * resolution.height()));
    return {settings, resolution, dots, QPointF()};
}

inline dialog::Sheet sheetOf(const dialog::DotForm &form)
{
    return {QSizeF(form.dots.width() * 72.0 / form.resolution.width(),
                   form.dots.height() * 72.0 / form.resolution.height()),
            QMarginsF()};
}

inline dialog::DotRequest dotRequest(std::shared_ptr<const dialog::DocumentPages> document,
                                     const dialog::DotForm &form, const QSize &pixels = {})
{
    return {document, 0, sheetOf(form), dialog::Scaling::Fit, form, dialog::Plates::Both, pixels};
}

/// Renders bands as ever, counts them, and on request waits before each of them.
class CountedBands
{
public:
    dialog::DotMaker::BandSource source()
    {
        return [this](const dialog::SheetPixels &pixels, int band) {
            ++asked;
            if (holds) {
                gate.acquire();
            }
            ++rendered;
            return pixels.band(band);
        };
    }
    void letGo()
    {
        holds = false;
        gate.release(1000);
    }

    std::atomic<bool> holds{false};
    std::atomic<int> asked{0};
    std::atomic<int> rendered{0};
    QSemaphore gate;
};

/// The dots as a page without cache, worker and widget has them.
inline dialog::PageDots plainDotsOf(const dialog::DotRequest &request)
{
    const dialog::SheetPixels pixels(request.document, request.page, request.sheet, request.scaling,
                                     request.form);
    return dialog::dotsOf(pixels).value();
}
