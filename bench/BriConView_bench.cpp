// SPDX-License-Identifier: Apache-2.0
// One step of a slider, from setting its value to the redrawn preview with its number texts.
#include "platform/Bundle.h"
#include "preview/BriConView.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

/// A bundle that has the sample pictures of the tree.
class SampleBundle
{
public:
    SampleBundle()
    {
        QFile::link(QStringLiteral(SAMPLE_IMAGES), mFolder.filePath(QStringLiteral("Resources")));
    }

    const platform::Bundle &bundle() const { return mBundle; }

private:
    QTemporaryDir mFolder;
    platform::Bundle mBundle{mFolder.path()};
};

void sliderStepToRedrawnPreview(benchmark::State &state)
{
    const SampleBundle samples;
    const auto view = BriConView13_v300_::initWithFrame(QRectF(0, 0, 122, 92), samples.bundle());
    if (!samples.bundle().pathForImageResource(QStringLiteral("Effect"))) {
        state.SkipWithError("the sample picture is missing");
        return;
    }
    QSlider brightness;
    QLineEdit text;
    brightness.setRange(-20, 20);
    view->setBrightnessSldr(&brightness);
    view->setBrightnessStr(&text);
    for (auto _ : state) {
        brightness.setValue(brightness.value() < 20 ? brightness.value() + 1 : -20);
        view->setNeedsDisplay(true);
        benchmark::DoNotOptimize(view->grab());
    }
}
BENCHMARK(sliderStepToRedrawnPreview)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
