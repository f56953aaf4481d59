// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DocumentPages.h"
#include "dialog/DotMaker.h"
#include "dialog/JobSettings.h"
#include "dialog/SheetLayout.h"

#include <QWidget>

#include <memory>
#include <optional>

class QHBoxLayout;
class QLabel;
class QStackedLayout;
class QToolButton;

namespace dialog {

class DotBar;
class DotCanvas;
class DotRenderer;
class PageCanvas;

/// Shows the pages of a document on the label that they will be printed on, and turns them: by two
/// buttons, by Page Up and Page Down, the arrow keys, Home and End, and by the wheel.
///
/// For a printer whose dots are known the page is shown as its dots: the whole label, or larger,
/// each dot as whole pixels of the screen. Then arrow keys and wheel scroll.
class PagePreview : public QWidget
{
    Q_OBJECT

public:
    explicit PagePreview(QWidget *parent = nullptr);

    /// Shows the first page of `document`; null for none.
    void setDocument(std::shared_ptr<const DocumentPages> document);

    /// The label; one without a size is as large as the page. With `form` its dots are shown.
    void setSheet(const Sheet &sheet, const std::optional<DotForm> &form = {});
    void setScaling(Scaling scaling);

    /// Puts `widget` beside the page number and owns it.
    void addToFoot(QWidget *widget);

    /// Counted from 0; a page that does not exist becomes the nearest one.
    void setCurrentPage(int page);
    int currentPage() const { return mPage; }
    /// 0 without a document.
    int pageCount() const;

    /// kFitted or one of kDotZooms. Without dots there is no other zoom than kFitted.
    void setZoom(int zoom);
    int zoom() const { return mZoom; }

    void setPlates(Plates plates);

    /// Stops the dots that are being made; false when none are, or so soon that no progress is
    /// shown yet.
    bool stopDots();

    /// Whether the current page is on screen; pages are rendered in the background.
    bool isUpToDate() const;

Q_SIGNALS:
    void currentPageChanged(int page);
    /// The current page has come on screen.
    void pageShown();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildRow();
    void refresh();
    void setTexts();
    bool turnByKey(int key);

    // The dots; in PagePreview_Dots.cpp.
    void buildDots();
    bool showsDots() const;
    bool lacksDots() const;
    bool isLarge() const;
    DotRequest wantedDots() const;
    void refreshDots();
    void askForDots();
    void dotsRendered(const DotPicture &picture);
    void dotsProgressed(int percent);
    void setDotsOn(bool on);
    void showCanvas();
    void setZoomAt(int zoom, const QPointF &global);
    void stepZoom(int steps, const QPointF &global);
    QPointF middle() const;
    QString withZoom(const QString &description) const;

    QStackedLayout *mStack;
    PageCanvas *mCanvas;
    DotCanvas *mLarge;
    DotBar *mBar;
    DotRenderer *mDots;
    QHBoxLayout *mFoot;
    QToolButton *mPrevious;
    QLabel *mNumber;
    QToolButton *mNext;
    std::shared_ptr<const DocumentPages> mDocument;
    Sheet mSheet;
    Scaling mScaling = Scaling::Fit;
    std::optional<DotForm> mForm;
    int mZoom = kFitted;
    Plates mPlates = Plates::Both;
    /// Not while the user has stopped them.
    bool mDotsOn = true;
    /// The page itself is shown in place of dots: they take long, or there cannot be any.
    bool mStandIn = false;
    /// The request that was passed on last, and the dots that are shown.
    DotRequest mAskedDots;
    DotPicture mShownDots;
    int mPage = 0;
    int mWheelSteps = 0;
};

} // namespace dialog
