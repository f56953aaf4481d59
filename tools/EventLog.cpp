// SPDX-License-Identifier: Apache-2.0
#include "tools/EventLog.h"

#include "tools/Json.h"

#include <utility>

namespace tools {
namespace {

QJsonObject event(const char *name)
{
    return {{QStringLiteral("event"), QLatin1String(name)}};
}

} // namespace

EventLog::EventLog()
{
    platform::NotificationCenter::defaultCenter().addObserver(
        this, [this](const platform::Notification &notification) { notified(notification); }, {});
}

EventLog::~EventLog()
{
    platform::NotificationCenter::defaultCenter().removeObserver(this);
}

void EventLog::willChange(const QString &option, const std::optional<QString> &choice)
{
    QJsonObject willChange = event("willChange");
    willChange.insert(QStringLiteral("option"), option);
    willChange.insert(QStringLiteral("choice"), jsonOf(choice));
    mEvents.push_back(willChange);
}

void EventLog::display(const QString &view)
{
    QJsonObject display = event("display");
    display.insert(QStringLiteral("view"), view);
    mEvents.push_back(display);
}

void EventLog::panelViewDidResize()
{
    mEvents.push_back(event("panelViewDidResize"));
}

void EventLog::beep()
{
    mEvents.push_back(event("beep"));
}

void EventLog::log(const QString &text)
{
    QJsonObject log = event("log");
    log.insert(QStringLiteral("text"), text);
    mEvents.push_back(log);
}

std::vector<QJsonObject> EventLog::take()
{
    return std::exchange(mEvents, {});
}

void EventLog::notified(const platform::Notification &notification)
{
    QJsonObject posted = event("notification");
    posted.insert(QStringLiteral("name"), notification.name);
    posted.insert(QStringLiteral("object"), nameOf(notification.object));
    posted.insert(QStringLiteral("userInfo"),
                  notification.userInfo
                      ? QJsonValue(QJsonObject::fromVariantMap(*notification.userInfo))
                      : QJsonValue(QJsonValue::Null));
    mEvents.push_back(posted);
}

QJsonValue EventLog::nameOf(const platform::NotificationObject &object) const
{
    if (const QString *text = std::get_if<QString>(&object)) {
        return *text;
    }
    const auto *address = std::get_if<const void *>(&object);
    return jsonOf(address && mNameOf ? mNameOf(*address) : std::nullopt);
}

} // namespace tools
