// SPDX-License-Identifier: Apache-2.0
#include "support/TestBundles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <stdexcept>

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr auto kCodeRan = "LABELPRINT_TEST_CODE_RAN";

void expect(bool done, const QString &file)
{
    if (!done) {
        throw std::runtime_error("The test cannot prepare " + file.toStdString());
    }
}

} // namespace

TestBundles::TestBundles()
{
    expect(mFolder.isValid(), mFolder.path());
    qunsetenv(kCodeRan);
}

QString TestBundles::copy(const QString &name, const QString &as)
{
    const QDir from(QStringLiteral(TEST_BUNDLES_DIR "/%1.plugin").arg(name));
    const QString to = mFolder.filePath(QStringLiteral("%1.plugin").arg(as.isEmpty() ? name : as));
    expect(QDir().mkpath(to), to);
    setMode(to, 0755);
    const QFileInfoList files = from.entryInfoList(QDir::Files);
    expect(!files.isEmpty(), from.path());
    for (const QFileInfo &file : files) {
        const QString copied = to + QLatin1Char('/') + file.fileName();
        expect(QFile::copy(file.filePath(), copied), copied);
        setMode(copied, 0644);
    }
    return to;
}

void TestBundles::write(const QString &file, const QByteArray &content)
{
    expect(QDir().mkpath(QFileInfo(file).path()), file);
    setMode(QFileInfo(file).path(), 0755);
    QFile out(file);
    expect(out.open(QIODevice::WriteOnly) && out.write(content) == content.size() && out.flush(),
           file);
    setMode(file, 0644);
}

void TestBundles::setMode(const QString &file, int mode)
{
    const QByteArray path = QFile::encodeName(file);
    expect(chmod(path.constData(), static_cast<mode_t>(mode)) == 0, file);
}

void TestBundles::link(const QString &target, const QString &file)
{
    const QByteArray to = QFile::encodeName(target);
    const QByteArray path = QFile::encodeName(file);
    expect(symlink(to.constData(), path.constData()) == 0, file);
}

bool TestBundles::codeRan()
{
    return qEnvironmentVariableIsSet(kCodeRan);
}
