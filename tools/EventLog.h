// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/NotificationCenter.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace tools {

/// The events of one request, in the order in which they happened.
///
/// Listens to every notification of the default centre as long as it lives. Made before any panel,
/// so that a notification stands before what its observers do.
class EventLog
{
public:
    /// Names the object that sent a notification; nothing for an object that has no name.
    using NameOf = std::function<std::optional<QString>(const void *object)>;

    EventLog();
    ~EventLog();
    EventLog(const EventLog &) = delete;
    EventLog &operator=(const EventLog &) = delete;

    /// Whom to ask for the names of senders.
    void setNames(NameOf nameOf) { mNameOf = std::move(nameOf); }

    void willChange(const QString &option, const std::optional<QString> &choice);
    void display(const QString &view);
    void panelViewDidResize();
    void beep();
    void log(const QString &text);

    /// The events so far; they are forgotten here.
    std::vector<QJsonObject> take();

private:
    void notified(const platform::Notification &notification);
    QJsonValue nameOf(const platform::NotificationObject &object) const;

    std::vector<QJsonObject> mEvents;
    NameOf mNameOf;
};

} // namespace tools
