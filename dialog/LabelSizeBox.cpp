// SPDX-License-Identifier: Apache-2.0
#include "dialog/LabelSizeBox.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

#include <algorithm>

namespace dialog {
namespace {

QDoubleSpinBox *makeMillimetres(QWidget *parent, const QString &objectName, const QString &name)
{
    auto *box = new QDoubleSpinBox(parent);
    box->setObjectName(objectName);
    box->setAccessibleName(name);
    box->setToolTip(name);
    box->setSuffix(QStringLiteral(" mm"));
    box->setDecimals(1);
    // A size on the way to the wished one ("6" of "62") is not a choice yet.
    box->setKeyboardTracking(false);
    return box;
}

QString itemText(const LabelSize &size)
{
    const QString millimetres = size.millimetres();
    return millimetres.isEmpty() || size.title.contains(millimetres)
        ? size.title
        : size.title + QStringLiteral(" — ") + millimetres;
}

} // namespace

LabelSizeBox::LabelSizeBox(QWidget *parent)
    : QWidget(parent)
    , mSizes(new QComboBox(this))
    , mWidth(makeMillimetres(this, QStringLiteral("customWidth"), tr("Width of the label")))
    , mHeight(makeMillimetres(this, QStringLiteral("customHeight"), tr("Height of the label")))
{
    mSizes->setObjectName(QStringLiteral("labelSize"));
    mSizes->setAccessibleName(tr("Label size"));
    mSizes->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    mSizes->setMinimumContentsLength(24);
    setFocusProxy(mSizes);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(mSizes, 1);
    row->addWidget(mWidth);
    row->addWidget(mHeight);
    showCustomFields();

    connect(mSizes, &QComboBox::currentIndexChanged, this, [this] {
        showCustomFields();
        Q_EMIT sizePicked();
    });
    connect(mWidth, &QDoubleSpinBox::valueChanged, this, &LabelSizeBox::sizePicked);
    connect(mHeight, &QDoubleSpinBox::valueChanged, this, &LabelSizeBox::sizePicked);
}

void LabelSizeBox::setSizes(const std::vector<LabelSize> &sizes,
                            const std::optional<CustomSizeRange> &custom)
{
    const QSignalBlocker silent(mSizes);
    mOffered = sizes;
    mHasCustom = custom.has_value();
    mSizes->clear();
    for (const LabelSize &size : sizes) {
        mSizes->addItem(itemText(size));
    }
    if (custom) {
        const QSignalBlocker silentWidth(mWidth);
        const QSignalBlocker silentHeight(mHeight);
        mSizes->addItem(tr("Own size"));
        mWidth->setRange(custom->minWidth, custom->maxWidth);
        mHeight->setRange(custom->minHeight, custom->maxHeight);
    }
    mSizes->setCurrentIndex(-1);
    setEnabled(mSizes->count() > 0);
    showCustomFields();
}

void LabelSizeBox::setSize(const LabelSize &size)
{
    const QSignalBlocker silent(mSizes);
    const QSignalBlocker silentWidth(mWidth);
    const QSignalBlocker silentHeight(mHeight);
    if (size.isKnown()) {
        mWidth->setValue(size.widthMillimetres());
        mHeight->setValue(size.heightMillimetres());
    }
    if (size.isCustom()) {
        mSizes->setCurrentIndex(mHasCustom ? int(mOffered.size()) : -1);
    } else {
        const auto place =
            std::find_if(mOffered.begin(), mOffered.end(),
                         [&size](const LabelSize &offered) { return offered.name == size.name; });
        mSizes->setCurrentIndex(place == mOffered.end() ? -1 : int(place - mOffered.begin()));
    }
    showCustomFields();
}

std::optional<LabelSize> LabelSizeBox::size() const
{
    if (isCustomChosen()) {
        return LabelSize::custom(mWidth->value(), mHeight->value());
    }
    const int index = mSizes->currentIndex();
    return index < 0 ? std::nullopt : std::optional(mOffered[size_t(index)]);
}

bool LabelSizeBox::isCustomChosen() const
{
    return mHasCustom && mSizes->currentIndex() == int(mOffered.size());
}

void LabelSizeBox::showCustomFields()
{
    mWidth->setVisible(isCustomChosen());
    mHeight->setVisible(isCustomChosen());
}

} // namespace dialog
