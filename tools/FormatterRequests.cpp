// SPDX-License-Identifier: Apache-2.0
#include "tools/RequestError.h"
#include "tools/Requests.h"

namespace tools {
namespace {

std::optional<qint32> integer(const Members &members, const char *name)
{
    return members.has(name) ? std::optional(members.integer(name)) : std::nullopt;
}

std::optional<bool> truth(const Members &members, const char *name)
{
    return members.has(name) ? std::optional(members.truth(name)) : std::nullopt;
}

std::optional<QString> text(const Members &members, const char *name)
{
    return members.has(name) ? std::optional(members.text(name)) : std::nullopt;
}

std::optional<std::optional<QString>> textOrNull(const Members &members, const char *name)
{
    return members.has(name) ? std::optional(members.textOrNull(name)) : std::nullopt;
}

FormatterInspection::Selection selection(const Members &members, const char *name)
{
    const std::vector<std::optional<qint32>> range = members.integersOrNulls(name, 2);
    if (!range[0] || !range[1] || *range[0] < 0 || *range[1] < 0) {
        throw RequestError(QStringLiteral("member \"%1\" must be [location, length], neither of "
                                          "them negative")
                               .arg(QLatin1String(name)));
    }
    return {*range[0], *range[1]};
}

QJsonObject start(Session &session, const Members &members)
{
    session.makeFormatter({integer(members, "style"), textOrNull(members, "format")});
    return {};
}

QJsonObject set(Session &session, const Members &members)
{
    FormatterInspection &formatter = session.formatter();
    FormatterInspection::Settings settings;
    settings.maxLength = integer(members, "maxLength");
    settings.maxValue = integer(members, "maxValue");
    settings.minValue = integer(members, "minValue");
    settings.validityMaxValue = truth(members, "validityMaxValue");
    settings.validityMinValue = truth(members, "validityMinValue");
    settings.textStyle = integer(members, "textStyle");
    settings.formatString = textOrNull(members, "formatString");
    settings.notificationObject = textOrNull(members, "notificationObject");
    settings.addInvalidCharacter = text(members, "add");
    settings.removeInvalidCharacter = text(members, "remove");
    formatter.set(settings);
    return {};
}

QJsonObject edit(Session &session, const Members &members)
{
    FormatterInspection &formatter = session.formatter();
    const FormatterInspection::Edit edit{
        members.text("original"), selection(members, "originalRange"), members.text("proposed"),
        selection(members, "proposedRange")};
    return {{QStringLiteral("valid"), formatter.accepts(edit)}};
}

QJsonObject string(Session &session, const Members &members)
{
    const FormatterInspection &formatter = session.formatter();
    return {{QStringLiteral("value"), formatter.textFor(members.textOrInteger("value"))}};
}

QJsonObject object(Session &session, const Members &members)
{
    const FormatterInspection &formatter = session.formatter();
    return {{QStringLiteral("value"), formatter.valueFor(members.text("string"))}};
}

} // namespace

const RequestTable &formatterRequests()
{
    static const RequestTable table{{QLatin1String("formatter.new"), start},
                                    {QLatin1String("formatter.set"), set},
                                    {QLatin1String("formatter.edit"), edit},
                                    {QLatin1String("formatter.string"), string},
                                    {QLatin1String("formatter.object"), object}};
    return table;
}

} // namespace tools
