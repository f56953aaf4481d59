// SPDX-License-Identifier: Apache-2.0
#include "dialog/PrinterOptionsPage.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>

namespace dialog {
namespace {

/// Set by the dialog itself, or not a choice of the user's.
const QStringList kHidden{QStringLiteral("PageSize"), QStringLiteral("PageRegion")};

} // namespace

PrinterOptionsPage::PrinterOptionsPage(QWidget *parent)
    : QWidget(parent)
    , mForm(new QFormLayout(this))
{ }

void PrinterOptionsPage::setPpd(const PpdFile *ppd, const QStringList &claimed)
{
    while (mForm->rowCount() > 0) {
        mForm->removeRow(0);
    }
    mPopUps.clear();
    mPpd = ppd;
    if (!ppd) {
        return;
    }
    for (const QString &option : ppd->options()) {
        if (!kHidden.contains(option) && !claimed.contains(option)
            && ppd->choices(option).size() > 1) {
            addOption(option);
        }
    }
    showMarks();
}

QStringList PrinterOptionsPage::options() const
{
    QStringList options;
    for (const auto &[option, popUp] : mPopUps) {
        options << option;
    }
    return options;
}

void PrinterOptionsPage::addOption(const QString &option)
{
    auto *popUp = new QComboBox(this);
    popUp->setObjectName(QStringLiteral("option.") + option);
    for (const QString &choice : mPpd->choices(option)) {
        popUp->addItem(mPpd->choiceTitle(option, choice), choice);
    }
    // Assistive tools change the index without activating the item.
    connect(popUp, &QComboBox::currentIndexChanged, this, [this, option, popUp] {
        Q_EMIT choicePicked(option, popUp->currentData().toString());
    });
    auto *title = new QLabel(mPpd->optionTitle(option) + u':', this);
    title->setTextFormat(Qt::PlainText);
    popUp->setAccessibleName(mPpd->optionTitle(option));
    mForm->addRow(title, popUp);
    mPopUps.emplace(option, popUp);
}

void PrinterOptionsPage::showMarks()
{
    for (const auto &[option, popUp] : mPopUps) {
        const QSignalBlocker silent(popUp);
        popUp->setCurrentIndex(popUp->findData(mPpd->markedChoice(option).value_or(QString())));
    }
}

} // namespace dialog
