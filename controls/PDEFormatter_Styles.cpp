// SPDX-License-Identifier: Apache-2.0
#include "controls/PDEFormatter_Styles.h"

#include <string_view>

namespace controls {
namespace {

bool isDigit(char16_t unit)
{
    return unit >= u'0' && unit <= u'9';
}

bool isLetter(char16_t unit)
{
    const int upper = unit & 0xFFDF;
    return upper >= 'A' && upper <= 'Z';
}

bool isOneOf(std::u16string_view set, char16_t unit)
{
    return set.find(unit) != std::u16string_view::npos;
}

} // namespace

bool styleAccepts(qint32 style, char16_t unit)
{
    switch (style) {
    case kFreeText:
        return true;
    case kInteger:
        return isDigit(unit);
    case kDecimal:
        return isDigit(unit) || unit == u'.';
    case 6:
        return isDigit(unit) || isLetter(unit) || unit == u' ';
    case 7:
        return isDigit(unit) || isLetter(unit) || isOneOf(u" $%+-./", unit);
    case 8:
        return isDigit(unit) || isOneOf(u"$+-./:", unit);
    case 9:
        return isDigit(unit) || isOneOf(u"$+-./:ABCDabcd", unit);
    case 10:
        return unit >= 0x20 && unit <= 0x7E;
    case 11:
        // Meant: without the number sign, the dollar sign and the ampersand.
        return isDigit(unit) || isLetter(unit) || isOneOf(u" !\"%'()*+,-./:;<=>?_", unit);
    default:
        return unit <= 0x7F;
    }
}

} // namespace controls
