// SPDX-License-Identifier: Apache-2.0
// Documents that any program prints: the print server makes the raster of them.
#include "end_to_end/PrintRun.h"
#include "filter/GraphicsDots.h"
#include "support/LabelDocuments.h"

#include <gmock/gmock.h>

namespace {

class PrintedByLp : public PrintRun, public testing::WithParamInterface<StockPrinter>
{ };

TEST_P(PrintedByLp, TheDotsAtThePrinterAreThoseOfTheImagingLibrary)
{
    const QString printer = QLatin1String(GetParam().name);
    addStockPrinter(printer);
    const LabelDocuments documents(LabelLook{.pages = 2});
    const QStringList options{QStringLiteral("PageSize=") + QLatin1String(GetParam().size),
                              QStringLiteral("CvHalftonePattern=Dither"),
                              QStringLiteral("CvBrightness=-3"), QStringLiteral("CvContrast=5")};
    for (const QString &document :
         {documents.writePdf(mFolder.path()), documents.writePng(mFolder.path()),
          documents.writeJpeg(mFolder.path())}) {
        const PrintedJob got = job(printer, document, options);
        const std::vector<TestPage> pages = rasterOfLastJob();
        ASSERT_EQ(pages.size(), document.endsWith(QStringLiteral("pdf")) ? 2U : 1U);
        ASSERT_EQ(got.labels.size(), pages.size());
        for (std::size_t i = 0; i < pages.size(); ++i) {
            const auto &header = pages[i].header;
            EXPECT_EQ(header.cupsBitsPerPixel, 8U);
            EXPECT_EQ(got.labels[i].rowBytes, (header.cupsWidth + 7) / 8);
            EXPECT_TRUE(got.labels[i].dotsOf(header.cupsHeight)
                        == dotsOf(pages[i], settingsOf(options)).black)
                << document.toStdString() << " page " << i + 1;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, PrintedByLp, testing::ValuesIn(stockPrinters()),
                         [](const auto &printer) { return std::string(printer.param.name); });

} // namespace
