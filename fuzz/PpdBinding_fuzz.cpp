// SPDX-License-Identifier: Apache-2.0
// Any bytes as the printer's PPD, with a panel bound to it; the last bytes say what the user does.
#include "fuzz/Require.h"
#include "graphics_panel/GraphicsPDE.h"
#include "platform/Bundle.h"
#include "tests/support/MarkingHost.h"

#include <QApplication>
#include <QSet>

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string_view>

namespace {

constexpr std::size_t kActions = 6;

/// What it is asked to mark must be a choice of the PPD.
class CheckingHost : public MarkingHost
{
public:
    using MarkingHost::MarkingHost;

    void willChangePPDOptionKeyValue(const QString &option,
                                     const std::optional<QString> &ppdChoice) override
    {
        ppd_option_t *record = ppdFindOption(ppdFile(), option.toUtf8().constData());
        require(record && ppdFindChoice(record, ppdChoice.value().toUtf8().constData()));
        MarkingHost::willChangePPDOptionKeyValue(option, ppdChoice);
    }
};

/// Null when libcups refuses the bytes.
ppd_file_t *openPpd(const std::uint8_t *data, std::size_t size)
{
    const int file = memfd_create("ppd", MFD_CLOEXEC);
    require(file >= 0 && write(file, data, size) == ssize_t(size));
    require(lseek(file, 0, SEEK_SET) == 0);
    // libcups closes the descriptor.
    return ppdOpenFd(file);
}

void summarize(PDEPanel &panel)
{
    try {
        panel.summaryInfo();
    } catch (const std::invalid_argument &) {
        // A title that cannot be decoded.
    }
}

/// The low bits say which control, the high bits its value.
void act(GraphicsPDE13_v300_ &panel, QWidget &view, std::uint8_t action)
{
    static constexpr const char *sliders[] = {"mBrightnessSlider", "mContrustSlider",
                                              "mRedLevelSlider"};
    const int value = action >> 3;
    switch (action & 7) {
    case 0:
    case 1:
    case 2:
        view.findChild<QSlider *>(QLatin1String(sliders[action & 7]))->setValue(value * 2 - 20);
        break;
    case 3:
        panel.changeHalftone(nullptr);
        break;
    case 4:
        view.findChild<QComboBox *>(QStringLiteral("mColorPUBtn"))->setCurrentIndex(value % 3 - 1);
        panel.changeColor(nullptr);
        break;
    case 5:
        panel.changeBidiPrint(nullptr);
        break;
    case 6:
        panel.restoreValuesAndReturnError(nullptr);
        break;
    case 7:
        panel.saveValuesAndReturnError(nullptr);
        summarize(panel);
        break;
    }
}

void bindAndAct(ppd_file_t *ppd, std::basic_string_view<std::uint8_t> actions)
{
    static platform::Bundle bundle(QStringLiteral(BUNDLE_DIR));
    const auto host = std::make_shared<CheckingHost>(ppd);
    const auto panel = std::make_shared<GraphicsPDE13_v300_>();
    panel->initWithCallback(host, &bundle);
    host->panel = panel.get();
    const QStringList keys = *panel->supportedPPDOptionKeys();
    require(QSet<QString>(keys.begin(), keys.end()).size() == keys.size());
    QWidget *view = panel->panelView();
    require(view != nullptr);
    panel->willShow();
    for (const std::uint8_t action : actions) {
        act(*panel, *view, action);
        require(*panel->supportedPPDOptionKeys() == keys);
    }
    summarize(*panel);
    panel->shouldPrint();
    require(*panel->supportedPPDOptionKeys() == keys);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    // Never destroyed: the fuzzer leaves by exit(), when Qt's own statics are gone already.
    static const auto *application = new QApplication(*argc, *argv);
    require(application);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < kActions) {
        return 0;
    }
    ppd_file_t *ppd = openPpd(data, size - kActions);
    if (!ppd) {
        return 0;
    }
    ppdMarkDefaults(ppd);
    bindAndAct(ppd, {data + size - kActions, kActions});
    ppdClose(ppd);
    return 0;
}
