// SPDX-License-Identifier: Apache-2.0
#include "platform/Controls.h"
#include "platform/RadioMatrix.h"
#include "resources/LoadedPanel.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>

#include <gmock/gmock.h>

using platform::RadioMatrix;
using testing::IsEmpty;

namespace {

/// The row that goes when a printer has no bi-directional printing, in points.
constexpr int kBiDiRowHeight = 30;

class PanelLayout : public testing::Test
{
protected:
    void SetUp() override { ASSERT_NE(panel.view(), nullptr); }

    QList<QWidget *> children() const
    {
        return panel.view()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    }

    /// The names of the children that touch `place`.
    QStringList in(const QRect &place) const
    {
        QStringList names;
        for (const QWidget *child : children()) {
            if (child->geometry().intersects(place)) {
                names << child->objectName();
            }
        }
        names.sort();
        return names;
    }

    QRect frame(const char *name) const
    {
        return panel.find<QWidget>(QLatin1String(name))->geometry();
    }

    LoadedPanel panel{QStringLiteral("en")};
};

TEST_F(PanelLayout, HasNoLayoutThatWouldMoveControlsWhenOneIsHidden)
{
    EXPECT_EQ(panel.view()->layout(), nullptr);
    EXPECT_EQ(panel.view()->minimumSize(), QSize(0, 0));
    EXPECT_EQ(panel.view()->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

TEST_F(PanelLayout, PlaceholdersFitThePicturesWithAPointOnEachSide)
{
    EXPECT_EQ(frame("mHalftoneDummyView").size(), QSize(122, 92));
    EXPECT_EQ(frame("mBriConDummyView").size(), QSize(122, 92));
}

TEST_F(PanelLayout, PreviewsStandAloneInTheLeftColumn)
{
    const QRect upper = frame("mHalftoneDummyView");
    const QRect lower = frame("mBriConDummyView");
    EXPECT_EQ(upper.left(), lower.left());
    EXPECT_LT(upper.bottom(), lower.top());
    EXPECT_EQ(
        in(QRect(0, 0, upper.right() + 1, panel.view()->height())),
        QStringList({QStringLiteral("mBriConDummyView"), QStringLiteral("mHalftoneDummyView")}));
}

TEST_F(PanelLayout, LowestThirtyPointsHoldTheBiDirectionalRowAlone)
{
    const QRect row(0, panel.view()->height() - kBiDiRowHeight, panel.view()->width(),
                    kBiDiRowHeight);
    EXPECT_EQ(in(row),
              QStringList({QStringLiteral("mBiDiPrintChkBx"), QStringLiteral("mBiDiPrintStrGR")}));
    EXPECT_TRUE(row.contains(frame("mBiDiPrintChkBx")));
    EXPECT_TRUE(row.contains(frame("mBiDiPrintStrGR")));
}

TEST_F(PanelLayout, FramesLieInThePanelAndApart)
{
    QStringList astray;
    for (const QWidget *child : children()) {
        if (!panel.view()->rect().contains(child->geometry())
            || in(child->geometry()) != QStringList(child->objectName())) {
            astray << child->objectName();
        }
    }
    EXPECT_THAT(astray, IsEmpty());
    EXPECT_GT(children().size(), 20);
}

TEST_F(PanelLayout, ScaleLabelsStandUnderTheEndsAndTheMiddleOfTheirSlider)
{
    for (const auto &[slider, min, mid, max] :
         {std::tuple("mBrightnessSlider", "HlftnColMinTx", "HlftnColMidTx", "HlftnColMaxTx"),
          std::tuple("mContrustSlider", "Hlftn2ColMinTx", "Hlftn2ColMidTx", "Hlftn2ColMaxTx"),
          std::tuple("mRedLevelSlider", "mRedLevelMinTx", "mRedLevelMidTx", "mRedLevelMaxTx")}) {
        const auto alignment = [this](const char *name) {
            return panel.find<QLabel>(QLatin1String(name))->alignment();
        };
        EXPECT_EQ(frame(min).left(), frame(slider).left());
        EXPECT_EQ(frame(mid).center().x(), frame(slider).center().x());
        EXPECT_EQ(frame(max).right(), frame(slider).right());
        EXPECT_TRUE(alignment(min) & Qt::AlignLeft);
        EXPECT_TRUE(alignment(mid) & Qt::AlignHCenter);
        EXPECT_TRUE(alignment(max) & Qt::AlignRight);
        EXPECT_EQ(frame(min).top(), frame(slider).bottom() + 1);
    }
}

TEST_F(PanelLayout, TwinSlidersHaveOneShape)
{
    const auto shape = [this](const char *slider) {
        return std::tuple(frame(slider).left(), frame(slider).width(), frame(slider).height());
    };
    EXPECT_EQ(shape("mBrightnessSlider"), shape("mContrustSlider"));
    EXPECT_EQ(shape("mBrightnessSlider"), shape("mRedLevelSlider"));
    EXPECT_EQ(frame("mBrightnessText").right(), frame("mContrustText").right());
    EXPECT_EQ(frame("mBrightnessText").right(), frame("mRedLevelText").right());
}

/// Whether texts fit in a font as large as desktops commonly use, in the longest translation.
class PanelFit : public testing::TestWithParam<std::string>
{
protected:
    PanelFit()
        : panel(QString::fromStdString(GetParam()))
    { }

    void SetUp() override
    {
        ASSERT_NE(panel.view(), nullptr);
        QFont font = panel.view()->font();
        font.setPointSizeF(10.0);
        panel.view()->setFont(font);
        panel.view()->ensurePolished();
    }

    /// What `text` takes; a machine without Japanese glyphs measures one em for each.
    static QSize sizeOf(const QString &text, const QWidget *control)
    {
        const QFontMetrics metrics(control->font());
        const int em = QFontInfo(control->font()).pixelSize();
        int width = 0;
        bool wide = false;
        for (const QChar letter : text) {
            wide = wide || letter.unicode() >= 0x2E80;
            width +=
                std::max(metrics.horizontalAdvance(letter), letter.unicode() >= 0x2E80 ? em : 0);
        }
        // Fonts with these glyphs have lines half as high again as the em.
        return QSize(width, std::max(metrics.height(), wide ? em * 3 / 2 : 0));
    }

    /// Notes `text` when `control` has not the room for it and `extra` beside it.
    void check(const QWidget *control, const QString &text, int extra = 0)
    {
        const QSize needed = sizeOf(text, control);
        if (needed.width() + extra > control->width() || needed.height() > control->height()) {
            clipped << QStringLiteral("%1: %2").arg(LoadedPanel::nameOf(control), text);
        }
    }

    void checkHint(const QWidget *control)
    {
        const QSize needed = control->sizeHint();
        if (needed.width() > control->width() || needed.height() > control->height()) {
            clipped << LoadedPanel::nameOf(control) + QStringLiteral(" as a whole");
        }
    }

    QString text(const char *key) const
    {
        return panel.bundle().localizedString(QLatin1String(key));
    }

    LoadedPanel panel;
    QStringList clipped;
};

INSTANTIATE_TEST_SUITE_P(Languages, PanelFit, testing::ValuesIn(languages()), languageOf);

TEST_P(PanelFit, LabelsOfTheDescriptionAreNotClipped)
{
    const auto labels = panel.view()->findChildren<QLabel *>();
    ASSERT_EQ(labels.size(), 15);
    for (const QLabel *label : labels) {
        check(label, platform::stringValue(label));
        checkHint(label);
    }
    EXPECT_THAT(clipped, IsEmpty());
}

TEST_P(PanelFit, TitlesAndScalesThatThePanelSetsAreNotClipped)
{
    for (const TextPlace &place : titlePlaces()) {
        for (const QString &key : place.keys) {
            check(panel.find<QLabel>(place.control), panel.bundle().localizedString(key));
        }
    }
    for (const char *label : {"HlftnColMinTx", "Hlftn2ColMidTx", "mRedLevelMaxTx"}) {
        for (const char *key : {"HC_MinValue", "HC_MidValue", "HC_MaxValue"}) {
            check(panel.find<QLabel>(QLatin1String(label)), text(key));
        }
    }
    EXPECT_THAT(clipped, IsEmpty());
}

TEST_P(PanelFit, RadioRowsAreNotClipped)
{
    auto *matrix = panel.find<RadioMatrix>(QStringLiteral("mHalftoneRadio"));
    matrix->grab(); // a widget that was never shown gets its resize event when it is drawn
    const auto rows = matrix->findChildren<QRadioButton *>();
    ASSERT_EQ(rows.size(), 3);
    const char *keys[] = {"HC_Binary", "HC_Dither", "HC_ErrorDiffusion"};
    for (int row = 0; row < 3; ++row) {
        matrix->setTitle(row, text(keys[row]));
        checkHint(rows.at(row));
        check(rows.at(row), text(keys[row]), 24);
    }
    EXPECT_THAT(clipped, IsEmpty());
}

TEST_P(PanelFit, TheCheckBoxIsNotClipped)
{
    auto *box = panel.find<QCheckBox>(QStringLiteral("mBiDiPrintChkBx"));
    for (const char *key : {"RS_BiDiPrint", "Bi-directional printing"}) {
        platform::setButtonTitle(box, text(key));
        checkHint(box);
        check(box, text(key), 24);
    }
    EXPECT_THAT(clipped, IsEmpty());
}

TEST_P(PanelFit, ThePopUpIsNotClipped)
{
    const auto *popUp = panel.find<QComboBox>(QStringLiteral("mColorPUBtn"));
    checkHint(popUp);
    for (const char *key : {"HC_Monochrome", "HC_BlackRed"}) {
        check(popUp, text(key), 36);
    }
    EXPECT_THAT(clipped, IsEmpty());
}

TEST_P(PanelFit, NumbersAndSlidersHaveTheRoomTheyAskFor)
{
    for (const QLineEdit *number : panel.view()->findChildren<QLineEdit *>()) {
        check(number, QStringLiteral("-20"), 8);
        EXPECT_GE(number->height(), number->minimumSizeHint().height());
    }
    for (const QSlider *slider : panel.view()->findChildren<QSlider *>()) {
        EXPECT_GE(slider->height(), slider->sizeHint().height());
    }
    EXPECT_THAT(clipped, IsEmpty());
}

} // namespace
