// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Export.h"

#include <QPointer>
#include <QSet>
#include <QString>
#include <QWidget>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace platform {

/// The owner's side of an interface description: the names that it connects to fields (outlets)
/// and to operations (actions) of the owner.
///
/// A field is null until the description is loaded, when the description has no control of that
/// name and class, and again when the control is gone. Belongs to the owner of the fields; once it
/// is gone no action is sent any more.
class PLATFORM_EXPORT Outlets
{
public:
    Outlets();
    ~Outlets();
    Outlets(const Outlets &) = delete;
    Outlets &operator=(const Outlets &) = delete;

    /// `field` gets the control called `name` when it is a Control, and lives as long as this
    /// object.
    template <class Control> void add(const char *name, QPointer<Control> &field)
    {
        addField(QLatin1String(name),
                 {[&field](QWidget *view) { field = qobject_cast<Control *>(view); },
                  [&field]() -> QWidget * { return field; }});
    }

    /// Calls `send` once for every change that the user or an assistive tool makes to the control
    /// called `name`, after the change. A change that the program makes through
    /// platform/Controls.h sends nothing. Sliders, radio matrices, check boxes, pop-ups (also when
    /// the selected item is picked again) and buttons have an action; other views send nothing.
    void action(const char *name, std::function<void()> send);

    /// Makes the field of `name` null and its control dumb, now and in later connections, as if
    /// the interface description had no such name.
    void drop(const QString &name);

    /// Forgets all fields, actions and connections; what was dropped stays dropped. The fields keep
    /// what they hold.
    void clear();

    /// What each field holds now, by name.
    std::multimap<QString, QWidget *> fields() const;

    /// Connects all names to the controls in `view`, `view` itself among them. Done by the view
    /// host when it has loaded a description.
    void connectTo(QWidget *view);

private:
    struct Field
    {
        std::function<void(QWidget *)> set;
        std::function<QWidget *()> get;
    };
    void addField(const QString &name, Field field);
    void connectAction(const QString &name, QWidget *control, const std::function<void()> &send);

    std::multimap<QString, Field> mFields;
    std::multimap<QString, std::function<void()>> mActions;
    /// What the signals of a name's control are connected to; without it they go nowhere.
    std::multimap<QString, std::unique_ptr<QObject>> mReceivers;
    QSet<QString> mDropped;
};

} // namespace platform
