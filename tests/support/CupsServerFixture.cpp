// SPDX-License-Identifier: Apache-2.0
#include "support/CupsServerFixture.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QThread>

#include <algorithm>
#include <csignal>
#include <stdexcept>

#include <arpa/inet.h>
#include <cups/cups.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int kPatience = 20000;
constexpr unsigned long kPause = 10;

// What anybody may run or look into, and only the owner may change.
constexpr auto kProgram = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther
    | QFile::ExeOther | QFile::ReadGroup | QFile::ExeGroup;

[[noreturn]] void fail(const QString &why)
{
    throw std::runtime_error(why.toStdString());
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        fail(path + QStringLiteral(" cannot be written"));
    }
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        fail(path + QStringLiteral(" cannot be read"));
    }
    return file.readAll();
}

/// A port that nobody listens on at the moment.
int freePort()
{
    const int handle = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto *generic = reinterpret_cast<sockaddr *>(&address);
    if (::bind(handle, generic, size) != 0 || ::getsockname(handle, generic, &size) != 0) {
        fail(QStringLiteral("no free port"));
    }
    ::close(handle);
    return ntohs(address.sin_port);
}

bool answers(int port)
{
    const int handle = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<quint16>(port));
    const int status = ::connect(handle, reinterpret_cast<sockaddr *>(&address), sizeof address);
    ::close(handle);
    return status == 0;
}

/// All jobs of the server on `port`, done or not.
class Jobs
{
public:
    explicit Jobs(int port)
    {
        http_t *http = httpConnect2("127.0.0.1", port, nullptr, AF_INET, HTTP_ENCRYPTION_NEVER, 1,
                                    kPatience, nullptr);
        mCount = cupsGetJobs2(http, &mJobs, nullptr, 0, CUPS_WHICHJOBS_ALL);
        httpClose(http);
        if (mCount < 0) {
            fail(QStringLiteral("the jobs cannot be listed"));
        }
    }
    ~Jobs() { cupsFreeJobs(mCount, mJobs); }
    Jobs(const Jobs &) = delete;
    Jobs &operator=(const Jobs &) = delete;

    const cups_job_t *begin() const { return mJobs; }
    const cups_job_t *end() const { return mJobs + mCount; }

private:
    int mCount = 0;
    cups_job_t *mJobs = nullptr;
};

constexpr const char *kServerConfiguration = R"(LogLevel info
MaxLogSize 0
Listen 127.0.0.1:@PORT@
Browsing No
WebInterface No
DefaultAuthType None
DefaultEncryption Never
PreserveJobFiles Yes
<Location />
Order allow,deny
Allow from 127.0.0.1
</Location>
<Location /admin>
Order allow,deny
Allow from 127.0.0.1
</Location>
<Policy default>
JobPrivateAccess all
JobPrivateValues none
<Limit All>
Order allow,deny
Allow from 127.0.0.1
</Limit>
</Policy>
)";

constexpr const char *kFilesConfiguration = R"(ServerRoot @T@/etc
ServerBin @T@/bin
DataDir /usr/share/cups
StateDir @T@/state
CacheDir @T@/cache
RequestRoot @T@/spool
TempDir @T@/spool/tmp
AccessLog @T@/log/access_log
ErrorLog @T@/log/error_log
PageLog @T@/log/page_log
Printcap
ServerKeychain @T@/etc/ssl
)";

// Only the server's superuser may become another user.
constexpr const char *kUsers = R"(User lp
Group lp
SystemGroup root lpadmin
)";

constexpr const char *kBackend = R"(#!/bin/sh
if [ $# -eq 0 ]; then
    echo 'direct labsink "Lab" "Lab sink"'
    exit 0
fi
out="${DEVICE_URI#labsink:}"
printf '%s\n' "$1" "$2" "$3" "$4" "$5" >"$out/$1.arguments"
cat ${6:+"$6"} >"$out/$1.part" && chmod 644 "$out/$1".* && mv "$out/$1.part" "$out/$1.document"
)";

} // namespace

