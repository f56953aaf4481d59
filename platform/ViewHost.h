// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Export.h"

#include <QString>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace platform {

class Bundle;
class Outlets;

/// The desktop around the views: their interface descriptions and the key window.
class PLATFORM_EXPORT ViewHost
{
public:
    virtual ~ViewHost();

    /// The view host of the process: the desktop's own until another one is set.
    static ViewHost &current();

    /// Puts `host` in the place of the desktop's own, null puts that one back. Borrowed.
    static void setCurrent(ViewHost *host);

    /// Makes the views that the interface description `name` of `bundle` describes, in the bundle's
    /// language, and connects them to `owner`. Answers the top view, without a parent, or null and
    /// nothing connected when there is no such description or it cannot be read.
    virtual std::unique_ptr<QWidget> loadNibNamed(const QString &name, const Bundle &bundle,
                                                  Outlets &owner) = 0;

    /// The height in points of the window that has the user's keys, title bar included; nothing
    /// when no window of the application has them.
    virtual std::optional<double> keyWindowHeight() const = 0;
};

/// Makes a view of a class that an interface description names.
using MakeWidget = std::function<QWidget *(QWidget *parent)>;

/// Lets interface descriptions name the widget class `className`. A class registered again is made
/// the new way. RadioMatrix and Qt's own widgets are known without it.
PLATFORM_EXPORT void registerWidgetClass(const QString &className, MakeWidget make);

} // namespace platform
