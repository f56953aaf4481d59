// SPDX-License-Identifier: Apache-2.0
#include "dialog/JobPageFormat.h"

namespace dialog {

PMResult<std::optional<QString>> JobPaper::ppdPaperName() const
{
    return {0, mSize.name.isEmpty() ? std::nullopt : std::optional(mSize.name)};
}

void JobPageFormat::setSize(const std::optional<LabelSize> &size)
{
    mPaper.reset();
    if (size) {
        mPaper.emplace(*size);
    }
}

PMResult<const PMPaper *> JobPageFormat::paper() const
{
    return {0, mPaper ? &*mPaper : nullptr};
}

} // namespace dialog