CupsServerFixture::CupsServerFixture()
    : mFolder(QStringLiteral("/tmp/lp-XXXXXX"))
    , mHome(qgetenv("HOME"))
{
    qputenv("HOME", QFile::encodeName(path("home")));
    makeTree();
    writeBackend();
    constexpr int kAttempts = 5;
    for (int i = 0; i < kAttempts; ++i) {
        mPort = freePort();
        writeConfiguration();
        if (start()) {
            return;
        }
    }
    fail(QStringLiteral("cupsd does not start: ") + QString::fromUtf8(mServer.readAll()));
}

CupsServerFixture::~CupsServerFixture()
{
    qputenv("HOME", mHome);
    if (mIsFrozen) {
        resume();
    }
    mServer.terminate();
    if (!mServer.waitForFinished(kPatience / 4)) {
        mServer.kill();
        mServer.waitForFinished(kPatience / 4);
    }
}

QString CupsServerFixture::path(const char *name) const
{
    return mFolder.filePath(QString::fromLatin1(name));
}

QString CupsServerFixture::address() const
{
    return QStringLiteral("127.0.0.1:%1").arg(mPort);
}

void CupsServerFixture::makeTree() const
{
    QFile::setPermissions(mFolder.path(), kProgram);
    for (const char *name : {"etc/ppd", "etc/ssl", "state/certs", "log", "cache", "spool/tmp",
                             "bin/backend", "out", "home"}) {
        if (!QDir().mkpath(path(name))) {
            fail(path(name) + QStringLiteral(" cannot be made"));
        }
    }
    QFile::setPermissions(path("out"), kProgram | QFile::WriteGroup | QFile::WriteOther);
    for (const char *name : {"cgi-bin", "daemon", "driver", "filter", "monitor", "notifier"}) {
        QFile::link(QStringLiteral("/usr/lib/cups/") + QString::fromLatin1(name),
                    path("bin/") + QString::fromLatin1(name));
    }
    QFile::link(QStringLiteral("/usr/lib/cups/backend/socket"), path("bin/backend/socket"));
}

void CupsServerFixture::writeConfiguration() const
{
    QByteArray server(kServerConfiguration);
    server.replace("@PORT@", QByteArray::number(mPort));
    write(path("etc/cupsd.conf"), server);
    QByteArray files(kFilesConfiguration);
    files.replace("@T@", mFolder.path().toUtf8());
    if (::geteuid() == 0) {
        files += kUsers;
    }
    write(path("etc/cups-files.conf"), files);
}

void CupsServerFixture::writeBackend() const
{
    // The server runs a backend that anybody may run as the user of the jobs, not as its own.
    write(path("bin/backend/labsink"), kBackend);
    QFile::setPermissions(path("bin/backend/labsink"), kProgram);
}

bool CupsServerFixture::start()
{
    // A test that crashes takes its server along.
    mServer.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    mServer.setProcessChannelMode(QProcess::MergedChannels);
    mServer.start(QStringLiteral("/usr/sbin/cupsd"),
                  {QStringLiteral("-f"), QStringLiteral("-c"), path("etc/cupsd.conf"),
                   QStringLiteral("-s"), path("etc/cups-files.conf")});
    const QDeadlineTimer deadline(kPatience);
    while (!deadline.hasExpired()) {
        if (mServer.waitForFinished(0) || mServer.state() == QProcess::NotRunning) {
            return false;
        }
        if (answers(mPort)) {
            return true;
        }
        QThread::msleep(kPause);
    }
    mServer.kill();
    mServer.waitForFinished();
    return false;
}

void CupsServerFixture::addFilter(const QString &name, const QString &program) const
{
    const QString folder = path("bin/filter");
    if (QFileInfo(folder).isSymLink()) {
        const QDir stock(QFileInfo(folder).symLinkTarget());
        QFile::remove(folder);
        QDir().mkpath(folder);
        for (const QString &file : stock.entryList(QDir::Files)) {
            QFile::link(stock.filePath(file), folder + QLatin1Char('/') + file);
        }
    }
    const QString copy = folder + QLatin1Char('/') + name;
    QFile::remove(copy);
    if (!QFile::copy(program, copy) || !QFile::setPermissions(copy, kProgram)) {
        fail(copy + QStringLiteral(" cannot be made"));
    }
}

