// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLatin1String>
#include <QtGlobal>

// What the Graphics panel, the PPDs and the strings tables agree on.

namespace graphics {

/// Keywords of the six options that the panel binds, and of two choices, as a PPD spells them.
inline constexpr char kHalftoneOption[] = "CvHalftonePattern";
inline constexpr char kBrightnessOption[] = "CvBrightness";
inline constexpr char kContrastOption[] = "CvContrast";
inline constexpr char kBiDiPrintOption[] = "CvBiDiPrint";
inline constexpr char kColorOption[] = "CvMultiColor";
inline constexpr char kRedLevelOption[] = "CvRedLevel";
inline constexpr QLatin1String kMonochromeChoice("CvMultiColorMonochrome");
inline constexpr QLatin1String kBlackRedChoice("CvMultiColorBlackRed");
inline constexpr char kBiDiPrintOnChoice[] = "ON";

/// Item-type bits. A setting is named when any bit of its mask is set.
inline constexpr qint32 kHalftoneItem = 0x20;
inline constexpr qint32 kBrightnessItem = 0x40;
inline constexpr qint32 kContrastItem = 0x80;
inline constexpr qint32 kBiDiPrintItem = 0x8000;
inline constexpr qint32 kColorItem = 0x50000;
inline constexpr qint32 kRedLevelItem = 0x600000;

/// Bit 0 of the image mode word: black and red is chosen.
inline constexpr qint16 kBlackRedMode = 1;

/// The colour modes of a print ticket.
inline constexpr qint32 kTicketSaysBlackRed = 1;
inline constexpr qint32 kTicketSaysNothing = 2;

/// Posted by the panel with its host's address as object and { kColorOption: whether black and red
/// is chosen }. One pick of the user posts it twice.
inline constexpr QLatin1String kColorNotification("CVAdvancedColorSettingNotification");

/// Keys of the strings table. A title that the PPD gives is a key itself and comes before these.
inline constexpr QLatin1String kHalftoneKey("HC_Halftone");
inline constexpr QLatin1String kBinaryKey("HC_Binary");
inline constexpr QLatin1String kDitherKey("HC_Dither");
inline constexpr QLatin1String kErrorDiffusionKey("HC_ErrorDiffusion");
inline constexpr QLatin1String kMinValueKey("HC_MinValue");
inline constexpr QLatin1String kMidValueKey("HC_MidValue");
inline constexpr QLatin1String kMaxValueKey("HC_MaxValue");
inline constexpr QLatin1String kBrightnessKey("HC_Brightness");
inline constexpr QLatin1String kContrastKey("HC_Contrast");
inline constexpr QLatin1String kBiDiPrintKey("RS_BiDiPrint");
inline constexpr QLatin1String kColorKey("HC_Color");
inline constexpr QLatin1String kMonochromeKey("HC_Monochrome");
inline constexpr QLatin1String kBlackRedKey("HC_BlackRed");
inline constexpr QLatin1String kRedLevelKey("HC_RedLevel");
inline constexpr QLatin1String kHalftoneSummaryKey("HC_STitle_Halftone");
inline constexpr QLatin1String kBrightnessSummaryKey("HC_STitle_Brightness");
inline constexpr QLatin1String kContrastSummaryKey("HC_STitle_Contrast");
inline constexpr QLatin1String kBiDiPrintSummaryKey("RS_STitle_BiDiPrint");
inline constexpr QLatin1String kColorSummaryKey("HC_STitle_Color");
inline constexpr QLatin1String kRedLevelSummaryKey("HC_STitle_RedLevel");
inline constexpr QLatin1String kYesSummaryKey("RS_STitle_Yes");
inline constexpr QLatin1String kNoSummaryKey("RS_STitle_No");

/// What a number field says when it does not take a level as it was typed.
inline constexpr QLatin1String kLevelRangeKey("HC_LevelRange");
inline constexpr QLatin1String kLevelMissingKey("HC_LevelMissing");

/// What a label puts behind the title of the PPD.
inline constexpr QLatin1String kLabelSuffix(" : ");

/// The levels that a person can choose.
inline constexpr qint32 kLowestLevel = -20;
inline constexpr qint32 kHighestLevel = 20;

/// 32-bit, wrapping at the ends: only the smallest number stays negative.
constexpr qint32 absoluteValue(qint32 value)
{
    return value < 0 ? qint32(0U - quint32(value)) : value;
}

/// A level less 20, wrapping at the ends.
constexpr qint32 rawIndexOfLevel(qint32 level)
{
    return qint32(quint32(level) - 20U);
}

/// The place in the choice list that level `level` stands for: +20 is 0, -20 is 40.
/// Meant: levels above +20 fold back onto the first places.
constexpr qint32 indexOfLevel(qint32 level)
{
    return absoluteValue(rawIndexOfLevel(level));
}

/// The level that shows the choice at `index`, cut to 32 bits.
constexpr qint32 levelOfIndex(qint64 index)
{
    return qint32(20U - quint32(index));
}

} // namespace graphics
