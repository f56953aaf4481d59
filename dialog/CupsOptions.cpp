// SPDX-License-Identifier: Apache-2.0
#include "dialog/CupsOptions.h"

#include <algorithm>
#include <iterator>

namespace dialog {

CupsOptions::CupsOptions(const OptionChoices &choices)
{
    for (const OptionChoice &pair : choices) {
        const QByteArray option = pair.option.toUtf8();
        const QByteArray choice = pair.choice.toUtf8();
        mCount = cupsAddOption(option.constData(), choice.constData(), mCount, &mRecords);
    }
}

CupsOptions::~CupsOptions()
{
    cupsFreeOptions(mCount, mRecords);
}

OptionChoices CupsOptions::choices() const
{
    return choicesOf(mCount, mRecords);
}

OptionChoices choicesOf(int count, const cups_option_t *records)
{
    OptionChoices choices;
    std::transform(
        records, records + count, std::back_inserter(choices), [](const cups_option_t &record) {
            return OptionChoice{QString::fromUtf8(record.name), QString::fromUtf8(record.value)};
        });
    return choices;
}

} // namespace dialog
