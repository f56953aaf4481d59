// SPDX-License-Identifier: Apache-2.0
#include "dialog/DocumentToPdf.h"
#include "resources/sample/SampleLabel.h"

#include <QFile>
#include <QGuiApplication>

#include <cstdio>

// make_sample_document FILE: writes the sample document to FILE.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 2) {
        std::fputs("make_sample_document: give the file to write\n", stderr);
        return 2;
    }
    const std::optional<QByteArray> pdf =
        dialog::documentToPdf(sample::SampleLabel(), QStringLiteral("Blood oranges"));
    QFile file(arguments[1]);
    if (!pdf || !file.open(QIODevice::WriteOnly) || file.write(*pdf) != pdf->size()
        || !file.flush()) {
        std::fprintf(stderr, "make_sample_document: %s: %s\n", qPrintable(arguments[1]),
                     qPrintable(file.errorString()));
        return 1;
    }
    return 0;
}
