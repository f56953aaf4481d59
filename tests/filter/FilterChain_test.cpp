// SPDX-License-Identifier: Apache-2.0
#include "filter/GraphicsPpd.h"
#include "filter/SmallPpd.h"
#include "filter/StockPpd.h"
#include "support/CupsServerFixture.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QThread>

#include <algorithm>
#include <csignal>

#include <cups/raster.h>
#include <gmock/gmock.h>
#include <unistd.h>

namespace {

using namespace filter;

constexpr int kPatience = 20000;
constexpr int kProcessing = 5;
constexpr int kCancelled = 7;

const QString kDocument = QStringLiteral(SOURCE_DIR "/resources/sample/sample-label.pdf");
const char *const kPass = "#!/bin/sh\nexec cat\n";

/// A page as it stands in raster.
struct Page
{
    cups_page_header2_t header{};
    std::vector<unsigned char> pixels;
};

Page firstPage(const QByteArray &raster)
{
    QTemporaryFile file;
    if (!file.open() || file.write(raster) != raster.size() || !file.seek(0)) {
        throw std::runtime_error("the raster cannot be kept");
    }
    cups_raster_t *stream = cupsRasterOpen(file.handle(), CUPS_RASTER_READ);
    Page page;
    if (!stream || cupsRasterReadHeader2(stream, &page.header) == 0) {
        throw std::runtime_error("this is not raster");
    }
    page.pixels.resize(std::size_t(page.header.cupsBytesPerLine) * page.header.cupsHeight);
    cupsRasterReadPixels(stream, page.pixels.data(), static_cast<unsigned>(page.pixels.size()));
    cupsRasterClose(stream);
    return page;
}

/// Whether a pixel of an RGB page is plainly red.
bool hasRed(const Page &page)
{
    for (std::size_t i = 0; i + 2 < page.pixels.size(); i += 3) {
        if (page.pixels[i] > 200 && page.pixels[i + 1] < 80 && page.pixels[i + 2] < 80) {
            return true;
        }
    }
    return false;
}

/// A print server whose queues have PPDs of label-ppd.
class FilterChain : public testing::Test
{
protected:
    QString write(const char *name, const std::string &text) const
    {
        const QString path = mFolder.filePath(QString::fromLatin1(name));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly)
            || file.write(text.data(), static_cast<qint64>(text.size())) < 0) {
            throw std::runtime_error("a file cannot be written");
        }
        return path;
    }

    void addScript(const char *filter, const std::string &script) const
    {
        mServer.addFilter(QString::fromLatin1(filter), write("script", script));
    }

    void addQueue(const char *name, const std::string &ppd)
    {
        mServer.addQueue(QString::fromLatin1(name), write("queue.ppd", ppd));
    }

    /// What the queue's backend gets of the server's next job.
    QByteArray printed(const char *queue, const QString &document, const QStringList &options = {})
    {
        send(queue, document, options);
        return mServer.arrived(mJobs).document;
    }

    void send(const char *queue, const QString &document, const QStringList &options = {})
    {
        QStringList arguments{QStringLiteral("-d"), QString::fromLatin1(queue)};
        for (const QString &option : options) {
            arguments << QStringLiteral("-o") << option;
        }
        mServer.administer(QStringLiteral("lp"), arguments << document);
        ++mJobs;
    }

    QTemporaryDir mFolder;
    CupsServerFixture mServer;
    int mJobs = 0;
};

std::string added(const std::string &ppd, Colours colours = Colours::Black)
{
    return std::get<std::string>(withGraphicsOptions(ppd, colours));
}

/// The printer's own filter hands its raster on.
std::string keepingPpd()
{
    return with(smallPpd(), "50 rastertolabel", "50 keep");
}

TEST_F(FilterChain, TheStockFilterGetsRasterOf1BitAsItDidWithoutTheOptions)
{
    const std::string original =
        StockDrivers().ppd(QStringLiteral("drv:///sample.drv/zebra.ppd")).toStdString();
    mServer.addFilter(QStringLiteral("labelgraphics"), QStringLiteral(LABELGRAPHICS));
    addQueue("Before", original);
    addQueue("After", added(original));
    const QStringList dark{QStringLiteral("Darkness=20"), QStringLiteral("zePrintRate=5")};
    const QByteArray before = printed("Before", kDocument, dark);
    const QByteArray after = printed("After", kDocument, dark);

    // The size of the picture and the commands around it are those of the original chain.
    const QRegularExpression commands(QStringLiteral("~SD20|~DGR:CUPS.GRF,\\d+,\\d+|\\^PR5"));
    const auto found = [&commands](const QByteArray &zpl) {
        QStringList result;
        for (auto all = commands.globalMatch(QString::fromLatin1(zpl)); all.hasNext();) {
            result << all.next().captured();
        }
        return result;
    };
    EXPECT_THAT(found(before),
                testing::IsSupersetOf({QStringLiteral("~SD20"), QStringLiteral("^PR5")}));
    EXPECT_EQ(found(after), found(before));
    // The page came by labelgraphics: its dots are others than those of gstoraster.
    EXPECT_NE(after, before);
}

