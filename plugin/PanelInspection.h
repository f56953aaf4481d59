// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Export.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

class QWidget;

/// A look inside the Graphics panel, for the tool that replays dialogs without a screen.
///
/// A panel of the bundle answers a dynamic_cast from PDEPanel to it; a print dialog needs nothing
/// of this. Valid as long as the panel. Names are those of the panel's fields and operations. The
/// interface thread only.
class PLATFORM_EXPORT PanelInspection
{
public:
    virtual ~PanelInspection();

    /// One of the options that the panel binds, in the panel's order.
    struct BoundOption
    {
        QString keyword;
        /// The selection's place in the option's choices; nothing without a selection.
        std::optional<qint64> selection;
        /// Nothing without a list of choices.
        std::optional<qint64> choices;
    };
    virtual std::vector<BoundOption> boundOptions() const = 0;

    struct Fields
    {
        qint16 imageModeFlag = 0;
        quint8 set_formatSetting = 0;
        quint8 usb_dec = 0;
        std::optional<QStringList> supportedOptions;
    };
    virtual Fields fields() const = 0;

    /// The version of the PPD's file, and whether it says that the printer is of the VL kind.
    virtual std::optional<QString> fileVersion() = 0;
    virtual bool isVL() = 0;

    /// A name that the interface description connects, by name. `view` is null before the view is
    /// loaded, and when the description has no such view. A view that is no control is a
    /// placeholder or a separator.
    struct Outlet
    {
        QString name;
        QWidget *view = nullptr;
        bool isControl = true;
    };
    virtual std::vector<Outlet> outlets() = 0;

    /// Makes the outlet null, now and when the view is loaded, as if the interface description had
    /// no such name. False when the panel has no such outlet.
    virtual bool dropOutlet(const QString &name) = 0;

    /// Whether a notification's object is the formatter of one of the panel's fields.
    virtual bool isFormatter(const void *object) const = 0;

    /// The two preview views by field; null before the view is loaded.
    struct Preview
    {
        QString name;
        QWidget *view = nullptr;
    };
    virtual std::vector<Preview> previews() const = 0;

    /// Calls `told` with the field's name whenever one of the present previews is told that it
    /// needs display, as long as that preview lives.
    virtual void watchPreviews(const std::function<void(const QString &name)> &told) = 0;

    /// Runs the panel's operation `name`: updateUI, initUI, setValuesToKey, and each initializeUI_
    /// and saveSetting_. False, and nothing happens, when there is no such operation.
    virtual bool run(const QString &name) = 0;

    /// Reads the marked choices, or shows the selections, of the settings whose item-type bits are
    /// given.
    virtual void readMarked(qint32 bits) = 0;
    virtual void show(qint32 bits) = 0;
};
