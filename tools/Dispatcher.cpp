// SPDX-License-Identifier: Apache-2.0
#include "tools/Dispatcher.h"

#include "tools/RequestError.h"
#include "tools/Requests.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonParseError>

#include <exception>

namespace tools {
namespace {

QJsonObject requestIn(const LineReader::Line &line)
{
    if (line.tooLong) {
        throw RequestError(
            QStringLiteral("the line is longer than %1 bytes").arg(LineReader::kLongestLine));
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line.text, &error);
    if (error.error != QJsonParseError::NoError) {
        throw RequestError(QStringLiteral("the line is not a JSON object (%1, byte %2)")
                               .arg(error.errorString(), QString::number(error.offset)));
    }
    if (!document.isObject()) {
        throw RequestError(QStringLiteral("the line is not a JSON object"));
    }
    return document.object();
}

QByteArray lineOf(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QJsonObject errorReply(const QString &text)
{
    return {{QStringLiteral("ok"), false}, {QStringLiteral("error"), text}};
}

} // namespace

QJsonObject Dispatcher::run(const QJsonObject &request)
{
    const Members members(request);
    const QString name = members.text("do");
    const Request *known = findRequest(name);
    if (!known) {
        throw RequestError(
            QStringLiteral("there is no request \"%1\"").arg(name.left(100).simplified()));
    }
    QJsonObject reply = known->run(mSession, members);
    // What the request left for later belongs to it, and would pile up otherwise.
    QCoreApplication::processEvents();
    reply.insert(QStringLiteral("ok"), true);
    return reply;
}

QByteArray Dispatcher::answer(const LineReader::Line &line)
{
    QJsonObject request;
    QJsonObject reply;
    try {
        request = requestIn(line);
        reply = run(request);
    } catch (const RequestError &error) {
        reply = errorReply(error.text);
    } catch (const std::exception &error) {
        reply = errorReply(QString::fromUtf8(error.what()).simplified());
    } catch (...) {
        reply = errorReply(QStringLiteral("the plug-in failed for no reason that it told"));
    }
    const std::vector<QJsonObject> events = mSession.events().take();
    QByteArray lines;
    if (reply.value(QStringLiteral("ok")).toBool()) {
        for (const QJsonObject &event : events) {
            lines += lineOf(event);
        }
    }
    const QJsonValue id = request.value(QStringLiteral("id"));
    if (!id.isUndefined()) {
        reply.insert(QStringLiteral("id"), id);
    }
    return lines + lineOf(reply);
}

} // namespace tools
