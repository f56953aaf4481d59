// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/PageSettings.h"
#include "imaging/ProcessorPath.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

namespace imaging {

/// Prepares a page for a printer that prints dots: brightness and contrast, then grey or shares of
/// black and red, then dots.
///
/// Rows go in from the top and come out at once, so memory depends on the width only. The same page
/// gives the same dots however its rows are divided into calls. A page has an object of its own.
/// One thread at a time; objects share nothing that changes.
class PagePreparation
{
public:
    /// For rows of `width` pixels; any width, also 0. `path` is one of processorPaths(); which one
    /// makes no difference but for the time.
    PagePreparation(const PageSettings &settings, std::size_t width, InputFormat format,
                    ProcessorPath path = fastestPath());
    ~PagePreparation();
    PagePreparation(PagePreparation &&) noexcept;
    PagePreparation &operator=(PagePreparation &&) noexcept;

    /// The bytes of a row of the input.
    std::size_t inputRowBytes() const { return mInputRowBytes; }

    /// The bytes of a row of dots: 8 pixels a byte, the first in the most significant bit, 1 is
    /// ink.
    std::size_t outputRowBytes() const { return mOutputRowBytes; }

    /// Prepares the next rows of the page, as many whole rows as `pixels` has; they follow each
    /// other without gaps, and so do the rows of dots. No dot is in both colours. The bits behind
    /// the last pixel of a row are 0.
    ///
    /// In Monochrome `red` may be empty; if not, it gets no ink. The spans do not overlap; nothing
    /// outside is read or written. False, and nothing done, when `pixels` is no whole number of
    /// rows or when `black` or `red` does not have as many.
    [[nodiscard]] bool rows(std::span<const std::uint8_t> pixels, std::span<std::uint8_t> black,
                            std::span<std::uint8_t> red = {});

    /// The same for exactly one row. Also for a width of 0, where rows() finds no rows to count.
    [[nodiscard]] bool row(std::span<const std::uint8_t> pixels, std::span<std::uint8_t> black,
                           std::span<std::uint8_t> red = {});

    /// What makes the rows of one kind of page; behind this header.
    class Method;

private:
    std::size_t mInputRowBytes;
    std::size_t mOutputRowBytes;
    bool mTwoColors;
    std::unique_ptr<Method> mMethod;
};

} // namespace imaging
