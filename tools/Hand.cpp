// SPDX-License-Identifier: Apache-2.0
#include "tools/Hand.h"

#include "platform/RadioMatrix.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>

namespace tools {
namespace {

int keyOf(const QString &text)
{
    const char16_t letter = text.size() == 1 ? text.at(0).toUpper().unicode() : u'\0';
    return letter >= u' ' && letter <= u'~' ? int(letter) : int(Qt::Key_unknown);
}

void press(QWidget *widget, int key, const QString &text)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QApplication::sendEvent(widget, &event);
    }
}

} // namespace

void moveByHand(QSlider *slider, int level)
{
    if (slider->value() == level) {
        Q_EMIT slider->valueChanged(level);
    } else {
        slider->setValue(level);
    }
}

void pickByHand(platform::RadioMatrix *matrix, int row)
{
    matrix->findChildren<QRadioButton *>(QString(), Qt::FindDirectChildrenOnly).at(row)->click();
}

void tickByHand(QCheckBox *box, bool ticked)
{
    const Qt::CheckState state = ticked ? Qt::Checked : Qt::Unchecked;
    if (box->checkState() == state) {
        Q_EMIT box->stateChanged(state);
    } else {
        box->setCheckState(state);
    }
}

void pickByHand(QComboBox *popUp, int index)
{
    popUp->setCurrentIndex(index);
    Q_EMIT popUp->activated(index);
}

void typeByHand(QLineEdit *field, const QString &text)
{
    field->selectAll();
    for (qsizetype i = 0; i < text.size();) {
        const bool pair =
            text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        const QString character = text.mid(i, pair ? 2 : 1);
        press(field, keyOf(character), character);
        i += character.size();
    }
    press(field, Qt::Key_Return, QStringLiteral("\r"));
}

} // namespace tools