void CupsServerFixture::administer(const QString &program, const QStringList &arguments) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("CUPS_SERVER"), address());
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished(kPatience) || process.exitCode() != 0) {
        fail(program + QStringLiteral(": ") + QString::fromUtf8(process.readAllStandardError()));
    }
}

void CupsServerFixture::addQueue(const QString &name)
{
    QByteArray ppd = contents(QStringLiteral(SOURCE_DIR "/resources/ppd/label-300.ppd"));
    const auto start = ppd.indexOf("*cupsFilter:");
    if (start < 0) {
        fail(QStringLiteral("the sample PPD has no cupsFilter"));
    }
    ppd.replace(start, ppd.indexOf('\n', start) - start,
                "*cupsFilter: \"application/pdf 0 -\"\n*cupsFilter: \"image/png 0 -\"");
    const QString file = path("queue.ppd");
    write(file, ppd);
    addQueue(name, file);
}

void CupsServerFixture::addQueue(const QString &name, const QString &ppdFile,
                                 const QString &printer)
{
    administer(QStringLiteral("lpadmin"),
               {QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"),
                printer.isEmpty() ? QStringLiteral("labsink:") + path("out") : printer,
                QStringLiteral("-P"), ppdFile});
}

void CupsServerFixture::addRawQueue(const QString &name)
{
    administer(QStringLiteral("lpadmin"),
               {QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"),
                QStringLiteral("labsink:") + path("out")});
}

void CupsServerFixture::removeQueue(const QString &name)
{
    administer(QStringLiteral("lpadmin"), {QStringLiteral("-x"), name});
}

QStringList CupsServerFixture::Arrived::options() const
{
    return arguments.value(4).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QString CupsServerFixture::log() const
{
    return QString::fromUtf8(contents(path("log/error_log")).right(4000));
}

CupsServerFixture::Arrived CupsServerFixture::arrived(int job) const
{
    const QString base = path("out/") + QString::number(job);
    const QDeadlineTimer deadline(kPatience);
    while (!QFile::exists(base + QStringLiteral(".document"))) {
        if (deadline.hasExpired()) {
            fail(QStringLiteral("job %1 does not arrive: ").arg(job) + log());
        }
        QThread::msleep(kPause);
    }
    Arrived result;
    result.arguments =
        QString::fromUtf8(contents(base + QStringLiteral(".arguments"))).split(QLatin1Char('\n'));
    result.document = contents(base + QStringLiteral(".document"));
    return result;
}

void CupsServerFixture::kill()
{
    ::kill(static_cast<pid_t>(mServer.processId()), SIGKILL);
    mServer.waitForFinished();
}

void CupsServerFixture::freeze()
{
    ::kill(static_cast<pid_t>(mServer.processId()), SIGSTOP);
    mIsFrozen = true;
}

void CupsServerFixture::resume()
{
    ::kill(static_cast<pid_t>(mServer.processId()), SIGCONT);
    mIsFrozen = false;
}

int CupsServerFixture::jobState(int job) const
{
    const Jobs jobs(mPort);
    const auto found = std::find_if(jobs.begin(), jobs.end(),
                                    [job](const cups_job_t &record) { return record.id == job; });
    return found == jobs.end() ? 0 : found->state;
}

int CupsServerFixture::jobCount() const
{
    const Jobs jobs(mPort);
    return static_cast<int>(jobs.end() - jobs.begin());
}

int CupsServerFixture::waitForJobState(int job, int expected) const
{
    const QDeadlineTimer deadline(kPatience / 4);
    int state = 0;
    do {
        QThread::msleep(kPause);
        state = jobState(job);
    } while (state != expected && !deadline.hasExpired());
    return state;
}
