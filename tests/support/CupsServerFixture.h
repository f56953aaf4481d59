// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// A print server of its own for one test: a private folder, a free port of the loopback address,
/// no queues at first, no part of the machine's print system, no settings of the tester's. Its
/// queues end in a backend that writes down what arrives.
///
/// Everything that fails here fails the test with an exception that says why. All waits are
/// bounded.
class CupsServerFixture
{
public:
    CupsServerFixture();
    ~CupsServerFixture();
    CupsServerFixture(const CupsServerFixture &) = delete;
    CupsServerFixture &operator=(const CupsServerFixture &) = delete;

    /// "127.0.0.1:PORT", as CUPS_SERVER has it.
    QString address() const;

    /// A queue with the sample printer's PPD, changed so that documents reach the backend as they
    /// are.
    void addQueue(const QString &name);
    /// A queue with the PPD at `ppdFile`, as it is; for the printer at "socket://HOST:PORT" when
    /// one is given.
    void addQueue(const QString &name, const QString &ppdFile, const QString &printer = {});
    /// A queue without a PPD.
    void addRawQueue(const QString &name);
    void removeQueue(const QString &name);

    /// Gives the server a filter of its own beside those of the machine: a copy of `program`.
    void addFilter(const QString &name, const QString &program) const;

    /// Runs one of the server's administration programs ("cupsdisable", {"Lab"}).
    void administer(const QString &program, const QStringList &arguments) const;

    /// What the backend got: its arguments (job, user, title, copies, options) and the document.
    struct Arrived
    {
        QStringList arguments;
        QByteArray document;

        /// The fifth argument, split at its spaces.
        QStringList options() const;
    };
    /// Waits for the job at the backend.
    Arrived arrived(int job) const;

    /// The state of a job (RFC 8011: 3 pending, 7 cancelled, 9 completed), waiting up to some
    /// seconds for `expected`.
    int waitForJobState(int job, int expected) const;
    int jobCount() const;

    /// The server is gone from one moment to the next.
    void kill();
    /// The server lives but answers no more, until it is resumed.
    void freeze();
    void resume();

    /// The end of the server's log, to say why something did not happen.
    QString log() const;

private:
    void makeTree() const;
    void writeConfiguration() const;
    void writeBackend() const;
    bool start();
    int jobState(int job) const;
    QString path(const char *name) const;

    QTemporaryDir mFolder;
    int mPort = 0;
    bool mIsFrozen = false;
    QProcess mServer;
    QByteArray mHome;
};
