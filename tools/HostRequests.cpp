// SPDX-License-Identifier: Apache-2.0
#include "ppd/ExtendedTicket.h"
#include "ppd/TapeInfo.h"
#include "tools/Json.h"
#include "tools/RequestError.h"
#include "tools/Requests.h"

#include <QFile>
#include <QFileInfo>

namespace tools {
namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    // Only a file: opening anything else could wait for ever.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        throw RequestError(QStringLiteral("%1: the ticket cannot be read").arg(path.simplified()));
    }
    return file.readAll();
}

SessionPageFormat pageFormatOf(const Members &paper)
{
    const OSStatus status = paper.integer("status");
    PMResult<std::optional<QString>> name{paper.integer("nameStatus"), paper.textOrNull("name")};
    const PMResult<double> height{paper.integer("heightStatus"), paper.number("height")};
    return {status, SessionPaper(std::move(name), height)};
}

std::optional<QString> textOrNothing(const Members &members, const char *name)
{
    return members.has(name) ? members.textOrNull(name) : std::nullopt;
}

OpenSetup setupOf(const Members &members)
{
    OpenSetup setup;
    const std::optional<QString> ppd = members.textOrNull("ppd");
    const bool markDefaults = members.truth("markDefaults", true);
    const bool hasSettings = members.truth("settings", true);
    const std::optional<QString> ticket = textOrNothing(members, "ticket");
    const auto paper = members.has("paper") ? members.objectOrNull("paper") : std::nullopt;
    const auto version = members.has("systemVersion")
        ? members.integersOrNulls("systemVersion", 3)
        : std::vector<std::optional<qint32>>{11, 0, 0};
    std::copy(version.begin(), version.end(), setup.systemVersion.begin());
    setup.keyWindowHeight =
        members.has("keyWindowHeight") ? members.numberOrNull("keyWindowHeight") : std::nullopt;
    setup.panelType = members.text("type", kPrintDialogPanelType);
    setup.host.deviceURI = textOrNothing(members, "deviceURI");
    setup.host.reports = members.truth("reports", true);
    setup.host.resizes = members.truth("resizes", true);
    setup.host.pageFormat = paper ? pageFormatOf(*paper) : SessionPageFormat();
    if (hasSettings) {
        setup.host.settings = std::make_unique<SessionSettings>();
    }
    if (ticket) {
        const QByteArray bytes = contentOf(*ticket);
        if (setup.host.settings) {
            setup.host.settings->setValue(ExtendedTicketKey, bytes);
        }
    }
    if (ppd) {
        setup.host.ppd = SessionPpd::open(*ppd);
        if (markDefaults) {
            setup.host.ppd->markDefaults();
        }
    }
    return setup;
}

QJsonObject open(Session &session, const Members &members)
{
    const Session::Opened opened = session.open(setupOf(members));
    return {{QStringLiteral("plugin"), opened.plugIn},
            {QStringLiteral("panels"), jsonOf(opened.panels)}};
}

QJsonObject mark(Session &session, const Members &members)
{
    const QString option = members.text("option");
    const QString choice = members.text("choice");
    if (SessionPpd *ppd = session.host().ppd()) {
        ppd->mark(option, choice);
    }
    return {};
}

QJsonObject unmark(Session &session, const Members &members)
{
    const QString option = members.text("option");
    if (SessionPpd *ppd = session.host().ppd()) {
        ppd->unmark(option);
    }
    return {};
}

QJsonObject keyWindow(Session &session, const Members &members)
{
    const std::optional<double> height = members.numberOrNull("height");
    session.panel();
    session.desktop().setKeyWindowHeight(height);
    return {};
}

QJsonObject tapeInfo(Session &session, const Members & /*members*/)
{
    const SessionHost &host = session.host();
    const auto query =
        reinterpret_cast<decltype(&GetTapeInfo)>(session.code().function("GetTapeInfo"));
    if (!query) {
        throw RequestError(QStringLiteral("the plug-in does not export GetTapeInfo"));
    }
    TapeInfo info;
    const OSStatus status =
        query(host.printSession(), host.printSettings(), host.pageFormat(), host.ppdFile(), &info);
    return {{QStringLiteral("status"), status},
            {QStringLiteral("paperHeightMM"), info.paperHeightMM},
            {QStringLiteral("tapeKind"), info.tapeKind},
            {QStringLiteral("paperName"), jsonOf(info.paperName)},
            {QStringLiteral("colorSetting"), info.colorSetting}};
}

} // namespace

const RequestTable &hostRequests()
{
    static const RequestTable table{{QLatin1String("open"), open},
                                    {QLatin1String("mark"), mark},
                                    {QLatin1String("unmark"), unmark},
                                    {QLatin1String("keyWindow"), keyWindow},
                                    {QLatin1String("tapeInfo"), tapeInfo}};
    return table;
}

} // namespace tools
