// SPDX-License-Identifier: Apache-2.0
#include "dialog/Remembered.h"

namespace dialog {
namespace {

const QString kWindowSize = QStringLiteral("window/size");
const QString kLastPrinter = QStringLiteral("lastPrinter");

} // namespace

Remembered::Remembered()
    : mSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("label-print"),
                QStringLiteral("dialog"))
{ }

QSize Remembered::windowSize() const
{
    return mSettings.value(kWindowSize).toSize();
}

void Remembered::setWindowSize(const QSize &size)
{
    mSettings.setValue(kWindowSize, size);
}

QString Remembered::lastPrinter() const
{
    return mSettings.value(kLastPrinter).toString();
}

void Remembered::setLastPrinter(const QString &name)
{
    mSettings.setValue(kLastPrinter, name);
}

} // namespace dialog
