// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/ColourMode.h"
#include "dialog/Failure.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QLatin1String>
#include <QString>

#include <optional>

namespace dialog {

/// The ticket that the dialog keeps for panels in the print settings: label and colour mode of the
/// job, and whatever else the program that wrote it put there. A value.
class ExtendedTicket
{
    Q_DECLARE_TR_FUNCTIONS(dialog::ExtendedTicket)

public:
    /// The key of the print settings that holds xml().
    static constexpr QLatin1String kKey{"org.labelprint.print.PrintSettingsTicket.KtE5"};

    /// The largest file, in bytes, and the deepest nesting that is read.
    static constexpr qint64 kLargest = 200'000;
    static constexpr int kDeepest = 64;

    /// An empty one.
    ExtendedTicket();

    /// Reads the file at `path`.
    static Result<ExtendedTicket> open(const QString &path);

    /// `name` stands for the source in the failure.
    static Result<ExtendedTicket> read(const QByteArray &xml, const QString &name);

    /// The label's name as the PPD spells it, or nothing.
    const std::optional<QString> &paperName() const { return mPaper; }
    void setPaperName(const QString &name);

    /// Nothing when the ticket does not say.
    std::optional<ColourMode> colourMode() const;
    /// A text that says the same already stays as it is.
    void setColourMode(std::optional<ColourMode> mode);

    /// An XML property list in UTF-8 with a dictionary as its root.
    const QByteArray &xml() const { return mXml; }

private:
    std::optional<Failure> take(const QByteArray &xml, const QString &name);

    QByteArray mXml;
    std::optional<QString> mPaper;
    std::optional<QString> mColour;
};

} // namespace dialog
