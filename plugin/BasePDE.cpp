// SPDX-License-Identifier: Apache-2.0
#include "plugin/BasePDE.h"

#include "platform/Bundle.h"
#include "platform/Geometry.h"
#include "platform/NotificationCenter.h"
#include "platform/TextEncodings.h"
#include "platform/ViewHost.h"
#include "ppd/PDEUtilsMethod.h"

#include <algorithm>

namespace {

constexpr QLatin1String kInterfaceDescription("GraphicsPDE");
constexpr QLatin1String kPanelNameKey("AD_PANEL_NAME");
constexpr QLatin1String kPanelViewDidResize("panelViewDidResize");

/// How much higher than the panel the dialog must be to have room for it.
constexpr double kDialogMargin = 96.0;

/// Bytes of the device URI with its terminator.
constexpr qsizetype kDeviceURIRoom = 255;

platform::NotificationObject senderFor(const QWidget *view)
{
    // Without a view anybody's notification is meant.
    return view ? platform::NotificationObject(static_cast<const void *>(view))
                : platform::NotificationObject();
}

} // namespace

BasePDE13_v300_::BasePDE13_v300_() = default;

BasePDE13_v300_::~BasePDE13_v300_()
{
    platform::NotificationCenter::defaultCenter().removeObserver(this);
    mOutlets.clear();
    delete kPDEView;
    mSupportedOptions.reset();
    thePDEName.reset();
    pdePluginCallbackObject.reset();
    nsPDEBundle = nullptr;
}

bool BasePDE13_v300_::init()
{
    return true;
}

BasePDE13_v300_ *
BasePDE13_v300_::initWithCallback(const std::shared_ptr<PDEPluginCallback13_v300_> &host,
                                  platform::Bundle *andBundle)
{
    if (!init()) {
        return nullptr;
    }
    mSupportedOptions.reset();
    thePDEName.reset();
    ppd = nullptr;
    mImageModeFlag = 0;
    nsPDEBundle = andBundle;
    pdePluginCallbackObject = host;
    if (host) {
        printSession = host->printSession();
        pmPrintSettings = host->printSettings();
        // Meant: the same settings, asked for once more.
        printSettings = host->printSettings();
        formatSettings = host->pageFormat();
        printer = host->PMPrinter();
        ppd = host->ppdFile();
    }
    takeDeviceURI();
    return this;
}

void BasePDE13_v300_::takeDeviceURI()
{
    deviceURI.fill('\0');
    const std::optional<QString> uri = printer ? printer->copyDeviceURI() : std::nullopt;
    const std::optional<QByteArray> bytes = uri ? platform::encodeSystem(*uri) : std::nullopt;
    // Meant: a URI that does not fit is left out, not cut.
    if (bytes && bytes->size() < kDeviceURIRoom) {
        std::copy(bytes->begin(), bytes->end(), deviceURI.begin());
    }
}

void BasePDE13_v300_::finalize()
{ }

QWidget *BasePDE13_v300_::panelView()
{
    if (!kPDEView && nsPDEBundle) {
        mOutlets.clear();
        fillOutlets(mOutlets);
        kPDEView = platform::ViewHost::current()
                       .loadNibNamed(kInterfaceDescription, *nsPDEBundle, mOutlets)
                       .release();
        if (kPDEView) {
            awakeFromNib();
        }
    }
    return kPDEView;
}

QString BasePDE13_v300_::panelName()
{
    if (!thePDEName && nsPDEBundle) {
        thePDEName = nsPDEBundle->localizedString(QString(kPanelNameKey));
    }
    return thePDEName.value_or(QString());
}

QString BasePDE13_v300_::panelKind() const
{
    return GraphicsPanelKind;
}

std::shared_ptr<const QStringList> BasePDE13_v300_::supportedPPDOptionKeys()
{
    setValuesToKey();
    return nullptr;
}

void BasePDE13_v300_::printWindowWillClose(bool)
{ }

void BasePDE13_v300_::willShow()
{
    initSetTitleTexts();
    initUI();
    updateUI();
}

bool BasePDE13_v300_::shouldHide()
{
    return true;
}

bool BasePDE13_v300_::shouldPrint()
{
    return true;
}

bool BasePDE13_v300_::shouldShowHelp()
{
    return false;
}

void BasePDE13_v300_::PPDOptionKeyValueDidChange(const std::optional<QString> &,
                                                 const std::optional<QString> &)
{ }

bool BasePDE13_v300_::restoreValuesAndReturnError(QString *)
{
    setPDEItems2();
    updateUI();
    return true;
}

bool BasePDE13_v300_::saveValuesAndReturnError(QString *)
{
    setValuesToKey();
    return true;
}

void BasePDE13_v300_::updateUI()
{
    setPDEItems();
}

std::optional<QVariantMap> BasePDE13_v300_::summaryInfo()
{
    return std::nullopt;
}

void BasePDE13_v300_::initSetTitleTexts()
{ }

void BasePDE13_v300_::initUI()
{ }

void BasePDE13_v300_::getValuesFromKey()
{ }

void BasePDE13_v300_::setValuesToKey()
{ }

void BasePDE13_v300_::setPDEItems()
{ }

void BasePDE13_v300_::setPDEItems2()
{ }

void BasePDE13_v300_::updateUIItem(qint32)
{ }

std::optional<QString> BasePDE13_v300_::fileVerString()
{
    return PDEUtilsMethod13::ppdAttrValStr(ppd, "FileVersion");
}

bool BasePDE13_v300_::isVLPrinter()
{
    return PDEUtilsMethod13::ppdAttrValStr(ppd, "CvTapeType") == QStringLiteral("VL");
}

void BasePDE13_v300_::setSupportedOptions(const std::shared_ptr<QStringList> &options)
{
    mSupportedOptions = options;
}

std::shared_ptr<QStringList> BasePDE13_v300_::supportedOptions()
{
    return mSupportedOptions;
}

qint64 BasePDE13_v300_::indexForSummary(qint32)
{
    return 0;
}

void BasePDE13_v300_::setViewFrameSize(const QSizeF &size)
{
    if (!pdePluginCallbackObject
        || !pdePluginCallbackObject->respondsToSelector(kPanelViewDidResize)) {
        return;
    }
    platform::setFrameSize(kPDEView, size);
    const std::optional<double> dialogHeight = platform::ViewHost::current().keyWindowHeight();
    if (!dialogHeight) {
        return;
    }
    if (*dialogHeight > size.height() + kDialogMargin) {
        pdePluginCallbackObject->panelViewDidResize();
    } else {
        platform::NotificationCenter::defaultCenter().addObserver(
            this,
            [this](const platform::Notification &notification) { dialogDidExpand(notification); },
            QString(NSViewDidUpdateTrackingAreasNotification), senderFor(kPDEView));
    }
}

void BasePDE13_v300_::dialogDidExpand(const platform::Notification &)
{
    platform::NotificationCenter::defaultCenter().removeObserver(
        this, QString(NSViewDidUpdateTrackingAreasNotification), senderFor(kPDEView));
    if (pdePluginCallbackObject) {
        pdePluginCallbackObject->panelViewDidResize();
    }
}

qint16 BasePDE13_v300_::imageModeFlag()
{
    return mImageModeFlag;
}

void BasePDE13_v300_::fillOutlets(platform::Outlets &)
{ }

void BasePDE13_v300_::awakeFromNib()
{ }
