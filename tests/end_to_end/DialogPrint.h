// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/JobSettings.h"
#include "dialog/PageDots.h"
#include "end_to_end/PrintRun.h"

#include <QImage>

/// A print run that begins with the program label-print, and what its preview shows.
class DialogPrint : public PrintRun
{
protected:
    /// The bytes that reach the printer when label-print prints the document without its window.
    /// `arguments` are further ones of the command line.
    QByteArray printedByDialog(const QString &printer, const QString &document,
                               const QStringList &options, const QStringList &arguments = {});

    /// The same, taken apart; for the label printers of CUPS.
    PrintedJob dialogJob(const QString &printer, const QString &document,
                         const QStringList &options, const QStringList &arguments = {});

    /// The picture of a plate ("page-0001-black.png") that label-print writes when it prints the
    /// document into a folder with the printer's PPD.
    QImage pictureInFolder(const QString &printer, const QString &document,
                           const QStringList &options, const QString &plate);

    /// The dots that the preview shows for a page, counted from 0.
    dialog::PageDots preview(const QString &printer, const QString &document,
                             const QStringList &options, int page = 0,
                             dialog::Scaling scaling = dialog::Scaling::Fit) const;

    /// How many dots are other ones than the black and white pixels of the picture.
    static std::size_t differencesFrom(const QImage &picture,
                                       const std::vector<std::uint8_t> &dots);

    /// Compares every dot of the job's labels with the previews of these pages of the document.
    void expectPreviews(const PrintedJob &got, const std::vector<dialog::PageDots> &previews) const;

private:
    /// label-print without its window.
    void run(const QStringList &arguments) const;
};
