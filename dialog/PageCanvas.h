// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DotMaker.h"
#include "dialog/PageRenderer.h"

#include <QString>
#include <QWidget>

#include <optional>

namespace dialog {

/// The picture of a page on its label, with a soft shadow around the label: the page itself, or the
/// dots that are printed of it. Asks for the page itself anew whenever its size or the screen's
/// pixels change; until that is there, the last picture of the page is stretched.
class PageCanvas : public QWidget
{
    Q_OBJECT

public:
    explicit PageCanvas(QWidget *parent = nullptr);

    /// What is to be seen; its `pixels` are set here. Without a document an empty label. With
    /// `form`, which needs a label of a known size, there may be dots of it.
    void setRequest(const PageRequest &request, const std::optional<DotForm> &form = {});

    /// Whether the page itself is rendered and shown. If not, the canvas shows what setDots()
    /// gives.
    void setPageWanted(bool wanted);

    /// Shows the dots, or the sentence, of `picture`, until it is asked for another page.
    void setDots(const DotPicture &picture);

    /// Whether what is to be seen of the page itself is there, be it a picture or the sentence
    /// about a damaged page.
    bool isUpToDate() const;

    /// The label's place in the widget; empty while its size is not known.
    QRectF sheetRectangle() const;

    /// The page's place in the widget; parts of it may be outside of the label.
    QRectF pageRectangle() const;

    /// The place of all dots in the widget; empty when there are none on this label.
    QRectF dotRectangle() const;

    /// The pixels of the screen that dotRectangle() has.
    QSize dotPixels() const;

    /// The sentence that stands in place of the page; empty when the page is shown.
    QString message() const;

    QSize sizeHint() const override;

Q_SIGNALS:
    /// `isUpToDate` has become true.
    void shown();

    /// The label may have another place or another number of pixels, and may be seen now.
    void laidOut();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    PageRequest wanted() const;
    Sheet sheet() const;
    double pixelsPerPoint() const;
    bool showsDots() const { return !mPageWanted && mDots.request.document; }
    void ask();
    void beginAsking();
    void show(const PagePicture &picture);
    void paintPage(QPainter &painter) const;
    void paintDots(QPainter &painter) const;

    PageRenderer mRenderer;
    PageRequest mRequest;
    std::optional<DotForm> mForm;
    bool mPageWanted = true;
    /// The request that was passed on last.
    PageRequest mAsked;
    /// The whole window is on screen before the rendering of its first page takes processor time.
    bool mMayAsk = false;
    /// The picture that is shown; of no document when there is none yet.
    PagePicture mPicture;
    DotPicture mDots;
};

} // namespace dialog
