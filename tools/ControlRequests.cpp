// SPDX-License-Identifier: Apache-2.0
#include "platform/Controls.h"
#include "platform/RadioMatrix.h"
#include "tools/Hand.h"
#include "tools/RequestError.h"
#include "tools/Requests.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>

namespace tools {
namespace {

/// More than a person types into a number field.
constexpr qsizetype kLongestText = 1000;

/// The control of the request; one that is missing is a RequestError.
QWidget *controlOf(Session &session, const Members &members)
{
    const QString name = members.text("control");
    const std::vector<PanelInspection::Outlet> outlets = session.inspection().outlets();
    const auto found = std::find_if(outlets.begin(), outlets.end(), [&name](const auto &outlet) {
        return outlet.name == name && outlet.isControl;
    });
    if (found == outlets.end()) {
        throw RequestError(QStringLiteral("there is no control \"%1\"").arg(name.simplified()));
    }
    if (!found->view) {
        throw RequestError(QStringLiteral("the panel has no %1 now").arg(name));
    }
    return found->view;
}

RequestError unfit(const Members &members, const char *request)
{
    return RequestError(QStringLiteral("%1 cannot be used with \"%2\"")
                            .arg(members.text("control"), QLatin1String(request)));
}

qint32 valueWithin(const Members &members, qint32 lowest, qint32 highest)
{
    const qint32 value = members.integer("value");
    if (value < lowest || value > highest) {
        throw RequestError(QStringLiteral("member \"value\" is %1, but %2 takes %3 to %4")
                               .arg(value)
                               .arg(members.text("control"))
                               .arg(lowest)
                               .arg(highest));
    }
    return value;
}

void checkUsable(const QWidget *control, const Members &members)
{
    if (!platform::isEnabled(control) || control->isHidden()) {
        throw RequestError(
            QStringLiteral("%1 is %2: a person could not use it")
                .arg(members.text("control"),
                     control->isHidden() ? QStringLiteral("hidden") : QStringLiteral("disabled")));
    }
}

int lastRow(const platform::RadioMatrix *matrix)
{
    return int(matrix->titles().size()) - 1;
}

QJsonObject user(Session &session, const Members &members)
{
    QWidget *control = controlOf(session, members);
    checkUsable(control, members);
    if (auto *slider = qobject_cast<QSlider *>(control)) {
        moveByHand(slider, valueWithin(members, slider->minimum(), slider->maximum()));
    } else if (auto *matrix = qobject_cast<platform::RadioMatrix *>(control)) {
        pickByHand(matrix, valueWithin(members, 0, lastRow(matrix)));
    } else if (auto *box = qobject_cast<QCheckBox *>(control)) {
        tickByHand(box, valueWithin(members, 0, 1) == 1);
    } else if (auto *popUp = qobject_cast<QComboBox *>(control)) {
        pickByHand(popUp, valueWithin(members, 0, popUp->count() - 1));
    } else {
        throw unfit(members, "user");
    }
    return {};
}

void putRow(platform::RadioMatrix *matrix, qint32 row)
{
    if (row < 0) {
        matrix->deselectAllCells();
    } else {
        platform::selectCellAtRow(matrix, row);
    }
}

void putState(QCheckBox *box, qint32 state)
{
    const QSignalBlocker silent(box);
    box->setCheckState(state < 0 ? Qt::PartiallyChecked : state > 0 ? Qt::Checked : Qt::Unchecked);
    box->setTristate(state < 0);
}

QJsonObject put(Session &session, const Members &members)
{
    QWidget *control = controlOf(session, members);
    if (auto *slider = qobject_cast<QSlider *>(control)) {
        platform::setIntValue(slider, valueWithin(members, slider->minimum(), slider->maximum()));
    } else if (auto *matrix = qobject_cast<platform::RadioMatrix *>(control)) {
        putRow(matrix, valueWithin(members, -1, lastRow(matrix)));
    } else if (auto *box = qobject_cast<QCheckBox *>(control)) {
        putState(box, valueWithin(members, -1, 1));
    } else if (auto *popUp = qobject_cast<QComboBox *>(control)) {
        platform::selectItemAtIndex(popUp, valueWithin(members, 0, popUp->count() - 1));
    } else if (auto *field = qobject_cast<QLineEdit *>(control)) {
        platform::setStringValue(field, members.text("value"));
    } else {
        throw unfit(members, "put");
    }
    return {};
}

QJsonObject enable(Session &session, const Members &members)
{
    QWidget *control = controlOf(session, members);
    platform::setEnabled(control, members.truth("value"));
    return {};
}

QJsonObject type(Session &session, const Members &members)
{
    auto *field = qobject_cast<QLineEdit *>(controlOf(session, members));
    const QString text = members.text("text");
    if (!field || field->isReadOnly()) {
        throw unfit(members, "type");
    }
    if (text.size() > kLongestText) {
        throw RequestError(QStringLiteral("member \"text\" has %1 characters; %2 are the most")
                               .arg(text.size())
                               .arg(kLongestText));
    }
    checkUsable(field, members);
    typeByHand(field, text);
    return {};
}

} // namespace

const RequestTable &controlRequests()
{
    static const RequestTable table{{QLatin1String("user"), user},
                                    {QLatin1String("type"), type},
                                    {QLatin1String("put"), put},
                                    {QLatin1String("enable"), enable}};
    return table;
}

} // namespace tools
