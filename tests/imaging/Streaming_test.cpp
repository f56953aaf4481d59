// SPDX-License-Identifier: Apache-2.0
#include "CountedAllocations.h"
#include "Pages.h"

#include <memory>
#include <string>
#include <tuple>

using namespace imaging;

namespace {

using Kind = std::tuple<HalftoneMethod, ColorMode>;

class Streaming : public testing::TestWithParam<Kind>
{ };

TEST_P(Streaming, AVeryLongPageNeedsNoMoreMemoryThanItsRow)
{
    PageSettings settings;
    settings.method = std::get<0>(GetParam());
    settings.colorMode = std::get<1>(GetParam());
    std::mt19937 random(3);
    const std::size_t width = 40;
    PagePreparation page(settings, width, InputFormat::Rgb24);
    Bytes row = randomBytes(&random, page.inputRowBytes());
    Bytes black(page.outputRowBytes());
    Bytes red(page.outputRowBytes());
    const std::size_t before = allocations();
    std::size_t dots = 0;
    for (std::size_t y = 0; y < 100000; ++y) {
        row[y % row.size()] = std::uint8_t(y);
        ASSERT_TRUE(page.row(row, black, red));
        dots += black[2] != 0 || red[2] != 0 ? 1 : 0;
    }
    EXPECT_EQ(allocations(), before);
    EXPECT_GT(dots, 1000U);
}

TEST(StreamingCount, SeesAnAllocation)
{
    const std::size_t before = allocations();
    const auto text = std::make_unique<std::string>(100, 'x');
    EXPECT_EQ(allocations(), before + 2) << *text;
}

std::string nameOf(const testing::TestParamInfo<Kind> &kind)
{
    return testing::PrintToString(std::get<0>(kind.param)) + '_'
        + testing::PrintToString(std::get<1>(kind.param));
}

INSTANTIATE_TEST_SUITE_P(
    All, Streaming,
    testing::Combine(testing::Values(HalftoneMethod::Binary, HalftoneMethod::Dither,
                                     HalftoneMethod::ErrorDiffusion),
                     testing::Values(ColorMode::Monochrome, ColorMode::BlackRed)),
    nameOf);

} // namespace
