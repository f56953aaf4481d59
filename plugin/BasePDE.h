// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Outlets.h"
#include "platform/PrintCore.h"
#include "plugin/PrintDialogExtension.h"
#include "ppd/PDEChoice.h"

#include <QPointer>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <array>
#include <memory>
#include <optional>

#include <cups/ppd.h>

namespace platform {
class Bundle;
struct Notification;
} // namespace platform

/// What a print dialog tells kinds of panels apart by.
inline constexpr QLatin1String
    GraphicsPanelKind("org.labelprint.printer.cups.pde.CVKTVLGraphicsPDEKind");

/// A panel of the print dialog, without its settings.
///
/// Answers the dialog through hooks that a concrete panel overrides; a hook does nothing here. Made
/// by the plug-in in two steps, `std::make_shared` and `initWithCallback`, because a concrete panel
/// may go on without what its base could not take. Everything that the host owns is taken once, by
/// `initWithCallback`.
class BasePDE13_v300_ : public PDEPanel
{
public:
    BasePDE13_v300_();
    ~BasePDE13_v300_() override;
    BasePDE13_v300_(const BasePDE13_v300_ &) = delete;
    BasePDE13_v300_ &operator=(const BasePDE13_v300_ &) = delete;

    /// Takes session, settings, page format, printer and PPD from the host. Answers this panel, or
    /// null when it cannot be used. `andBundle` outlives the panel.
    virtual BasePDE13_v300_ *
    initWithCallback(const std::shared_ptr<PDEPluginCallback13_v300_> &host,
                     platform::Bundle *andBundle);

    /// Nothing: whatever a panel owns goes with the panel.
    virtual void finalize();

    QWidget *panelView() override;
    QString panelName() override;
    QString panelKind() const override;
    /// Sets the values, and claims no option.
    std::shared_ptr<const QStringList> supportedPPDOptionKeys() override;
    void printWindowWillClose(bool userCancelled) override;
    void willShow() override;
    bool shouldHide() override;
    bool shouldPrint() override;
    bool shouldShowHelp() override;
    void PPDOptionKeyValueDidChange(const std::optional<QString> &option,
                                    const std::optional<QString> &ppdChoice) override;
    bool restoreValuesAndReturnError(QString *error) override;
    bool saveValuesAndReturnError(QString *error) override;
    virtual void updateUI();
    std::optional<QVariantMap> summaryInfo() override;

    /// Hooks: the static texts of the view, the controls from the PPD.
    virtual void initSetTitleTexts();
    virtual void initUI();
    /// Hooks: the controls from the print settings and back.
    virtual void getValuesFromKey();
    virtual void setValuesToKey();
    /// Hooks: the current values into the controls; the values once more after a restore.
    virtual void setPDEItems();
    virtual void setPDEItems2();
    /// Hook: shows the settings whose bits are in `flags` in their controls.
    virtual void updateUIItem(qint32 flags);

    /// The PPD's "FileVersion".
    virtual std::optional<QString> fileVerString();
    /// Whether the PPD's "CvTapeType" is "VL", letter case included.
    virtual bool isVLPrinter();

    /// Hook: reads the marked choices of the settings whose bits are in `flags`.
    virtual void updateMarkedSelections(qint32 flags);

    /// Asks the host to mark choice `index` of option `key`, then has the settings of `itemType`
    /// read back. Answers the choice, owned by the list; null, and nothing happens, when there is
    /// none.
    virtual PDEChoice *selectionForItem(qint64 index, const QString &key, const ChoiceList *choices,
                                        qint32 itemType);

    /// The places of the PPD's marked choice, of the first choice with a keyword, and of the first
    /// choice that is its option's default; -1 when there is none. In an empty list the default
    /// is 0.
    virtual qint64 indexOfMarkedOption(const ChoiceList *choices, const QString &forKey);
    virtual qint64 indexOfChoices(const ChoiceList *choices,
                                  const std::optional<QString> &forValue);
    virtual qint64 indexOfDefaultOption(const ChoiceList *choices);

    virtual void setSupportedOptions(const std::shared_ptr<QStringList> &options);
    virtual std::shared_ptr<QStringList> supportedOptions();
    virtual qint64 indexForSummary(qint32 itemType);

    /// Gives the view another size, and tells a host that wants to know: at once when the dialog is
    /// high enough for it, else when it has grown.
    virtual void setViewFrameSize(const QSizeF &size);
    virtual void dialogDidExpand(const platform::Notification &notification);

    /// Has the host mark the default of `option` when the PPD has no marked choice of it.
    virtual void setDefaultChoices(ppd_option_t *option, const ChoiceList *choices,
                                   const char *cStrKey, const QString &nStrKey);

    virtual qint16 imageModeFlag();

protected:
    /// What the root of all panels does first; false makes `initWithCallback` answer null.
    virtual bool init();

    /// Hook: names the fields and actions that the interface description connects.
    virtual void fillOutlets(platform::Outlets &outlets);

    /// Hook: the view is loaded and the outlets are connected.
    virtual void awakeFromNib();

    std::shared_ptr<PDEPluginCallback13_v300_> pdePluginCallbackObject;
    /// Owned, unless somebody else has deleted it.
    QPointer<QWidget> kPDEView;
    std::optional<QString> thePDEName;
    platform::Bundle *nsPDEBundle = nullptr;
    ppd_file_t *ppd = nullptr;
    /// Bit 0: the black and red colour mode is chosen.
    qint16 mImageModeFlag = 0;
    PMPrintSession *printSession = nullptr;
    PMPrintSettings *pmPrintSettings = nullptr;
    PMPrintSettings *printSettings = nullptr;
    PMPageFormat *formatSettings = nullptr;
    PMPrinter *printer = nullptr;
    /// Ends with a zero byte; empty when unknown.
    std::array<char, 256> deviceURI{};
    std::shared_ptr<QStringList> mSupportedOptions;
    bool mLoadedNibFlg = false;
    bool mFormattedItemFlg = false;
    platform::Outlets mOutlets;

private:
    void takeDeviceURI();
};
