// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/OptionChoice.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace dialog {

/// A printer to choose from: a queue of the print server, or the folder printer.
struct Printer
{
    Q_DECLARE_TR_FUNCTIONS(dialog::Printer)

public:
    enum class State
    {
        Idle,
        Printing,
        Stopped
    };

    /// The queue's name, with "/instance" where the user has made instances of it.
    QString name;
    /// The server's description and place of the printer, as its owner wrote them.
    QString description;
    QString location;
    QString model;
    /// Raw, as the print system spells it.
    QString deviceUri;
    bool isDefault = false;
    bool isFolder = false;
    bool acceptsJobs = true;
    State state = State::Idle;
    /// Keywords of the print system ("media-empty-error").
    QStringList stateReasons;

    /// The printer that writes jobs into a folder. It needs no server.
    static Printer folder();

    /// What the list shows: the description, or else the name.
    QString title() const;

    /// "ready", "stopped, not accepting jobs, cover is open" and the like.
    QString stateText() const;

    bool operator==(const Printer &) const = default;
};

} // namespace dialog
