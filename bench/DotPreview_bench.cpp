// SPDX-License-Identifier: Apache-2.0
// One step of a slider in the dialog with the dots of a label of 62 x 100 mm at 300 dots an inch:
// from setting the slider, over the mark, the dots and their average, to the painted preview; and
// its parts. The document is rendered already, as it is while a slider is dragged.
#include "dialog/DotRenderer.h"
#include "dialog/LibcupsServer.h"
#include "dialog/PageCanvas.h"
#include "dialog/PagePreview.h"
#include "dialog/PpdRaster.h"
#include "dialog/PrintDialog.h"
#include "dialog/PrinterSetup.h"
#include "loading/BundleLoader.h"

#include <QApplication>
#include <QSettings>
#include <QSlider>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace dialog;

namespace {

/// The dialog with the sample label, the sample printer and the panel.
class Window
{
public:
    Window()
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, mFolder.path());
        auto plugIn = loading::BundleLoader().load(QStringLiteral(BUNDLE_DIR));
        PlugIns plugIns;
        if (plugIn) {
            plugIns.push_back(std::make_shared<loading::LoadedPlugIn>(std::move(plugIn).value()));
        }
        const auto server =
            std::make_shared<LibcupsServer>(QStringLiteral("/nonexistent/cups.sock"));
        mController = std::make_unique<PrintController>(
            server, plugIns,
            PrintController::Folder{QStringLiteral(SOURCE_DIR "/resources/ppd/label-300.ppd"),
                                    mFolder.filePath(QStringLiteral("out"))},
            PanelSet::Views::Made);
        mPrinters = std::make_unique<PrinterList>(server);
        mDialog = std::make_unique<PrintDialog>(*mController, *mPrinters);
        const auto document =
            DocumentPages::open(QStringLiteral(SOURCE_DIR "/resources/sample/sample-label.pdf"));
        if (document) {
            mDialog->setDocument(document.value());
        }
        mDialog->wishPrinter(QStringLiteral("folder"));
        mDialog->show();
        settle();
        QObject::connect(mDialog->findChild<DotRenderer *>(), &DotRenderer::rendered, mDialog.get(),
                         [this](const DotPicture &picture) { mShown = picture; });
    }

    void settle()
    {
        while (!mDialog->isSettled()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }
    void choose(const char *option, const char *choice)
    {
        mController->setup()->choose({{QLatin1String(option), QLatin1String(choice)}});
        settle();
    }
    QSlider *slider() { return mDialog->findChild<QSlider *>(QStringLiteral("mBrightnessSlider")); }
    PageCanvas *canvas() { return mDialog->findChild<PageCanvas *>(); }
    const DotPicture &shown() const { return mShown; }

private:
    QTemporaryDir mFolder;
    std::unique_ptr<PrintController> mController;
    std::unique_ptr<PrinterList> mPrinters;
    std::unique_ptr<PrintDialog> mDialog;
    DotPicture mShown;
};

const char *const kMethods[] = {"Binary", "Dither", "ErrorDiffusion"};
const char *const kColours[] = {"CvMultiColorMonochrome", "CvMultiColorBlackRed"};

void step(QSlider *slider)
{
    slider->setValue(slider->value() < 20 ? slider->value() + 1 : -20);
}

bool prepare(benchmark::State &state, Window &window)
{
    const char *method = kMethods[state.range(0)];
    const char *colours = kColours[state.range(1)];
    state.SetLabel(std::string(method) + (state.range(1) != 0 ? ", black and red" : ", black"));
    window.choose("CvHalftonePattern", method);
    window.choose("CvMultiColor", colours);
    if (window.slider() == nullptr) {
        state.SkipWithError("there is no panel: build the target app");
        return false;
    }
    // The first step shows that dots come at all.
    step(window.slider());
    window.settle();
    if (!window.shown().dots) {
        state.SkipWithError("there are no dots");
        return false;
    }
    return true;
}

void sliderStepToPaintedDots(benchmark::State &state)
{
    Window window;
    if (!prepare(state, window)) {
        return;
    }
    for (auto _ : state) {
        step(window.slider());
        window.settle();
        window.canvas()->repaint();
    }
    const QSize dots = window.shown().dots->form.dots;
    state.counters["dots across"] = dots.width();
    state.counters["dots down"] = dots.height();
}

void dotsAndTheirAverage(benchmark::State &state)
{
    Window window;
    if (!prepare(state, window)) {
        return;
    }
    DotMaker maker;
    DotRequest request = window.shown().request;
    const auto goOn = [](int) { return true; };
    maker.make(request, goOn);
    for (auto _ : state) {
        int &level = request.form.settings.brightness;
        level = level < 20 ? level + 1 : -20;
        benchmark::DoNotOptimize(maker.make(request, goOn));
    }
}

void averageAlone(benchmark::State &state)
{
    Window window;
    if (!prepare(state, window)) {
        return;
    }
    const DotPicture picture = window.shown();
    for (auto _ : state) {
        benchmark::DoNotOptimize(averagedDots(*picture.dots, picture.request.pixels, Plates::Both));
    }
}

BENCHMARK(sliderStepToPaintedDots)
    ->ArgsProduct({{0, 1, 2}, {0, 1}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(dotsAndTheirAverage)->ArgsProduct({{0, 1, 2}, {0, 1}})->Unit(benchmark::kMillisecond);
BENCHMARK(averageAlone)->ArgsProduct({{2}, {0, 1}})->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("label-print"));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
