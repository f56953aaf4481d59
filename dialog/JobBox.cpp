// SPDX-License-Identifier: Apache-2.0
#include "dialog/JobBox.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>

namespace dialog {
namespace {

void addField(QHBoxLayout *row, const QString &title, QWidget *field, int stretch)
{
    auto *label = new QLabel(title, field->parentWidget());
    label->setBuddy(field);
    row->addWidget(label);
    row->addWidget(field, stretch);
}

} // namespace

JobBox::JobBox(QWidget *parent)
    : QWidget(parent)
    , mCopies(new QSpinBox(this))
    , mPages(new QLineEdit(this))
    , mScaling(new QComboBox(this))
{
    mCopies->setObjectName(QStringLiteral("copies"));
    mCopies->setRange(1, JobSettings::kMaxCopies);
    mPages->setObjectName(QStringLiteral("pages"));
    mPages->setPlaceholderText(tr("All, or 1-3,5"));
    mPages->setClearButtonEnabled(true);
    mScaling->setObjectName(QStringLiteral("scaling"));
    // In the order of Scaling.
    mScaling->addItems({tr("Fit to label"), tr("Actual size")});

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    addField(row, tr("&Copies:"), mCopies, 0);
    addField(row, tr("Pa&ges:"), mPages, 1);
    addField(row, tr("&Scale:"), mScaling, 0);
    setFocusProxy(mCopies);

    connect(mCopies, &QSpinBox::valueChanged, this, &JobBox::edited);
    connect(mPages, &QLineEdit::textChanged, this, &JobBox::edited);
    connect(mScaling, &QComboBox::currentIndexChanged, this, [this](int index) {
        mWishesWholeDots = index == int(Scaling::WholeDots);
        Q_EMIT edited();
    });
}

void JobBox::showSettings(const JobSettings &settings)
{
    const QSignalBlocker silentCopies(mCopies);
    const QSignalBlocker silentPages(mPages);
    const QSignalBlocker silentScaling(mScaling);
    mCopies->setValue(settings.copies());
    mPages->setText(settings.pages().text());
    mWishesWholeDots = settings.scaling() == Scaling::WholeDots;
    mScaling->setCurrentIndex(shownIndex(settings.scaling()));
}

int JobBox::shownIndex(Scaling scaling) const
{
    return int(scaling) < mScaling->count() ? int(scaling) : int(Scaling::Fit);
}

bool JobBox::offerWholeDots(bool offered)
{
    const int index = int(Scaling::WholeDots);
    if (offered == (mScaling->count() > index)) {
        return false;
    }
    // The wish stays, whatever is shown.
    const QSignalBlocker silent(mScaling);
    if (offered) {
        mScaling->addItem(tr("Whole dots"));
    } else {
        mScaling->removeItem(index);
    }
    if (!mWishesWholeDots) {
        return false;
    }
    mScaling->setCurrentIndex(shownIndex(Scaling::WholeDots));
    Q_EMIT edited();
    return true;
}

void JobBox::pickScaling(Scaling scaling)
{
    mScaling->setCurrentIndex(shownIndex(scaling));
}

std::optional<Failure> JobBox::takeOver(JobSettings &settings, int pageCount) const
{
    settings.setScaling(Scaling(mScaling->currentIndex()));
    if (auto failure = settings.setCopies(mCopies->value())) {
        return failure;
    }
    const Result<PageRanges> pages = PageRanges::parse(mPages->text());
    if (!pages) {
        return pages.failure();
    }
    if (pageCount > 0) {
        if (auto failure = pages.value().check(quint32(pageCount))) {
            return failure;
        }
    }
    settings.setPages(pages.value());
    return {};
}

} // namespace dialog
