// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/CupsServer.h"

#include <QAbstractListModel>
#include <QTimer>

#include <memory>
#include <optional>
#include <vector>

namespace dialog {

/// Lists the printers in the background. Each object is good for one listing.
class PrinterListing : public QObject
{
    Q_OBJECT

public:
    explicit PrinterListing(std::shared_ptr<CupsServer> server);

    /// In the worker: emits one of the signals, neither when it was cancelled.
    void run();
    void cancel() { mCancel.set(); }

Q_SIGNALS:
    void listed(const std::vector<dialog::Printer> &printers);
    void failed(const dialog::Failure &failure);

private:
    std::shared_ptr<CupsServer> mServer;
    CancelFlag mCancel;
};

/// The printers to choose from: the queues of the server, in its order, and last the folder
/// printer, which is always there.
///
/// Filled in the background; the interface thread, where it lives, never waits for the server. When
/// the server does not answer, the printers that are known stay in the list.
class PrinterList : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        NameRole = Qt::UserRole + 1,
        StateRole, ///< text for people
        IsFolderRole
    };

    explicit PrinterList(std::shared_ptr<CupsServer> server, QObject *parent = nullptr);
    ~PrinterList() override;

    /// Asks the server once; while an answer is awaited, nothing more.
    void refresh();

    /// Asks again and again, `milliseconds` after each answer; 0 ends that.
    void setRefreshInterval(int milliseconds);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    const Printer &at(int row) const { return mPrinters.at(static_cast<size_t>(row)); }
    std::optional<int> rowOf(const QString &name) const;

    /// The server's (or user's) default printer; the folder printer when there is none.
    int defaultRow() const;
    int folderRow() const { return rowCount() - 1; }

    /// Whether the server has answered at least once, be it in vain.
    bool hasAnswer() const { return mHasAnswer; }

Q_SIGNALS:
    /// The server has answered; the list is up to date.
    void refreshed();
    /// The server has not answered; said once until it does again.
    void failed(const dialog::Failure &failure);
    /// Another program has taken the printer off the server.
    void printerGone(const QString &name);
    /// State or description of a printer are others now.
    void printerChanged(const QString &name);

private:
    void take(const std::vector<Printer> &printers);
    void takeFailure(const Failure &failure);
    void finishListing();
    void removeMissing(const std::vector<Printer> &printers);
    void place(const Printer &printer, int row);

    std::shared_ptr<CupsServer> mServer;
    std::shared_ptr<PrinterListing> mListing;
    std::vector<Printer> mPrinters;
    QTimer mTimer;
    bool mHasAnswer = false;
    bool mHasFailed = false;
};

} // namespace dialog
