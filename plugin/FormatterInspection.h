// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Export.h"

#include <QString>
#include <QVariant>

#include <optional>

/// One formatter of the bundle's input controls, for the tool that replays sessions.
///
/// Made by the bundle's exported function kMakeFormatterFunction and deleted by the caller. It
/// needs no panel; a print dialog needs nothing of this. The interface thread only.
class PLATFORM_EXPORT FormatterInspection
{
public:
    virtual ~FormatterInspection();

    /// The formatter as it sends its notifications; never followed.
    virtual const void *address() const = 0;

    /// A setting that is nothing stays as it is. They are set in this order.
    struct Settings
    {
        std::optional<qint32> maxLength;
        std::optional<qint32> maxValue;
        std::optional<qint32> minValue;
        std::optional<bool> validityMaxValue;
        std::optional<bool> validityMinValue;
        std::optional<qint32> textStyle;
        /// The inner one is the value, which may be nothing.
        std::optional<std::optional<QString>> formatString;
        std::optional<std::optional<QString>> notificationObject;
        std::optional<QString> addInvalidCharacter;
        std::optional<QString> removeInvalidCharacter;
    };
    virtual void set(const Settings &settings) = 0;

    /// An edit: the text before and after it with the selection before and after it, in UTF-16
    /// units.
    struct Selection
    {
        qint64 location = 0;
        qint64 length = 0;
    };
    struct Edit
    {
        QString original;
        Selection originalRange;
        QString proposed;
        Selection proposedRange;
    };
    virtual bool accepts(const Edit &edit) = 0;

    /// The text that shows a value, and the value that a text stands for.
    virtual QString textFor(const QVariant &value) const = 0;
    virtual QString valueFor(const QString &text) const = 0;
};

/// What picks the formatter's initialiser: each of them given or not. A given format may be
/// nothing.
struct FormatterStart
{
    std::optional<qint32> style;
    std::optional<std::optional<QString>> format;
};

/// The name and the type of the exported function. The caller deletes the result.
inline constexpr char kMakeFormatterFunction[] = "PanelInspection_makeFormatter";
using MakeFormatter = FormatterInspection *(*)(const FormatterStart &start);
