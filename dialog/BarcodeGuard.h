// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/CodeCheck.h"

#include <QObject>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace dialog {

/// Checks pages one by one, and remembers the codes of a document's pages for the next time, when
/// only the dots are others. One thread: that in which it is first asked.
class PageGuard
{
public:
    /// `program` as for BarcodeReader.
    explicit PageGuard(const QString &program = BarcodeReader::installedProgram());

    /// The codes of the page that nobody would read. `goOn` is asked now and then; when it says
    /// no, the failure is FailureKind::Cancelled.
    Result<std::vector<LostCode>> lostCodes(
        const PrintedPage &printed, const std::function<bool()> &goOn = [] { return true; });

private:
    struct Known
    {
        double dotsForPoint = 0;
        std::vector<PageCode> codes;
    };

    Result<std::vector<PageCode>> codesOf(const PrintedPage &printed,
                                          const std::function<bool()> &goOn);

    BarcodeReader mReader;
    CodeCheck mCheck;
    std::shared_ptr<const DocumentPages> mDocument;
    std::map<int, Known> mKnown;
};

/// What is checked: pages of one document, all printed in the same way.
struct GuardRequest
{
    PrintedPage printed;
    /// Counted from 0, in the order in which they are checked.
    std::vector<int> pages;

    bool operator==(const GuardRequest &other) const = default;
};

/// Checks in the background whether the codes of a document can still be read from its dots. The
/// newest request wins; it starts a moment after it was made, so that a slider can be dragged.
///
/// The interface thread; it waits for nothing but, at its end, for the step under way.
class BarcodeGuard : public QObject
{
    Q_OBJECT

public:
    /// The moment, in milliseconds.
    static constexpr int kDelay = 300;

    explicit BarcodeGuard(QObject *parent = nullptr);
    ~BarcodeGuard() override;

    /// What was found before stays until this has found something or is done. The last request once
    /// more changes nothing.
    void check(const GuardRequest &request);

    /// There is nothing to check; nothing is lost.
    void clear();

    /// Whether the last request is not done yet.
    bool isBusy() const { return mIsBusy; }

    /// The codes that nobody would read, as far as the pages are checked.
    const std::vector<LostCode> &lost() const { return mLost; }

    /// Why pages could not be checked: FailureKind::Barcode, or what the document says of a page.
    const std::optional<Failure> &failure() const { return mFailure; }

Q_SIGNALS:
    /// One of the three above changed.
    void changed();

private:
    using Cancel = std::shared_ptr<std::atomic<bool>>;

    void start();
    void stop();
    void work(const GuardRequest &request, const Cancel &cancel);
    void take(const Cancel &cancel, const Result<std::vector<LostCode>> &page);
    void finish(const Cancel &cancel);

    QThread mThread;
    /// Lives in the thread.
    QObject *mWorker;
    /// Used in the thread alone.
    std::unique_ptr<PageGuard> mPages;
    QTimer mDelay;
    GuardRequest mRequest;
    /// Of the request under way.
    Cancel mCancel;
    bool mIsBusy = false;
    bool mIsFresh = false;
    std::vector<LostCode> mLost;
    std::optional<Failure> mFailure;
};

} // namespace dialog
