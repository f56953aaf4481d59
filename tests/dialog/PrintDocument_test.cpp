// SPDX-License-Identifier: Apache-2.0
#include "dialog/PrintDocument.h"
#include "support/QtPrinters.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using dialog::FailureKind;
using dialog::PrintDocument;

namespace {

const QString kPdf = QStringLiteral("application/pdf");

QString complaint(PrintDocument document)
{
    const auto device = document.open();
    if (device) {
        return {};
    }
    EXPECT_EQ(device.failure().kind, FailureKind::Document);
    return device.failure().text();
}

TEST(PrintDocument, BytesAndFilesAreReadAlike)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("label.pdf"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("%PDF");
    file.close();
    auto fromFile = PrintDocument::fromFile(path, kPdf);
    auto fromBytes = PrintDocument::fromBytes("%PDF", kPdf, QStringLiteral("label.pdf"));
    EXPECT_EQ(fromFile.name, fromBytes.name);
    EXPECT_EQ(fromFile.open().value()->readAll(), QByteArray("%PDF"));
    EXPECT_EQ(fromBytes.open().value()->readAll(), QByteArray("%PDF"));
}

TEST(PrintDocument, WhatCannotBeReadIsNamed)
{
    const QTemporaryDir folder;
    EXPECT_EQ(complaint(PrintDocument::fromFile(folder.filePath(QStringLiteral("no.pdf")), kPdf)),
              QStringLiteral("no.pdf: cannot be read (there is no such file)"));
    const QString inner = folder.filePath(QStringLiteral("inner"));
    ASSERT_TRUE(QDir().mkdir(inner));
    EXPECT_EQ(complaint(PrintDocument::fromFile(inner, kPdf)),
              QStringLiteral("inner: cannot be read (it is not an ordinary file)"));
    EXPECT_EQ(complaint(PrintDocument::fromBytes({}, kPdf, QStringLiteral("a.pdf"))),
              QStringLiteral("a.pdf: is empty; there is nothing to print"));
}

} // namespace
