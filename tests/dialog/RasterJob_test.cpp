// SPDX-License-Identifier: Apache-2.0
#include "GraphicsBundle.h"
#include "dialog/LibcupsServer.h"
#include "dialog/PageDots.h"
#include "dialog/PrintController.h"
#include "filter/GraphicsPpd.h"
#include "filter/SmallPpd.h"
#include "filter/StockPpd.h"
#include "filter/TestRaster.h"
#include "support/CupsServerFixture.h"
#include "support/LabelDocuments.h"
#include "tests/dialog/TestDocuments.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QSignalSpy>

#include <gmock/gmock.h>

using namespace dialog;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace {

constexpr int kPatience = 30000;

std::string graphicsPpd(filter::Colours colours = filter::Colours::Black,
                        const std::string &ppd = smallPpd())
{
    return std::get<std::string>(filter::withGraphicsOptions(ppd, colours));
}

/// The printer's own filter hands its raster on.
std::string keepingPpd()
{
    return with(smallPpd(), "50 rastertolabel", "50 keep");
}

std::string manualCopies(const char *value)
{
    return with(graphicsPpd(filter::Colours::Black, keepingPpd()), "*cupsModelNumber",
                std::string("*cupsManualCopies: ") + value + "\n*cupsModelNumber");
}

/// Three pages: wide, high, and wide and much larger than a label.
QByteArray pdfOfDifferentPages()
{
    QByteArray pdf;
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    const auto setSize = [&writer](const QSizeF &size) {
        writer.setPageSize(QPageSize(size, QPageSize::Point, QString(), QPageSize::ExactMatch));
    };
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    setSize({162, 90});
    QPainter painter(&writer);
    for (const QSizeF &next : {QSizeF(90, 162), QSizeF(500, 300), QSizeF()}) {
        const QRect page = painter.viewport();
        QLinearGradient shades(page.topLeft(), page.bottomRight());
        shades.setColorAt(1, Qt::black);
        painter.fillRect(page, shades);
        painter.fillRect(page.adjusted(20, 20, -page.width() / 2, -page.height() / 2), Qt::black);
        if (!next.isEmpty()) {
            setSize(next);
            writer.newPage();
        }
    }
    painter.end();
    return pdf;
}

class RasterJobs : public DocumentFolder
{
protected:
    RasterJobs()
    {
        cups.addFilter(QStringLiteral("labelgraphics"), QStringLiteral(LABELGRAPHICS));
        cups.addFilter(QStringLiteral("keep"),
                       write(QStringLiteral("keep.sh"), "#!/bin/sh\nexec cat\n"));
        wishes = {{QStringLiteral("CvHalftonePattern"), QStringLiteral("Dither")},
                  {QStringLiteral("CvBrightness"), QStringLiteral("3")}};
    }

    /// Makes the queue "Labels" with this PPD and chooses it.
    void choose(const std::string &ppd)
    {
        cups.addQueue(QStringLiteral("Labels"),
                      write(QStringLiteral("queue.ppd"), QByteArray::fromStdString(ppd)));
        controller = std::make_unique<PrintController>(
            std::make_shared<LibcupsServer>(cups.address()), graphicsPlugIn(),
            PrintController::Folder{}, PanelSet::Views::None);
        controller->setWishes(wishes);
        QSignalSpy ready(controller.get(), &PrintController::setupReady);
        Printer printer;
        printer.name = QStringLiteral("Labels");
        controller->choosePrinter(printer, job);
        ASSERT_TRUE(ready.wait(kPatience));
    }

    /// What the queue's backend got of the document.
    CupsServerFixture::Arrived print(const QByteArray &content)
    {
        document = opened(content);
        QSignalSpy printed(controller.get(), &PrintController::printed);
        EXPECT_TRUE(controller->print(document));
        EXPECT_TRUE(printed.wait(kPatience));
        return cups.arrived(++jobs);
    }
    std::vector<TestPage> printedPages(const QByteArray &content)
    {
        return pagesOf(print(content).document.toStdString());
    }
    /// The same, but the document goes to the server itself.
    std::vector<TestPage> pagesByLp(const QByteArray &content, const QStringList &more)
    {
        cups.administer(QStringLiteral("lp"),
                        QStringList{QStringLiteral("-d"), QStringLiteral("Labels")} + more
                            + QStringList{write(QStringLiteral("by-lp.pdf"), content)});
        return pagesOf(cups.arrived(++jobs).document.toStdString());
    }

    /// The dots that the preview shows of page `page`.
    PageDots preview(int page) const
    {
        PrinterSetup &setup = *controller->setup();
        const auto pages =
            DotPages::of(document, setup.ppd()->file(), setup.sheet(), setup.settings());
        EXPECT_TRUE(pages);
        const auto dots = dotsOf(pages->pixels(page));
        EXPECT_TRUE(dots);
        return dots.value();
    }

    Failure failure(QSignalSpy &failed) const
    {
        EXPECT_TRUE(failed.count() > 0 || failed.wait(kPatience));
        return failed.value(0).value(0).value<Failure>();
    }

    CupsServerFixture cups;
    OptionChoices wishes;
    JobSettings job;
    std::unique_ptr<PrintController> controller;
    std::shared_ptr<const DocumentPages> document;
    int jobs = 0;
};

TEST_F(RasterJobs, ThePrintersFilterGetsTheDotsOfThePreview)
{
    choose(graphicsPpd(filter::Colours::Black, keepingPpd()));
    const std::vector<TestPage> pages = printedPages(pdfOfDifferentPages());
    ASSERT_EQ(pages.size(), 3U);
    for (int i = 0; i < 3; ++i) {
        const TestPage &page = pages[std::size_t(i)];
        EXPECT_EQ(page.header.cupsBitsPerPixel, 1U);
        EXPECT_EQ(page.header.cupsColorSpace, CUPS_CSPACE_K);
        EXPECT_EQ(page.rows, preview(i).black) << i;
    }
    EXPECT_NE(pages[0].rows, pages[1].rows);
}

TEST_F(RasterJobs, RedDotsAreThoseOfThePreview)
{
    wishes.push_back({QStringLiteral("CvMultiColor"), QStringLiteral("CvMultiColorBlackRed")});
    choose(graphicsPpd(filter::Colours::BlackAndRed,
                       with(keepingPpd(), "203]/cupsBitsPerColor 1/cupsColorSpace 3",
                            "203]/cupsBitsPerColor 1/cupsColorSpace 1")));
    LabelLook look;
    look.hasRed = true;
    QFile file(LabelDocuments(look).writePdf(folder.path()));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const std::vector<TestPage> pages = printedPages(file.readAll());
    ASSERT_EQ(pages.size(), 1U);
    const PageDots dots = preview(0);
    const TestPage &page = pages[0];
    ASSERT_EQ(page.header.cupsBitsPerPixel, 4U);
    ASSERT_EQ(QSize(int(page.header.cupsWidth), int(page.header.cupsHeight)), dots.form.dots);
    int wrong = 0;
    int red = 0;
    for (int y = 0; y < dots.form.dots.height(); ++y) {
        for (int x = 0; x < dots.form.dots.width(); ++x) {
            const std::uint8_t two =
                page.rows[std::size_t(y) * page.header.cupsBytesPerLine + std::size_t(x) / 2];
            const int colour = (x % 2 == 0 ? two >> 4 : two) & 0x0f;
            const int expected = dots.isBlack(x, y) ? 0 : dots.isRed(x, y) ? 4 : 7;
            wrong += colour != expected;
            red += dots.isRed(x, y);
        }
    }
    EXPECT_EQ(wrong, 0);
    EXPECT_GT(red, 100);
}

TEST_F(RasterJobs, OnlyThePagesOfTheJobArePrinted)
{
    job.setPages(QStringLiteral("2-3"));
    choose(graphicsPpd(filter::Colours::Black, keepingPpd()));
    const CupsServerFixture::Arrived arrived = print(pdfOfDifferentPages());
    const std::vector<TestPage> pages = pagesOf(arrived.document.toStdString());
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0].rows, preview(1).black);
    EXPECT_EQ(pages[1].rows, preview(2).black);
    EXPECT_THAT(arrived.arguments.value(4).toStdString(), Not(HasSubstr("page-ranges")));
}

