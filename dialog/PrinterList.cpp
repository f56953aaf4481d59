// SPDX-License-Identifier: Apache-2.0
#include "dialog/PrinterList.h"

#include "dialog/NetworkThreads.h"

#include <QThreadPool>

#include <algorithm>

namespace dialog {

PrinterListing::PrinterListing(std::shared_ptr<CupsServer> server)
    : mServer(std::move(server))
{ }

void PrinterListing::run()
{
    const auto printers = mServer->printers(mCancel);
    if (mCancel.isSet()) {
        return;
    }
    if (printers) {
        Q_EMIT listed(printers.value());
    } else {
        Q_EMIT failed(printers.failure());
    }
}

PrinterList::PrinterList(std::shared_ptr<CupsServer> server, QObject *parent)
    : QAbstractListModel(parent)
    , mServer(std::move(server))
    , mPrinters{Printer::folder()}
{
    mTimer.setSingleShot(true);
    connect(&mTimer, &QTimer::timeout, this, &PrinterList::refresh);
}

PrinterList::~PrinterList()
{
    if (mListing) {
        mListing->cancel();
    }
}

void PrinterList::refresh()
{
    if (mListing) {
        return;
    }
    mListing = std::make_shared<PrinterListing>(mServer);
    connect(mListing.get(), &PrinterListing::listed, this, &PrinterList::take,
            Qt::QueuedConnection);
    connect(mListing.get(), &PrinterListing::failed, this, &PrinterList::takeFailure,
            Qt::QueuedConnection);
    networkThreads()->start([listing = mListing] { listing->run(); });
}

void PrinterList::setRefreshInterval(int milliseconds)
{
    mTimer.stop();
    mTimer.setInterval(milliseconds);
    if (milliseconds > 0 && !mListing) {
        mTimer.start();
    }
}

void PrinterList::finishListing()
{
    mListing.reset();
    mHasAnswer = true;
    if (mTimer.interval() > 0) {
        mTimer.start();
    }
}

int PrinterList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(mPrinters.size());
}

QVariant PrinterList::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
        return {};
    }
    const Printer &printer = at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return printer.title();
    case Qt::ToolTipRole:
        return printer.isFolder ? QString() : printer.location;
    case NameRole:
        return printer.name;
    case StateRole:
        return printer.stateText();
    case IsFolderRole:
        return printer.isFolder;
    default:
        return {};
    }
}

std::optional<int> PrinterList::rowOf(const QString &name) const
{
    // A queue may be called like the folder printer; it comes first.
    const auto found =
        std::find_if(mPrinters.begin(), mPrinters.end(),
                     [&name](const Printer &printer) { return printer.name == name; });
    return found == mPrinters.end() ? std::nullopt
                                    : std::optional(static_cast<int>(found - mPrinters.begin()));
}

int PrinterList::defaultRow() const
{
    const auto found = std::find_if(mPrinters.begin(), mPrinters.end(),
                                    [](const Printer &printer) { return printer.isDefault; });
    return found == mPrinters.end() ? folderRow() : static_cast<int>(found - mPrinters.begin());
}

void PrinterList::take(const std::vector<Printer> &printers)
{
    finishListing();
    mHasFailed = false;
    removeMissing(printers);
    for (size_t i = 0; i < printers.size(); ++i) {
        place(printers[i], static_cast<int>(i));
    }
    Q_EMIT refreshed();
}

void PrinterList::takeFailure(const Failure &failure)
{
    finishListing();
    if (!mHasFailed) {
        mHasFailed = true;
        Q_EMIT failed(failure);
    }
}

void PrinterList::removeMissing(const std::vector<Printer> &printers)
{
    for (int row = folderRow() - 1; row >= 0; --row) {
        const QString name = at(row).name;
        const bool isThere =
            std::any_of(printers.begin(), printers.end(),
                        [&name](const Printer &printer) { return printer.name == name; });
        if (!isThere) {
            beginRemoveRows({}, row, row);
            mPrinters.erase(mPrinters.begin() + row);
            endRemoveRows();
            Q_EMIT printerGone(name);
        }
    }
}

/// Rows below `row` are in place; so a printer stands at it, or further down, or is new.
void PrinterList::place(const Printer &printer, int row)
{
    const auto begin = mPrinters.begin() + row;
    const auto found = std::find_if(begin, mPrinters.end() - 1, [&printer](const Printer &known) {
        return known.name == printer.name;
    });
    if (found == mPrinters.end() - 1) {
        beginInsertRows({}, row, row);
        mPrinters.insert(begin, printer);
        endInsertRows();
        return;
    }
    if (found != begin) {
        const int from = static_cast<int>(found - mPrinters.begin());
        beginMoveRows({}, from, from, {}, row);
        std::rotate(begin, found, found + 1);
        endMoveRows();
    }
    if (at(row) != printer) {
        mPrinters[static_cast<size_t>(row)] = printer;
        Q_EMIT dataChanged(index(row), index(row));
        Q_EMIT printerChanged(printer.name);
    }
}

} // namespace dialog
