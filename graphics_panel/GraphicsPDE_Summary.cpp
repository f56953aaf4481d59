// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/GraphicsPDE.h"

#include "graphics_panel/GraphicsKeys.h"

#include <stdexcept>

using namespace graphics;

namespace {

/// The texts of a setting in the summary: its title without a title in the PPD, and the values of
/// its first choices.
struct SummaryTexts
{
    QLatin1String titleKey;
    std::vector<QLatin1String> valueKeys;
};

/// In the order of the bound options.
const std::array<SummaryTexts, 6> &summaryTexts()
{
    static const std::array<SummaryTexts, 6> texts = {{
        {kHalftoneSummaryKey, {kBinaryKey, kDitherKey, kErrorDiffusionKey}},
        {kBrightnessSummaryKey, {}},
        {kContrastSummaryKey, {}},
        {kBiDiPrintSummaryKey, {kNoSummaryKey, kYesSummaryKey}},
        {kColorSummaryKey, {kMonochromeKey, kBlackRedKey}},
        {kRedLevelSummaryKey, {}},
    }};
    return texts;
}

} // namespace

std::optional<QVariantMap> GraphicsPDE13_v300_::summaryInfo()
{
    QStringList cleaned;
    QStringList titles;
    QVariantMap summary;
    for (size_t i = 0; i < kBoundOptions.size(); ++i) {
        const BoundOption &bound = kBoundOptions[i];
        if (this->*bound.selection) {
            const QString title =
                localized(titleInPPD(bound.keyword).value_or(summaryTexts()[i].titleKey));
            cleaned.append(title);
            titles.append(title);
            summary.insert(title, summaryValue(i));
        }
    }
    cleaned.removeAll(QString());
    if (!cleaned.isEmpty()) {
        summary.insert(kSummaryDisplayOrder, cleaned);
    }
    // Meant: the full list replaces the cleaned one, empty titles included.
    summary.insert(kSummaryDisplayOrder, titles);
    return summary;
}

QString GraphicsPDE13_v300_::summaryValue(size_t setting)
{
    const BoundOption &bound = kBoundOptions[setting];
    const std::vector<QLatin1String> &keys = summaryTexts()[setting].valueKeys;
    // Meant: the place of the mark decides, not its keyword.
    const qint64 marked =
        indexOfMarkedOption((this->*bound.choices).get(), QLatin1String(bound.keyword));
    if (marked >= 0 && marked < qint64(keys.size())) {
        return localized(keys[size_t(marked)]);
    }
    const std::optional<QString> value = (this->*bound.selection)->userTitle();
    if (!value) {
        throw std::invalid_argument(std::string("The selected choice of ") + bound.keyword
                                    + " has no readable text in the PPD; give it one in UTF-8.");
    }
    return *value;
}
