// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plugin/PrintDialogExtension.h"
#include "support/PpdFixture.h"

#include <QByteArray>
#include <QMap>
#include <QString>

#include <memory>
#include <optional>
#include <string>
#include <vector>

/// A paper whose every answer a test may set.
struct RecordingPaper : PMPaper
{
    PMResult<std::optional<QString>> name;
    PMResult<double> paperHeight;

    PMResult<std::optional<QString>> ppdPaperName() const override { return name; }
    PMResult<double> height() const override { return paperHeight; }
};

struct RecordingPageFormat : PMPageFormat
{
    OSStatus status = 0;
    /// Nothing: no paper is chosen.
    std::optional<RecordingPaper> chosen;

    PMResult<const PMPaper *> paper() const override
    {
        return {status, chosen ? &*chosen : nullptr};
    }
};

struct RecordingSettings : PMPrintSettings
{
    /// The extended ticket lies here under its key, the marked choices under their options.
    QMap<QString, QByteArray> values;
    quint32 first = 1;
    quint32 last = 1;

    std::optional<QByteArray> value(const QString &key) const override;
    PMResult<quint32> firstPage() const override { return {0, first}; }
    OSStatus setFirstPage(quint32 page) override;
    PMResult<quint32> lastPage() const override { return {0, last}; }
    OSStatus setLastPage(quint32 page) override;
    std::optional<QByteArray> dataRepresentation() const override { return std::nullopt; }
};

struct RecordingSession : PMPrintSession
{
    PMResult<QVariant> data(const QString &) const override { return {}; }
};

struct RecordingPrinter : PMPrinter
{
    std::optional<QString> deviceURI;

    std::optional<QString> copyDeviceURI() const override { return deviceURI; }
};

/// A panel host that writes down what the panel asks of it and lets a test set what it answers.
class RecordingHost : public PDEPluginCallback13_v300_
{
public:
    /// With a PPD it marks what it is asked to mark. The PPD outlives the host.
    explicit RecordingHost(TestPpd *testPpd = nullptr);
    ~RecordingHost() override;

    /// Each call as a line, in order: "printSession", "printSettings", "pageFormat", "PMPrinter",
    /// "ppdFile", "willChange CvBrightness=5", "panelViewDidResize". A missing choice is "(nil)".
    /// Other lines may be added by the test.
    mutable std::vector<std::string> calls;

    /// The calls that ask for a mark, without their first word: "CvBrightness=5".
    std::vector<std::string> changes() const;

    /// What the panel is given; null where there is none.
    mutable RecordingSession session;
    mutable RecordingSettings settings;
    bool hasSettings = true;
    mutable RecordingPageFormat format;
    bool hasPageFormat = true;
    mutable RecordingPrinter usedPrinter;
    bool hasPrinter = true;

    /// Whether it answers panelViewDidResize.
    bool resizes = true;

    /// Whom it tells of a mark that has changed, before willChangePPDOptionKeyValue returns; null
    /// for nobody.
    PDEPanel *reportsTo = nullptr;

    PMPrintSession *printSession() const override;
    PMPrintSettings *printSettings() const override;
    PMPageFormat *pageFormat() const override;
    ::PMPrinter *PMPrinter() const override;
    ppd_file_t *ppdFile() const override;
    void willChangePPDOptionKeyValue(const QString &option,
                                     const std::optional<QString> &ppdChoice) override;
    bool respondsToSelector(QLatin1String operation) const override;
    void panelViewDidResize() override;

private:
    bool mark(const QString &option, const QString &ppdChoice);

    TestPpd *mPpd;
};
