// SPDX-License-Identifier: Apache-2.0
#include "preview/BriConView.h"

#include "tests/preview/PreviewFixture.h"

#include <QFile>
#include <QLocale>
#include <QSignalSpy>

#include <limits>
#include <ostream>

namespace {

class BriConView : public PreviewFixture
{
protected:
    BriConView()
    {
        for (QSlider *slider : {&brightness, &contrast}) {
            slider->setRange(-20, 20);
        }
    }

    void writeEffect(QSize size, QColor colour)
    {
        writeResource(QStringLiteral("Effect.png"), plain(size, colour));
    }

    void makeView(double width, double height)
    {
        view = BriConView13_v300_::initWithFrame(QRectF(20, 250, width, height), bundle);
        view->setBrightnessSldr(&brightness);
        view->setContrastSldr(&contrast);
        view->setBrightnessStr(&brightnessText);
        view->setContrastStr(&contrastText);
    }

    /// The colour that a sample of one colour is drawn in.
    QRgb drawnColour(QColor sample, int brightnessLevel, int contrastLevel)
    {
        writeEffect(QSize(4, 4), sample);
        makeView(6, 6);
        brightness.setValue(brightnessLevel);
        contrast.setValue(contrastLevel);
        return drawn(*view).pixel(2, 2);
    }

    QSlider brightness;
    QSlider contrast;
    QLineEdit brightnessText;
    QLineEdit contrastText;
    std::unique_ptr<BriConView13_v300_> view;
};

TEST_F(BriConView, StartsWithoutControlsAndIsNotFlipped)
{
    view = BriConView13_v300_::initWithFrame(QRectF(20, 250, 122, 92), bundle);
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->brightnessSldr(), nullptr);
    EXPECT_EQ(view->contrastSldr(), nullptr);
    EXPECT_EQ(view->brightnessStr(), nullptr);
    EXPECT_EQ(view->contrastStr(), nullptr);
    EXPECT_FALSE(view->isFlipped());
    EXPECT_EQ(view->size(), QSize(122, 92));
}

TEST_F(BriConView, SidesBelowZeroOrBeyondAllBoundsMakeAnEmptyOrALargeView)
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(BriConView13_v300_::initWithFrame(QRectF(0, 0, -5, 3), bundle)->size(), QSize(0, 3));
    EXPECT_EQ(BriConView13_v300_::initWithFrame(QRectF(0, 0, none, 3), bundle)->size(),
              QSize(0, 3));
    EXPECT_EQ(BriConView13_v300_::initWithFrame(QRectF(0, 0, 1e300, 3), bundle)->size(),
              QSize(QWIDGETSIZE_MAX, 3));
}

TEST_F(BriConView, AccessorsReturnTheControlsThatWereSet)
{
    makeView(10, 10);
    EXPECT_EQ(view->brightnessSldr(), &brightness);
    EXPECT_EQ(view->contrastSldr(), &contrast);
    EXPECT_EQ(view->brightnessStr(), &brightnessText);
    EXPECT_EQ(view->contrastStr(), &contrastText);
}

TEST_F(BriConView, ControlsAreNotOwned)
{
    QPointer<QSlider> slider = new QSlider;
    QPointer<QLineEdit> field = new QLineEdit;
    makeView(10, 10);
    view->setBrightnessSldr(slider);
    view->setContrastStr(field);
    view.reset();
    EXPECT_FALSE(slider.isNull());
    EXPECT_FALSE(field.isNull());
    delete slider;
    delete field;
}

TEST_F(BriConView, ControlsThatAreGoneReadAsMissing)
{
    makeView(10, 10);
    {
        QSlider shortLived;
        view->setBrightnessSldr(&shortLived);
        shortLived.setValue(9);
    }
    EXPECT_EQ(view->brightnessSldr(), nullptr);
    EXPECT_EQ(view->inputBriValue(), 0.0F);
}

TEST_F(BriConView, BrightnessIsTheLevelByForty)
{
    makeView(10, 10);
    EXPECT_EQ(view->inputBriValue(), 0.0F);
    brightness.setValue(20);
    EXPECT_FLOAT_EQ(view->inputBriValue(), 0.5F);
    brightness.setValue(-20);
    EXPECT_FLOAT_EQ(view->inputBriValue(), -0.5F);
    brightness.setValue(7);
    EXPECT_FLOAT_EQ(view->inputBriValue(), 0.175F);
}

TEST_F(BriConView, ContrastIsOnePlusTheLevelByForty)
{
    makeView(10, 10);
    EXPECT_EQ(view->inputCntstValue(), 1.0F);
    contrast.setValue(20);
    EXPECT_FLOAT_EQ(view->inputCntstValue(), 1.5F);
    contrast.setValue(-20);
    EXPECT_FLOAT_EQ(view->inputCntstValue(), 0.5F);
    contrast.setValue(7);
    EXPECT_FLOAT_EQ(view->inputCntstValue(), 1.175F);
}

