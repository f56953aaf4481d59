// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/LevelFormatter.h"

#include <algorithm>

namespace graphics {
namespace {

constexpr qint32 kAnyAscii = 1;
constexpr qint32 kLongestLevel = 3;
constexpr QLatin1Char kMinus('-');

bool isDigit(QChar unit)
{
    return unit >= QLatin1Char('0') && unit <= QLatin1Char('9');
}

bool beginsNumber(const QString &text)
{
    const auto digits = text.begin() + (text.startsWith(kMinus) ? 1 : 0);
    return std::all_of(digits, text.end(), isDigit);
}

/// A digit in front of a minus sign is to blame where nothing else is.
QChar offendingCharacter(const QString &inserted, bool inFront)
{
    for (qsizetype i = 0; i < inserted.size(); ++i) {
        const bool mayBeMinus = inFront && i == 0;
        if (!isDigit(inserted.at(i)) && !(mayBeMinus && inserted.at(i) == kMinus)) {
            return inserted.at(i);
        }
    }
    return inserted.front();
}

} // namespace

LevelFormatter::LevelFormatter()
    : PDEFormatter(kAnyAscii)
{
    setMaxLength(kLongestLevel);
}

LevelFormatter::~LevelFormatter() = default;

bool LevelFormatter::isPartialStringValid(std::optional<QString> *partialString,
                                          TextRange *proposedSelectedRange,
                                          const std::optional<QString> &originalString,
                                          const TextRange &originalSelectedRange,
                                          std::optional<QString> *errorDescription)
{
    if (!PDEFormatter::isPartialStringValid(partialString, proposedSelectedRange, originalString,
                                            originalSelectedRange, errorDescription)) {
        return false;
    }
    if (!partialString || !*partialString || !proposedSelectedRange) {
        return true;
    }
    const QString inserted =
        insertedText(**partialString, *proposedSelectedRange, originalSelectedRange);
    if (inserted.isEmpty() || beginsNumber(**partialString)) {
        return true;
    }
    return refuse(kInvalidCharacterNotification,
                  offendingCharacter(inserted, originalSelectedRange.location == 0));
}

} // namespace graphics
