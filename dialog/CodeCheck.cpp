// SPDX-License-Identifier: Apache-2.0
#include "dialog/CodeCheck.h"

#include "dialog/DotPlacement.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace dialog {

namespace {

using imaging::ColorMode;
using imaging::HalftoneMethod;
using imaging::PageSettings;

constexpr double kPointsPerInch = 72;
/// Bars of so many dots are tried at most when wider ones are looked for, and what is so little
/// narrower than whole dots is not worth it.
constexpr int kMostBars = 12;
constexpr double kBitWider = 0.1;
/// Pages of more pixels are not made for that.
constexpr qint64 kMostPixels = 36'000'000;

/// In the order in which they are tried; the first that works is the advice.
constexpr CodeRemedy kRemedies[] = {CodeRemedy::Binary,      CodeRemedy::WholeDots,
                                    CodeRemedy::ActualSize,  CodeRemedy::Fit,
                                    CodeRemedy::PlainLevels, CodeRemedy::BinaryAndWholeDots};

Failure cancelled()
{
    return {FailureKind::Cancelled, {}, {}};
}

DotPlacement placementOf(const PrintedPage &printed)
{
    return placeOnDots(*printed.document, printed.page, printed.sheet, printed.scaling,
                       printed.form);
}

QRectF enlarged(const QRectF &place, double factor)
{
    return {place.topLeft() * factor, place.size() * factor};
}

/// `printed` as it would be with the remedy; nothing where that changes nothing.
std::optional<PrintedPage> with(CodeRemedy remedy, PrintedPage printed)
{
    const PrintedPage before = printed;
    PageSettings &settings = printed.form.settings;
    switch (remedy) {
    case CodeRemedy::BinaryAndWholeDots:
        if (settings.method == HalftoneMethod::Binary || printed.scaling == Scaling::WholeDots) {
            return {};
        }
        settings.method = HalftoneMethod::Binary;
        [[fallthrough]];
    case CodeRemedy::WholeDots:
        printed.scaling = Scaling::WholeDots;
        break;
    case CodeRemedy::Binary:
        settings.method = HalftoneMethod::Binary;
        break;
    case CodeRemedy::Fit:
        printed.scaling = Scaling::Fit;
        break;
    case CodeRemedy::ActualSize:
        printed.scaling = Scaling::ActualSize;
        break;
    case CodeRemedy::PlainLevels:
        settings.brightness = 0;
        settings.contrast = 0;
        break;
    case CodeRemedy::MonochromeAndBinary:
        if (settings.method == HalftoneMethod::Binary) {
            return {};
        }
        settings.method = HalftoneMethod::Binary;
        [[fallthrough]];
    case CodeRemedy::Monochrome:
        settings.colorMode = ColorMode::Monochrome;
        break;
    case CodeRemedy::MonochromeOrLessRed:
        settings.redLevel = imaging::kLowestLevel;
        break;
    case CodeRemedy::None:
    case CodeRemedy::Larger:
        return {};
    }
    const bool isOther = printed.scaling != before.scaling || !(printed.form == before.form);
    return isOther ? std::optional(printed) : std::nullopt;
}

/// Whether whole dots are something else for this page than Fit.
bool canHaveWholeDots(const PrintedPage &printed)
{
    PrintedPage whole = printed;
    whole.scaling = Scaling::WholeDots;
    return printed.mayHaveWholeDots && !placementOf(whole).dotsOfPixel.isEmpty();
}

double dotsForPointOf(const DotPlacement &placement, const DotForm &form)
{
    return std::max(placement.scale.width() * form.resolution.width(),
                    placement.scale.height() * form.resolution.height())
        / kPointsPerInch;
}

/// How wide the narrowest bars of `code` are printed, in dots.
double barsOf(const PageCode &code, const DotPlacement &placement, const DotForm &form)
{
    const QPointF way = placement.turned ? QPointF(code.way.y(), code.way.x()) : code.way;
    const double across =
        way.x() * placement.scale.width() * form.resolution.width() / kPointsPerInch;
    const double down =
        way.y() * placement.scale.height() * form.resolution.height() / kPointsPerInch;
    return code.narrowestBar * std::hypot(across, down);
}

} // namespace

double dotsForPoint(const PrintedPage &printed)
{
    return dotsForPointOf(placementOf(printed), printed.form);
}

CodeCheck::CodeCheck(BarcodeReader &reader)
    : mReader(reader)
{ }

