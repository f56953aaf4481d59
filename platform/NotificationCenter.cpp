// SPDX-License-Identifier: Apache-2.0
#include "platform/NotificationCenter.h"

#include <vector>

namespace platform {

struct NotificationCenter::Registration
{
    const void *observer;
    Handler handler;
    std::optional<QString> name;
    NotificationObject object;
    bool removed = false;

    bool wants(const Notification &notification) const
    {
        return (!name || *name == notification.name)
            && (std::holds_alternative<std::monostate>(object) || object == notification.object);
    }
};

NotificationCenter::NotificationCenter() = default;
NotificationCenter::~NotificationCenter() = default;

NotificationCenter &NotificationCenter::defaultCenter()
{
    static NotificationCenter center;
    return center;
}

void NotificationCenter::addObserver(const void *observer, Handler handler,
                                     const std::optional<QString> &name,
                                     const NotificationObject &object)
{
    mRegistrations.push_back(
        std::make_shared<Registration>(Registration{observer, std::move(handler), name, object}));
}

void NotificationCenter::removeObserver(const void *observer, const std::optional<QString> &name,
                                        const NotificationObject &object)
{
    mRegistrations.remove_if([&](const std::shared_ptr<Registration> &registration) {
        const bool matches = registration->observer == observer
            && (!name || registration->name == name)
            && (std::holds_alternative<std::monostate>(object) || registration->object == object);
        registration->removed |= matches;
        return matches;
    });
}

void NotificationCenter::post(const QString &name, const NotificationObject &object,
                              const std::optional<QVariantMap> &userInfo)
{
    const Notification notification{name, object, userInfo};
    // A copy, because handlers may add and remove registrations.
    const std::vector<std::shared_ptr<Registration>> registrations(mRegistrations.begin(),
                                                                   mRegistrations.end());
    for (const std::shared_ptr<Registration> &registration : registrations) {
        if (!registration->removed && registration->wants(notification)) {
            registration->handler(notification);
        }
    }
}

} // namespace platform
