// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DocumentPages.h"

#include <QByteArray>
#include <QColor>
#include <QSizeF>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

/// The committed document `name`.
QString testDocument(const QString &name);

/// A PDF of `pages` pages; page i is filled with a grey of its own, see `greyOfPage`.
QByteArray pdfOfPages(int pages, const QSizeF &points = QSizeF(176, 283));
int greyOfPage(int page);

/// A drawing of 60 x 30 mm: the left half red, the rest transparent.
QByteArray svgDrawing();

/// A TIFF file of two pictures: 100 x 200 pixels black with 100 dpi, 300 x 150 pixels white.
QByteArray tiffOfTwoPages();

/// A picture of one colour in `format`; a resolution of 0 leaves the file without one.
QByteArray picture(const char *format, const QSize &pixels, int dotsPerInch,
                   const QColor &colour = Qt::black);

/// Documents in a folder of the test.
class DocumentFolder : public testing::Test
{
protected:
    /// Writes `content` to a file and returns its path.
    QString write(const QString &name, const QByteArray &content);

    /// The document with this content; a failure fails the test.
    std::shared_ptr<const dialog::DocumentPages> opened(const QByteArray &content);

    /// The sentence that opening `path` gives; empty when it opens.
    static QString whyNot(const QString &path);

    QTemporaryDir folder;
};