Result<PageDots> CodeCheck::dotsFor(const PrintedPage &printed)
{
    const bool isKept = mKept && mKept->of.document == printed.document
        && mKept->of.page == printed.page && mKept->of.sheet == printed.sheet
        && mKept->of.scaling == printed.scaling && mKept->of.form.hasGridOf(printed.form);
    PageDotsBuilder dots(printed.form);
    if (isKept) {
        for (const PixelBand &band : mKept->bands) {
            dots.add(band);
        }
        return dots.take();
    }
    Kept kept{printed, {}};
    const SheetPixels pixels(printed.document, printed.page, printed.sheet, printed.scaling,
                             printed.form);
    const qint64 bytes = qint64(printed.form.dots.width()) * printed.form.dots.height()
        * (printed.form.format() == imaging::InputFormat::Rgb24 ? 3 : 1);
    for (int i = 0; i < pixels.bands(); ++i) {
        if (!mGoOn()) {
            return cancelled();
        }
        Result<PixelBand> band = pixels.band(i);
        if (!band) {
            return band.failure();
        }
        dots.add(band.value());
        if (bytes <= kMostKept) {
            kept.bands.push_back(std::move(band).value());
        }
    }
    if (bytes <= kMostKept) {
        mKept = std::move(kept);
    }
    return dots.take();
}

Result<bool> CodeCheck::reads(const InkTones &tones, const QRectF &place, double bars,
                              const PageCode &code)
{
    for (const ScannerLook &look : scannerLooks(bars)) {
        const Result<QImage> seen = scannerView(tones, place, bars, look);
        if (!seen) {
            return seen.failure();
        }
        const Result<std::vector<Barcode>> found = mReader.find(seen.value(), code.format, mGoOn);
        if (!found) {
            return found.failure();
        }
        if (std::any_of(found.value().begin(), found.value().end(),
                        [&](const Barcode &other) { return other.text == code.text; })) {
            return true;
        }
    }
    return false;
}

Result<std::vector<bool>> CodeCheck::readable(const PrintedPage &printed,
                                              const std::vector<PageCode> &codes, RedDots red)
{
    const Result<PageDots> dots = dotsFor(printed);
    if (!dots) {
        return dots.failure();
    }
    const DotPlacement placement = placementOf(printed);
    const QSizeF size = printed.document->pageSize(printed.page);
    const InkTones tones = tonesOf(dots.value(), red);
    std::vector<bool> readable;
    for (const PageCode &code : codes) {
        const Result<bool> read = reads(tones, placement.inDots(code.place, size),
                                        barsOf(code, placement, printed.form), code);
        if (!read) {
            return read.failure();
        }
        readable.push_back(read.value());
    }
    return readable;
}

// What is not even read from the document in this way says nothing about the dots.
Result<bool> CodeCheck::readsFromTheDocument(const PrintedPage &printed, const PageCode &code)
{
    const PageCodes pages(*printed.document, mReader, mGoOn);
    const double dots = dotsForPoint(printed);
    QSize fine = pages.finePixels(printed.page, dots);
    const QSizeF size = printed.document->pageSize(printed.page);
    if (fine.isEmpty()) {
        return false;
    }
    // A code that is too long to be seen so fine at once is seen less so, but not more coarsely
    // than from the dots.
    const double most = std::max(dots, mostDotsFor(code.place, code.narrowestBar));
    if (most < fine.width() / size.width()) {
        fine = (size * most).toSize().expandedTo(QSize(1, 1));
    }
    const double pixels = fine.width() / size.width();
    const InkTones tones{
        [&](const QRect &part) { return pages.greyPart(printed.page, fine, part); }, {1, 1}};
    return reads(tones, enlarged(code.place, pixels), code.narrowestBar * pixels, code);
}

Result<bool> CodeCheck::helps(CodeRemedy remedy, const PrintedPage &printed, const PageCode &code)
{
    const std::optional<PrintedPage> other = with(remedy, printed);
    if (!other) {
        return false;
    }
    const Result<std::vector<bool>> read = readable(*other, {code});
    return read ? Result<bool>(read.value().front()) : Result<bool>(read.failure());
}

