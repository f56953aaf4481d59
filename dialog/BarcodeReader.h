// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/Failure.h"

#include <QCoreApplication>
#include <QImage>
#include <QPoint>
#include <QProcess>
#include <QString>

#include <array>
#include <functional>
#include <vector>

namespace dialog {

/// A code in a picture, as a scanner reads it.
struct Barcode
{
    /// The symbology as people write it: "EAN-13", "QR Code".
    QString format;
    /// What it says, as it is; may hold anything.
    QString text;
    /// In pixels, clockwise from the code's own top left corner.
    std::array<QPoint, 4> corners;
    /// Bars, not a field of modules.
    bool isLinear = false;

    QRect place() const;

    /// Says the same in the same place, more or less.
    bool isSameAs(const Barcode &other) const;
};

/// Reads codes in pictures, with the program read-barcodes, which must not take the dialog along
/// when it stumbles over a picture.
///
/// One thread: that in which it is made. Waits for the program.
class BarcodeReader
{
    Q_DECLARE_TR_FUNCTIONS(dialog::BarcodeReader)

public:
    /// `program` is the way to read-barcodes; the one that was installed with this program.
    explicit BarcodeReader(const QString &program = installedProgram());
    ~BarcodeReader();
    BarcodeReader(const BarcodeReader &) = delete;
    BarcodeReader &operator=(const BarcodeReader &) = delete;

    /// All codes in `grey` (Format_Grayscale8) that stand upright or turned by quarters, fields of
    /// modules in any direction; each once. With a `format` only the codes of that one, which fill
    /// most of the picture. A code that cannot be read is not there.
    ///
    /// `goOn` is asked now and then; when it says no, the failure is FailureKind::Cancelled.
    Result<std::vector<Barcode>> find(
        const QImage &grey, const QString &format = {},
        const std::function<bool()> &goOn = [] { return true; });

    static QString installedProgram();

private:
    bool start();
    Failure missing() const;
    Failure broken() const;

    QString mProgram;
    QProcess mProcess;
};

} // namespace dialog
