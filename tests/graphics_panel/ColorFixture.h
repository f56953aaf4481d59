// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "graphics_panel/PanelFixture.h"

#include "platform/Controls.h"

/// The panel with other colour choices than usual, and shorter words for its pop-up.
class ColorTest : public PanelTest
{
protected:
    void useColor(const QByteArray &defaultChoice,
                  const QList<QByteArray> &choices = {"CvMultiColorMonochrome/Mono",
                                                      "CvMultiColorBlackRed/Red"})
    {
        auto options = sixOptions();
        options[kColor].defaultChoice = defaultChoice;
        options[kColor].choices = choices;
        usePpd(options);
    }
    QComboBox *popUp() const { return control<QComboBox>("mColorPUBtn"); }
    bool redSliderEnabled() const { return control<QSlider>("mRedLevelSlider")->isEnabled(); }
    QStringList items() const
    {
        QStringList titles;
        for (int i = 0; i < popUp()->count(); ++i) {
            titles << popUp()->itemText(i);
        }
        return titles;
    }
    /// A panel without its pop-up, whose posts are recorded.
    void makeViewWithoutPopUp()
    {
        makeView({QStringLiteral("mColorPUBtn")});
        recordPosts();
    }
    std::vector<std::string> saveCalls()
    {
        takeCalls();
        panel->saveSetting_Color();
        std::vector<std::string> calls = takeCalls();
        std::erase(calls, "printSettings");
        std::erase(calls, "pageFormat");
        return calls;
    }
    void show(qint64 index)
    {
        GraphicsPDETestAccess(*panel).select("CvMultiColor", index);
        panel->updateUIItem(327680);
    }
};
