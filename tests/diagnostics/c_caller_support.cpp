// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/c_caller_support.h"

#include "platform/PrintCore.h"
#include "platform/SystemLog.h"

#include <QByteArray>

#include <unistd.h>

namespace {

struct SomeSettings : PMPrintSettings
{
    std::optional<QByteArray> value(const QString &) const override { return std::nullopt; }
    PMResult<quint32> firstPage() const override { return {}; }
    OSStatus setFirstPage(quint32) override { return 0; }
    PMResult<quint32> lastPage() const override { return {}; }
    OSStatus setLastPage(quint32) override { return 0; }
    std::optional<QByteArray> dataRepresentation() const override { return "<plist/>\n"; }
};

} // namespace

void show_log_on_standard_output()
{
    platform::setSystemLogSink([](const QString &line) {
        const QByteArray bytes = line.toUtf8() + '\n';
        if (write(STDOUT_FILENO, bytes.constData(), size_t(bytes.size())) < 0) {
            _exit(1);
        }
    });
}

const PMPrintSettings *some_print_settings()
{
    static const SomeSettings settings;
    return &settings;
}
