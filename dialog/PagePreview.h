// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DocumentPages.h"
#include "dialog/JobSettings.h"
#include "dialog/SheetLayout.h"

#include <QWidget>

#include <memory>

class QHBoxLayout;
class QLabel;
class QToolButton;

namespace dialog {

class PageCanvas;

/// Shows the pages of a document on the label that they will be printed on, and turns them: by two
/// buttons, by Page Up and Page Down, the arrow keys, Home and End, and by the wheel.
class PagePreview : public QWidget
{
    Q_OBJECT

public:
    explicit PagePreview(QWidget *parent = nullptr);

    /// Shows the first page of `document`; null for none.
    void setDocument(std::shared_ptr<const DocumentPages> document);

    /// The label; one without a size is as large as the page.
    void setSheet(const Sheet &sheet);
    void setScaling(Scaling scaling);

    /// Puts `widget` beside the page number and owns it.
    void addToFoot(QWidget *widget);

    /// Counted from 0; a page that does not exist becomes the nearest one.
    void setCurrentPage(int page);
    int currentPage() const { return mPage; }
    /// 0 without a document.
    int pageCount() const;

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

    PageCanvas *mCanvas;
    QHBoxLayout *mFoot;
    QToolButton *mPrevious;
    QLabel *mNumber;
    QToolButton *mNext;
    std::shared_ptr<const DocumentPages> mDocument;
    Sheet mSheet;
    Scaling mScaling = Scaling::Fit;
    int mPage = 0;
    int mWheelSteps = 0;
};

} // namespace dialog
