// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Bundle.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QWidget>

#include <gmock/gmock.h>

/// A bundle folder with pictures of the test's own, and a look at what a view draws.
class PreviewFixture : public testing::Test
{
protected:
    static constexpr QRgb kBackground = qRgb(255, 0, 255);

    /// One colour all over, so that its edges can be found.
    static QImage plain(QSize size, QColor colour)
    {
        QImage picture(size, QImage::Format_RGBA8888);
        picture.fill(colour);
        return picture;
    }

    void writeResource(const QString &fileName, const QImage &picture)
    {
        ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("Resources")));
        ASSERT_TRUE(picture.save(folder.filePath(QStringLiteral("Resources/") + fileName)));
    }

    /// What the view draws over the test's background, hidden or not.
    static QImage drawn(QWidget &view, int devicePixelRatio = 1)
    {
        QImage target(view.size() * devicePixelRatio, QImage::Format_RGB32);
        target.setDevicePixelRatio(devicePixelRatio);
        target.fill(kBackground);
        view.render(&target, QPoint(), QRegion(), QWidget::RenderFlags());
        return target;
    }

    /// The smallest rectangle that holds everything drawn; null for a blank view.
    static QRect drawnRect(const QImage &picture)
    {
        QRect rect;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixel(x, y) != kBackground) {
                    rect |= QRect(x, y, 1, 1);
                }
            }
        }
        return rect;
    }

    QTemporaryDir folder;
    platform::Bundle bundle{folder.path()};
};
