// SPDX-License-Identifier: Apache-2.0
#include "dialog/PanelHost.h"

#include "dialog/JobSettings.h"
#include "dialog/PpdFile.h"

namespace dialog {

PanelHost::PanelHost(const HostedJob &job, MarkRequest request)
    : mJob(job)
    , mRequest(std::move(request))
{ }

PanelHost::~PanelHost() = default;

void PanelHost::close()
{
    mRequest = nullptr;
}

PMPrintSession *PanelHost::printSession() const
{
    return mJob.session.get();
}

PMPrintSettings *PanelHost::printSettings() const
{
    return mJob.settings.get();
}

PMPageFormat *PanelHost::pageFormat() const
{
    return mJob.pageFormat.get();
}

::PMPrinter *PanelHost::PMPrinter() const
{
    return mJob.printer.get();
}

ppd_file_t *PanelHost::ppdFile() const
{
    return mJob.ppd ? mJob.ppd->file() : nullptr;
}

void PanelHost::willChangePPDOptionKeyValue(const QString &option,
                                            const std::optional<QString> &ppdChoice)
{
    if (ppdChoice && mRequest) {
        mRequest(option, *ppdChoice);
    }
}

bool PanelHost::respondsToSelector(QLatin1String operation) const
{
    return operation == QLatin1String("panelViewDidResize");
}

void PanelHost::panelViewDidResize()
{
    Q_EMIT viewResized();
}

} // namespace dialog
