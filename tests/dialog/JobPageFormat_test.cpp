// SPDX-License-Identifier: Apache-2.0
#include "dialog/JobPageFormat.h"
#include "dialog/JobPrinter.h"
#include "dialog/JobSession.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>

using dialog::JobPageFormat;
using dialog::JobPrinter;
using dialog::JobSession;
using dialog::LabelSize;

namespace {

TEST(JobPageFormat, WithoutASizeThereIsNoPaper)
{
    JobPageFormat format;
    EXPECT_EQ(format.paper().status, 0);
    EXPECT_EQ(format.paper().value, nullptr);
    format.setSize(LabelSize::custom(60, 100));
    format.setSize({});
    EXPECT_EQ(format.paper().value, nullptr);
}

TEST(JobPageFormat, PaperHasThePpdsNameAndTheHeightInPoints)
{
    JobPageFormat format;
    format.setSize(LabelSize{QStringLiteral("DC62x100"), QStringLiteral("Title"), 175.75, 283.46});
    const PMPaper *paper = format.paper().value;
    ASSERT_NE(paper, nullptr);
    EXPECT_EQ(paper->ppdPaperName().value, QStringLiteral("DC62x100"));
    EXPECT_EQ(paper->height().value, 283.46);
}

TEST(JobPageFormat, OwnSizeIsCalledCustomAsInThePpdsSizes)
{
    JobPageFormat format;
    format.setSize(LabelSize::custom(60, 100));
    EXPECT_EQ(format.paper().value->ppdPaperName().value, QStringLiteral("Custom"));
    EXPECT_NEAR(format.paper().value->height().value, 283.46, 0.01);
}

TEST(JobPageFormat, SizeWithoutANameHasNoPaperName)
{
    JobPageFormat format;
    format.setSize(LabelSize{});
    EXPECT_EQ(format.paper().value->ppdPaperName().status, 0);
    EXPECT_FALSE(format.paper().value->ppdPaperName().value);
}

TEST(JobPrinter, DeviceUriIsGivenRawOrNotAtAll)
{
    const QString uri = QStringLiteral("usb://Sample/Label%20300?serial=Ab%2F1");
    EXPECT_EQ(JobPrinter(uri).copyDeviceURI(), uri);
    EXPECT_FALSE(JobPrinter({}).copyDeviceURI());
}

TEST(JobSession, DataUnderAKeyIsKeptAndOtherKeysAreInvalid)
{
    JobSession session;
    session.setData(QStringLiteral("key"), 7);
    EXPECT_EQ(session.data(QStringLiteral("key")).value, QVariant(7));
    EXPECT_EQ(session.data(QStringLiteral("other")).status, 0);
    EXPECT_FALSE(session.data(QStringLiteral("other")).value.isValid());
}

} // namespace
