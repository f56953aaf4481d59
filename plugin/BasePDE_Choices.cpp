// SPDX-License-Identifier: Apache-2.0
#include "plugin/BasePDE.h"

#include "platform/TextEncodings.h"
#include "ppd/PDEUtilsMethod.h"

#include <algorithm>

namespace {

/// The number of choices, 0 without a list.
qint64 countOf(const ChoiceList *choices)
{
    return choices ? qint64(choices->size()) : 0;
}

} // namespace

void BasePDE13_v300_::updateMarkedSelections(qint32)
{ }

PDEChoice *BasePDE13_v300_::selectionForItem(qint64 index, const QString &key,
                                             const ChoiceList *choices, qint32 itemType)
{
    if (index < 0 || index >= countOf(choices)) {
        return nullptr;
    }
    PDEChoice *choice = choices->at(size_t(index)).get();
    if (pdePluginCallbackObject) {
        pdePluginCallbackObject->willChangePPDOptionKeyValue(key, choice->ppdTitle());
    }
    updateMarkedSelections(itemType);
    return choice;
}

qint64 BasePDE13_v300_::indexOfMarkedOption(const ChoiceList *choices, const QString &forKey)
{
    const QByteArray key = forKey.toUtf8();
    const ppd_choice_t *marked = ppdFindMarkedChoice(ppd, key.constData());
    return marked ? indexOfChoices(choices, platform::decodeAscii(marked->choice)) : -1;
}

qint64 BasePDE13_v300_::indexOfChoices(const ChoiceList *choices,
                                       const std::optional<QString> &forValue)
{
    for (qint64 i = 0; forValue && i < countOf(choices); ++i) {
        if (choices->at(size_t(i))->ppdTitle() == forValue) {
            return i;
        }
    }
    return -1;
}

qint64 BasePDE13_v300_::indexOfDefaultOption(const ChoiceList *choices)
{
    for (qint64 i = 0; i < countOf(choices); ++i) {
        if (choices->at(size_t(i))->isDefaultChoice()) {
            return i;
        }
    }
    return countOf(choices) == 0 ? 0 : -1;
}

void BasePDE13_v300_::setDefaultChoices(ppd_option_t *option, const ChoiceList *choices,
                                        const char *cStrKey, const QString &nStrKey)
{
    if (!option || ppdFindMarkedChoice(ppd, cStrKey)) {
        return;
    }
    const qint64 index = indexOfDefaultOption(choices);
    // Meant: the index comes from the list but is used on the option's own choices; both are in the
    // order of the PPD.
    if (index >= 0 && index < std::min(countOf(choices), qint64(option->num_choices))
        && pdePluginCallbackObject) {
        pdePluginCallbackObject->willChangePPDOptionKeyValue(
            nStrKey, platform::decodeUtf8(option->choices[index].choice));
    }
    // Meant: the fresh list is not kept.
    PDEUtilsMethod13::arrayFromPPDOption(option);
}
