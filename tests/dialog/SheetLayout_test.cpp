// SPDX-License-Identifier: Apache-2.0
#include "dialog/SheetLayout.h"

#include <gtest/gtest.h>

#include <string>

using dialog::PagePlacement;
using dialog::Scaling;
using dialog::Sheet;
using dialog::SheetLayout;

namespace {

// A label of 62 x 100 mm with edges of different widths, and one that is wider than high. The
// numbers expected below are what the print system's PDF filter printed on such labels.
const Sheet kHigh{QSizeF(175.75, 283.46), QMarginsF(10, 13.46, 10.75, 30)};
const Sheet kWide{QSizeF(175.75, 82.2), QMarginsF(10, 12.2, 10.75, 5)};

// A place in the terms of the filters: edges from the left and from the bottom.
void expectEdges(const PagePlacement &place, const Sheet &sheet, double left, double right,
                 double bottom, double top)
{
    EXPECT_NEAR(place.page.left(), left, 0.06);
    EXPECT_NEAR(place.page.right(), right, 0.06);
    EXPECT_NEAR(sheet.size.height() - place.page.bottom(), bottom, 0.06);
    EXPECT_NEAR(sheet.size.height() - place.page.top(), top, 0.06);
}

TEST(SheetLayout, FittedPageFillsTheImageableAreaInItsMiddle)
{
    const PagePlacement place = SheetLayout::fit({60, 120}, kHigh);
    expectEdges(place, kHigh, 27.5, 147.5, 30, 270);
    EXPECT_DOUBLE_EQ(place.scale, 2);
    EXPECT_FALSE(place.turned);
    EXPECT_FALSE(place.cropped);
}

TEST(SheetLayout, FittedPageIsMadeSmallerAsWellAsLarger)
{
    const PagePlacement place = SheetLayout::fit({400, 600}, kHigh);
    expectEdges(place, kHigh, 10, 165, 33.75, 266.25);
    EXPECT_NEAR(place.scale, 0.3875, 0.0001);
}

TEST(SheetLayout, FittedPageOfTheSheetsSizeShrinksToTheImageableArea)
{
    expectEdges(SheetLayout::fit({175.75, 283.46}, kHigh), kHigh, 13.1, 161.9, 30, 270);
}

TEST(SheetLayout, FittedSquareStandsUprightOnAHighSheet)
{
    const PagePlacement place = SheetLayout::fit({100, 100}, kHigh);
    expectEdges(place, kHigh, 10, 165, 72.5, 227.5);
    EXPECT_FALSE(place.turned);
}

TEST(SheetLayout, FittedWidePageIsTurnedOnAHighSheet)
{
    const PagePlacement place = SheetLayout::fit({120, 60}, kHigh);
    expectEdges(place, kHigh, 27.5, 147.5, 30, 270);
    EXPECT_TRUE(place.turned);
}

TEST(SheetLayout, FittedHighPageIsTurnedOnAWideSheet)
{
    const PagePlacement place = SheetLayout::fit({60, 120}, kWide);
    expectEdges(place, kWide, 22.5, 152.5, 5, 70);
    EXPECT_TRUE(place.turned);
    EXPECT_TRUE(SheetLayout::fit({100, 100}, kWide).turned);
    EXPECT_FALSE(SheetLayout::fit({120, 60}, kWide).turned);
}

TEST(SheetLayout, PageInItsOwnSizeStandsInTheMiddleOfTheSheetWhateverTheMargins)
{
    const PagePlacement place = SheetLayout::actualSize({60, 120}, kHigh);
    expectEdges(place, kHigh, 57.9, 117.9, 81.75, 201.75);
    EXPECT_DOUBLE_EQ(place.scale, 1);
    EXPECT_FALSE(place.cropped);
}

TEST(SheetLayout, PageInItsOwnSizeIsTurnedLikeAFittedOne)
{
    const PagePlacement onHigh = SheetLayout::actualSize({120, 60}, kHigh);
    expectEdges(onHigh, kHigh, 57.9, 117.9, 81.75, 201.75);
    EXPECT_TRUE(onHigh.turned);
    const PagePlacement onWide = SheetLayout::actualSize({60, 120}, kWide);
    expectEdges(onWide, kWide, 27.9, 147.9, 11.1, 71.1);
    EXPECT_TRUE(onWide.turned);
}

TEST(SheetLayout, LargePageInItsOwnSizeReachesBeyondAllEdges)
{
    const PagePlacement place = SheetLayout::actualSize({400, 600}, kHigh);
    expectEdges(place, kHigh, -112.125, 287.875, -158.27, 441.73);
    EXPECT_TRUE(place.cropped);
}

TEST(SheetLayout, PageOfTheSheetsSizeInItsOwnSizeIsNotCropped)
{
    const PagePlacement place = SheetLayout::actualSize({175.754, 283.464}, kHigh);
    expectEdges(place, kHigh, 0, 175.75, 0, 283.46);
    EXPECT_FALSE(place.cropped);
}

TEST(SheetLayout, ScalingChoosesOneOfTheTwo)
{
    EXPECT_EQ(SheetLayout::place({60, 120}, kHigh, Scaling::Fit).page,
              SheetLayout::fit({60, 120}, kHigh).page);
    EXPECT_EQ(SheetLayout::place({60, 120}, kHigh, Scaling::ActualSize).page,
              SheetLayout::actualSize({60, 120}, kHigh).page);
}

TEST(SheetLayout, NothingIsPlacedWithoutAreas)
{
    EXPECT_TRUE(SheetLayout::fit({0, 100}, kHigh).page.isEmpty());
    EXPECT_TRUE(SheetLayout::fit({100, 100}, Sheet{}).page.isEmpty());
    EXPECT_TRUE(SheetLayout::actualSize({-1, 100}, kHigh).page.isEmpty());
    const Sheet allMargin{QSizeF(100, 100), QMarginsF(60, 0, 60, 0)};
    EXPECT_TRUE(allMargin.imageableArea().isEmpty());
    EXPECT_TRUE(SheetLayout::fit({50, 50}, allMargin).page.isEmpty());
    EXPECT_FALSE(SheetLayout::actualSize({50, 50}, allMargin).page.isEmpty());
}

} // namespace
