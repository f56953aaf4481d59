// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/PanelUi.h"

#include <QRect>

namespace {

struct Control
{
    const char *className;
    const char *name;
    /// From the top left corner.
    QRect place;
    const char *properties = "";
};

constexpr auto kLevel = "<property name='minimum'><number>-20</number></property>"
                        "<property name='maximum'><number>20</number></property>";
constexpr auto kNumber = "<property name='text'><string>0</string></property>";
constexpr auto kRows = "<property name='rows'><stringlist><string>a</string><string>b</string>"
                       "<string>c</string></stringlist></property>";
constexpr auto kItems = "<item><property name='text'><string>nib0</string></property></item>"
                        "<item><property name='text'><string>nib1</string></property></item>";
constexpr auto kTitle = "<property name='text'><string>nib</string></property>";

const Control kControls[] = {
    {"QWidget", "mSeparateLineGR", {0, 0, 500, 2}},
    {"QPushButton", "mHalftoneDummyView", {20, 30, 80, 60}},
    {"QPushButton", "mBriConDummyView", {20, 100, 60, 50}},
    {"QLabel", "mHalftoneTitle", {120, 10, 200, 20}, kTitle},
    {"platform::RadioMatrix", "mHalftoneRadio", {120, 30, 200, 60}, kRows},
    {"QLabel", "HlftnColMinTx", {120, 150, 40, 20}, kTitle},
    {"QLabel", "HlftnColMidTx", {200, 150, 40, 20}, kTitle},
    {"QLabel", "HlftnColMaxTx", {280, 150, 40, 20}, kTitle},
    {"QLabel", "Hlftn2ColMinTx", {120, 210, 40, 20}, kTitle},
    {"QLabel", "Hlftn2ColMidTx", {200, 210, 40, 20}, kTitle},
    {"QLabel", "Hlftn2ColMaxTx", {280, 210, 40, 20}, kTitle},
    {"QLabel", "mBrightnessTitle", {120, 100, 200, 20}, kTitle},
    {"QLabel", "mContrustTitle", {120, 170, 200, 20}, kTitle},
    {"QSlider", "mBrightnessSlider", {120, 120, 200, 20}, kLevel},
    {"QSlider", "mContrustSlider", {120, 190, 200, 20}, kLevel},
    {"PDETextField13_v300_", "mBrightnessText", {340, 120, 40, 20}, kNumber},
    {"PDETextField13_v300_", "mContrustText", {340, 190, 40, 20}, kNumber},
    {"QLabel", "mColorTitle", {120, 240, 200, 20}, kTitle},
    {"QComboBox", "mColorPUBtn", {120, 260, 200, 24}, kItems},
    {"QLabel", "mRedLevelTitle", {120, 290, 200, 20}, kTitle},
    {"QSlider", "mRedLevelSlider", {120, 310, 200, 20}, kLevel},
    {"PDETextField13_v300_", "mRedLevelText", {340, 310, 40, 20}, kNumber},
    {"QLabel", "mRedLevelMinTx", {120, 335, 40, 20}, kTitle},
    {"QLabel", "mRedLevelMidTx", {200, 335, 40, 20}, kTitle},
    {"QLabel", "mRedLevelMaxTx", {280, 335, 40, 20}, kTitle},
    {"QLabel", "mBiDiPrintStrGR", {20, 370, 100, 20}, kTitle},
    {"QCheckBox", "mBiDiPrintChkBx", {120, 370, 200, 20}, kTitle},
};

QByteArray geometry(const QRect &place)
{
    return "<property name='geometry'><rect><x>" + QByteArray::number(place.x()) + "</x><y>"
        + QByteArray::number(place.y()) + "</y><width>" + QByteArray::number(place.width())
        + "</width><height>" + QByteArray::number(place.height()) + "</height></rect></property>";
}

} // namespace

QByteArray interfaceDescription(const QStringList &missing)
{
    QByteArray text = "<ui version='4.0'><class>GraphicsPDE</class>"
                      "<widget class='QWidget' name='kPDEView'>"
        + geometry({0, 0, 500, 400});
    for (const Control &control : kControls) {
        if (!missing.contains(QLatin1String(control.name))) {
            text += QByteArray("<widget class='") + control.className + "' name='" + control.name
                + "'>" + geometry(control.place) + control.properties + "</widget>";
        }
    }
    return text
        + "</widget><customwidgets><customwidget><class>platform::RadioMatrix</class>"
          "<extends>QWidget</extends></customwidget><customwidget>"
          "<class>PDETextField13_v300_</class><extends>QLineEdit</extends></customwidget>"
          "</customwidgets></ui>";
}