TEST_F(RasterJobs, TitleAndEveryMarkedChoiceGoAlong)
{
    choose(graphicsPpd(filter::Colours::Black, keepingPpd()));
    const CupsServerFixture::Arrived arrived = print(pdfOfPages(1));
    EXPECT_EQ(arrived.arguments.value(2), document->title());
    for (const char *option :
         {"CvHalftonePattern=Dither", "CvBrightness=3", "PageSize=w162h90", "Darkness=10"}) {
        EXPECT_THAT(arrived.options(), Contains(QLatin1String(option)));
    }
    EXPECT_THAT(arrived.arguments.value(4).toStdString(), Not(HasSubstr("print-scaling")));
}

TEST_F(RasterJobs, CopiesAreThoseThatTheFiltersForDocumentsMake)
{
    ASSERT_FALSE(job.setCopies(3));
    for (const char *manual : {"True", "False"}) {
        choose(manualCopies(manual));
        const QByteArray content = pdfOfPages(2, QSizeF(162, 90));
        const auto pages = printedPages(content);
        const auto byLp = pagesByLp(content, {QStringLiteral("-n"), QStringLiteral("3")});
        ASSERT_EQ(pages.size(), byLp.size()) << manual;
        EXPECT_EQ(pages.size(), manual == std::string("True") ? 6U : 2U);
        for (std::size_t i = 0; i < pages.size(); ++i) {
            EXPECT_EQ(pages[i].header.NumCopies, byLp[i].header.NumCopies) << manual;
            EXPECT_EQ(pages[i].rows, preview(int(i * 2 / pages.size())).black) << manual << i;
        }
    }
}

