// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/OptionChoice.h"

#include <cups/cups.h>

namespace dialog {

/// Owner of an option array of libcups.
class CupsOptions
{
public:
    CupsOptions() = default;

    /// When an option comes twice, the last one counts.
    explicit CupsOptions(const OptionChoices &choices);
    ~CupsOptions();
    CupsOptions(const CupsOptions &) = delete;
    CupsOptions &operator=(const CupsOptions &) = delete;

    int count() const { return mCount; }
    cups_option_t *data() const { return mRecords; }
    OptionChoices choices() const;

    /// Lets `call(count, &records)` change the array; it answers the new count.
    template <class Call> void fill(Call call) { mCount = call(mCount, &mRecords); }

private:
    int mCount = 0;
    cups_option_t *mRecords = nullptr;
};

/// The same as a value, of an array that libcups owns.
OptionChoices choicesOf(int count, const cups_option_t *records);

} // namespace dialog
