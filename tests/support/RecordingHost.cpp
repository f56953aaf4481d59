// SPDX-License-Identifier: Apache-2.0
#include "support/RecordingHost.h"

#include <utility>

std::optional<QByteArray> RecordingSettings::value(const QString &key) const
{
    const auto found = values.constFind(key);
    return found == values.constEnd() ? std::nullopt : std::optional(*found);
}

OSStatus RecordingSettings::setFirstPage(quint32 page)
{
    first = page;
    return 0;
}

OSStatus RecordingSettings::setLastPage(quint32 page)
{
    last = page;
    return 0;
}

RecordingHost::RecordingHost(TestPpd *testPpd)
    : mPpd(testPpd)
{ }

RecordingHost::~RecordingHost() = default;

std::vector<std::string> RecordingHost::changes() const
{
    const std::string word = "willChange ";
    std::vector<std::string> changes;
    for (const std::string &call : calls) {
        if (call.starts_with(word)) {
            changes.push_back(call.substr(word.size()));
        }
    }
    return changes;
}

PMPrintSession *RecordingHost::printSession() const
{
    calls.emplace_back("printSession");
    return &session;
}

PMPrintSettings *RecordingHost::printSettings() const
{
    calls.emplace_back("printSettings");
    return hasSettings ? &settings : nullptr;
}

PMPageFormat *RecordingHost::pageFormat() const
{
    calls.emplace_back("pageFormat");
    return hasPageFormat ? &format : nullptr;
}

::PMPrinter *RecordingHost::PMPrinter() const
{
    calls.emplace_back("PMPrinter");
    return hasPrinter ? &usedPrinter : nullptr;
}

ppd_file_t *RecordingHost::ppdFile() const
{
    calls.emplace_back("ppdFile");
    return mPpd ? mPpd->get() : nullptr;
}

void RecordingHost::willChangePPDOptionKeyValue(const QString &option,
                                                const std::optional<QString> &ppdChoice)
{
    calls.push_back("willChange " + option.toStdString() + "="
                    + (ppdChoice ? ppdChoice->toStdString() : "(nil)"));
    if (ppdChoice && mark(option, *ppdChoice) && reportsTo) {
        reportsTo->PPDOptionKeyValueDidChange(option, ppdChoice);
    }
}

bool RecordingHost::mark(const QString &option, const QString &ppdChoice)
{
    if (!mPpd) {
        return false;
    }
    const QByteArray key = option.toUtf8();
    const QByteArray before = mPpd->marked(key);
    mPpd->mark(key, ppdChoice.toUtf8());
    const QByteArray after = mPpd->marked(key);
    if (!after.isEmpty()) {
        settings.values.insert(option, after);
    }
    return before != after;
}

bool RecordingHost::respondsToSelector(QLatin1String operation) const
{
    return resizes && operation == QLatin1String("panelViewDidResize");
}

void RecordingHost::panelViewDidResize()
{
    calls.emplace_back("panelViewDidResize");
}
