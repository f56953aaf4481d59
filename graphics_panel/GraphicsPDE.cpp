// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/GraphicsPDE.h"

#include "controls/InputControls.h"
#include "graphics_panel/GraphicsKeys.h"
#include "platform/Controls.h"
#include "platform/Geometry.h"
#include "ppd/PDEUtilsMethod.h"

using namespace graphics;

namespace {

/// The height of the bi-directional setting, in points.
constexpr double kBiDiPrintHeight = 30.0;

bool isLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool belongsToScheme(QChar c)
{
    return isLetter(c) || (c >= u'0' && c <= u'9') || c == u'+' || c == u'-' || c == u'.';
}

/// The scheme of a URI as it is spelled, empty without one.
QString schemeOf(const QString &uri)
{
    const QString scheme = uri.left(qMax<qsizetype>(uri.indexOf(u':'), 0));
    const bool valid = !scheme.isEmpty() && isLetter(scheme[0])
        && std::all_of(scheme.begin(), scheme.end(), belongsToScheme);
    return valid ? scheme : QString();
}

/// Puts `view` in the place of `placeholder`; without one the view gets no size and no place.
template <class View>
QPointer<View> placed(std::unique_ptr<View> view, QWidget *placeholder, const QRectF &frame)
{
    if (view) {
        platform::setFrame(view.get(), frame);
        QWidget *superview = placeholder ? placeholder->parentWidget() : nullptr;
        platform::replaceSubview(superview, placeholder, view.get());
    }
    return view.release();
}

void moveDown(QWidget *view)
{
    if (view) {
        // Meant: x comes from the zero point, so that the preview moves to the left edge as well.
        const double y = platform::frame(view).y() - kBiDiPrintHeight;
        platform::setFrameOrigin(view, {0.0, y});
    }
}

} // namespace

const std::array<GraphicsPDE13_v300_::BoundOption, 6> GraphicsPDE13_v300_::kBoundOptions = {{
    {kHalftoneOption, kHalftoneItem, &GraphicsPDE13_v300_::mHalftone_Option,
     &GraphicsPDE13_v300_::mHalftone_Choices, &GraphicsPDE13_v300_::mHalftone_Selection,
     &GraphicsPDE13_v300_::showHalftone},
    {kBrightnessOption, kBrightnessItem, &GraphicsPDE13_v300_::mBrightness_Option,
     &GraphicsPDE13_v300_::mBrightness_Choices, &GraphicsPDE13_v300_::mBrightness_Selection,
     &GraphicsPDE13_v300_::showBrightness},
    {kContrastOption, kContrastItem, &GraphicsPDE13_v300_::mContrast_Option,
     &GraphicsPDE13_v300_::mContrast_Choices, &GraphicsPDE13_v300_::mContrast_Selection,
     &GraphicsPDE13_v300_::showContrast},
    {kBiDiPrintOption, kBiDiPrintItem, &GraphicsPDE13_v300_::mBiDiPrint_Option,
     &GraphicsPDE13_v300_::mBiDiPrint_Choices, &GraphicsPDE13_v300_::mBiDiPrint_Selection,
     &GraphicsPDE13_v300_::showBiDiPrint},
    {kColorOption, kColorItem, &GraphicsPDE13_v300_::mColor_Option,
     &GraphicsPDE13_v300_::mColor_Choices, &GraphicsPDE13_v300_::mColor_Selection,
     &GraphicsPDE13_v300_::showColor},
    {kRedLevelOption, kRedLevelItem, &GraphicsPDE13_v300_::mRedLevel_Option,
     &GraphicsPDE13_v300_::mRedLevel_Choices, &GraphicsPDE13_v300_::mRedLevel_Selection,
     &GraphicsPDE13_v300_::showRedLevel},
}};

GraphicsPDE13_v300_::GraphicsPDE13_v300_() = default;

GraphicsPDE13_v300_::~GraphicsPDE13_v300_()
{
    // What the view does while it goes is nobody's typing.
    mLevelEntries = {};
    delete mHalftoneView;
    delete mBriConView;
    for (const BoundOption &bound : kBoundOptions) {
        (this->*bound.choices).reset();
    }
}

