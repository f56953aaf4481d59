// SPDX-License-Identifier: Apache-2.0
// Qt's own print dialog and nothing else, to compare the start of the program with.
#include "FirstPaint.h"

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>

int main(int argc, char **argv)
{
    endAtFirstPaint();
    QApplication app(argc, argv);
    QPrinter printer;
    QPrintDialog dialog(&printer);
    dialog.exec();
    return 1;
}
