// SPDX-License-Identifier: Apache-2.0
#include "tools/SessionPpd.h"

#include "tools/RequestError.h"

#include <QFile>
#include <QFileInfo>

#include <cups/array.h>

namespace tools {
namespace {

/// A word of libcups ends at its first NUL: what is longer is no word of the PPD.
std::optional<QByteArray> wordOf(const QString &text)
{
    return text.contains(QChar::Null) ? std::nullopt : std::optional(text.toUtf8());
}

} // namespace

std::unique_ptr<SessionPpd> SessionPpd::open(const QString &path)
{
    // A pipe or a device could keep the session waiting for ever.
    if (!QFileInfo(path).isFile()) {
        throw RequestError(QStringLiteral("%1: there is no such file; give the path of a PPD")
                               .arg(path.simplified()));
    }
    const QByteArray encoded = QFile::encodeName(path);
    ppd_file_t *ppd = ppdOpenFile(encoded.constData());
    if (!ppd) {
        int line = 0;
        const QString reason = QString::fromUtf8(ppdErrorString(ppdLastError(&line)));
        throw RequestError(QStringLiteral("%1 is not a usable PPD (line %2: %3)")
                               .arg(path.simplified(), QString::number(line), reason));
    }
    ppdLocalize(ppd);
    return std::unique_ptr<SessionPpd>(new SessionPpd(ppd));
}

SessionPpd::~SessionPpd()
{
    ppdClose(mPpd);
}

void SessionPpd::markDefaults()
{
    ppdMarkDefaults(mPpd);
}

bool SessionPpd::mark(const QString &option, const QString &choice)
{
    const auto key = wordOf(option);
    const auto value = wordOf(choice);
    if (!key || !value) {
        return false;
    }
    const ppd_choice_t *before = ppdFindMarkedChoice(mPpd, key->constData());
    ppdMarkOption(mPpd, key->constData(), value->constData());
    return ppdFindMarkedChoice(mPpd, key->constData()) != before;
}

void SessionPpd::unmark(const QString &option)
{
    const auto key = wordOf(option);
    ppd_option_t *record = key ? ppdFindOption(mPpd, key->constData()) : nullptr;
    for (int i = 0; record && i < record->num_choices; ++i) {
        // libcups has no call for it; its list of marks is found by option, so the mark goes first.
        if (std::exchange(record->choices[i].marked, char(0))) {
            cupsArrayRemove(mPpd->marked, &record->choices[i]);
        }
    }
}

std::optional<QString> SessionPpd::marked(const QString &option) const
{
    const auto key = wordOf(option);
    const ppd_choice_t *choice = key ? ppdFindMarkedChoice(mPpd, key->constData()) : nullptr;
    return choice ? std::optional(QString::fromUtf8(choice->choice)) : std::nullopt;
}

} // namespace tools
