// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "graphics_panel/LevelEntry.h"
#include "platform/RadioMatrix.h"
#include "plugin/BasePDE.h"
#include "plugin/PanelInspection.h"
#include "ppd/PDEChoice.h"
#include "preview/BriConView.h"
#include "preview/HalftoneView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QSlider>

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// The Graphics panel: how pictures are prepared for a label printer.
///
/// Binds six options of the printer's PPD to controls, always in this order: halftone, brightness,
/// contrast, bi-directional printing, colour mode, red level. For each it keeps a selection, the
/// choice that it regards as chosen. The marks of the PPD are the truth: the selections follow
/// them, and the controls follow the selections. Colour mode and red level stand outside of show,
/// restore and save; they change through their own controls only, and the colour mode is committed
/// before a job.
///
/// Made by the principal class with make_shared and initWithCallback; the first panelView makes
/// the view and its controls. Host and PPD outlive the panel. A control that the interface
/// description lacks reads as zero and takes writes silently; an option that the PPD lacks is left
/// out. The dialog's interface thread only.
class GraphicsPDE13_v300_ : public BasePDE13_v300_, public PanelInspection
{
public:
    GraphicsPDE13_v300_();
    ~GraphicsPDE13_v300_() override;

    /// Binds the options and answers this panel, also when its base answers null.
    BasePDE13_v300_ *initWithCallback(const std::shared_ptr<PDEPluginCallback13_v300_> &host,
                                      platform::Bundle *andBundle) override;

    /// The keywords of the bound options that the PPD has, always the same list. The first call
    /// commits the first four settings.
    std::shared_ptr<const QStringList> supportedPPDOptionKeys() override;
    void printWindowWillClose(bool userCancelled) override;
    /// Both take over a level that is being typed, and so do shouldPrint and setValuesToKey.
    void willShow() override;
    bool shouldHide() override;
    /// Commits the colour mode, then the default of every option without a marked choice. Yes.
    bool shouldPrint() override;
    bool shouldShowHelp() override;
    /// A choice that the list lacks is no selection. The controls follow at the next updateUI.
    void PPDOptionKeyValueDidChange(const std::optional<QString> &option,
                                    const std::optional<QString> &ppdChoice) override;
    std::optional<QVariantMap> summaryInfo() override;

    void initSetTitleTexts() override;
    /// Fills the controls and commits what they show, on the first call only.
    void initUI() override;
    void getValuesFromKey() override;
    void setValuesToKey() override;
    void setPDEItems() override;
    void setPDEItems2() override;

    /// Reads the marked choice, else the default, into the selections that the item-type bits
    /// name. A setting without either keeps its selection.
    void updateMarkedSelections(qint32 itemType) override;
    /// Shows the selections that the item-type bits name in their controls.
    void updateUIItem(qint32 itemType) override;

    // Enhance_initialize: fill the controls from the PPD and the strings table.
    void initializeUI_Halftone();
    void initializeUI_Brightness();
    void initializeUI_Contrast();
    void initializeUI_OtherStr();
    void initializeUI_BidiPrint();
    void initializeUI_Color();
    /// Reads the colour pop-up; where both are used, colour comes first.
    void initializeUI_RedLevel();

    // Enhance_Save: ask the host to mark what the control shows or, without the control, what is
    // marked or the default. Nothing happens without print settings or choices.
    void saveSetting_Halftone();
    void saveSetting_Brightness();
    void saveSetting_Contrast();
    void saveSetting_BidiPrint();
    /// Without the pop-up, what the print ticket says comes first; black and red is then announced.
    void saveSetting_Color();
    void saveSetting_RedLevel();

    // Enhance_IBAction: the user has changed a control.
    void changeHalftone(QWidget *sender);
    void changeBrightness(QWidget *sender);
    void changeContrast(QWidget *sender);
    void changeBidiPrint(QWidget *sender);
    void changeColor(QWidget *sender);
    void changeRedLevel(QWidget *sender);

protected:
    void fillOutlets(platform::Outlets &outlets) override;
    /// Puts the previews in place and closes the gap of a missing bi-directional option.
    void awakeFromNib() override;

private:
    friend class GraphicsPDETestAccess;

    // Only through PanelInspection.
    std::vector<PanelInspection::BoundOption> boundOptions() const override;
    Fields fields() const override;
    std::optional<QString> fileVersion() override;
    bool isVL() override;
    std::vector<Outlet> outlets() override;
    bool dropOutlet(const QString &name) override;
    bool isFormatter(const void *object) const override;
    std::vector<Preview> previews() const override;
    void watchPreviews(const std::function<void(const QString &name)> &told) override;
    bool run(const QString &name) override;
    void readMarked(qint32 bits) override;
    void show(qint32 bits) override;

