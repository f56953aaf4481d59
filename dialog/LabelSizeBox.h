// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/LabelSize.h"
#include "dialog/PpdFile.h"

#include <QWidget>

#include <optional>
#include <vector>

class QComboBox;
class QDoubleSpinBox;

namespace dialog {

/// Chooses the size of the label: one of the PPD's, or one of the user's own in millimetres.
class LabelSizeBox : public QWidget
{
    Q_OBJECT
public:
    explicit LabelSizeBox(QWidget *parent = nullptr);

    /// Offers `sizes`, and sizes of the user's own within `custom` where the printer takes them.
    /// Nothing is chosen and nothing is signalled.
    void setSizes(const std::vector<LabelSize> &sizes,
                  const std::optional<CustomSizeRange> &custom);

    /// Shows `size` without a signal. An own size goes into the two fields; a size that is not
    /// offered selects nothing.
    void setSize(const LabelSize &size);

    /// The chosen size, or nothing.
    std::optional<LabelSize> size() const;

Q_SIGNALS:
    /// The user chose another size.
    void sizePicked();

private:
    bool isCustomChosen() const;
    void showCustomFields();

    QComboBox *mSizes;
    QDoubleSpinBox *mWidth;
    QDoubleSpinBox *mHeight;
    std::vector<LabelSize> mOffered;
    bool mHasCustom = false;
};

} // namespace dialog
