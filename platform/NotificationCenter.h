// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Export.h"

#include <QString>
#include <QVariantMap>

#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <variant>

namespace platform {

/// The sender of a notification: nothing, an object known by its address, or a text.
/// Addresses are compared, never followed, so a sender that is gone does no harm.
using NotificationObject = std::variant<std::monostate, const void *, QString>;

struct Notification
{
    QString name;
    NotificationObject object;
    /// Nothing and an empty map are two different things to an observer.
    std::optional<QVariantMap> userInfo;
};

/// Named notifications, delivered to every matching observer before `post` returns.
///
/// Observers are addresses that are never followed; an observer removes itself before it is
/// destroyed. An observer added while a notification is delivered does not get that one; one that
/// is removed before its turn does not get it either. The order of observers is not defined. The
/// interface thread only.
class PLATFORM_EXPORT NotificationCenter
{
public:
    using Handler = std::function<void(const Notification &)>;

    NotificationCenter();
    ~NotificationCenter();
    NotificationCenter(const NotificationCenter &) = delete;
    NotificationCenter &operator=(const NotificationCenter &) = delete;

    /// The one centre that the dialog and all bundles share.
    static NotificationCenter &defaultCenter();

    /// Calls `handler` for every notification called `name` (any name when nothing is given) that
    /// comes from `object` (anybody when monostate). Registered twice, called twice.
    void addObserver(const void *observer, Handler handler, const std::optional<QString> &name,
                     const NotificationObject &object = {});

    /// Drops the registrations of `observer` for this name and object; with neither, all of them.
    void removeObserver(const void *observer, const std::optional<QString> &name = {},
                        const NotificationObject &object = {});

    void post(const QString &name, const NotificationObject &object,
              const std::optional<QVariantMap> &userInfo = {});

private:
    struct Registration;
    std::list<std::shared_ptr<Registration>> mRegistrations;
};

} // namespace platform
