// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QRect>
#include <QSize>
#include <QString>

#include <vector>

class QPainter;

/// A code on a label that a scanner reads.
struct LabelCode
{
    /// "QRCode", "DataMatrix", "Code128" or "EAN-13".
    QString format;
    /// What it says.
    QString text;
    /// Its modules without the paper around them, in dots of the document.
    QRect place;
};

/// What a label is like. Everything on it stands on whole dots.
struct LabelLook
{
    /// 2 x 4 inches. Wide enough for 180 bar modules.
    QSize dots{406, 812};
    int dotsPerInch = 203;
    int pages = 1;
    /// The dots of a narrow bar, and of a module of a code in two dimensions.
    int barModule = 2;
    int squareModule = 4;
    /// The headline stands on pure red, not on black.
    bool hasRed = false;
};

/// Labels as applications print them: a photo with soft shades and fine detail, text in five sizes
/// and four codes. The photo and pure red apart, everything is pure black on pure white.
/// The same look gives the same pixels. A file is as large as its dots are at so many of them an
/// inch, a PDF to half a point. Failures are exceptions.
class LabelDocuments
{
public:
    explicit LabelDocuments(const LabelLook &look = {});

    const LabelLook &look() const { return mLook; }
    std::vector<LabelCode> codes(int page = 0) const;
    /// Where the photo is; the only place for tones between black and white.
    QRect photo() const;
    /// Where all pixels are pure red or pure white, in looks with red; else empty.
    QRect red() const;

    /// A page, one pixel for each dot, without smoothed edges.
    QImage picture(int page = 0) const;

    /// Write a file into `folder` and give its path. Letters and codes of a PDF are drawings; the
    /// pictures are the first page.
    QString writePdf(const QString &folder) const;
    QString writePng(const QString &folder) const;
    QString writeJpeg(const QString &folder) const;

private:
    void paint(QPainter &painter, int page) const;
    void paintWords(QPainter &painter, int page) const;
    void paintCodes(QPainter &painter, int page) const;
    QString writePicture(const QString &path, const char *format) const;
    int margin() const;

    LabelLook mLook;
};