TEST_F(RasterJobs, ThePrintersFilterGetsTheHeaderThatItGetsForDocuments)
{
    wishes.push_back({QStringLiteral("Darkness"), QStringLiteral("20")});
    choose(graphicsPpd(filter::Colours::Black, keepingPpd()));
    const QByteArray content = pdfOfPages(1, QSizeF(162, 90));
    const auto pages = printedPages(content);
    const auto byLp = pagesByLp(content, {QStringLiteral("-o"), QStringLiteral("Darkness=20")});
    ASSERT_EQ(pages.size(), 1U);
    ASSERT_EQ(byLp.size(), 1U);
    const cups_page_header2_t &one = pages[0].header;
    const cups_page_header2_t &other = byLp[0].header;
    const auto *bytes = reinterpret_cast<const unsigned char *>(&one);
    const auto *others = reinterpret_cast<const unsigned char *>(&other);
    for (std::size_t i = 0; i < sizeof one; ++i) {
        EXPECT_EQ(bytes[i], others[i]) << "at " << i;
    }
}

TEST_F(RasterJobs, StockLabelFilterPrintsTheCopiesAndTheSize)
{
    ASSERT_FALSE(job.setCopies(4));
    wishes = {{QStringLiteral("Darkness"), QStringLiteral("20")}};
    choose(graphicsPpd(
        filter::Colours::Black,
        StockDrivers().ppd(QStringLiteral("drv:///sample.drv/zebra.ppd")).toStdString()));
    const std::string zpl = print(pdfOfPages(2)).document.toStdString();
    const QSize dots = preview(0).form.dots;
    const auto rowBytes = (dots.width() + 7) / 8;
    const std::string picture = "~DGR:CUPS.GRF," + std::to_string(rowBytes * dots.height()) + ","
        + std::to_string(rowBytes);
    EXPECT_THAT(zpl, HasSubstr(picture));
    EXPECT_THAT(zpl, HasSubstr("~SD20"));
    std::size_t labels = 0;
    for (std::size_t at = zpl.find("^PQ4,"); at != std::string::npos;
         at = zpl.find("^PQ4,", at + 1)) {
        ++labels;
    }
    EXPECT_EQ(labels, 2U);
}

TEST_F(RasterJobs, CancelledWhileRenderingLeavesNoJob)
{
    choose(graphicsPpd(filter::Colours::Black, keepingPpd()));
    QSignalSpy failed(controller.get(), &PrintController::jobFailed);
    QSignalSpy progressed(controller.get(), &PrintController::progressed);
    QObject::connect(controller.get(), &PrintController::progressed, controller.get(),
                     &PrintController::cancelJob);
    ASSERT_TRUE(controller->print(opened(pdfOfPages(1500, QSizeF(162, 90)))));
    const Failure why = failure(failed);
    EXPECT_LT(progressed.count(), 1500) << "the other pages are not rendered";
    EXPECT_EQ(why.kind, FailureKind::Cancelled);
    EXPECT_THAT(why.why.toStdString(), HasSubstr("stopped at your request"));
    EXPECT_EQ(cups.jobCount(), 0);
    EXPECT_FALSE(controller->isPrinting());
}

TEST_F(RasterJobs, ProgressGoesOneWayAndToTheEnd)
{
    choose(graphicsPpd(filter::Colours::Black, keepingPpd()));
    QSignalSpy progressed(controller.get(), &PrintController::progressed);
    print(pdfOfPages(3));
    ASSERT_GT(progressed.count(), 3);
    double before = 0;
    for (const QList<QVariant> &step : progressed) {
        const double part = step.at(0).toDouble() / step.at(1).toDouble();
        EXPECT_GE(part, before);
        before = part;
    }
    EXPECT_EQ(before, 1);
}

TEST_F(RasterJobs, DamagedPageIsOneSentenceAndNoJob)
{
    choose(graphicsPpd(filter::Colours::Black, keepingPpd()));
    QFile file(testDocument(QStringLiteral("damaged-page.pdf")));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QSignalSpy failed(controller.get(), &PrintController::jobFailed);
    ASSERT_TRUE(controller->print(opened(file.readAll())));
    EXPECT_THAT(failure(failed).why.toStdString(), HasSubstr("page 2 is damaged"));
    EXPECT_EQ(cups.jobCount(), 0);
}

TEST_F(RasterJobs, APageOfTooManyDotsGoesAsADocument)
{
    // Documents go to this printer as they are; raster would go through its filters.
    choose(with(with(graphicsPpd(filter::Colours::Black, keepingPpd()), "HWResolution[203 203]",
                     "HWResolution[7000 7000]"),
                "*cupsPreFilter:", "*cupsFilter: \"application/pdf 0 -\"\n*cupsPreFilter:"));
    const QByteArray content = pdfOfPages(2, QSizeF(162, 90));
    job.setPages(QStringLiteral("2"));
    controller->setup()->settings().takeGeneralPart(job);
    const CupsServerFixture::Arrived arrived = print(content);
    EXPECT_EQ(arrived.document, content);
    EXPECT_THAT(arrived.options(), Contains(QStringLiteral("page-ranges=2")));
}

} // namespace
