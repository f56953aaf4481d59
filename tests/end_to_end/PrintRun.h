// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "filter/PrintedJob.h"
#include "filter/TestRaster.h"
#include "imaging/PageSettings.h"
#include "support/CupsServerFixture.h"
#include "support/LabelDocuments.h"
#include "support/SocketPrinter.h"

#include <QStringList>
#include <QTemporaryDir>

#include <iosfwd>
#include <map>
#include <memory>
#include <vector>

#include <gtest/gtest.h>

/// One of the label printers of CUPS, and a label for it as PageSize has it.
struct StockPrinter
{
    const char *name;
    const char *size;
};

/// All six. The label is 2 x 4 inches where they have one, of 50 mm for some.
std::vector<StockPrinter> stockPrinters();

/// For the names of tests.
void PrintTo(const StockPrinter &printer, std::ostream *to);

/// What is done to a page by the six options of a job.
imaging::PageSettings settingsOf(const QStringList &options);

/// How many dots of the text and the codes are not the pixels of the document's first page, which
/// is as large as the label.
std::size_t wrongOutsideOfPhoto(const PrintedLabel &label, const LabelDocuments &documents);

/// A print server with the label printers of CUPS, each with the PPD that label-ppd made of it,
/// with labelgraphics, and with a printer on the network at its end. What labelgraphics gets is
/// kept.
class PrintRun : public testing::Test
{
protected:
    PrintRun();

    /// One of the label printers of CUPS ("zebra"); the queue has its name.
    void addStockPrinter(const QString &name);
    /// A printer with a PPD of its own; label-ppd is run with the `arguments`.
    void addPrinter(const QString &name, const QByteArray &ppd, const QStringList &arguments = {});

    QString ppdOf(const QString &printer) const { return path(printer + QStringLiteral(".ppd")); }

    /// The bytes that reach the printer when `lp` prints the document with the options.
    QByteArray printed(const QString &printer, const QString &document, const QStringList &options);
    /// The same, taken apart; for the label printers of CUPS.
    PrintedJob job(const QString &printer, const QString &document, const QStringList &options);

    /// The bytes of the next job at the printer.
    QByteArray arrived(const QString &printer);

    /// The pages that labelgraphics got for the last job.
    std::vector<TestPage> rasterOfLastJob() const;

    QString path(const QString &name) const { return mFolder.filePath(name); }

    QTemporaryDir mFolder;
    /// They outlive the server, which may still be sending.
    std::map<QString, std::unique_ptr<SocketPrinter>> mPrinters;
    CupsServerFixture mServer;
    int mJobs = 0;
};