TEST_F(BriConView, SlidersWiderThanTheLevelsAreCut)
{
    makeView(10, 10);
    brightness.setRange(-99, 99);
    contrast.setRange(-99, 99);
    brightness.setValue(30);
    contrast.setValue(30);
    EXPECT_EQ(view->inputBriValue(), 0.5F);
    EXPECT_EQ(view->inputCntstValue(), 1.5F);
    brightness.setValue(-30);
    contrast.setValue(-30);
    EXPECT_EQ(view->inputBriValue(), -0.5F);
    EXPECT_EQ(view->inputCntstValue(), 0.5F);
}

TEST_F(BriConView, MissingSlidersGiveTheNeutralValues)
{
    makeView(10, 10);
    view->setBrightnessSldr(nullptr);
    view->setContrastSldr(nullptr);
    EXPECT_EQ(view->inputBriValue(), 0.0F);
    EXPECT_EQ(view->inputCntstValue(), 1.0F);
}

TEST_F(BriConView, SampleIsDrawnOnceOnePointInAtItsOwnSize)
{
    writeEffect(QSize(40, 30), Qt::blue);
    makeView(100, 80);
    const QImage picture = drawn(*view);
    EXPECT_EQ(drawnRect(picture), QRect(1, 49, 40, 30));
    EXPECT_EQ(picture.pixel(1, 49), qRgb(0, 0, 255));
    EXPECT_EQ(picture.pixel(40, 78), qRgb(0, 0, 255));
}

TEST_F(BriConView, SampleLargerThanTheViewIsClippedAtTheTopAndRight)
{
    QImage effect = plain(QSize(120, 100), Qt::blue);
    effect.setPixelColor(0, 99, Qt::yellow);
    effect.setPixelColor(98, 21, Qt::green);
    writeResource(QStringLiteral("Effect.png"), effect);
    makeView(100, 80);
    const QImage picture = drawn(*view);
    EXPECT_EQ(drawnRect(picture), QRect(1, 0, 99, 79));
    EXPECT_EQ(picture.pixel(1, 78), qRgb(255, 255, 0));
    EXPECT_EQ(picture.pixel(99, 0), QColor(Qt::green).rgb());
}

TEST_F(BriConView, SampleKeepsItsSizeInPointsAtTwoHundredPercent)
{
    writeEffect(QSize(76, 76), Qt::blue);
    makeView(80, 80);
    EXPECT_EQ(drawnRect(drawn(*view, 2)), QRect(2, 6, 152, 152));
}

TEST_F(BriConView, NeutralLevelsDrawTheSampleAsItIs)
{
    EXPECT_EQ(drawnColour(QColor(0, 64, 128), 0, 0), qRgb(0, 64, 128));
    EXPECT_EQ(drawnColour(QColor(192, 254, 255), 0, 0), qRgb(192, 254, 255));
}

TEST_F(BriConView, BrightnessAndContrastChangeTheDrawnTones)
{
    EXPECT_EQ(drawnColour(QColor(0, 64, 128), 10, 0), qRgb(64, 128, 192));
    EXPECT_EQ(drawnColour(QColor(64, 128, 192), 0, 10), qRgb(48, 128, 208));
    EXPECT_EQ(drawnColour(QColor(64, 128, 192), 0, -10), qRgb(80, 128, 176));
}

TEST_F(BriConView, ContrastActsOnTheUnclampedBrightenedPicture)
{
    EXPECT_EQ(drawnColour(QColor(255, 192, 0), 10, -10), qRgb(255, 224, 80));
    EXPECT_EQ(drawnColour(QColor(0, 64, 255), -10, -10), qRgb(0, 32, 175));
}

TEST_F(BriConView, TransparentPixelsDoNotGlow)
{
    EXPECT_EQ(drawnColour(QColor(0, 0, 0, 0), 20, 0), kBackground);
    EXPECT_EQ(drawnColour(QColor(200, 100, 0, 255), 10, 0), qRgb(255, 164, 64));
}

TEST_F(BriConView, EachDrawingShowsTheLevelsOfThatMoment)
{
    EXPECT_EQ(drawnColour(QColor(100, 100, 100), 20, 0), qRgb(228, 228, 228));
    brightness.setValue(0);
    EXPECT_EQ(drawn(*view).pixel(2, 2), qRgb(100, 100, 100));
}

TEST_F(BriConView, MissingSampleLeavesTheViewBlankAndStillSetsTheTexts)
{
    makeView(20, 20);
    brightness.setValue(7);
    contrast.setValue(-3);
    EXPECT_TRUE(drawnRect(drawn(*view)).isNull());
    EXPECT_EQ(brightnessText.text(), QStringLiteral("7"));
    EXPECT_EQ(contrastText.text(), QStringLiteral("-3"));
}

TEST_F(BriConView, UnreadableSampleLeavesTheViewBlank)
{
    writeEffect(QSize(4, 4), Qt::blue);
    QFile file(folder.filePath(QStringLiteral("Resources/Effect.png")));
    ASSERT_TRUE(file.resize(20));
    makeView(20, 20);
    EXPECT_TRUE(drawnRect(drawn(*view)).isNull());
}

