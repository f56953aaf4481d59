// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/PageSource.h"

namespace sample {

/// The sample document: a label for a box of fruit and one for the pallet, 62 x 100 mm each.
class SampleLabel : public dialog::PageSource
{
public:
    int pageCount() const override { return 2; }
    QSizeF pageSize(int page) const override;
    bool paint(int page, QPainter &painter, const QRectF &target) const override;
};

} // namespace sample
