// SPDX-License-Identifier: Apache-2.0
#include "platform/Geometry.h"
#include "platform/NotificationCenter.h"
#include "tools/Json.h"
#include "tools/RequestError.h"
#include "tools/Requests.h"

#include <QPixmap>

namespace tools {
namespace {

QJsonObject panelView(Session &session, const Members & /*members*/)
{
    const QWidget *view = session.loadView();
    return {{QStringLiteral("loaded"), view != nullptr},
            {QStringLiteral("frame"), jsonOf(platform::frame(view))}};
}

QJsonObject awake(Session &session, const Members & /*members*/)
{
    QJsonObject frames;
    for (const PanelInspection::Preview &preview : session.inspection().previews()) {
        frames.insert(preview.name,
                      preview.view ? jsonOf(platform::frame(preview.view)) : QJsonValue());
    }
    return {{QStringLiteral("frames"), frames}};
}

QJsonObject draw(Session &session, const Members & /*members*/)
{
    for (const PanelInspection::Preview &preview : session.inspection().previews()) {
        if (preview.view) {
            preview.view->grab();
        }
    }
    return {};
}

QJsonObject snapshot(Session &session, const Members &members)
{
    const QString file = members.text("file");
    session.panel();
    if (!session.view()) {
        throw RequestError(QStringLiteral("the view is not loaded; send \"panelView\" first"));
    }
    const QPixmap picture = session.view()->grab();
    if (!picture.save(file, "PNG")) {
        throw RequestError(QStringLiteral("%1 cannot be written").arg(file.simplified()));
    }
    return {{QStringLiteral("width"), picture.width()},
            {QStringLiteral("height"), picture.height()}};
}

QJsonObject drop(Session &session, const Members &members)
{
    const QString control = members.text("control");
    if (!session.inspection().dropOutlet(control)) {
        throw RequestError(
            QStringLiteral("there is no outlet \"%1\" to drop").arg(control.simplified()));
    }
    return {};
}

QJsonObject expand(Session &session, const Members & /*members*/)
{
    session.panel();
    const void *view = session.view();
    platform::NotificationCenter::defaultCenter().post(NSViewDidUpdateTrackingAreasNotification,
                                                       view ? platform::NotificationObject(view)
                                                            : platform::NotificationObject());
    return {};
}

} // namespace

const RequestTable &viewRequests()
{
    static const RequestTable table{
        {QLatin1String("panelView"), panelView}, {QLatin1String("awake"), awake},
        {QLatin1String("draw"), draw},           {QLatin1String("snapshot"), snapshot},
        {QLatin1String("drop"), drop},           {QLatin1String("expand"), expand}};
    return table;
}

} // namespace tools
