// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DotForm.h"
#include "dialog/PageCodes.h"
#include "dialog/PageDots.h"
#include "dialog/ScannerView.h"
#include "dialog/SheetLayout.h"

#include <memory>
#include <optional>
#include <vector>

namespace dialog {

/// How a page is printed: which one, where it lies on which label, and how its dots are made.
struct PrintedPage
{
    std::shared_ptr<const DocumentPages> document;
    /// Counted from 0.
    int page = 0;
    Sheet sheet;
    Scaling scaling = Scaling::Fit;
    DotForm form;
    /// Scaling::WholeDots comes out as it is shown.
    bool mayHaveWholeDots = false;

    bool operator==(const PrintedPage &other) const = default;
};

/// How many dots of the printer stand for a point of the page, the way where they are more.
double dotsForPoint(const PrintedPage &printed);

/// What makes a code readable, as it was tried.
enum class CodeRemedy
{
    None, ///< nothing that was tried
    Binary,
    WholeDots,
    Fit,
    ActualSize,
    PlainLevels, ///< brightness and contrast 0
    BinaryAndWholeDots,
    Monochrome,
    MonochromeAndBinary,
    MonochromeOrLessRed, ///< Monochrome, or a lower red level
    Larger ///< the same settings with wider bars
};

/// A code that is in the document and that nobody will read from the print.
struct LostCode
{
    /// Counted from 0.
    int page = 0;
    QString format;
    QString text;
    /// Only because scanners take its red for paper.
    bool isRed = false;
    CodeRemedy remedy = CodeRemedy::None;
    /// How wide its narrowest bars are printed, in dots, and how wide they are read for sure.
    double bars = 0;
    int safeBars = 0;

    bool operator==(const LostCode &other) const = default;
};

/// Reads the codes of a page from the dots that will be printed, and tries what would help those
/// that cannot be read.
///
/// A scanner sees with red light, so red dots are paper to it. It is pointed at one code, sees more
/// of it than dots, and blurs them a little. One thread; the 8-bit pixels of the page that was
/// checked last are kept, up to kMostKept of them.
class CodeCheck
{
public:
    static constexpr qint64 kMostKept = 32 * 1024 * 1024;

    /// `reader` outlives this.
    explicit CodeCheck(BarcodeReader &reader);

    /// Those of `codes`, which stand on the page, that cannot be read. The failure is that of a
    /// damaged page, of the reader, or that `goOn` said no.
    Result<std::vector<LostCode>> lost(
        const PrintedPage &printed, const std::vector<PageCode> &codes,
        const std::function<bool()> &goOn = [] { return true; });

private:
    struct Kept
    {
        PrintedPage of;
        std::vector<PixelBand> bands;
    };

    Result<PageDots> dotsFor(const PrintedPage &printed);
    Result<std::vector<bool>> readable(const PrintedPage &printed,
                                       const std::vector<PageCode> &codes,
                                       RedDots red = RedDots::Paper);
    Result<bool> reads(const InkTones &tones, const QRectF &place, double bars,
                       const PageCode &code);
    Result<bool> readsFromTheDocument(const PrintedPage &printed, const PageCode &code);
    Result<LostCode> lostCode(const PrintedPage &printed, const std::vector<PageCode> &codes,
                              std::size_t index, const std::vector<bool> &before);
    Result<bool> helps(CodeRemedy remedy, const PrintedPage &printed, const PageCode &code);
    Result<CodeRemedy> redRemedy(const PrintedPage &printed, const PageCode &code);
    Result<CodeRemedy> remedy(const PrintedPage &printed, const std::vector<PageCode> &codes,
                              std::size_t index, const std::vector<bool> &before);
    Result<int> safeBars(const PrintedPage &printed, const PageCode &code, double bars);

    BarcodeReader &mReader;
    std::function<bool()> mGoOn;
    std::optional<Kept> mKept;
};

} // namespace dialog
