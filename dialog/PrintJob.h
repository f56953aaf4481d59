// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DotPages.h"
#include "dialog/JobSettings.h"
#include "dialog/PrintDocument.h"

#include <QString>

#include <optional>

namespace dialog {

/// Everything that is needed to print once. A value, so that a worker can have its own.
struct PrintJob
{
    /// The printer's name in the list.
    QString printer;
    PrintDocument document;
    JobSettings settings;
    /// The pages as dots, where the printer's PPD says how to make them; for the folder printer.
    std::optional<DotPages> dots = {};

    /// The settings' title, or else the document's name.
    QString title() const
    {
        return settings.title().trimmed().isEmpty() ? document.name : settings.title();
    }

    /// What the print system is told. Pages that are rendered here are chosen and placed already.
    OptionChoices options() const;
};

} // namespace dialog
