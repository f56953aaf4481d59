// SPDX-License-Identifier: Apache-2.0
#include "fuzz/sessions/SessionChecks.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

const QString kOk = QStringLiteral("ok");

QJsonObject object(const QByteArray &line)
{
    return QJsonDocument::fromJson(line).object();
}

bool isWithin(const QJsonValue &value, int least, int most)
{
    const int number = value.toInt(least - 1);
    return number >= least && number <= most;
}

} // namespace

SessionChecks::SessionChecks(const RandomSession &session)
    : mSession(session)
{ }

void SessionChecks::take(QByteArrayList &answers)
{
    for (mRequest = 0; mRequest < mSession.requests.size(); ++mRequest) {
        mAsked = object(mSession.requests[mRequest]);
        takeReply(answers);
    }
}

void SessionChecks::takeReply(QByteArrayList &answers)
{
    for (int events = 0; !answers.isEmpty(); ++events) {
        const QJsonObject answer = object(answers.takeFirst());
        if (answer.contains(kOk)) {
            checkReply(answer, events);
            return;
        }
        checkEvent(answer);
    }
    require(false, QStringLiteral("no reply"));
}

void SessionChecks::checkEvent(const QJsonObject &event)
{
    static const QStringList names{QStringLiteral("willChange"), QStringLiteral("notification"),
                                   QStringLiteral("display"), QStringLiteral("panelViewDidResize"),
                                   QStringLiteral("beep")};
    const QString name = event.value(QLatin1String("event")).toString();
    require(names.contains(name), QStringLiteral("event \"%1\"").arg(name));
    if (name == names.first()) {
        const QString option = event.value(QLatin1String("option")).toString();
        const QJsonValue choice = event.value(QLatin1String("choice"));
        require(boundOptions().contains(option), QStringLiteral("asked for %1").arg(option));
        require(
            isChoice(option, choice),
            QStringLiteral("asked for %1=%2, which the PPD lacks").arg(option, choice.toString()));
    }
}

void SessionChecks::checkReply(const QJsonObject &reply, int events)
{
    const QString asked = mAsked.value(QLatin1String("do")).toString();
    if (!reply.value(kOk).toBool()) {
        const QString error = reply.value(QLatin1String("error")).toString();
        require(!error.isEmpty() && !error.contains(QLatin1Char('\n')),
                QStringLiteral("an error without one sentence"));
        require(events == 0, QStringLiteral("events before an error"));
        require(mRequest > 0, QStringLiteral("the PPD was refused: %1").arg(error));
        return;
    }
    require(!mDeclined, QStringLiteral("%1 without a panel").arg(asked));
    if (asked == QLatin1String("open")) {
        checkOpen(reply);
    } else if (asked == QLatin1String("state")) {
        checkState(reply);
    } else if (asked == QLatin1String("imageModeFlag")) {
        checkFlag(reply.value(QLatin1String("value")));
    } else if (asked == QLatin1String("supportedPPDOptionKeys")) {
        checkKeys(reply.value(QLatin1String("keys")));
    }
}

void SessionChecks::checkOpen(const QJsonObject &reply)
{
    mDeclined = !reply.value(QLatin1String("plugin")).toBool(true);
    mHasPpd = !mAsked.value(QLatin1String("ppd")).isNull();
    require(mDeclined || reply.value(QLatin1String("panels")).toInt() == 1,
            QStringLiteral("not one panel"));
}

void SessionChecks::checkState(const QJsonObject &state)
{
    const QJsonObject marked = state.value(QLatin1String("marked")).toObject();
    const QJsonObject settings = state.value(QLatin1String("settings")).toObject();
    for (const QString &option : boundOptions()) {
        checkSelection(option, state);
        for (const QJsonValue &choice : {marked.value(option), settings.value(option)}) {
            require(choice.isNull() || isChoice(option, choice),
                    QStringLiteral("%1=%2, which the PPD lacks").arg(option, choice.toString()));
        }
    }
    require(isWithin(state.value(QLatin1String("usb_dec")), 0, 1), QStringLiteral("usb_dec"));
    require(isWithin(state.value(QLatin1String("set_formatSetting")), 0, 1),
            QStringLiteral("set_formatSetting"));
    checkFlag(state.value(QLatin1String("imageModeFlag")));
    checkControls(state.value(QLatin1String("controls")).toObject());
    const QJsonValue keys = state.value(QLatin1String("supportedOptions"));
    if (!keys.isNull()) {
        checkKeys(keys);
    }
}

void SessionChecks::checkSelection(const QString &option, const QJsonObject &state)
{
    const QJsonObject selections = state.value(QLatin1String("selections")).toObject();
    const QJsonObject counts = state.value(QLatin1String("choices")).toObject();
    require(selections.contains(option) && counts.contains(option),
            QStringLiteral("%1 is not told").arg(option));
    const int count = counts.value(option).toInt(0);
    const int most = mHasPpd ? mSession.ppd.count.value(option) : 0;
    require(count <= most && (count > 0 || most == 0),
            QStringLiteral("%1 has %2 choices, its PPD %3").arg(option).arg(count).arg(most));
    const QJsonValue selection = selections.value(option);
    require(selection.isNull() || isWithin(selection, 0, count - 1),
            QStringLiteral("%1 has a selection outside its list").arg(option));
}

void SessionChecks::checkControls(const QJsonObject &controls)
{
    for (const char *slider : {"mBrightnessSlider", "mContrustSlider", "mRedLevelSlider"}) {
        const QJsonValue control = controls.value(QLatin1String(slider));
        require(control.isNull() || isWithin(control[QLatin1String("value")], -20, 20),
                QStringLiteral("%1 outside its range").arg(QLatin1String(slider)));
    }
    const QJsonValue radio = controls.value(QLatin1String("mHalftoneRadio"));
    require(radio.isNull() || isWithin(radio[QLatin1String("value")], -1, 2),
            QStringLiteral("mHalftoneRadio outside its rows"));
    const QJsonValue popUp = controls.value(QLatin1String("mColorPUBtn"));
    const qsizetype items = popUp[QLatin1String("titles")].toArray().size();
    require(popUp.isNull() || isWithin(popUp[QLatin1String("value")], -1, int(items) - 1),
            QStringLiteral("mColorPUBtn outside its items"));
}

void SessionChecks::checkFlag(const QJsonValue &flag)
{
    require(flag.isDouble(), QStringLiteral("imageModeFlag is no number"));
    const int others = flag.toInt() & ~1;
    require(mFlag.value_or(others) == others, QStringLiteral("another bit of the flag moved"));
    mFlag = others;
}

void SessionChecks::checkKeys(const QJsonValue &keys)
{
    require(mKeys.value_or(keys) == keys, QStringLiteral("the option keys changed"));
    mKeys = keys;
    for (const QJsonValue &key : keys.toArray()) {
        require(mHasPpd && mSession.ppd.count.contains(key.toString()),
                QStringLiteral("%1 is claimed and the PPD lacks it").arg(key.toString()));
    }
}

bool SessionChecks::isChoice(const QString &option, const QJsonValue &choice) const
{
    return mHasPpd && mSession.ppd.choices.value(option).contains(choice.toString());
}

void SessionChecks::require(bool holds, const QString &complaint)
{
    if (!holds) {
        mComplaints += QStringLiteral("request %1: %2").arg(mRequest + 1).arg(complaint);
    }
}
