// SPDX-License-Identifier: Apache-2.0
#include "support/PpdFixture.h"

#include <QFile>
#include <QTemporaryFile>

#include <stdexcept>
#include <string>

void TestPpd::Closer::operator()(ppd_file_t *ppd) const
{
    ppdClose(ppd);
}

TestPpd::TestPpd(const QString &path)
{
    const QByteArray file = QFile::encodeName(path);
    mPpd.reset(ppdOpenFile(file.constData()));
    if (!mPpd) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        throw std::runtime_error(file.toStdString() + ", line " + std::to_string(line) + ": "
                                 + ppdErrorString(status));
    }
}

TestPpd TestPpd::fromFile(const QString &name)
{
    return TestPpd(QStringLiteral(TEST_DATA_DIR "/ppd/") + name);
}

TestPpd TestPpd::fromText(const QByteArray &text)
{
    QTemporaryFile file;
    if (!file.open() || file.write(text) != text.size() || !file.flush()) {
        throw std::runtime_error("A temporary PPD file could not be written: "
                                 + file.errorString().toStdString());
    }
    return TestPpd(file.fileName());
}

void TestPpd::markDefaults()
{
    ppdMarkDefaults(get());
}

void TestPpd::mark(const QByteArray &option, const QByteArray &choice)
{
    ppdMarkOption(get(), option.constData(), choice.constData());
}

QByteArray TestPpd::marked(const QByteArray &option) const
{
    const ppd_choice_t *choice = ppdFindMarkedChoice(get(), option.constData());
    return choice ? QByteArray(choice->choice) : QByteArray();
}

ppd_option_t *TestPpd::option(const QByteArray &keyword) const
{
    return ppdFindOption(get(), keyword.constData());
}
