// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/GraphicsPDE.h"

#include "controls/PDETextField.h"
#include "platform/Outlets.h"

#include <algorithm>

namespace {

using Operation = void (GraphicsPDE13_v300_::*)();

struct NamedOperation
{
    QLatin1String name;
    Operation run;
};

constexpr NamedOperation kOperations[] = {
    {QLatin1String("updateUI"), &GraphicsPDE13_v300_::updateUI},
    {QLatin1String("initUI"), &GraphicsPDE13_v300_::initUI},
    {QLatin1String("setValuesToKey"), &GraphicsPDE13_v300_::setValuesToKey},
    {QLatin1String("initializeUI_Halftone"), &GraphicsPDE13_v300_::initializeUI_Halftone},
    {QLatin1String("initializeUI_Brightness"), &GraphicsPDE13_v300_::initializeUI_Brightness},
    {QLatin1String("initializeUI_Contrast"), &GraphicsPDE13_v300_::initializeUI_Contrast},
    {QLatin1String("initializeUI_OtherStr"), &GraphicsPDE13_v300_::initializeUI_OtherStr},
    {QLatin1String("initializeUI_BidiPrint"), &GraphicsPDE13_v300_::initializeUI_BidiPrint},
    {QLatin1String("initializeUI_Color"), &GraphicsPDE13_v300_::initializeUI_Color},
    {QLatin1String("initializeUI_RedLevel"), &GraphicsPDE13_v300_::initializeUI_RedLevel},
    {QLatin1String("saveSetting_Halftone"), &GraphicsPDE13_v300_::saveSetting_Halftone},
    {QLatin1String("saveSetting_Brightness"), &GraphicsPDE13_v300_::saveSetting_Brightness},
    {QLatin1String("saveSetting_Contrast"), &GraphicsPDE13_v300_::saveSetting_Contrast},
    {QLatin1String("saveSetting_BidiPrint"), &GraphicsPDE13_v300_::saveSetting_BidiPrint},
    {QLatin1String("saveSetting_Color"), &GraphicsPDE13_v300_::saveSetting_Color},
    {QLatin1String("saveSetting_RedLevel"), &GraphicsPDE13_v300_::saveSetting_RedLevel},
};

bool isControl(const QString &outlet)
{
    return outlet != QLatin1String("mSeparateLineGR")
        && outlet != QLatin1String("mHalftoneDummyView")
        && outlet != QLatin1String("mBriConDummyView");
}

std::optional<qint64> placeIn(const ChoiceList *choices, const PDEChoice *selection)
{
    const auto end = choices ? choices->end() : ChoiceList::const_iterator();
    const auto begin = choices ? choices->begin() : end;
    const auto found = std::find_if(
        begin, end, [selection](const auto &choice) { return choice.get() == selection; });
    return found == end ? std::nullopt : std::optional<qint64>(found - begin);
}

} // namespace

std::vector<PanelInspection::BoundOption> GraphicsPDE13_v300_::boundOptions() const
{
    std::vector<PanelInspection::BoundOption> options;
    for (const BoundOption &bound : kBoundOptions) {
        const ChoiceList *choices = (this->*bound.choices).get();
        options.push_back(
            {QLatin1String(bound.keyword), placeIn(choices, this->*bound.selection),
             choices ? std::optional<qint64>(qint64(choices->size())) : std::nullopt});
    }
    return options;
}

PanelInspection::Fields GraphicsPDE13_v300_::fields() const
{
    return {mImageModeFlag, set_formatSetting, usb_dec,
            mSupportedOptions ? std::optional<QStringList>(*mSupportedOptions) : std::nullopt};
}

std::optional<QString> GraphicsPDE13_v300_::fileVersion()
{
    return fileVerString();
}

bool GraphicsPDE13_v300_::isVL()
{
    return isVLPrinter();
}

std::vector<PanelInspection::Outlet> GraphicsPDE13_v300_::outlets()
{
    // Names and fields are the same before the view is loaded, when mOutlets knows none yet.
    platform::Outlets named;
    fillOutlets(named);
    std::vector<PanelInspection::Outlet> outlets;
    for (const auto &[name, view] : named.fields()) {
        outlets.push_back({name, view, isControl(name)});
    }
    return outlets;
}

bool GraphicsPDE13_v300_::dropOutlet(const QString &name)
{
    const std::vector<Outlet> all = outlets();
    const bool known = std::any_of(all.begin(), all.end(),
                                   [&name](const Outlet &outlet) { return outlet.name == name; });
    if (known) {
        mOutlets.drop(name);
    }
    return known;
}

bool GraphicsPDE13_v300_::isFormatter(const void *object) const
{
    const auto fields = kPDEView ? kPDEView->findChildren<PDETextField13_v300_ *>()
                                 : QList<PDETextField13_v300_ *>();
    return object && std::any_of(fields.begin(), fields.end(), [object](const auto *field) {
               return object == static_cast<const void *>(field->formatter().get());
           });
}

std::vector<PanelInspection::Preview> GraphicsPDE13_v300_::previews() const
{
    return {{QStringLiteral("mHalftoneView"), mHalftoneView},
            {QStringLiteral("mBriConView"), mBriConView}};
}

void GraphicsPDE13_v300_::watchPreviews(const std::function<void(const QString &name)> &told)
{
    if (mHalftoneView) {
        QObject::connect(mHalftoneView, &HalftoneView13_v300_::displayRequested, mHalftoneView,
                         [told] { told(QStringLiteral("mHalftoneView")); });
    }
    if (mBriConView) {
        QObject::connect(mBriConView, &BriConView13_v300_::displayRequested, mBriConView,
                         [told] { told(QStringLiteral("mBriConView")); });
    }
}

bool GraphicsPDE13_v300_::run(const QString &name)
{
    const auto found =
        std::find_if(std::begin(kOperations), std::end(kOperations),
                     [&name](const NamedOperation &operation) { return operation.name == name; });
    if (found == std::end(kOperations)) {
        return false;
    }
    (this->*found->run)();
    return true;
}

void GraphicsPDE13_v300_::readMarked(qint32 bits)
{
    updateMarkedSelections(bits);
}

void GraphicsPDE13_v300_::show(qint32 bits)
{
    updateUIItem(bits);
}
