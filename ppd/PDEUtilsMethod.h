// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ppd/PDEChoice.h"

#include <QPointF>
#include <QString>

#include <memory>
#include <optional>

#include <cups/ppd.h>

class QWidget;

/// What the panels ask of an open PPD. Class operations only.
///
/// Absence is answered with nothing, no, 0 or the zero point; a null PPD, option or choice has
/// nothing in it. Keywords of options and attributes are found whatever their letter case; choices
/// are not.
class PDEUtilsMethod13
{
public:
    PDEUtilsMethod13() = delete;

    /// The bytes that `text` takes in the system encoding, else in the first other encoding that
    /// can hold it; 0 for nothing.
    static quint32 stringLengthConvertedToEncoding(const std::optional<QString> &text);

    /// Whether `intoString` occurs in `text`, unit by unit. The empty pattern occurs nowhere.
    static bool scanString(const std::optional<QString> &text,
                           const std::optional<QString> &intoString);

    /// `text` without the first occurrence of `intoString`; nothing when it does not occur.
    static std::optional<QString> deleteString(const std::optional<QString> &text,
                                               const std::optional<QString> &intoString);

    static bool runningOn105OrLater();

    /// The value of the first attribute of that keyword, in the system encoding.
    static std::optional<QString> ppdAttrValStr(ppd_file_t *ppd, const char *cStrKey);

    /// The option's translation text, in the system encoding.
    static std::optional<QString> ppdOptionTextStr(ppd_file_t *ppd, const char *cStrKey);

    /// Whether the attribute says "False".
    static bool isSupportedItem(ppd_file_t *ppd, const char *cStrKey);

    /// The attribute's value as a point.
    static QPointF originItem(ppd_file_t *ppd, const char *cStrKey);

    /// The option's choices in the order of the PPD, empty when it has none; null for no option.
    static std::shared_ptr<ChoiceList> arrayFromPPDOption(ppd_option_t *option);

    /// The first choice with that keyword; for nothing the first that is the option's default.
    /// Null when there is none.
    static std::shared_ptr<PDEChoice> findChoiceForString(const std::optional<QString> &string,
                                                          const ChoiceList *choices);

    /// The translation text, in UTF-8; nothing when it is not valid.
    static std::optional<QString> newOptionTitle(const ppd_option_t *option);
    static std::optional<QString> newChoiceTitle(const ppd_choice_t *choice);

    /// Gives the text of a label or a text field the colour of enabled text when `enabled` is
    /// exactly 1, else that of disabled text. Other controls, and whether the control takes input,
    /// stay as they are.
    static void setEnabledForText(int enabled, QWidget *item);
};
