// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/CancelFlag.h"
#include "dialog/DotMaker.h"

#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <memory>
#include <optional>

namespace dialog {

/// Makes the dots of pages away from the interface thread, one page after the other. The newest
/// request wins: one that has begun is given up before its next band. So that a long page follows a
/// slider, too, one in three that differ in nothing but the settings is made to its end.
///
/// The interface thread only. Its end waits for the band that is being made.
class DotRenderer : public QObject
{
    Q_OBJECT

public:
    /// What is there within so many milliseconds needs no sign of progress.
    static constexpr int kPatience = 200;

    explicit DotRenderer(QObject *parent = nullptr);
    ~DotRenderer() override;

    /// Before the first request; called from the worker's thread.
    void setBandSource(const DotMaker::BandSource &source) { mMaker.setBandSource(source); }

    void render(const DotRequest &request);

    /// Gives up what is asked for; nothing is reported any more.
    void cancel();

    /// The same, and lets go of the document and of what was rendered of it.
    void clear();

Q_SIGNALS:
    /// The dots that were asked for, or earlier ones of the same page on their way to them.
    void rendered(const dialog::DotPicture &picture);

    /// Now and then, while it takes longer than kPatience.
    void progressed(int percent);

private:
    void start();
    void giveUp();
    void finish(const std::optional<DotPicture> &picture);
    void tell();

    DotMaker mMaker;
    std::optional<DotRequest> mNewest;
    DotRequest mRunningRequest;
    /// Of the page that is being made; null when there is none.
    std::shared_ptr<CancelFlag> mRunning;
    int mGivenUp = 0;
    /// Whether the maker has worked since it was told to forget.
    bool mRemembers = false;
    std::atomic<int> mPercent{0};
    QTimer mTelling;
    /// Last, so that its end waits for the worker while everything else is still there.
    QThreadPool mPool;
};

} // namespace dialog
