// SPDX-License-Identifier: Apache-2.0
#include "imaging/PagePreparation.h"

#include "imaging/ColorDiffusion.h"
#include "imaging/ErrorDiffusion.h"
#include "imaging/Grey.h"
#include "imaging/Screen.h"
#include "imaging/Separation.h"
#include "imaging/Tone.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace imaging {

/// Makes one row after the other; `red` is null on a page of one colour.
class PagePreparation::Method
{
public:
    Method(std::size_t width, ProcessorPath path)
        : mWidth(width)
        , mPath(path)
    { }
    virtual ~Method() = default;
    virtual void row(const std::uint8_t *pixels, std::uint8_t *black, std::uint8_t *red) = 0;

protected:
    std::size_t mWidth;
    ProcessorPath mPath;
};

namespace {

using Method = PagePreparation::Method;

ToneTable untoned()
{
    ToneTable table{};
    std::iota(table.begin(), table.end(), std::uint8_t(0));
    return table;
}

/// Grey rows straight through a screen that has the tones worked into its thresholds.
class GreyScreen : public Method
{
public:
    GreyScreen(const PageSettings &settings, std::size_t width, ProcessorPath path)
        : Method(width, path)
        , mScreen(settings.method, toneFilter(settings.brightness, settings.contrast).table())
    { }

    void row(const std::uint8_t *pixels, std::uint8_t *black, std::uint8_t *) override
    {
        mScreen.apply(mRow++, pixels, mWidth, black, mPath);
    }

private:
    Screen mScreen;
    std::size_t mRow = 0;
};

class RgbScreen : public Method
{
public:
    RgbScreen(const PageSettings &settings, std::size_t width, ProcessorPath path)
        : Method(width, path)
        , mGreyRows(InputFormat::Rgb24, toneFilter(settings.brightness, settings.contrast))
        , mScreen(settings.method, untoned())
        , mGrey(width)
    { }

    void row(const std::uint8_t *pixels, std::uint8_t *black, std::uint8_t *) override
    {
        mGreyRows.apply(pixels, mWidth, mGrey.data(), mPath);
        mScreen.apply(mRow++, mGrey.data(), mWidth, black, mPath);
    }

private:
    GreyRows mGreyRows;
    Screen mScreen;
    std::vector<std::uint8_t> mGrey;
    std::size_t mRow = 0;
};

class Diffused : public Method
{
public:
    Diffused(const PageSettings &settings, std::size_t width, InputFormat format,
             ProcessorPath path)
        : Method(width, path)
        , mGreyRows(format, toneFilter(settings.brightness, settings.contrast))
        , mDiffusion(width)
        , mGrey(width)
    { }

    void row(const std::uint8_t *pixels, std::uint8_t *black, std::uint8_t *) override
    {
        mGreyRows.apply(pixels, mWidth, mGrey.data(), mPath);
        mDiffusion.apply(mGrey.data(), black, mPath);
    }

private:
    GreyRows mGreyRows;
    ErrorDiffusion mDiffusion;
    std::vector<std::uint8_t> mGrey;
};

/// Black and red by a screen: what the paper's share leaves to ink is divided by a second row, in
/// which black is what falls below the same thresholds.
class TwoColorScreen : public Method
{
public:
    TwoColorScreen(const PageSettings &settings, std::size_t width, ProcessorPath path)
        : Method(width, path)
        , mMethod(settings.method)
        , mSeparation(toneFilter(settings.brightness, settings.contrast), settings.redLevel)
        , mScreen(settings.method, untoned())
        , mPaper(width)
        , mRed(width)
    { }

    void row(const std::uint8_t *pixels, std::uint8_t *black, std::uint8_t *red) override
    {
        mSeparation.apply(pixels, mWidth, mPaper.data(), mRed.data(), mPath);
        divideInks();
        mScreen.apply(mRow, mPaper.data(), mWidth, red, mPath);
        mScreen.apply(mRow, mRed.data(), mWidth, black, mPath);
        ++mRow;
        divideInk(black, red);
    }

private:
    /// `red` has all ink, `black` what falls below in the second row.
    void divideInk(std::uint8_t *black, std::uint8_t *red) const
    {
        const std::size_t count = (mWidth + 7) / 8;
        for (std::size_t i = 0; i < count; ++i) {
            const std::uint8_t ink = red[i];
            black[i] &= ink;
            red[i] = ink ^ black[i];
        }
    }

