// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DotBar.h"
#include "dialog/DotCanvas.h"
#include "dialog/DotRenderer.h"
#include "dialog/PageCanvas.h"
#include "dialog/PagePreview.h"
#include "tests/dialog/DotRequests.h"
#include "tests/dialog/TestDocuments.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QImage>
#include <QPainter>
#include <QTest>

#include <gtest/gtest.h>

/// The preview on screen, with a label of 366 x 591 dots and none of it shown yet.
class DotPreview : public DocumentFolder
{
protected:
    void SetUp() override
    {
        dots().setBandSource(bands.source());
        form = dotForm({31, 50});
        preview.resize(340, 480);
        preview.show();
    }
    void TearDown() override { bands.letGo(); }

    /// A grey wedge with a red area, so that both planes have dots.
    std::shared_ptr<const dialog::DocumentPages> picture()
    {
        QImage image(310, 500, QImage::Format_RGB32);
        QPainter painter(&image);
        QLinearGradient wedge(0, 0, 310, 0);
        wedge.setColorAt(0, Qt::black);
        wedge.setColorAt(1, Qt::white);
        painter.fillRect(image.rect(), wedge);
        painter.fillRect(60, 250, 120, 120, QColor(230, 30, 40));
        painter.end();
        const QString path = folder.filePath(QStringLiteral("wedge.png"));
        EXPECT_TRUE(image.save(path));
        return dialog::DocumentPages::open(path).value();
    }
    void open(std::shared_ptr<const dialog::DocumentPages> document)
    {
        preview.setSheet(sheetOf(form), form);
        preview.setDocument(document);
        waitForPage();
    }
    void openInTwoColours()
    {
        form.settings.colorMode = imaging::ColorMode::BlackRed;
        open(picture());
    }
    void waitForPage()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return preview.isUpToDate(); }));
    }
    dialog::DotRequest request(std::shared_ptr<const dialog::DocumentPages> document) const
    {
        return dotRequest(document, form);
    }

    dialog::DotRenderer &dots() { return *preview.findChild<dialog::DotRenderer *>(); }
    dialog::PageCanvas &fitted() { return *preview.findChild<dialog::PageCanvas *>(); }
    dialog::DotCanvas &large() { return *preview.findChild<dialog::DotCanvas *>(); }
    template <class W> W &find(const char *name)
    {
        return *preview.findChild<W *>(QLatin1String(name));
    }
    QImage screen(QWidget &widget) { return widget.grab().toImage(); }
    QString description(QWidget &canvas)
    {
        return QAccessible::queryAccessibleInterface(&canvas)->text(QAccessible::Description);
    }
    /// That each dot which is seen is `plates` of `page`, pixel by pixel.
    void expectDotsOnScreen(const dialog::PageDots &page, const QSize &pixels,
                            dialog::Plates plates)
    {
        const QImage image = screen(*large().viewport());
        const QRect place = large().dotPixels();
        // Without the frame of the focus.
        const QRect seen = place & image.rect().adjusted(4, 4, -4, -4);
        ASSERT_GT(seen.width() * seen.height(), 10000);
        for (int y = seen.top(); y <= seen.bottom(); ++y) {
            for (int x = seen.left(); x <= seen.right(); ++x) {
                const int dotX = (x - place.x()) / pixels.width();
                const int dotY = (y - place.y()) / pixels.height();
                const bool black = plates != dialog::Plates::Red && page.isBlack(dotX, dotY);
                const bool red = plates != dialog::Plates::Black && page.isRed(dotX, dotY);
                const QRgb colour = black ? qRgb(0, 0, 0)
                    : red                 ? qRgb(255, 0, 0)
                                          : qRgb(255, 255, 255);
                ASSERT_EQ(image.pixel(x, y), colour) << dotX << ' ' << dotY;
            }
        }
    }

    /// That the fitted label is the average of `plates` of `page`.
    void expectAverageOnScreen(const dialog::PageDots &page, dialog::Plates plates)
    {
        const double ratio = fitted().devicePixelRatioF();
        const QSize pixels = fitted().dotPixels();
        const QImage average = dialog::averagedDots(page, pixels, plates);
        const QPoint corner = (fitted().dotRectangle().topLeft() * ratio).toPoint();
        const QImage image = screen(fitted());
        for (int y = 0; y < pixels.height(); ++y) {
            for (int x = 0; x < pixels.width(); ++x) {
                ASSERT_EQ(QColor(image.pixel(corner + QPoint(x, y))), QColor(average.pixel(x, y)))
                    << x << ' ' << y;
            }
        }
    }

    dialog::DotForm form;
    CountedBands bands;
    dialog::PagePreview preview;
};
