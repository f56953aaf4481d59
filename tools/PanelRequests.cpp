// SPDX-License-Identifier: Apache-2.0
#include "tools/Json.h"
#include "tools/RequestError.h"
#include "tools/Requests.h"

namespace tools {
namespace {

QJsonObject value(const QJsonValue &value)
{
    return {{QStringLiteral("value"), value}};
}

QJsonObject panelName(Session &session, const Members & /*members*/)
{
    return value(session.panel().panelName());
}

QJsonObject panelKind(Session &session, const Members & /*members*/)
{
    return value(session.panel().panelKind());
}

QJsonObject shouldHide(Session &session, const Members & /*members*/)
{
    return value(session.panel().shouldHide());
}

QJsonObject shouldPrint(Session &session, const Members & /*members*/)
{
    return value(session.panel().shouldPrint());
}

QJsonObject shouldShowHelp(Session &session, const Members & /*members*/)
{
    return value(session.panel().shouldShowHelp());
}

QJsonObject isVLPrinter(Session &session, const Members & /*members*/)
{
    return value(session.inspection().isVL());
}

QJsonObject fileVerString(Session &session, const Members & /*members*/)
{
    return value(jsonOf(session.inspection().fileVersion()));
}

QJsonObject imageModeFlag(Session &session, const Members & /*members*/)
{
    return value(session.inspection().fields().imageModeFlag);
}

QJsonObject willShow(Session &session, const Members & /*members*/)
{
    session.panel().willShow();
    return {};
}

QJsonObject saveValues(Session &session, const Members & /*members*/)
{
    return value(session.panel().saveValuesAndReturnError(nullptr));
}

QJsonObject restoreValues(Session &session, const Members & /*members*/)
{
    return value(session.panel().restoreValuesAndReturnError(nullptr));
}

QJsonObject supportedPPDOptionKeys(Session &session, const Members & /*members*/)
{
    const auto keys = session.panel().supportedPPDOptionKeys();
    return {{QStringLiteral("keys"),
             keys ? QJsonValue(QJsonArray::fromStringList(*keys)) : QJsonValue()}};
}

QJsonObject summaryInfo(Session &session, const Members & /*members*/)
{
    const std::optional<QVariantMap> summary = session.panel().summaryInfo();
    return {{QStringLiteral("summary"),
             summary ? QJsonValue(QJsonObject::fromVariantMap(*summary)) : QJsonValue()}};
}

QJsonObject PPDOptionKeyValueDidChange(Session &session, const Members &members)
{
    const std::optional<QString> option = members.textOrNull("option");
    const std::optional<QString> choice = members.textOrNull("choice");
    session.panel().PPDOptionKeyValueDidChange(option, choice);
    return {};
}

QJsonObject updateMarkedSelections(Session &session, const Members &members)
{
    const qint32 bits = members.integer("bits");
    session.inspection().readMarked(bits);
    return {};
}

QJsonObject updateUIItem(Session &session, const Members &members)
{
    const qint32 bits = members.integer("bits");
    session.inspection().show(bits);
    return {};
}

QJsonObject updateUI(Session &session, const Members & /*members*/)
{
    session.inspection().run(QStringLiteral("updateUI"));
    return {};
}

QJsonObject initUI(Session &session, const Members & /*members*/)
{
    session.inspection().run(QStringLiteral("initUI"));
    return {};
}

QJsonObject setValuesToKey(Session &session, const Members & /*members*/)
{
    session.inspection().run(QStringLiteral("setValuesToKey"));
    return {};
}

void runForSetting(Session &session, const char *group, const Members &members)
{
    const QString setting = members.text("setting");
    if (!session.inspection().run(QLatin1String(group) + setting)) {
        throw RequestError(QStringLiteral("there is no setting \"%1\" for %2")
                               .arg(setting.simplified(), QLatin1String(group).chopped(1)));
    }
}

QJsonObject initializeUI(Session &session, const Members &members)
{
    runForSetting(session, "initializeUI_", members);
    return {};
}

QJsonObject saveSetting(Session &session, const Members &members)
{
    runForSetting(session, "saveSetting_", members);
    return {};
}

} // namespace

const RequestTable &panelRequests()
{
    static const RequestTable table{
        {QLatin1String("panelName"), panelName},
        {QLatin1String("panelKind"), panelKind},
        {QLatin1String("shouldHide"), shouldHide},
        {QLatin1String("shouldPrint"), shouldPrint},
        {QLatin1String("shouldShowHelp"), shouldShowHelp},
        {QLatin1String("isVLPrinter"), isVLPrinter},
        {QLatin1String("fileVerString"), fileVerString},
        {QLatin1String("imageModeFlag"), imageModeFlag},
        {QLatin1String("willShow"), willShow},
        {QLatin1String("updateUI"), updateUI},
        {QLatin1String("saveValues"), saveValues},
        {QLatin1String("restoreValues"), restoreValues},
        {QLatin1String("initUI"), initUI},
        {QLatin1String("setValuesToKey"), setValuesToKey},
        {QLatin1String("supportedPPDOptionKeys"), supportedPPDOptionKeys},
        {QLatin1String("summaryInfo"), summaryInfo},
        {QLatin1String("PPDOptionKeyValueDidChange"), PPDOptionKeyValueDidChange},
        {QLatin1String("updateMarkedSelections"), updateMarkedSelections},
        {QLatin1String("updateUIItem"), updateUIItem},
        {QLatin1String("initializeUI"), initializeUI},
        {QLatin1String("saveSetting"), saveSetting},
    };
    return table;
}

} // namespace tools
