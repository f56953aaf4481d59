// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DocumentPages.h"
#include "dialog/SheetLayout.h"

#include <QImage>
#include <QObject>
#include <QThreadPool>

#include <memory>
#include <optional>

namespace dialog {

/// What is to be seen: a page of a document on a sheet, and how large.
struct PageRequest
{
    std::shared_ptr<const DocumentPages> document;
    int page = 0;
    /// One without a size is as large as the page.
    Sheet sheet;
    Scaling scaling = Scaling::Fit;
    /// The sheet is fitted into so many pixels of the screen.
    QSize pixels;

    bool operator==(const PageRequest &other) const = default;
};

/// A rendered page.
struct PagePicture
{
    PageRequest request;
    /// In points; empty when the page is damaged.
    QSizeF pageSize;
    /// The page before it is turned; none when `why` says what is wrong with it.
    QImage image;
    QString why;
};

/// Renders pages away from the interface thread, one after the other. The newest request wins:
/// older ones that have not begun are dropped, and one that has begun is not reported.
///
/// The interface thread only. Its end waits for the page that is being rendered.
class PageRenderer : public QObject
{
    Q_OBJECT

public:
    /// The longest side of the picture of a page, in pixels; larger ones are stretched on screen.
    static constexpr int kLongestSide = 4096;

    explicit PageRenderer(QObject *parent = nullptr);
    ~PageRenderer() override;

    void render(const PageRequest &request);

    /// Forgets the newest request; nothing is reported any more.
    void cancel();

    /// The picture for `request`, made in this thread.
    static PagePicture pictureOf(const PageRequest &request);

    /// How many pixels show a point of `sheet` when it is fitted into `pixels`; 0 without areas.
    static double pixelsPerPoint(const Sheet &sheet, const QSizeF &pixels);

Q_SIGNALS:
    void rendered(const dialog::PagePicture &picture);

private:
    void start();
    void finish(const PagePicture &picture);

    QThreadPool mPool;
    std::optional<PageRequest> mNewest;
    bool mRunning = false;
};

} // namespace dialog
