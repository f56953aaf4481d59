// SPDX-License-Identifier: Apache-2.0
// What the Graphics panel does with an option of many choices, and among many options of others,
// next to opening the same PPD. Rows are named by choices/other options. The column `opens` tells
// how often the file could be opened in the time, measured in the same run; `each` is the time
// divided by the number that grows: it must not grow from row to row.
#include "graphics_panel/GraphicsPDE.h"
#include "platform/Bundle.h"
#include "tests/support/MarkingHost.h"

#include <QApplication>
#include <QTemporaryFile>

#include <benchmark/benchmark.h>
#include <cups/ppd.h>

#include <algorithm>
#include <ctime>
#include <stdexcept>

namespace {

constexpr int kHighestLevel = 20;

/// Options that no panel binds, of two choices each, half of them before the panel's in the
/// alphabet and half behind.
QByteArray otherOptions(int others)
{
    QByteArray text;
    for (int i = 0; i < others; ++i) {
        const QByteArray option = (i % 2 ? "Ax" : "Zx") + QByteArray::number(i);
        text += "*OpenUI *" + option + ": PickOne\n*Default" + option + ": On\n*" + option
            + " On: \"\"\n*" + option + " Off: \"\"\n*CloseUI: *" + option + "\n";
    }
    return text;
}

/// The six options of the panel: "CvBrightness" with `choices` levels, the others with two choices.
QByteArray ppdText(int choices, int others)
{
    QByteArray text = "*PPD-Adobe: \"4.3\"\n*LanguageEncoding: UTF-8\n" + otherOptions(others);
    for (const char *keyword : {"CvHalftonePattern", "CvBrightness", "CvContrast", "CvBiDiPrint",
                                "CvMultiColor", "CvRedLevel"}) {
        const QByteArray option(keyword);
        const int count = option == "CvBrightness" ? choices : 2;
        text += "*OpenUI *" + option + "/" + option.mid(2) + ": PickOne\n";
        text += "*Default" + option + ": " + QByteArray::number(kHighestLevel) + "\n";
        for (int level = kHighestLevel; level > kHighestLevel - count; --level) {
            const QByteArray number = QByteArray::number(level);
            text += "*" + option + " " + number + "/Level " + number + ": \"\"\n";
        }
        text += "*CloseUI: *" + option + "\n";
    }
    return text;
}

/// A PPD on disk, and opened.
class Ppd
{
public:
    Ppd(int choices, int others)
    {
        const QByteArray text = ppdText(choices, others);
        if (!mFile.open() || mFile.write(text) != text.size() || !mFile.flush()) {
            throw std::runtime_error("A PPD for the benchmark cannot be written");
        }
        mPpd = ppdOpenFile(path().constData());
        const ppd_option_t *option = ppdFindOption(mPpd, "CvBrightness");
        if (!option || option->num_choices != choices) {
            throw std::runtime_error("The PPD for the benchmark has not got all its choices");
        }
        ppdMarkDefaults(mPpd);
    }
    ~Ppd() { ppdClose(mPpd); }
    Ppd(const Ppd &) = delete;
    Ppd &operator=(const Ppd &) = delete;

    ppd_file_t *get() const { return mPpd; }

    void openOnceMore() const
    {
        ppd_file_t *ppd = ppdOpenFile(path().constData());
        benchmark::DoNotOptimize(ppd);
        ppdClose(ppd);
    }

private:
    QByteArray path() const { return QFile::encodeName(mFile.fileName()); }

    QTemporaryFile mFile;
    ppd_file_t *mPpd = nullptr;
};

/// A PPD with a host and the panel's bundle; panels are made from them.
class Panels
{
public:
    explicit Panels(const benchmark::State &state)
        : mPpd(int(state.range(0)), int(state.range(1)))
        , host(std::make_shared<MarkingHost>(mPpd.get()))
    { }

    const Ppd &ppd() const { return mPpd; }

    std::shared_ptr<GraphicsPDE13_v300_> bind()
    {
        auto panel = std::make_shared<GraphicsPDE13_v300_>();
        panel->initWithCallback(host, &mBundle);
        return panel;
    }

