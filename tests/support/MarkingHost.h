// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plugin/PrintDialogExtension.h"
#include "tests/support/EmptyPrintSettings.h"

#include <cups/ppd.h>

/// The least that a panel needs, for programs without a test framework: it marks what it is asked
/// to mark and tells `panel`. The PPD outlives it.
class MarkingHost : public PDEPluginCallback13_v300_
{
public:
    explicit MarkingHost(ppd_file_t *ppd)
        : mPpd(ppd)
    { }

    PDEPanel *panel = nullptr;

    PMPrintSession *printSession() const override { return nullptr; }
    PMPrintSettings *printSettings() const override { return &mSettings; }
    PMPageFormat *pageFormat() const override { return nullptr; }
    ::PMPrinter *PMPrinter() const override { return nullptr; }
    ppd_file_t *ppdFile() const override { return mPpd; }
    bool respondsToSelector(QLatin1String) const override { return false; }

    void willChangePPDOptionKeyValue(const QString &option,
                                     const std::optional<QString> &ppdChoice) override
    {
        const QByteArray key = option.toUtf8();
        const QByteArray choice = ppdChoice.value_or(QString()).toUtf8();
        ppdMarkOption(mPpd, key.constData(), choice.constData());
        if (panel) {
            panel->PPDOptionKeyValueDidChange(option, ppdChoice);
        }
    }

private:
    ppd_file_t *mPpd;
    mutable EmptyPrintSettings mSettings;
};
