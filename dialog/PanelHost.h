// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plugin/PrintDialogExtension.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace dialog {

class JobSettings;
class PpdFile;

/// The job as panels see it. Each may be null. Shared with the hosts, and so with every panel that
/// still exists: a plug-in may hold on to its panels longer than the dialog does.
struct HostedJob
{
    std::shared_ptr<PpdFile> ppd;
    std::shared_ptr<JobSettings> settings;
    std::shared_ptr<PMPrintSession> session;
    std::shared_ptr<PMPageFormat> pageFormat;
    std::shared_ptr<::PMPrinter> printer;
};

/// The panel host that one plug-in gets for the panels of one dialog.
///
/// Each plug-in gets its own, so that the dialog knows whose panels ask for a mark.
class PanelHost : public QObject, public PDEPluginCallback13_v300_
{
    Q_OBJECT

public:
    using MarkRequest = std::function<void(const QString &option, const QString &choice)>;

    /// `request` is called for each choice that a panel wants marked.
    PanelHost(const HostedJob &job, MarkRequest request);
    ~PanelHost() override;

    /// From here on marks are not asked for any more; everything else goes on as before.
    void close();

    PMPrintSession *printSession() const override;
    PMPrintSettings *printSettings() const override;
    PMPageFormat *pageFormat() const override;
    ::PMPrinter *PMPrinter() const override;
    ppd_file_t *ppdFile() const override;
    void willChangePPDOptionKeyValue(const QString &option,
                                     const std::optional<QString> &ppdChoice) override;
    bool respondsToSelector(QLatin1String operation) const override;
    void panelViewDidResize() override;

Q_SIGNALS:
    void viewResized();

private:
    HostedJob mJob;
    MarkRequest mRequest;
};

} // namespace dialog
