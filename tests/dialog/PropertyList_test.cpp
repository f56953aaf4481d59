// SPDX-License-Identifier: Apache-2.0
#include "dialog/PropertyList.h"
#include "support/QtPrinters.h"

#include <QVariantList>

#include <gmock/gmock.h>

using dialog::fromPropertyList;
using dialog::toPropertyList;

namespace {

QVariantMap one(const QVariant &value)
{
    return {{QStringLiteral("key"), value}};
}

TEST(PropertyList, EveryKindOfValueComesBack)
{
    const QVariantMap map{
        {QStringLiteral("text"), QStringLiteral("a < b & „c“ 𝄞\n")},
        {QStringLiteral("number"), QVariant::fromValue<quint64>(4294967295)},
        {QStringLiteral("real"), 170.07874015748031},
        {QStringLiteral("truth"), true},
        {QStringLiteral("bytes"), QByteArray("\0\xff<>", 4)},
        {QStringLiteral("list"), QVariantList{QStringLiteral("x"), one(false)}},
    };
    const auto xml = toPropertyList(map);
    ASSERT_TRUE(xml);
    EXPECT_TRUE(xml->startsWith("<?xml"));
    EXPECT_EQ(fromPropertyList(*xml), map);
}

TEST(PropertyList, EmptyTextsAndBytesStayWhatTheyAre)
{
    const QVariantMap map{{QStringLiteral("bytes"), QByteArray("")},
                          {QStringLiteral("text"), QString(QLatin1String(""))}};
    const auto xml = toPropertyList(map);
    ASSERT_TRUE(xml);
    EXPECT_EQ(fromPropertyList(*xml), map);
}

TEST(PropertyList, WhatXmlCannotHoldGivesNothing)
{
    EXPECT_FALSE(toPropertyList(one(QStringLiteral("bell \u0007"))));
    EXPECT_FALSE(toPropertyList(one(QString(QChar(0xd800)))));
    EXPECT_FALSE(toPropertyList(one(QString(QChar(0)))));
    EXPECT_FALSE(toPropertyList({{QString(QChar(1)), true}}));
    EXPECT_FALSE(toPropertyList(one(QVariant())));
    EXPECT_FALSE(toPropertyList(one(-1)));
}

TEST(PropertyList, OtherDataIsNoDictionary)
{
    for (const char *xml : {"", "no xml", "<plist>", "<plist><dict><key>",
                            "<plist><array/></plist>", "<?xml version=\"1.0\"?>", "bplist00"}) {
        EXPECT_FALSE(fromPropertyList(xml)) << xml;
    }
}

TEST(PropertyList, EndlessNestingIsCutOff)
{
    const QByteArray xml = "<plist><dict><key>key</key>" + QByteArray("<array>").repeated(200)
        + QByteArray("</array>").repeated(200) + "</dict></plist>";
    const auto map = fromPropertyList(xml);
    ASSERT_TRUE(map);
    int depth = 0;
    for (QVariant v = map->value(QStringLiteral("key")); v.isValid(); v = v.toList().value(0)) {
        ++depth;
    }
    EXPECT_EQ(depth, 64);
}

} // namespace
