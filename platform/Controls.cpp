// SPDX-License-Identifier: Apache-2.0
#include "platform/Controls.h"

#include "platform/IntegerValue.h"
#include "platform/RadioMatrix.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>

#include <limits>

namespace platform {
namespace {

/// The letter behind the first single ampersand, or null.
QChar mnemonicOf(const QString &text)
{
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] == u'&') {
            if (text[i + 1] != u'&') {
                return text[i + 1];
            }
            ++i;
        }
    }
    return {};
}

QString withMnemonic(const QString &title, QChar letter)
{
    const qsizetype place = letter.isNull() ? -1 : title.indexOf(letter, 0, Qt::CaseInsensitive);
    QString text;
    for (qsizetype i = 0; i < title.size(); ++i) {
        if (i == place || title[i] == u'&') {
            text += u'&';
        }
        text += title[i];
    }
    return text;
}

QString withoutMnemonic(const QString &text)
{
    QString title;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'&' && i + 1 < text.size()) {
            ++i;
        }
        title += text[i];
    }
    return title;
}

} // namespace

qint32 intValue(const QSlider *slider)
{
    return slider ? slider->value() : 0;
}

float floatValue(const QSlider *slider)
{
    return float(intValue(slider));
}

void setIntValue(QSlider *slider, qint32 value)
{
    if (slider) {
        const QSignalBlocker silent(slider);
        slider->setValue(value);
    }
}

void setAltIncrementValue(QSlider *slider, double value)
{
    if (slider) {
        slider->setSingleStep(int(value));
    }
}

qint32 intValue(const QLineEdit *field)
{
    return field ? integerValue(field->text()) : 0;
}

void setIntValue(QLineEdit *field, qint32 value)
{
    setStringValue(field, QString::number(value));
}

void setStringValue(QLineEdit *field, const std::optional<QString> &text)
{
    if (field && text) {
        const QSignalBlocker silent(field);
        field->setText(*text);
    }
}

void setStringValue(QLabel *label, const QString &text)
{
    if (label) {
        label->setTextFormat(Qt::PlainText);
        // Only a label with a buddy reads ampersands as mnemonics.
        label->setText(label->buddy() ? withMnemonic(text, mnemonicOf(label->text())) : text);
    }
}

QString stringValue(const QLabel *label)
{
    if (!label) {
        return {};
    }
    return label->buddy() ? withoutMnemonic(label->text()) : label->text();
}

void setButtonTitle(QAbstractButton *button, const QString &title)
{
    if (button) {
        button->setText(withMnemonic(title, mnemonicOf(button->text())));
    }
}

QString buttonTitle(const QAbstractButton *button)
{
    return button ? withoutMnemonic(button->text()) : QString();
}

qint32 selectedRow(const RadioMatrix *matrix)
{
    return matrix ? matrix->selectedRow() : 0;
}

void selectCellAtRow(RadioMatrix *matrix, qint64 row)
{
    if (matrix && row >= 0 && row <= std::numeric_limits<int>::max()) {
        matrix->selectCellAtRow(int(row));
    }
}

void setTitleOfRow(RadioMatrix *matrix, int row, const QString &title)
{
    if (matrix) {
        matrix->setTitle(row, title);
    }
}

qint32 state(const QCheckBox *box)
{
    if (!box || box->checkState() == Qt::Unchecked) {
        return 0;
    }
    return box->checkState() == Qt::Checked ? 1 : -1;
}

void setState(QCheckBox *box, qint64 state)
{
    if (box) {
        const QSignalBlocker silent(box);
        if (state < 0 && box->isTristate()) {
            box->setCheckState(Qt::PartiallyChecked);
        } else {
            box->setCheckState(state == 0 ? Qt::Unchecked : Qt::Checked);
        }
    }
}

qint32 indexOfSelectedItem(const QComboBox *popUp)
{
    return popUp ? popUp->currentIndex() : 0;
}

void selectItemAtIndex(QComboBox *popUp, qint64 index)
{
    if (popUp) {
        const QSignalBlocker silent(popUp);
        popUp->setCurrentIndex(index < popUp->count() ? int(index) : -1);
    }
}

void insertItem(QComboBox *popUp, const QString &title, int index)
{
    if (popUp) {
        const QSignalBlocker silent(popUp);
        popUp->insertItem(index, title);
    }
}

void removeItemAtIndex(QComboBox *popUp, int index)
{
    if (popUp) {
        const QSignalBlocker silent(popUp);
        const bool selected = index == popUp->currentIndex();
        popUp->removeItem(index);
        if (selected && popUp->count() > 0) {
            popUp->setCurrentIndex(0);
        }
    }
}

bool isEnabled(const QWidget *control)
{
    return control && control->isEnabledTo(control->parentWidget());
}

void setEnabled(QWidget *control, bool enabled)
{
    if (control) {
        control->setEnabled(enabled);
    }
}

void setHidden(QWidget *control, bool hidden)
{
    if (control) {
        control->setHidden(hidden);
    }
}

} // namespace platform