    /// The second row. Dither: thresholds up to the paper's share leave paper, those up to paper
    /// and red red, the rest black. Binary, with its one threshold at half: ink is red where there
    /// is more red than black, which is where red and half of the paper are half or more.
    void divideInks()
    {
        if (mMethod == HalftoneMethod::Binary) {
            addParts<2>(mPaper.data(), mWidth, mRed.data());
        } else {
            addParts<1>(mPaper.data(), mWidth, mRed.data());
        }
    }

    /// Adds one part of so many.
    template <int kParts>
    static void addParts(const std::uint8_t *from, std::size_t width, std::uint8_t *to)
    {
        for (std::size_t x = 0; x < width; ++x) {
            to[x] = std::uint8_t(to[x] + from[x] / kParts);
        }
    }

    HalftoneMethod mMethod;
    Separation mSeparation;
    Screen mScreen;
    std::vector<std::uint8_t> mPaper;
    std::vector<std::uint8_t> mRed;
    std::size_t mRow = 0;
};

class TwoColorDiffused : public Method
{
public:
    TwoColorDiffused(const PageSettings &settings, std::size_t width, ProcessorPath path)
        : Method(width, path)
        , mSeparation(toneFilter(settings.brightness, settings.contrast), settings.redLevel)
        , mDiffusion(width)
        , mPaper(width)
        , mRed(width)
    { }

    void row(const std::uint8_t *pixels, std::uint8_t *black, std::uint8_t *red) override
    {
        mSeparation.apply(pixels, mWidth, mPaper.data(), mRed.data(), mPath);
        mDiffusion.apply(mPaper.data(), mRed.data(), black, red, mPath);
    }

private:
    Separation mSeparation;
    ColorDiffusion mDiffusion;
    std::vector<std::uint8_t> mPaper;
    std::vector<std::uint8_t> mRed;
};

std::unique_ptr<Method> methodFor(const PageSettings &settings, std::size_t width,
                                  InputFormat format, ProcessorPath path)
{
    const bool diffusion = settings.method == HalftoneMethod::ErrorDiffusion;
    // A grey page has no red; it is done as one of one colour.
    if (settings.colorMode == ColorMode::BlackRed && format == InputFormat::Rgb24) {
        if (diffusion) {
            return std::make_unique<TwoColorDiffused>(settings, width, path);
        }
        return std::make_unique<TwoColorScreen>(settings, width, path);
    }
    if (diffusion) {
        return std::make_unique<Diffused>(settings, width, format, path);
    }
    if (format == InputFormat::Gray8) {
        return std::make_unique<GreyScreen>(settings, width, path);
    }
    return std::make_unique<RgbScreen>(settings, width, path);
}

} // namespace

PagePreparation::PagePreparation(const PageSettings &settings, std::size_t width,
                                 InputFormat format, ProcessorPath path)
    : mInputRowBytes(width * (format == InputFormat::Rgb24 ? 3 : 1))
    , mOutputRowBytes((width + 7) / 8)
    , mTwoColors(settings.colorMode == ColorMode::BlackRed)
    , mMethod(methodFor(settings, width, format, path))
{ }

PagePreparation::~PagePreparation() = default;
PagePreparation::PagePreparation(PagePreparation &&) noexcept = default;
PagePreparation &PagePreparation::operator=(PagePreparation &&) noexcept = default;

bool PagePreparation::rows(std::span<const std::uint8_t> pixels, std::span<std::uint8_t> black,
                           std::span<std::uint8_t> red)
{
    const std::size_t count = mInputRowBytes == 0 ? 0 : pixels.size() / mInputRowBytes;
    const std::size_t dots = count * mOutputRowBytes;
    const bool redFits = red.size() == dots || (red.empty() && !mTwoColors);
    if (pixels.size() != count * mInputRowBytes || black.size() != dots || !redFits) {
        return false;
    }
    std::fill(red.begin(), red.end(), std::uint8_t(0));
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t at = i * mOutputRowBytes;
        mMethod->row(pixels.data() + i * mInputRowBytes, black.data() + at,
                     red.empty() ? nullptr : red.data() + at);
    }
    return true;
}

bool PagePreparation::row(std::span<const std::uint8_t> pixels, std::span<std::uint8_t> black,
                          std::span<std::uint8_t> red)
{
    return pixels.size() == mInputRowBytes && rows(pixels, black, red);
}

} // namespace imaging