Result<CodeRemedy> CodeCheck::redRemedy(const PrintedPage &printed, const PageCode &code)
{
    const Result<bool> black = helps(CodeRemedy::Monochrome, printed, code);
    if (!black) {
        return black.failure();
    }
    const CodeRemedy next =
        black.value() ? CodeRemedy::MonochromeOrLessRed : CodeRemedy::MonochromeAndBinary;
    const Result<bool> better = helps(next, printed, code);
    if (!better) {
        return better.failure();
    }
    return better.value() ? next : black.value() ? CodeRemedy::Monochrome : CodeRemedy::None;
}

Result<CodeRemedy> CodeCheck::remedy(const PrintedPage &printed, const std::vector<PageCode> &codes,
                                     std::size_t index, const std::vector<bool> &before)
{
    CodeRemedy second = CodeRemedy::None;
    for (const CodeRemedy next : kRemedies) {
        const std::optional<PrintedPage> other = with(next, printed);
        if (!other || (other->scaling == Scaling::WholeDots && !canHaveWholeDots(printed))) {
            continue;
        }
        // The one code first: most remedies end there.
        const Result<bool> one = helps(next, printed, codes[index]);
        if (!one) {
            return one.failure();
        }
        if (!one.value()) {
            continue;
        }
        const Result<std::vector<bool>> all = readable(*other, codes);
        if (!all) {
            return all.failure();
        }
        if (std::equal(before.begin(), before.end(), all.value().begin(),
                       [](bool was, bool is) { return is || !was; })) {
            return next;
        }
        second = second == CodeRemedy::None ? next : second;
    }
    return second;
}

Result<int> CodeCheck::safeBars(const PrintedPage &printed, const PageCode &code, double bars)
{
    const QSizeF size = printed.document->pageSize(printed.page);
    const int first = std::max(1, int(std::ceil(bars + kBitWider)));
    for (int wide = first; code.narrowestBar > 0 && wide <= kMostBars; ++wide) {
        const double dots = wide / code.narrowestBar;
        const QSize pixels = (size * dots).toSize().expandedTo(QSize(1, 1));
        if (qint64(pixels.width()) * pixels.height() > kMostPixels) {
            return 0;
        }
        const InkTones tones =
            tonesOf(*printed.document, printed.page, pixels, printed.form.settings);
        const Result<bool> read = reads(tones, enlarged(code.place, dots), wide, code);
        if (!read) {
            return read.failure();
        }
        if (read.value()) {
            return wide;
        }
    }
    return 0;
}

Result<LostCode> CodeCheck::lostCode(const PrintedPage &printed, const std::vector<PageCode> &codes,
                                     std::size_t index, const std::vector<bool> &before)
{
    const PageCode &code = codes[index];
    LostCode lost{printed.page, code.format, code.text, false, CodeRemedy::None, 0, 0};
    if (printed.form.settings.colorMode == ColorMode::BlackRed) {
        const Result<std::vector<bool>> inked = readable(printed, {code}, RedDots::Ink);
        if (!inked) {
            return inked.failure();
        }
        lost.isRed = inked.value().front();
    }
    const Result<CodeRemedy> found =
        lost.isRed ? redRemedy(printed, code) : remedy(printed, codes, index, before);
    if (!found) {
        return found.failure();
    }
    lost.remedy = found.value();
    lost.bars = barsOf(code, placementOf(printed), printed.form);
    if (lost.remedy == CodeRemedy::None) {
        const Result<int> wide = safeBars(printed, code, lost.bars);
        if (!wide) {
            return wide.failure();
        }
        lost.safeBars = wide.value();
        lost.remedy = lost.safeBars > 0 ? CodeRemedy::Larger : CodeRemedy::None;
    }
    return lost;
}

Result<std::vector<LostCode>> CodeCheck::lost(const PrintedPage &printed,
                                              const std::vector<PageCode> &codes,
                                              const std::function<bool()> &goOn)
{
    mGoOn = goOn;
    std::vector<LostCode> lost;
    if (codes.empty()) {
        return lost;
    }
    const Result<std::vector<bool>> now = readable(printed, codes);
    if (!now) {
        return now.failure();
    }
    for (std::size_t i = 0; i < codes.size(); ++i) {
        if (now.value()[i]) {
            continue;
        }
        const Result<bool> inDocument = readsFromTheDocument(printed, codes[i]);
        if (!inDocument) {
            return inDocument.failure();
        }
        if (!inDocument.value()) {
            continue;
        }
        const Result<LostCode> one = lostCode(printed, codes, i, now.value());
        if (!one) {
            return one.failure();
        }
        lost.push_back(one.value());
    }
    return lost;
}

} // namespace dialog
