// SPDX-License-Identifier: Apache-2.0
#include "dialog/BarcodeReader.h"

#include <QDir>
#include <QList>

#include <algorithm>

namespace dialog {

namespace {

constexpr int kStartTime = 10'000;
/// How often a search is asked whether it is still wanted, in milliseconds.
constexpr int kPatience = 30;
const QByteArray kEnd = QByteArrayLiteral("end\n");

QByteArray pixelsOf(const QImage &grey)
{
    QByteArray pixels;
    pixels.reserve(qsizetype(grey.width()) * grey.height());
    for (int y = 0; y < grey.height(); ++y) {
        pixels.append(reinterpret_cast<const char *>(grey.constScanLine(y)), grey.width());
    }
    return pixels;
}

/// "field\tQR Code\t1 2 3 4 5 6 7 8 \t48656c6c6f"
std::optional<Barcode> barcodeOf(const QByteArray &line)
{
    const QList<QByteArray> parts = line.split('\t');
    if (parts.size() != 4) {
        return {};
    }
    const QList<QByteArray> numbers = parts[2].simplified().split(' ');
    if (numbers.size() != 8) {
        return {};
    }
    Barcode code{QString::fromLatin1(parts[1]),
                 QString::fromUtf8(QByteArray::fromHex(parts[3])),
                 {},
                 parts[0] == "bars"};
    for (std::size_t i = 0; i < 4; ++i) {
        const auto at = qsizetype(2 * i);
        code.corners[i] = {numbers[at].toInt(), numbers[at + 1].toInt()};
    }
    return code;
}

std::vector<Barcode> barcodesOf(const QByteArray &answer)
{
    std::vector<Barcode> codes;
    for (const QByteArray &line : answer.split('\n')) {
        const std::optional<Barcode> code = barcodeOf(line);
        const auto isSame = [&](const Barcode &other) { return code->isSameAs(other); };
        if (code && std::none_of(codes.begin(), codes.end(), isSame)) {
            codes.push_back(*code);
        }
    }
    return codes;
}

} // namespace

QRect Barcode::place() const
{
    const auto [left, right] =
        std::minmax({corners[0].x(), corners[1].x(), corners[2].x(), corners[3].x()});
    const auto [top, bottom] =
        std::minmax({corners[0].y(), corners[1].y(), corners[2].y(), corners[3].y()});
    return {QPoint(left, top), QPoint(right, bottom)};
}

bool Barcode::isSameAs(const Barcode &other) const
{
    return format == other.format && text == other.text && place().intersects(other.place());
}

BarcodeReader::BarcodeReader(const QString &program)
    : mProgram(program)
{
    mProcess.setStandardErrorFile(QProcess::nullDevice());
}

BarcodeReader::~BarcodeReader()
{
    mProcess.kill();
    mProcess.waitForFinished();
}

QString BarcodeReader::installedProgram()
{
    // The folder may also stand there with its whole path.
    const QDir root(QCoreApplication::applicationDirPath() + QStringLiteral("/.."));
    return QDir::cleanPath(
        root.absoluteFilePath(QStringLiteral(LABELPRINT_LIBEXECDIR "/label-print/read-barcodes")));
}

bool BarcodeReader::start()
{
    if (mProcess.state() == QProcess::NotRunning) {
        mProcess.start(mProgram, QStringList());
    }
    return mProcess.waitForStarted(kStartTime);
}

Failure BarcodeReader::missing() const
{
    return {FailureKind::Barcode, mProgram,
            tr("cannot be run, so barcodes are not checked; install label-print once more")};
}

Failure BarcodeReader::broken() const
{
    return {FailureKind::Barcode, mProgram,
            tr("ended in the middle of a picture, so barcodes are not checked; try once more, or "
               "check the print with a scanner")};
}

Result<std::vector<Barcode>> BarcodeReader::find(const QImage &grey, const QString &format,
                                                 const std::function<bool()> &goOn)
{
    if (grey.isNull()) {
        return std::vector<Barcode>();
    }
    if (!start()) {
        return missing();
    }
    mProcess.write(QByteArray::number(grey.width()) + ' ' + QByteArray::number(grey.height()) + ' '
                   + format.toLatin1() + '\n');
    mProcess.write(pixelsOf(grey));
    QByteArray answer;
    while (!answer.endsWith(kEnd)) {
        if (!goOn()) {
            // What the program still does is of no use to anybody.
            mProcess.kill();
            mProcess.waitForFinished();
            return Failure{FailureKind::Cancelled, {}, {}};
        }
        mProcess.waitForReadyRead(kPatience);
        answer += mProcess.readAllStandardOutput();
        if (mProcess.state() == QProcess::NotRunning && !answer.endsWith(kEnd)) {
            return broken();
        }
    }
    return barcodesOf(answer);
}

} // namespace dialog