    /// A panel whose slider reaches every choice and stands at the last one, the farthest in every
    /// search.
    std::shared_ptr<GraphicsPDE13_v300_> showAtLastChoice(int choices)
    {
        auto panel = bind();
        host->panel = panel.get();
        mSlider = panel->panelView()->findChild<QSlider *>(QStringLiteral("mBrightnessSlider"));
        panel->supportedPPDOptionKeys();
        panel->willShow();
        mSlider->setRange(kHighestLevel + 1 - choices, kHighestLevel);
        mSlider->setValue(mSlider->minimum());
        return panel;
    }

    QSlider *slider() const { return mSlider; }
    QByteArray markedBrightness() const
    {
        const ppd_choice_t *marked = ppdFindMarkedChoice(mPpd.get(), "CvBrightness");
        return marked ? marked->choice : QByteArray();
    }

private:
    Ppd mPpd;
    platform::Bundle mBundle{QStringLiteral(BUNDLE_DIR)};
    QSlider *mSlider = nullptr;

public:
    std::shared_ptr<MarkingHost> host;
};

/// Processor time, so that other work on the machine does not count.
double secondsSince(std::clock_t start)
{
    return double(std::clock() - start) / double(CLOCKS_PER_SEC);
}

/// The usual time of one opening: the median of several rounds.
double secondsOfOpening(const Ppd &ppd, int size)
{
    const int openings = std::max(1, 10000 / size);
    std::vector<double> rounds;
    for (int round = 0; round < 15; ++round) {
        const std::clock_t start = std::clock();
        for (int i = 0; i < openings; ++i) {
            ppd.openOnceMore();
        }
        rounds.push_back(secondsSince(start) / openings);
    }
    std::nth_element(rounds.begin(), rounds.begin() + 7, rounds.end());
    return rounds[7];
}

template <typename Work> void measure(benchmark::State &state, const Ppd &ppd, Work work)
{
    const int size = int(std::max(state.range(0), state.range(1)));
    const double openingSeconds = secondsOfOpening(ppd, size);
    const std::clock_t start = std::clock();
    for (auto _ : state) {
        work();
        benchmark::ClobberMemory();
    }
    const double seconds = secondsSince(start) / double(state.iterations());
    state.counters["opens"] = seconds / openingSeconds;
    state.counters["each"] = seconds / size;
}

void openPpd(benchmark::State &state)
{
    const Ppd ppd(int(state.range(0)), int(state.range(1)));
    measure(state, ppd, [&ppd] { ppd.openOnceMore(); });
}

/// Made, bound and released.
void bindPanel(benchmark::State &state)
{
    Panels panels(state);
    measure(state, panels.ppd(), [&panels] { benchmark::DoNotOptimize(panels.bind()); });
}

/// The same with what a dialog asks at once: the claimed keys and what the summary says, for which
/// the first titles are read.
void bindAndFirstQuestions(benchmark::State &state)
{
    Panels panels(state);
    measure(state, panels.ppd(), [&panels] {
        const auto panel = panels.bind();
        benchmark::DoNotOptimize(panel->supportedPPDOptionKeys());
        panel->updateMarkedSelections(~0);
        benchmark::DoNotOptimize(panel->summaryInfo());
    });
}

/// The slider is moved to and fro between the last two choices.
void brightnessAction(benchmark::State &state)
{
    Panels panels(state);
    const auto panel = panels.showAtLastChoice(int(state.range(0)));
    const int last = panels.slider()->minimum();
    int step = 0;
    measure(state, panels.ppd(), [&] { panels.slider()->setValue(last + (++step & 1)); });
    if (panels.markedBrightness() != QByteArray::number(last + (step & 1))) {
        state.SkipWithError("the slider does not mark its level");
    }
}

void summary(benchmark::State &state)
{
    Panels panels(state);
    const auto panel = panels.showAtLastChoice(int(state.range(0)));
    panel->updateMarkedSelections(~0);
    if (panel->summaryInfo()->size() != 7) {
        state.SkipWithError("the summary has not got all six settings");
    }
    measure(state, panels.ppd(), [&] { benchmark::DoNotOptimize(panel->summaryInfo()); });
}

void add(const char *name, void (*function)(benchmark::State &))
{
    auto *rows = benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMicrosecond);
    for (const int choices : {10, 100, 1000, 5000, 10000}) {
        rows->Args({choices, 0});
    }
    for (const int others : {10, 100, 1000, 10000}) {
        rows->Args({10, others});
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    add("ppdOpenFile", openPpd);
    add("bind", bindPanel);
    add("bind, keys, first titles", bindAndFirstQuestions);
    add("one brightness action", brightnessAction);
    add("summaryInfo", summary);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
