// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/JobSettings.h"

#include <QWidget>

#include <optional>

class QComboBox;
class QLineEdit;
class QSpinBox;

namespace dialog {

/// The settings that every job has: copies, pages and how a page gets onto the label.
class JobBox : public QWidget
{
    Q_OBJECT
public:
    explicit JobBox(QWidget *parent = nullptr);

    /// Shows `settings` without a signal.
    void showSettings(const JobSettings &settings);

    /// Whether whole dots are to be had. Where they are not, Fit is shown in their place until they
    /// are again. True when that changed the scale, and edited() has told of it.
    bool offerWholeDots(bool offered);

    /// As if the user picked it.
    void pickScaling(Scaling scaling);

    /// Takes what is shown over into `settings`. The failure names a page range that cannot be read
    /// or that has none of the document's `pageCount` pages; `settings` keeps its pages then.
    std::optional<Failure> takeOver(JobSettings &settings, int pageCount) const;

Q_SIGNALS:
    /// The user changed something; also while a page range is being typed.
    void edited();

private:
    int shownIndex(Scaling scaling) const;

    QSpinBox *mCopies;
    QLineEdit *mPages;
    QComboBox *mScaling;
    /// They are wished for, and shown as soon as they are to be had.
    bool mWishesWholeDots = false;
};

} // namespace dialog
