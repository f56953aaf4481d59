// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/ColourMode.h"

#include <QLabel>
#include <QPointer>

namespace platform {
struct Notification;
} // namespace platform

namespace dialog {

class PrinterSetup;

/// Says with which colours the label is printed, in words and with a dot for each colour. Hidden
/// where that is not known, and for printers of one colour.
///
/// Shows what is marked, and what a panel of the dialog announces: the later of the two.
class ColourBadge : public QLabel
{
    Q_OBJECT
public:
    /// What a panel posts on the default notification centre when its colour mode changes: from
    /// its panel host, with a truth value under kColourOption in the user information.
    static constexpr QLatin1String kNotification{"CVAdvancedColorSettingNotification"};

    explicit ColourBadge(QWidget *parent = nullptr);
    ~ColourBadge() override;

    /// Follows `setup`, which is borrowed until the next call; null shows nothing. Call it with
    /// null before the setup goes.
    void setSetup(PrinterSetup *setup);

    /// Shows what is marked, if that is another choice than the last time.
    void showMark();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void announced(const platform::Notification &notification);
    void show(std::optional<ColourMode> mode);

    QPointer<PrinterSetup> mSetup;
    std::optional<QString> mChoice;
    std::optional<ColourMode> mMode;
};

} // namespace dialog
