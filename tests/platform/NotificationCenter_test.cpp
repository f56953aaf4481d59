// SPDX-License-Identifier: Apache-2.0
#include "platform/NotificationCenter.h"

#include <gmock/gmock.h>

using platform::Notification;
using platform::NotificationCenter;
using platform::NotificationObject;

namespace {

const QString kName = QStringLiteral("LevelDidChange");

class NotificationCenterTest : public testing::Test
{
protected:
    NotificationCenter::Handler count()
    {
        return [this](const Notification &) { ++calls; };
    }
    NotificationObject address(const int &object) const
    {
        return static_cast<const void *>(&object);
    }

    NotificationCenter center;
    int observer = 0;
    int x = 0;
    int y = 0;
    int calls = 0;
};

TEST_F(NotificationCenterTest, ObserverOfAnObjectHearsThatObjectOnly)
{
    center.addObserver(&observer, count(), kName, address(x));
    center.post(kName, address(y));
    center.post(kName, {});
    EXPECT_EQ(calls, 0);
    center.post(kName, address(x));
    EXPECT_EQ(calls, 1);
}

TEST_F(NotificationCenterTest, ObserverWithoutAnObjectHearsEverySender)
{
    center.addObserver(&observer, count(), kName);
    center.post(kName, address(y));
    center.post(kName, {});
    center.post(kName, QStringLiteral("é"));
    EXPECT_EQ(calls, 3);
}

TEST_F(NotificationCenterTest, OtherNamesAreNotDelivered)
{
    center.addObserver(&observer, count(), kName);
    center.post(QStringLiteral("leveldidchange"), {});
    EXPECT_EQ(calls, 0);
}

TEST_F(NotificationCenterTest, RegisteredTwiceIsCalledTwice)
{
    center.addObserver(&observer, count(), kName);
    center.addObserver(&observer, count(), kName);
    center.post(kName, {});
    EXPECT_EQ(calls, 2);
}

TEST_F(NotificationCenterTest, ObserverAddedDuringAPostMissesThatPost)
{
    center.addObserver(
        &observer, [this](const Notification &) { center.addObserver(&observer, count(), kName); },
        kName);
    center.post(kName, {});
    EXPECT_EQ(calls, 0);
    center.post(kName, {});
    EXPECT_EQ(calls, 1);
}

TEST_F(NotificationCenterTest, ObserversThatRemoveEachOtherDeliverOnlyOnce)
{
    const auto removeOther = [this](const int &other) {
        return [this, &other](const Notification &) {
            ++calls;
            center.removeObserver(&other);
        };
    };
    center.addObserver(&x, removeOther(y), kName);
    center.addObserver(&y, removeOther(x), kName);
    center.post(kName, {});
    EXPECT_EQ(calls, 1);
}

TEST_F(NotificationCenterTest, HandlerThatRemovesItselfIsCalledOnce)
{
    center.addObserver(
        &observer,
        [this](const Notification &) {
            ++calls;
            center.removeObserver(&observer, kName);
        },
        kName);
    center.post(kName, {});
    center.post(kName, {});
    EXPECT_EQ(calls, 1);
}

TEST_F(NotificationCenterTest, RemovingOneNameKeepsTheOthers)
{
    center.addObserver(&observer, count(), kName);
    center.addObserver(&observer, count(), QStringLiteral("Other"));
    center.removeObserver(&observer, QStringLiteral("Other"));
    center.removeObserver(&y);
    center.post(kName, {});
    EXPECT_EQ(calls, 1);
}

TEST_F(NotificationCenterTest, UserInformationTellsNothingFromEmpty)
{
    std::optional<QVariantMap> seen;
    center.addObserver(
        &observer, [&](const Notification &notification) { seen = notification.userInfo; }, kName);
    center.post(kName, {}, QVariantMap());
    EXPECT_TRUE(seen.has_value());
    center.post(kName, {});
    EXPECT_FALSE(seen.has_value());
}

} // namespace