TEST_F(BriConView, DrawingWithTheSampleSetsTheTexts)
{
    writeEffect(QSize(4, 4), Qt::blue);
    makeView(20, 20);
    brightness.setValue(5);
    drawn(*view);
    EXPECT_EQ(brightnessText.text(), QStringLiteral("5"));
    EXPECT_EQ(contrastText.text(), QString()) << "an empty text reads as 0 already";
}

TEST_F(BriConView, DrawingSendsNoActionOfTextOrSlider)
{
    makeView(20, 20);
    brightness.setValue(7);
    contrast.setValue(8);
    QSignalSpy changed(&brightnessText, &QLineEdit::textChanged);
    QSignalSpy edited(&contrastText, &QLineEdit::textEdited);
    QSignalSpy finished(&contrastText, &QLineEdit::editingFinished);
    QSignalSpy moved(&brightness, &QSlider::valueChanged);
    drawn(*view);
    EXPECT_EQ(brightnessText.text(), QStringLiteral("7"));
    EXPECT_EQ(contrastText.text(), QStringLiteral("8"));
    EXPECT_EQ(changed.count() + edited.count() + finished.count() + moved.count(), 0);
}

TEST_F(BriConView, MissingFieldsTakeNoText)
{
    makeView(20, 20);
    view->setBrightnessStr(nullptr);
    view->setContrastStr(nullptr);
    brightness.setValue(7);
    view->drawValueStr();
    EXPECT_EQ(brightnessText.text(), QString());
}

TEST_F(BriConView, MissingSliderReadsAsZeroForItsText)
{
    makeView(20, 20);
    view->setContrastSldr(nullptr);
    contrastText.setText(QStringLiteral("5"));
    view->drawValueStr();
    EXPECT_EQ(contrastText.text(), QStringLiteral("0"));
}

TEST_F(BriConView, LevelsBelowZeroAreWrittenInAsciiInEveryLanguage)
{
    QLocale::setDefault(QLocale(QLocale::Swedish));
    makeView(20, 20);
    contrast.setValue(-5);
    view->drawValueStr();
    QLocale::setDefault(QLocale::system());
    EXPECT_EQ(contrastText.text(), QStringLiteral("-5"));
}

struct TextCase
{
    const char *name;
    int slider;
    const char *typed;
    const char *shown;
};

void PrintTo(const TextCase &text, std::ostream *out)
{
    *out << text.typed << " at " << text.slider;
}

class BriConViewText : public BriConView, public testing::WithParamInterface<TextCase>
{ };

TEST_P(BriConViewText, IsRewrittenOnlyWhenItReadsAsAnotherNumber)
{
    makeView(20, 20);
    brightness.setValue(GetParam().slider);
    contrast.setValue(GetParam().slider);
    brightnessText.setText(QLatin1String(GetParam().typed));
    contrastText.setText(QLatin1String(GetParam().typed));
    drawn(*view);
    EXPECT_EQ(brightnessText.text(), QLatin1String(GetParam().shown));
    EXPECT_EQ(contrastText.text(), QLatin1String(GetParam().shown));
}

INSTANTIATE_TEST_SUITE_P(
    Typed, BriConViewText,
    testing::Values(TextCase{"SameNumber", 7, "7", "7"}, TextCase{"LeadingZero", 7, "07", "07"},
                    TextCase{"LeadingBlank", 7, " 7", " 7"}, TextCase{"Fraction", 7, "7.9", "7.9"},
                    TextCase{"OtherNumber", 7, "8", "7"}, TextCase{"Nothing", 7, "", "7"},
                    TextCase{"NoNumber", 7, "x", "7"}, TextCase{"NothingAtZero", 0, "", ""},
                    TextCase{"NoNumberAtZero", 0, "abc", "abc"},
                    TextCase{"OtherSign", -7, "7", "-7"}),
    [](const testing::TestParamInfo<TextCase> &text) { return std::string(text.param.name); });

TEST_F(BriConView, EveryRequestToDisplayIsAnnouncedAndOnlyThose)
{
    makeView(20, 20);
    QSignalSpy requests(view.get(), &BriConView13_v300_::displayRequested);
    view->setNeedsDisplay(true);
    view->setNeedsDisplay(true);
    EXPECT_EQ(requests.count(), 2);
    view->setNeedsDisplay(false);
    drawn(*view);
    EXPECT_EQ(requests.count(), 2);
}

TEST_F(BriConView, ARequestRedrawsAShownView)
{
    makeView(20, 20);
    view->show();
    QCoreApplication::processEvents();
    brightness.setValue(4);
    view->setNeedsDisplay(true);
    EXPECT_EQ(brightnessText.text(), QString()) << "it only schedules the drawing";
    QCoreApplication::processEvents();
    EXPECT_EQ(brightnessText.text(), QStringLiteral("4"));
}

} // namespace