    /// One of the six options, its fields, and how its selection is shown.
    struct BoundOption
    {
        const char *keyword;
        qint32 itemType;
        ppd_option_t *GraphicsPDE13_v300_::*option;
        std::shared_ptr<ChoiceList> GraphicsPDE13_v300_::*choices;
        PDEChoice *GraphicsPDE13_v300_::*selection;
        void (GraphicsPDE13_v300_::*show)();
    };
    static const std::array<BoundOption, 6> kBoundOptions;

    /// A setting that is a level: a slider with a number, scale labels and a title.
    struct Level
    {
        const char *keyword;
        QLatin1String titleKey;
        qint32 itemType;
        ppd_option_t *option;
        const ChoiceList *choices;
        QLabel *title, *minimum, *middle, *maximum;
        QSlider *slider;
        QLineEdit *text;
    };
    Level brightnessLevel() const;
    Level contrastLevel() const;
    Level redLevel() const;
    void chooseLevel(const Level &setting, qint32 level);
    void watchLevelEntries();
    void takeOverTypedLevels();
    bool usesUsb() const;
    void placeHalftoneView();
    void placeBriConView();
    void closeGapOfBiDiPrint();
    void redrawHalftoneView();
    void redrawBriConView();

    void showHalftone();
    void showBrightness();
    void showContrast();
    void showBiDiPrint();
    void showColor();
    void showRedLevel();
    void applyColorMode(bool blackRed);
    void setBlackRedMode(bool blackRed);
    void announceColorMode(bool blackRed);

    QString localized(const std::optional<QString> &key) const;
    std::optional<QString> titleInPPD(const char *option) const;
    QString labelTitle(const char *option, QLatin1String fallbackKey) const;
    QString summaryValue(size_t setting);
    void initializeLevel(const Level &level);
    void insertColorItem(int index);
    qint32 ticketColorMode() const;
    qint64 indexOfColorWithoutPopUp();
    qint64 indexOfMarkedOrDefault(const ChoiceList *choices, const char *keyword);
    void saveLevel(const Level &level);
    void commit(const ppd_option_t *option, const ChoiceList *choices, qint64 index);

    QPointer<QWidget> mSeparateLineGR;
    QPointer<QAbstractButton> mHalftoneDummyView, mBriConDummyView;
    QPointer<QLabel> mHalftoneTitle;
    QPointer<platform::RadioMatrix> mHalftoneRadio;
    QPointer<QLabel> HlftnColMinTx, HlftnColMidTx, HlftnColMaxTx;
    QPointer<QLabel> Hlftn2ColMinTx, Hlftn2ColMidTx, Hlftn2ColMaxTx;
    QPointer<QLabel> mBrightnessTitle, mContrustTitle;
    QPointer<QSlider> mBrightnessSlider, mContrustSlider;
    QPointer<QLineEdit> mBrightnessText, mContrustText;
    QPointer<QCheckBox> mBiDiPrintChkBx;
    /// Owned; the view that they stand in may go first.
    QPointer<HalftoneView13_v300_> mHalftoneView;
    QPointer<BriConView13_v300_> mBriConView;
    QPointer<QWidget> mBiDiPrintStrGR;
    QPointer<QLabel> mColorTitle;
    QPointer<QComboBox> mColorPUBtn;
    QPointer<QLabel> mRedLevelTitle;
    QPointer<QLineEdit> mRedLevelText;
    QPointer<QLabel> mRedLevelMinTx, mRedLevelMidTx, mRedLevelMaxTx;
    QPointer<QSlider> mRedLevelSlider;
    std::shared_ptr<ChoiceList> mHalftone_Choices, mBrightness_Choices, mContrast_Choices;
    std::shared_ptr<ChoiceList> mBiDiPrint_Choices, mColor_Choices, mRedLevel_Choices;
    ppd_option_t *mHalftone_Option = nullptr, *mBrightness_Option = nullptr;
    ppd_option_t *mContrast_Option = nullptr, *mBiDiPrint_Option = nullptr;
    ppd_option_t *mColor_Option = nullptr, *mRedLevel_Option = nullptr;
    /// Null or an element of the choice list of the same option.
    PDEChoice *mHalftone_Selection = nullptr, *mBrightness_Selection = nullptr;
    PDEChoice *mContrast_Selection = nullptr, *mBiDiPrint_Selection = nullptr;
    PDEChoice *mColor_Selection = nullptr, *mRedLevel_Selection = nullptr;
    quint8 usb_dec = 0;
    [[maybe_unused]] float choice_PaperSize = 0.0F;
    quint8 column_dec = 0, set_formatSetting = 0;
    /// Brightness, contrast, red level; null until there is a view.
    std::array<std::unique_ptr<graphics::LevelEntry>, 3> mLevelEntries;
};
