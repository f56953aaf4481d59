// SPDX-License-Identifier: Apache-2.0
#include "platform/Controls.h"
#include "platform/RadioMatrix.h"
#include "tools/Json.h"
#include "tools/Requests.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>

namespace tools {
namespace {

const QString kValue = QStringLiteral("value");
const QString kText = QStringLiteral("text");
const QString kTitles = QStringLiteral("titles");

QJsonArray titlesOf(const QComboBox *popUp)
{
    QJsonArray titles;
    for (int i = 0; i < popUp->count(); ++i) {
        titles.append(popUp->itemText(i));
    }
    return titles;
}

QJsonObject controlState(const QWidget *control)
{
    QJsonObject state{{QStringLiteral("enabled"), platform::isEnabled(control)},
                      {QStringLiteral("hidden"), control->isHidden()}};
    if (const auto *slider = qobject_cast<const QSlider *>(control)) {
        state.insert(kValue, platform::intValue(slider));
    } else if (const auto *matrix = qobject_cast<const platform::RadioMatrix *>(control)) {
        state.insert(kValue, platform::selectedRow(matrix));
        state.insert(kTitles, QJsonArray::fromStringList(matrix->titles()));
    } else if (const auto *box = qobject_cast<const QCheckBox *>(control)) {
        state.insert(kValue, platform::state(box));
        state.insert(QStringLiteral("title"), platform::buttonTitle(box));
    } else if (const auto *popUp = qobject_cast<const QComboBox *>(control)) {
        state.insert(kValue, platform::indexOfSelectedItem(popUp));
        state.insert(kTitles, titlesOf(popUp));
    } else if (const auto *label = qobject_cast<const QLabel *>(control)) {
        state.insert(kText, platform::stringValue(label));
    } else if (const auto *field = qobject_cast<const QLineEdit *>(control)) {
        state.insert(kText, field->text());
    }
    return state;
}

QJsonObject controlStates(PanelInspection &inspection)
{
    QJsonObject controls;
    for (const PanelInspection::Outlet &outlet : inspection.outlets()) {
        if (outlet.isControl) {
            controls.insert(outlet.name,
                            outlet.view ? QJsonValue(controlState(outlet.view)) : QJsonValue());
        }
    }
    return controls;
}

/// What the host holds for an option, as text.
QJsonValue settingOf(const SessionHost &host, const QString &option)
{
    const auto value = host.settings() ? host.settings()->value(option) : std::nullopt;
    return value ? QJsonValue(QString::fromUtf8(*value)) : QJsonValue();
}

QJsonValue markOf(const SessionHost &host, const QString &option)
{
    return jsonOf(host.ppd() ? host.ppd()->marked(option) : std::nullopt);
}

void insertOptions(QJsonObject &state, const PanelInspection &inspection, const SessionHost &host)
{
    QJsonObject selections;
    QJsonObject choices;
    QJsonObject marked;
    QJsonObject settings;
    for (const PanelInspection::BoundOption &option : inspection.boundOptions()) {
        selections.insert(option.keyword, jsonOf(option.selection));
        choices.insert(option.keyword, jsonOf(option.choices));
        marked.insert(option.keyword, markOf(host, option.keyword));
        settings.insert(option.keyword, settingOf(host, option.keyword));
    }
    state.insert(QStringLiteral("selections"), selections);
    state.insert(QStringLiteral("choices"), choices);
    state.insert(QStringLiteral("marked"), marked);
    state.insert(QStringLiteral("settings"), settings);
}

QJsonObject state(Session &session, const Members & /*members*/)
{
    PanelInspection &inspection = session.inspection();
    const PanelInspection::Fields fields = inspection.fields();
    QJsonObject state{{QStringLiteral("imageModeFlag"), fields.imageModeFlag},
                      {QStringLiteral("set_formatSetting"), fields.set_formatSetting},
                      {QStringLiteral("usb_dec"), fields.usb_dec},
                      {QStringLiteral("supportedOptions"),
                       fields.supportedOptions
                           ? QJsonValue(QJsonArray::fromStringList(*fields.supportedOptions))
                           : QJsonValue()},
                      {QStringLiteral("controls"), controlStates(inspection)}};
    insertOptions(state, inspection, session.host());
    return state;
}

} // namespace

const RequestTable &stateRequests()
{
    static const RequestTable table{{QLatin1String("state"), state}};
    return table;
}

} // namespace tools
