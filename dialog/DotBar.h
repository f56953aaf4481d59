// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DotImages.h"

#include <QWidget>

#include <optional>

class QButtonGroup;
class QComboBox;
class QHBoxLayout;
class QProgressBar;
class QToolButton;

namespace dialog {

/// The controls of the dots in the preview: zoom, plates, and while dots are being made their
/// progress and a way to stop. When dots are switched off, a way back. They show what is set and
/// say what is wished; nothing is changed here.
class DotBar : public QWidget
{
    Q_OBJECT

public:
    explicit DotBar(QWidget *parent = nullptr);

    /// kFitted or one of kDotZooms.
    void setZoom(int zoom);
    void setPlates(Plates plates);

    /// Plates are only offered for two colours.
    void setTwoColours(bool two);

    /// Whether dots are shown; if not, there is nothing but the way back.
    void setDotsOn(bool on);

    /// Percent; nothing for dots that are there.
    void setProgress(std::optional<int> percent);
    bool showsProgress() const;

Q_SIGNALS:
    void zoomPicked(int zoom);
    /// One step larger or smaller.
    void zoomStepped(int steps);
    void platesPicked(dialog::Plates plates);
    void stopped();
    void dotsWished();

protected:
    void changeEvent(QEvent *event) override;

private:
    QToolButton *addButton(const char *name, const QString &text = {});
    void buildZoom();
    void buildPlates();
    void buildProgress();
    void setTexts();
    void keepHeight();
    void showStates();

    QHBoxLayout *mRow;
    QComboBox *mZoomBox;
    QToolButton *mSmaller = nullptr;
    QToolButton *mLarger = nullptr;
    QButtonGroup *mPlates;
    QProgressBar *mProgress;
    QToolButton *mStop = nullptr;
    QToolButton *mShowDots = nullptr;
    bool mTwoColours = false;
    bool mDotsOn = true;
};

} // namespace dialog
