// SPDX-License-Identifier: Apache-2.0
#include "end_to_end/DialogPrint.h"

#include "dialog/PpdFile.h"
#include "dialog/PpdRaster.h"
#include "end_to_end/Dots.h"

#include <QFileInfo>
#include <QProcess>

#include <stdexcept>

namespace {

constexpr int kPatience = 60000;

/// Every option as `-o` has it.
QStringList withSwitch(const QStringList &options)
{
    QStringList arguments;
    for (const QString &option : options) {
        arguments << QStringLiteral("-o") << option;
    }
    return arguments;
}

[[noreturn]] void fail(const QString &why)
{
    throw std::runtime_error(why.toStdString());
}

} // namespace

void DialogPrint::run(const QStringList &arguments) const
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("CUPS_SERVER"), mServer.address());
    environment.insert(QStringLiteral("HOME"), mFolder.path());
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), mFolder.path());
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(PROGRAM),
                  QStringList{QStringLiteral("--no-dialog"), QStringLiteral("--plugin"),
                              QFileInfo(QStringLiteral(BUNDLE_DIR)).path()}
                      + arguments);
    if (!program.waitForFinished(kPatience) || program.exitStatus() != QProcess::NormalExit
        || program.exitCode() != 0) {
        fail(QString::fromUtf8(program.readAllStandardError()) + program.errorString());
    }
}

QByteArray DialogPrint::printedByDialog(const QString &printer, const QString &document,
                                        const QStringList &options, const QStringList &arguments)
{
    run(QStringList{document, QStringLiteral("--printer"), printer} + withSwitch(options)
        + arguments);
    return arrived(printer);
}

QImage DialogPrint::pictureInFolder(const QString &printer, const QString &document,
                                    const QStringList &options, const QString &plate)
{
    const QTemporaryDir folder;
    run(QStringList{document, QStringLiteral("--ppd"), ppdOf(printer), QStringLiteral("--output"),
                    folder.path()}
        + withSwitch(options));
    const QImage picture(folder.filePath(QStringLiteral("job-0001/") + plate));
    if (picture.isNull()) {
        fail(plate + QStringLiteral(" is not in the folder"));
    }
    return picture;
}

std::size_t DialogPrint::differencesFrom(const QImage &picture, const Dots &dots)
{
    const std::size_t rowBytes = std::size_t(picture.width() + 7) / 8;
    if (dots.size() != rowBytes * std::size_t(picture.height())) {
        fail(QStringLiteral("the picture has another size than the label"));
    }
    std::size_t count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const bool isBlack = picture.pixel(x, y) == 0xff000000U;
            count += isBlack != isInk(dots, rowBytes, std::size_t(x), std::size_t(y)) ? 1 : 0;
        }
    }
    return count;
}

PrintedJob DialogPrint::dialogJob(const QString &printer, const QString &document,
                                  const QStringList &options, const QStringList &arguments)
{
    return printedJob(printer.toStdString(),
                      printedByDialog(printer, document, options, arguments).toStdString());
}

dialog::PageDots DialogPrint::preview(const QString &printer, const QString &document,
                                      const QStringList &options, int page,
                                      dialog::Scaling scaling) const
{
    const auto ppd = dialog::PpdFile::open(ppdOf(printer));
    const auto pages = dialog::DocumentPages::open(document);
    if (!ppd || !pages) {
        fail(ppd ? pages.failure().text() : ppd.failure().text());
    }
    for (const QString &option : options) {
        ppd.value()->mark(option.section(u'=', 0, 0), option.section(u'=', 1));
    }
    const auto size = ppd.value()->markedSize();
    const auto form = dialog::dotFormOf(ppd.value()->file());
    if (!size || !form) {
        fail(QStringLiteral("the PPD has no label, or says nothing of dots"));
    }
    const dialog::Sheet sheet{{size->width, size->height}, ppd.value()->margins(*size)};
    const auto dots =
        dialog::dotsOf(dialog::SheetPixels(pages.value(), page, sheet, scaling, *form));
    if (!dots) {
        fail(dots.failure().text());
    }
    return dots.value();
}

void DialogPrint::expectPreviews(const PrintedJob &got,
                                 const std::vector<dialog::PageDots> &previews) const
{
    ASSERT_EQ(got.labels.size(), previews.size());
    for (std::size_t i = 0; i < previews.size(); ++i) {
        const dialog::PageDots &expected = previews[i];
        EXPECT_EQ(got.labels[i].rowBytes, expected.rowBytes) << "label " << i;
        const Dots dots = got.labels[i].dotsOf(std::size_t(expected.form.dots.height()));
        ASSERT_EQ(dots.size(), expected.black.size()) << "label " << i;
        EXPECT_EQ(differences(dots, expected.black), 0U) << "label " << i;
        // A blank label would be no test.
        EXPECT_GT(inkOf(dots), dots.size() * 8 / 20) << "label " << i;
    }
}
