// SPDX-License-Identifier: Apache-2.0
#include "dialog/LibcupsServer.h"
#include "dialog/PrinterList.h"
#include "support/CupsServerFixture.h"
#include "support/QtPrinters.h"

#include <QElapsedTimer>
#include <QSignalSpy>

#include <gmock/gmock.h>

using dialog::Failure;
using dialog::LibcupsServer;
using dialog::PrinterList;
using testing::ElementsAre;

namespace {

const QString kLab = QStringLiteral("Lab");
const QString kOffice = QStringLiteral("Office");
const QString kRaw = QStringLiteral("Raw");
const QString kFolder = QStringLiteral("folder");
constexpr int kPatience = 20000;

class PrinterListTest : public testing::Test
{
protected:
    void refresh()
    {
        QSignalSpy refreshed(&list, &PrinterList::refreshed);
        list.refresh();
        ASSERT_TRUE(refreshed.wait(kPatience));
    }
    QStringList names() const
    {
        QStringList all;
        for (int row = 0; row < list.rowCount(); ++row) {
            all.append(list.data(list.index(row), PrinterList::NameRole).toString());
        }
        return all;
    }
    QString state(int row) const
    {
        return list.data(list.index(row), PrinterList::StateRole).toString();
    }

    CupsServerFixture cups;
    PrinterList list{std::make_shared<LibcupsServer>(cups.address())};
};

TEST_F(PrinterListTest, FolderPrinterIsThereBeforeAnyServerAnswers)
{
    EXPECT_THAT(names(), ElementsAre(kFolder));
    EXPECT_FALSE(list.hasAnswer());
    EXPECT_EQ(list.defaultRow(), 0);
    EXPECT_TRUE(list.data(list.index(0), PrinterList::IsFolderRole).toBool());
    EXPECT_EQ(list.data(list.index(0), Qt::DisplayRole).toString(),
              QStringLiteral("Print into a folder"));
}

TEST_F(PrinterListTest, QueuesFillTheListBeforeTheFolderPrinter)
{
    cups.addQueue(kLab);
    cups.addQueue(kOffice);
    cups.addRawQueue(kRaw);
    cups.administer(QStringLiteral("lpadmin"), {QStringLiteral("-d"), kOffice});
    refresh();
    EXPECT_THAT(names(), ElementsAre(kLab, kOffice, kRaw, kFolder));
    EXPECT_TRUE(list.hasAnswer());
    EXPECT_EQ(list.defaultRow(), 1);
    EXPECT_EQ(list.rowOf(kRaw), 2);
    EXPECT_FALSE(list.rowOf(QStringLiteral("Other")));
}

TEST_F(PrinterListTest, RefreshingReturnsBeforeAFrozenServerAnswers)
{
    cups.freeze();
    QSignalSpy refreshed(&list, &PrinterList::refreshed);
    list.refresh();
    EXPECT_FALSE(list.hasAnswer());
    cups.resume();
    EXPECT_TRUE(refreshed.wait(kPatience));
}

TEST_F(PrinterListTest, ListMayGoWhileAFrozenServerIsAwaited)
{
    cups.freeze();
    auto gone = std::make_unique<PrinterList>(std::make_shared<LibcupsServer>(cups.address()));
    gone->refresh();
    gone.reset();
    cups.resume();
    refresh();
    EXPECT_THAT(names(), ElementsAre(kFolder));
}

TEST_F(PrinterListTest, QueueThatGoesAwayLeavesTheListWithASignal)
{
    cups.addQueue(kLab);
    cups.addQueue(kOffice);
    refresh();
    cups.removeQueue(kLab);
    QSignalSpy gone(&list, &PrinterList::printerGone);
    refresh();
    ASSERT_EQ(gone.size(), 1);
    EXPECT_EQ(gone[0][0].toString(), kLab);
    EXPECT_THAT(names(), ElementsAre(kOffice, kFolder));
}

TEST_F(PrinterListTest, NewQueueComesInItsPlaceAndNothingElseMoves)
{
    cups.addQueue(kOffice);
    refresh();
    const QPersistentModelIndex office(list.index(0));
    QSignalSpy reset(&list, &PrinterList::modelReset);
    cups.addQueue(kLab);
    refresh();
    EXPECT_THAT(names(), ElementsAre(kLab, kOffice, kFolder));
    EXPECT_EQ(office.row(), 1);
    EXPECT_EQ(reset.size(), 0);
}

TEST_F(PrinterListTest, StoppedQueueSaysSoAtTheNextRefresh)
{
    cups.addQueue(kLab);
    refresh();
    EXPECT_EQ(state(0), QStringLiteral("ready"));
    cups.administer(QStringLiteral("cupsdisable"), {kLab});
    QSignalSpy changed(&list, &PrinterList::printerChanged);
    refresh();
    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(state(0), QStringLiteral("stopped"));
}

TEST_F(PrinterListTest, RefreshIntervalFindsNewQueuesByItself)
{
    list.setRefreshInterval(20);
    QSignalSpy inserted(&list, &PrinterList::rowsInserted);
    cups.addQueue(kLab);
    ASSERT_TRUE(inserted.wait(kPatience));
    EXPECT_THAT(names(), ElementsAre(kLab, kFolder));
}

TEST_F(PrinterListTest, ServerThatDiesIsReportedOnceAndThePrintersStay)
{
    cups.addQueue(kLab);
    refresh();
    cups.kill();
    QSignalSpy failed(&list, &PrinterList::failed);
    list.refresh();
    ASSERT_TRUE(failed.wait(kPatience));
    EXPECT_EQ(failed[0][0].value<Failure>().kind, dialog::FailureKind::Server);
    EXPECT_THAT(names(), ElementsAre(kLab, kFolder));
    list.refresh();
    EXPECT_FALSE(failed.wait(500));
}

} // namespace