BasePDE13_v300_ *
GraphicsPDE13_v300_::initWithCallback(const std::shared_ptr<PDEPluginCallback13_v300_> &host,
                                      platform::Bundle *andBundle)
{
    // Meant: only asked whether it is there; the panel goes on as itself.
    if (!BasePDE13_v300_::initWithCallback(host, andBundle)) {
        return this;
    }
    column_dec = 0;
    set_formatSetting = 0;
    usb_dec = usesUsb() ? 1 : 0;
    for (const BoundOption &bound : kBoundOptions) {
        this->*bound.selection = nullptr;
    }
    for (const BoundOption &bound : kBoundOptions) {
        this->*bound.option = ppdFindOption(ppd, bound.keyword);
        this->*bound.choices = PDEUtilsMethod13::arrayFromPPDOption(this->*bound.option);
    }
    return this;
}

bool GraphicsPDE13_v300_::usesUsb() const
{
    const ::PMPrinter *device =
        pdePluginCallbackObject ? pdePluginCallbackObject->PMPrinter() : nullptr;
    const std::optional<QString> uri = device ? device->copyDeviceURI() : std::nullopt;
    // Meant: letter case counts.
    const QString scheme = schemeOf(uri.value_or(QString()));
    return scheme == QLatin1String("usb") || scheme == QLatin1String("CVKTUSB");
}

void GraphicsPDE13_v300_::fillOutlets(platform::Outlets &outlets)
{
    controls::registerInputControls();
    outlets.add("mSeparateLineGR", mSeparateLineGR);
    outlets.add("mHalftoneDummyView", mHalftoneDummyView);
    outlets.add("mBriConDummyView", mBriConDummyView);
    outlets.add("mHalftoneTitle", mHalftoneTitle);
    outlets.add("mHalftoneRadio", mHalftoneRadio);
    outlets.add("HlftnColMinTx", HlftnColMinTx);
    outlets.add("HlftnColMidTx", HlftnColMidTx);
    outlets.add("HlftnColMaxTx", HlftnColMaxTx);
    outlets.add("Hlftn2ColMinTx", Hlftn2ColMinTx);
    outlets.add("Hlftn2ColMidTx", Hlftn2ColMidTx);
    outlets.add("Hlftn2ColMaxTx", Hlftn2ColMaxTx);
    outlets.add("mBrightnessTitle", mBrightnessTitle);
    outlets.add("mContrustTitle", mContrustTitle);
    outlets.add("mBrightnessSlider", mBrightnessSlider);
    outlets.add("mContrustSlider", mContrustSlider);
    outlets.add("mBrightnessText", mBrightnessText);
    outlets.add("mContrustText", mContrustText);
    outlets.add("mBiDiPrintChkBx", mBiDiPrintChkBx);
    outlets.add("mBiDiPrintStrGR", mBiDiPrintStrGR);
    outlets.add("mColorTitle", mColorTitle);
    outlets.add("mColorPUBtn", mColorPUBtn);
    outlets.add("mRedLevelTitle", mRedLevelTitle);
    outlets.add("mRedLevelText", mRedLevelText);
    outlets.add("mRedLevelMinTx", mRedLevelMinTx);
    outlets.add("mRedLevelMidTx", mRedLevelMidTx);
    outlets.add("mRedLevelMaxTx", mRedLevelMaxTx);
    outlets.add("mRedLevelSlider", mRedLevelSlider);
    outlets.action("mHalftoneRadio", [this] { changeHalftone(mHalftoneRadio); });
    outlets.action("mBrightnessSlider", [this] { changeBrightness(mBrightnessSlider); });
    outlets.action("mContrustSlider", [this] { changeContrast(mContrustSlider); });
    outlets.action("mBiDiPrintChkBx", [this] { changeBidiPrint(mBiDiPrintChkBx); });
    outlets.action("mColorPUBtn", [this] { changeColor(mColorPUBtn); });
    outlets.action("mRedLevelSlider", [this] { changeRedLevel(mRedLevelSlider); });
}

void GraphicsPDE13_v300_::awakeFromNib()
{
    placeHalftoneView();
    placeBriConView();
    if (!mBiDiPrint_Choices) {
        closeGapOfBiDiPrint();
    }
    watchLevelEntries();
}

