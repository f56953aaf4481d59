// SPDX-License-Identifier: Apache-2.0
#include "dialog/ImageHeader.h"

#include <QtEndian>

namespace dialog {

namespace {

constexpr double kInchesPerMetre = 1 / 0.0254;
constexpr double kCentimetresPerInch = 2.54;

enum class ByteOrder
{
    Big,
    Little
};

/// Numbers of a file by their place; a place outside of the file reads as 0.
class Bytes
{
public:
    Bytes(QByteArrayView content, ByteOrder order)
        : mContent(content)
        , mOrder(order)
    { }

    qsizetype size() const { return mContent.size(); }
    quint8 byte(qsizetype at) const { return holds(at, 1) ? quint8(mContent[at]) : quint8(0); }
    quint16 word(qsizetype at) const { return read<quint16>(at); }
    quint32 number(qsizetype at) const { return read<quint32>(at); }
    bool hasText(qsizetype at, QByteArrayView text) const
    {
        return holds(at, text.size()) && mContent.sliced(at, text.size()) == text;
    }

private:
    bool holds(qsizetype at, qsizetype count) const
    {
        return at >= 0 && at <= mContent.size() - count;
    }
    template <class T> T read(qsizetype at) const
    {
        if (!holds(at, qsizetype(sizeof(T)))) {
            return 0;
        }
        const char *from = mContent.data() + at;
        return mOrder == ByteOrder::Big ? qFromBigEndian<T>(from) : qFromLittleEndian<T>(from);
    }

    QByteArrayView mContent;
    ByteOrder mOrder;
};

std::optional<QSizeF> stated(double across, double down)
{
    return across > 0 && down > 0 ? std::optional(QSizeF(across, down)) : std::nullopt;
}

std::optional<QSizeF> resolutionOfPng(const QByteArray &content)
{
    const Bytes bytes(content, ByteOrder::Big);
    qsizetype at = 8;
    while (at + 8 <= bytes.size() && !bytes.hasText(at + 4, "IDAT")) {
        if (bytes.hasText(at + 4, "pHYs")) {
            const bool inMetres = bytes.byte(at + 16) == 1;
            return inMetres ? stated(bytes.number(at + 8) / kInchesPerMetre,
                                     bytes.number(at + 12) / kInchesPerMetre)
                            : std::nullopt;
        }
        at += 12 + qsizetype(bytes.number(at));
    }
    return {};
}

double fraction(const Bytes &bytes, qsizetype at)
{
    const quint32 below = bytes.number(at + 4);
    return below == 0 ? 0 : double(bytes.number(at)) / below;
}

// The list of tags that starts at `at`.
std::optional<QSizeF> resolutionOfDirectory(const Bytes &bytes, qsizetype at)
{
    constexpr quint16 kAcross = 282;
    constexpr quint16 kDown = 283;
    constexpr quint16 kUnit = 296;
    constexpr quint16 kUnitIsCentimetre = 3;
    constexpr quint16 kUnitIsInch = 2;
    double across = 0;
    double down = 0;
    quint16 unit = kUnitIsInch;
    for (int entry = 0; entry < bytes.word(at); ++entry) {
        const qsizetype place = at + 2 + 12 * entry;
        const quint16 tag = bytes.word(place);
        if (tag == kAcross) {
            across = fraction(bytes, bytes.number(place + 8));
        } else if (tag == kDown) {
            down = fraction(bytes, bytes.number(place + 8));
        } else if (tag == kUnit) {
            unit = bytes.word(place + 8);
        }
    }
    if (unit == kUnitIsCentimetre) {
        return stated(across * kCentimetresPerInch, down * kCentimetresPerInch);
    }
    return unit == kUnitIsInch ? stated(across, down) : std::nullopt;
}

Bytes tiffBytes(QByteArrayView content)
{
    return {content, content.startsWith("II") ? ByteOrder::Little : ByteOrder::Big};
}

// The place of the next picture's list is written behind the list at `directory`.
qsizetype placeOfNext(const Bytes &bytes, qsizetype directory)
{
    return directory + 2 + 12 * qsizetype(bytes.word(directory));
}

// The large form of TIFF has another number here, and longer places.
bool isClassicTiff(const Bytes &bytes)
{
    return bytes.word(2) == 42;
}

std::optional<QSizeF> resolutionOfTiff(QByteArrayView content, int page)
{
    const Bytes bytes = tiffBytes(content);
    if (!isClassicTiff(bytes)) {
        return {};
    }
    qsizetype directory = bytes.number(4);
    for (int skipped = 0; skipped < page && directory > 0; ++skipped) {
        directory = bytes.number(placeOfNext(bytes, directory));
    }
    return directory > 0 ? resolutionOfDirectory(bytes, directory) : std::nullopt;
}

std::optional<QSizeF> resolutionOfJfif(const Bytes &bytes, qsizetype at)
{
    const quint8 unit = bytes.byte(at + 7);
    const double factor = unit == 1 ? 1.0 : unit == 2 ? kCentimetresPerInch : 0.0;
    return stated(bytes.word(at + 8) * factor, bytes.word(at + 10) * factor);
}

// What a camera noted comes before the plain header, as in the print system's filters.
std::optional<QSizeF> resolutionOfJpeg(const QByteArray &content)
{
    const Bytes bytes(content, ByteOrder::Big);
    std::optional<QSizeF> fromHeader;
    qsizetype at = 2;
    while (bytes.byte(at) == 0xff && bytes.byte(at + 1) != 0xda) {
        const quint16 length = bytes.word(at + 2);
        const qsizetype data = at + 4;
        if (bytes.hasText(data, QByteArrayView("Exif\0\0", 6)) && length > 8) {
            const QByteArrayView rest = QByteArrayView(content).sliced(data + 6);
            const std::optional<QSizeF> noted =
                resolutionOfTiff(rest.first(std::min<qsizetype>(rest.size(), length - 8)), 0);
            if (noted) {
                return noted;
            }
        } else if (bytes.hasText(data, QByteArrayView("JFIF\0", 5))) {
            fromHeader = resolutionOfJfif(bytes, data);
        }
        at += 2 + qsizetype(length);
    }
    return fromHeader;
}

} // namespace

std::optional<QSizeF> imageResolutionOf(DocumentKind kind, const QByteArray &content, int page)
{
    switch (kind) {
    case DocumentKind::Png:
        return resolutionOfPng(content);
    case DocumentKind::Jpeg:
        return resolutionOfJpeg(content);
    case DocumentKind::Tiff:
        return resolutionOfTiff(content, page);
    case DocumentKind::Pdf:
    case DocumentKind::Svg:
        break;
    }
    return {};
}

bool isTiffCutShort(const QByteArray &content)
{
    // Pictures that lead back to an earlier one never end.
    constexpr int kMostPictures = 65'536;
    const Bytes bytes = tiffBytes(content);
    qsizetype directory = isClassicTiff(bytes) ? bytes.number(4) : 0;
    for (int picture = 0; picture < kMostPictures && directory > 0; ++picture) {
        const qsizetype next = placeOfNext(bytes, directory);
        if (directory + 2 > bytes.size() || next + 4 > bytes.size()) {
            return true;
        }
        directory = bytes.number(next);
    }
    return false;
}

} // namespace dialog
