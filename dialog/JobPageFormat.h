// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/LabelSize.h"
#include "platform/PrintCore.h"

#include <optional>

namespace dialog {

/// The chosen label as a panel sees it.
///
/// A size of the user's own is called "Custom": that is how the PPD's list of sizes spells it,
/// whatever its numbers are.
class JobPaper : public PMPaper
{
public:
    explicit JobPaper(const LabelSize &size)
        : mSize(size)
    { }

    PMResult<std::optional<QString>> ppdPaperName() const override;
    PMResult<double> height() const override { return {0, mSize.height}; }

private:
    LabelSize mSize;
};

/// The page format of the job: the chosen label.
class JobPageFormat : public PMPageFormat
{
public:
    /// The paper before it is gone then.
    void setSize(const std::optional<LabelSize> &size);

    PMResult<const PMPaper *> paper() const override;

private:
    std::optional<JobPaper> mPaper;
};

} // namespace dialog
