// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/PageRenderer.h"

#include <QString>
#include <QWidget>

namespace dialog {

/// The picture of a page on its label, with a soft shadow around the label. Asks for the page anew
/// whenever its size or the screen's pixels change; until that is there, the last picture of the
/// page is stretched.
class PageCanvas : public QWidget
{
    Q_OBJECT

public:
    explicit PageCanvas(QWidget *parent = nullptr);

    /// What is to be seen; its `pixels` are set here. Without a document an empty label.
    void setRequest(const PageRequest &request);

    /// Whether what is to be seen is there, be it a picture or the sentence about a damaged page.
    bool isUpToDate() const;

    /// The label's place in the widget; empty while its size is not known.
    QRectF sheetRectangle() const;

    /// The page's place in the widget; parts of it may be outside of the label.
    QRectF pageRectangle() const;

    /// The sentence that stands in place of the page; empty when the page is shown.
    QString message() const;

    QSize sizeHint() const override;

Q_SIGNALS:
    /// `isUpToDate` has become true.
    void shown();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    PageRequest wanted() const;
    Sheet sheet() const;
    void ask();
    void beginAsking();
    void show(const PagePicture &picture);
    void paintSheet(QPainter &painter) const;
    void paintPage(QPainter &painter) const;
    void paintReach(QPainter &painter) const;
    void paintMessage(QPainter &painter) const;

    PageRenderer mRenderer;
    PageRequest mRequest;
    /// The request that was passed on last.
    PageRequest mAsked;
    /// The whole window is on screen before the rendering of its first page takes processor time.
    bool mMayAsk = false;
    /// The picture that is shown; of no document when there is none yet.
    PagePicture mPicture;
};

} // namespace dialog
