// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/GraphicsPDE.h"

#include "graphics_panel/GraphicsKeys.h"

using namespace graphics;

GraphicsPDE13_v300_::Level GraphicsPDE13_v300_::brightnessLevel() const
{
    return {kBrightnessOption,
            kBrightnessKey,
            kBrightnessItem,
            mBrightness_Option,
            mBrightness_Choices.get(),
            mBrightnessTitle,
            HlftnColMinTx,
            HlftnColMidTx,
            HlftnColMaxTx,
            mBrightnessSlider,
            mBrightnessText};
}

GraphicsPDE13_v300_::Level GraphicsPDE13_v300_::contrastLevel() const
{
    return {kContrastOption,         kContrastKey,    kContrastItem,  mContrast_Option,
            mContrast_Choices.get(), mContrustTitle,  Hlftn2ColMinTx, Hlftn2ColMidTx,
            Hlftn2ColMaxTx,          mContrustSlider, mContrustText};
}

GraphicsPDE13_v300_::Level GraphicsPDE13_v300_::redLevel() const
{
    return {kRedLevelOption,         kRedLevelKey,    kRedLevelItem,  mRedLevel_Option,
            mRedLevel_Choices.get(), mRedLevelTitle,  mRedLevelMinTx, mRedLevelMidTx,
            mRedLevelMaxTx,          mRedLevelSlider, mRedLevelText};
}

void GraphicsPDE13_v300_::chooseLevel(const Level &setting, qint32 level)
{
    selectionForItem(indexOfLevel(level), QLatin1String(setting.keyword), setting.choices,
                     setting.itemType);
    updateUIItem(setting.itemType);
}

void GraphicsPDE13_v300_::watchLevelEntries()
{
    using View = BriConView13_v300_;
    const auto entry = [this](const QPointer<QLineEdit> &text, const QPointer<QSlider> &slider,
                              Level (GraphicsPDE13_v300_::*setting)() const,
                              void (View::*setPreviewText)(QLineEdit *)) {
        const auto commit = [this, setting](qint32 level) {
            chooseLevel((this->*setting)(), level);
        };
        // A preview that is drawn would write over what is being typed, so it is without the field
        // until that is taken over.
        const auto typing = [this, setPreviewText, field = QPointer(text)](bool isTyping) {
            if (setPreviewText && mBriConView) {
                (mBriConView->*setPreviewText)(isTyping ? nullptr : field.data());
            }
        };
        const QPointer<QWidget> preview = setPreviewText ? mBriConView.data() : nullptr;
        const auto translated = [this](QLatin1String key) { return localized(key); };
        return std::make_unique<LevelEntry>(
            LevelEntry::Panel{&text, &slider, commit, preview, typing, translated});
    };
    using Panel = GraphicsPDE13_v300_;
    mLevelEntries[0] =
        entry(mBrightnessText, mBrightnessSlider, &Panel::brightnessLevel, &View::setBrightnessStr);
    mLevelEntries[1] =
        entry(mContrustText, mContrustSlider, &Panel::contrastLevel, &View::setContrastStr);
    mLevelEntries[2] = entry(mRedLevelText, mRedLevelSlider, &Panel::redLevel, nullptr);
}

void GraphicsPDE13_v300_::takeOverTypedLevels()
{
    for (const auto &entry : mLevelEntries) {
        if (entry) {
            entry->takeOver();
        }
    }
}

void GraphicsPDE13_v300_::willShow()
{
    takeOverTypedLevels();
    BasePDE13_v300_::willShow();
}

bool GraphicsPDE13_v300_::shouldHide()
{
    takeOverTypedLevels();
    return BasePDE13_v300_::shouldHide();
}