TEST_F(FilterChain, ThePrintersFilterGetsDotsAsTheOptionsOfTheJobAskForThem)
{
    mServer.addFilter(QStringLiteral("labelgraphics"), QStringLiteral(LABELGRAPHICS));
    addScript("keep", kPass);
    addQueue("Labels", added(keepingPpd()));
    const Page plain = firstPage(printed("Labels", kDocument));
    const Page binary =
        firstPage(printed("Labels", kDocument, {QStringLiteral("CvHalftonePattern=Binary")}));
    EXPECT_EQ(plain.header.cupsBitsPerPixel, 1U);
    EXPECT_EQ(plain.header.cupsColorSpace, CUPS_CSPACE_K);
    EXPECT_EQ(plain.header.cupsBytesPerLine, (plain.header.cupsWidth + 7) / 8);
    EXPECT_EQ(binary.pixels.size(), plain.pixels.size());
    EXPECT_NE(binary.pixels, plain.pixels);
    const Page darkest = firstPage(
        printed("Labels", kDocument,
                {QStringLiteral("CvHalftonePattern=Binary"), QStringLiteral("CvBrightness=-20")}));
    EXPECT_NE(darkest.pixels, binary.pixels);
}

TEST_F(FilterChain, LabelgraphicsGetsPagesIn8BitGrey)
{
    addScript("labelgraphics", kPass);
    addScript("keep", kPass);
    addQueue("Labels", added(keepingPpd()));
    for (const QString &document :
         {kDocument, QStringLiteral(SOURCE_DIR "/resources/images/Effect.png")}) {
        const Page page = firstPage(printed("Labels", document, {QStringLiteral("Darkness=20")}));
        EXPECT_EQ(page.header.cupsBitsPerColor, 8U);
        EXPECT_EQ(page.header.cupsBitsPerPixel, 8U);
        EXPECT_EQ(page.header.cupsColorSpace, CUPS_CSPACE_SW);
        EXPECT_EQ(page.header.cupsCompression, 66U);
    }
}

TEST_F(FilterChain, LabelgraphicsGetsPagesInColourWhileRedIsChosen)
{
    addScript("labelgraphics", kPass);
    addScript("keep", kPass);
    const std::string colour = with(keepingPpd(), "300]/cupsBitsPerColor 1/cupsColorSpace 3",
                                    "300]/cupsBitsPerColor 1/cupsColorSpace 1");
    addQueue("Labels", added(colour, Colours::BlackAndRed));
    const Page page = firstPage(
        printed("Labels", kDocument, {QStringLiteral("CvMultiColor=CvMultiColorBlackRed")}));
    EXPECT_EQ(page.header.cupsBitsPerPixel, 24U);
    EXPECT_EQ(page.header.cupsColorSpace, CUPS_CSPACE_SRGB);
    EXPECT_TRUE(hasRed(page));
}

TEST_F(FilterChain, ACancelledJobTakesLabelgraphicsWithIt)
{
    const QString note = write("note", "");
    QFile::setPermissions(mFolder.path(), QFile::Permissions(0x7777));
    QFile::setPermissions(note, QFile::Permissions(0x6666));
    addScript("labelgraphics", "#!/bin/sh\necho $$ >" + note.toStdString() + "\nexec sleep 300\n");
    addScript("keep", kPass);
    addQueue("Labels", added(keepingPpd()));
    send("Labels", kDocument);
    EXPECT_EQ(mServer.waitForJobState(mJobs, kProcessing), kProcessing);
    const QDeadlineTimer deadline(kPatience);
    int process = 0;
    while (process == 0 && !deadline.hasExpired()) {
        QThread::msleep(10);
        process = QByteArray::fromStdString(contentsOf(note.toStdString())).trimmed().toInt();
    }
    ASSERT_NE(process, 0);

    mServer.administer(QStringLiteral("cancel"), {QString::number(mJobs)});
    EXPECT_EQ(mServer.waitForJobState(mJobs, kCancelled), kCancelled);
    while (::kill(process, 0) == 0 && !deadline.hasExpired()) {
        QThread::msleep(10);
    }
    EXPECT_NE(::kill(process, 0), 0);
}

} // namespace
