// SPDX-License-Identifier: Apache-2.0
#include "platform/Outlets.h"

#include "platform/RadioMatrix.h"

#include <QCheckBox>
#include <QComboBox>
#include <QMetaObject>
#include <QSlider>

#include <utility>

namespace platform {
namespace {

QWidget *controlNamed(const QString &name, QWidget *view)
{
    return view->objectName() == name ? view : view->findChild<QWidget *>(name);
}

/// A pick from the list tells of the new index and then of the pick; an assistive tool tells of
/// the new index only, and picking the selected item again of the pick only.
void connectPopUp(QComboBox *popUp, QObject *receiver, const std::function<void()> &send)
{
    auto told = std::make_shared<bool>(false);
    QObject::connect(popUp, &QComboBox::currentIndexChanged, receiver, [receiver, told, send] {
        *told = true;
        QMetaObject::invokeMethod(
            receiver, [told] { *told = false; }, Qt::QueuedConnection);
        send();
    });
    QObject::connect(popUp, &QComboBox::activated, receiver, [told, send] {
        if (!std::exchange(*told, false)) {
            send();
        }
    });
}

} // namespace

Outlets::Outlets() = default;
Outlets::~Outlets() = default;

void Outlets::addField(const QString &name, Field field)
{
    mFields.emplace(name, std::move(field));
}

void Outlets::action(const char *name, std::function<void()> send)
{
    mActions.emplace(QLatin1String(name), std::move(send));
}

void Outlets::drop(const QString &name)
{
    mDropped.insert(name);
    mReceivers.erase(name);
    const auto [first, last] = mFields.equal_range(name);
    for (auto field = first; field != last; ++field) {
        field->second.set(nullptr);
    }
}

void Outlets::clear()
{
    mReceivers.clear();
    mFields.clear();
    mActions.clear();
}

std::multimap<QString, QWidget *> Outlets::fields() const
{
    std::multimap<QString, QWidget *> fields;
    for (const auto &[name, field] : mFields) {
        fields.emplace(name, field.get());
    }
    return fields;
}

void Outlets::connectTo(QWidget *view)
{
    mReceivers.clear();
    for (const auto &[name, field] : mFields) {
        field.set(mDropped.contains(name) ? nullptr : controlNamed(name, view));
    }
    for (const auto &[name, send] : mActions) {
        if (!mDropped.contains(name)) {
            connectAction(name, controlNamed(name, view), send);
        }
    }
}

void Outlets::connectAction(const QString &name, QWidget *control,
                            const std::function<void()> &send)
{
    QObject *receiver = mReceivers.emplace(name, std::make_unique<QObject>())->second.get();
    if (auto *slider = qobject_cast<QSlider *>(control)) {
        QObject::connect(slider, &QSlider::valueChanged, receiver, send);
    } else if (auto *matrix = qobject_cast<RadioMatrix *>(control)) {
        QObject::connect(matrix, &RadioMatrix::picked, receiver, send);
    } else if (auto *box = qobject_cast<QCheckBox *>(control)) {
        // A click and an assistive toggle both change the state, once.
        QObject::connect(box, &QCheckBox::stateChanged, receiver, send);
    } else if (auto *popUp = qobject_cast<QComboBox *>(control)) {
        connectPopUp(popUp, receiver, send);
    } else if (auto *button = qobject_cast<QAbstractButton *>(control)) {
        QObject::connect(button, &QAbstractButton::clicked, receiver, send);
    }
}

} // namespace platform
