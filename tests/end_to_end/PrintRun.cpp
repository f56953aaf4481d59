// SPDX-License-Identifier: Apache-2.0
#include "end_to_end/PrintRun.h"

#include "end_to_end/Dots.h"
#include "filter/StockPpd.h"

#include <QFile>
#include <QProcess>

#include <ostream>
#include <stdexcept>

namespace {

constexpr int kPatience = 60000;

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        throw std::runtime_error(path.toStdString() + " cannot be written");
    }
}

} // namespace

std::vector<StockPrinter> stockPrinters()
{
    return {{"dymo", "w162h288"},     {"intelbar", "Custom.50x95mm"},
            {"zebra", "w144h288"},    {"zebracpl", "Custom.50x95mm"},
            {"zebraep1", "w144h288"}, {"zebraep2", "w144h288"}};
}

void PrintTo(const StockPrinter &printer, std::ostream *to)
{
    *to << printer.size;
}

imaging::PageSettings settingsOf(const QStringList &options)
{
    std::map<QString, QString> values;
    for (const QString &option : options) {
        values[option.section(u'=', 0, 0)] = option.section(u'=', 1);
    }
    const QString method = values[QStringLiteral("CvHalftonePattern")];
    imaging::PageSettings settings;
    settings.method = method == QStringLiteral("Binary") ? imaging::HalftoneMethod::Binary
        : method == QStringLiteral("Dither")             ? imaging::HalftoneMethod::Dither
                                                         : imaging::HalftoneMethod::ErrorDiffusion;
    settings.brightness = values[QStringLiteral("CvBrightness")].toInt();
    settings.contrast = values[QStringLiteral("CvContrast")].toInt();
    settings.redLevel = values[QStringLiteral("CvRedLevel")].toInt();
    if (values[QStringLiteral("CvMultiColor")] == QStringLiteral("CvMultiColorBlackRed")) {
        settings.colorMode = imaging::ColorMode::BlackRed;
    }
    return settings;
}

std::size_t wrongOutsideOfPhoto(const PrintedLabel &label, const LabelDocuments &documents)
{
    const QImage picture = documents.picture();
    if (label.rowBytes != std::size_t(picture.width() + 7) / 8) {
        throw std::runtime_error("the label is not as wide as the document");
    }
    const Dots dots = label.dotsOf(std::size_t(picture.height()));
    std::size_t wrong = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const bool isBlack = qGray(picture.pixel(x, y)) == 0;
            const bool isDot = isInk(dots, label.rowBytes, std::size_t(x), std::size_t(y));
            wrong += isBlack != isDot && !documents.photo().contains(x, y) ? 1 : 0;
        }
    }
    return wrong;
}

PrintRun::PrintRun()
{
    // The server runs filters as another user when it is run by the superuser.
    QFile::setPermissions(mFolder.path(), QFile::Permissions(0x7777));
    mServer.addFilter(QStringLiteral("labelgraphics.own"), QStringLiteral(LABELGRAPHICS));
    writeFile(path(QStringLiteral("labelgraphics")),
              "#!/bin/sh\ncat ${6:+\"$6\"} | tee \"" + mFolder.path().toUtf8()
                  + "/$1.raster\" |\n    \"$CUPS_SERVERBIN/filter/labelgraphics.own\" "
                    "\"$1\" \"$2\" \"$3\" \"$4\" \"$5\"\n");
    mServer.addFilter(QStringLiteral("labelgraphics"), path(QStringLiteral("labelgraphics")));
}

void PrintRun::addStockPrinter(const QString &name)
{
    addPrinter(name, StockDrivers().ppd(QStringLiteral("drv:///sample.drv/%1.ppd").arg(name)));
}

void PrintRun::addPrinter(const QString &name, const QByteArray &ppd, const QStringList &arguments)
{
    const QString original = path(name + QStringLiteral(".stock.ppd"));
    writeFile(original, ppd);
    QProcess tool;
    tool.start(QStringLiteral(LABEL_PPD),
               arguments + QStringList{QStringLiteral("-o"), ppdOf(name), original});
    if (!tool.waitForFinished(kPatience) || tool.exitCode() != 0) {
        throw std::runtime_error(tool.readAllStandardError().toStdString());
    }
    auto &printer = mPrinters[name] = std::make_unique<SocketPrinter>();
    mServer.addQueue(name, ppdOf(name), printer->address());
}

QByteArray PrintRun::printed(const QString &printer, const QString &document,
                             const QStringList &options)
{
    QStringList arguments{QStringLiteral("-d"), printer};
    for (const QString &option : options) {
        arguments << QStringLiteral("-o") << option;
    }
    mServer.administer(QStringLiteral("lp"), arguments << document);
    return arrived(printer);
}

QByteArray PrintRun::arrived(const QString &printer)
{
    ++mJobs;
    try {
        return mPrinters.at(printer)->nextJob();
    } catch (const std::runtime_error &late) {
        throw std::runtime_error(late.what() + mServer.log().prepend(u'\n').toStdString());
    }
}

PrintedJob PrintRun::job(const QString &printer, const QString &document,
                         const QStringList &options)
{
    return printedJob(printer.toStdString(), printed(printer, document, options).toStdString());
}

std::vector<TestPage> PrintRun::rasterOfLastJob() const
{
    QFile file(path(QStringLiteral("%1.raster").arg(mJobs)));
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("labelgraphics was not run");
    }
    return pagesOf(file.readAll().toStdString());
}