void GraphicsPDE13_v300_::placeHalftoneView()
{
    const QRectF frame = platform::frame(mHalftoneDummyView);
    mHalftoneView =
        placed(HalftoneView13_v300_::initWithFrame(frame, *nsPDEBundle), mHalftoneDummyView, frame);
    if (mHalftoneView) {
        mHalftoneView->setHlftnMatrix(mHalftoneRadio);
    }
}

void GraphicsPDE13_v300_::placeBriConView()
{
    const QRectF frame = platform::frame(mBriConDummyView);
    mBriConView =
        placed(BriConView13_v300_::initWithFrame(frame, *nsPDEBundle), mBriConDummyView, frame);
    if (mBriConView) {
        mBriConView->setBrightnessSldr(mBrightnessSlider);
        mBriConView->setContrastSldr(mContrustSlider);
        mBriConView->setBrightnessStr(mBrightnessText);
        mBriConView->setContrastStr(mContrustText);
    }
}

void GraphicsPDE13_v300_::closeGapOfBiDiPrint()
{
    platform::setHidden(mBiDiPrintChkBx, true);
    platform::setHidden(mBiDiPrintStrGR, true);
    const QRectF panel = platform::frame(kPDEView);
    setViewFrameSize({panel.width(), panel.height() - kBiDiPrintHeight});
    moveDown(mHalftoneView);
    moveDown(mBriConView);
}

void GraphicsPDE13_v300_::redrawHalftoneView()
{
    if (mHalftoneView) {
        mHalftoneView->setNeedsDisplay(true);
    }
}

void GraphicsPDE13_v300_::redrawBriConView()
{
    if (mBriConView) {
        mBriConView->setNeedsDisplay(true);
    }
}

std::shared_ptr<const QStringList> GraphicsPDE13_v300_::supportedPPDOptionKeys()
{
    if (!supportedOptions()) {
        setValuesToKey();
        const auto keys = std::make_shared<QStringList>();
        setSupportedOptions(keys);
        for (const BoundOption &bound : kBoundOptions) {
            if (this->*bound.option) {
                keys->append(QLatin1String(bound.keyword));
            }
        }
    }
    return supportedOptions();
}

void GraphicsPDE13_v300_::printWindowWillClose(bool /*userCancelled*/)
{ }

bool GraphicsPDE13_v300_::shouldPrint()
{
    takeOverTypedLevels();
    saveSetting_Color();
    for (const BoundOption &bound : kBoundOptions) {
        setDefaultChoices(this->*bound.option, (this->*bound.choices).get(), bound.keyword,
                          QLatin1String(bound.keyword));
    }
    return BasePDE13_v300_::shouldPrint();
}

bool GraphicsPDE13_v300_::shouldShowHelp()
{
    return false;
}

void GraphicsPDE13_v300_::initSetTitleTexts()
{ }

void GraphicsPDE13_v300_::initUI()
{
    if (set_formatSetting != 0) {
        return;
    }
    initializeUI_Halftone();
    initializeUI_Brightness();
    initializeUI_Contrast();
    initializeUI_OtherStr();
    initializeUI_BidiPrint();
    setValuesToKey();
    set_formatSetting = 1;
}

void GraphicsPDE13_v300_::getValuesFromKey()
{ }

void GraphicsPDE13_v300_::setValuesToKey()
{
    takeOverTypedLevels();
    saveSetting_Halftone();
    saveSetting_Brightness();
    saveSetting_Contrast();
    saveSetting_BidiPrint();
}

void GraphicsPDE13_v300_::setPDEItems()
{
    // Meant: colour mode and red level are not among the four.
    updateUIItem(kHalftoneItem);
    updateUIItem(kBrightnessItem);
    updateUIItem(kContrastItem);
    updateUIItem(kBiDiPrintItem);
}

void GraphicsPDE13_v300_::setPDEItems2()
{
    updateMarkedSelections(kHalftoneItem);
    updateMarkedSelections(kBrightnessItem);
    updateMarkedSelections(kContrastItem);
    updateMarkedSelections(kBiDiPrintItem);
}
