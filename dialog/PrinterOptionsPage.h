// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/PpdFile.h"

#include <QStringList>
#include <QWidget>

#include <map>

class QComboBox;
class QFormLayout;

namespace dialog {

/// The options of the printer that no panel claims, each as a pop-up of its choices.
class PrinterOptionsPage : public QWidget
{
    Q_OBJECT
public:
    explicit PrinterOptionsPage(QWidget *parent = nullptr);

    /// Shows the options of `ppd` except `claimed`, the label size and those without a choice to
    /// make. `ppd` is borrowed until the next call; null shows none.
    void setPpd(const PpdFile *ppd, const QStringList &claimed);

    /// Whether there is any option to show.
    bool isEmpty() const { return mPopUps.empty(); }

    /// The options shown here, by keyword.
    QStringList options() const;

    /// Shows what is marked now, without a signal.
    void showMarks();

Q_SIGNALS:
    /// The user picked a choice.
    void choicePicked(const QString &option, const QString &choice);

private:
    void addOption(const QString &option);

    QFormLayout *mForm;
    const PpdFile *mPpd = nullptr;
    std::map<QString, QComboBox *> mPopUps;
};

} // namespace dialog
