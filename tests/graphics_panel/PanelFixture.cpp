// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/PanelFixture.h"

#include "graphics_panel/PanelUi.h"
#include "platform/NotificationCenter.h"
#include "ppd/ExtendedTicket.h"

#include <QDir>
#include <QFile>

#include <stdexcept>

namespace {

void writeFile(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        throw std::runtime_error("A file for the test could not be written: " + path.toStdString());
    }
}

} // namespace

RecordingPanel::~RecordingPanel() = default;

void RecordingPanel::write(const std::string &line) const
{
    if (log) {
        log->push_back(line);
    }
}

void RecordingPanel::initSetTitleTexts()
{
    write("initSetTitleTexts");
    GraphicsPDE13_v300_::initSetTitleTexts();
}

void RecordingPanel::initUI()
{
    write("initUI");
    GraphicsPDE13_v300_::initUI();
}

void RecordingPanel::updateUI()
{
    write("updateUI");
    GraphicsPDE13_v300_::updateUI();
}

void RecordingPanel::setValuesToKey()
{
    write("setValuesToKey");
    GraphicsPDE13_v300_::setValuesToKey();
}

void RecordingPanel::setPDEItems()
{
    write("setPDEItems");
    GraphicsPDE13_v300_::setPDEItems();
}

void RecordingPanel::setPDEItems2()
{
    write("setPDEItems2");
    GraphicsPDE13_v300_::setPDEItems2();
}

void RecordingPanel::updateMarkedSelections(qint32 itemType)
{
    write("updateMarkedSelections " + std::to_string(itemType));
    GraphicsPDE13_v300_::updateMarkedSelections(itemType);
}

void RecordingPanel::updateUIItem(qint32 itemType)
{
    write("updateUIItem " + std::to_string(itemType));
    GraphicsPDE13_v300_::updateUIItem(itemType);
}

void RecordingPanel::PPDOptionKeyValueDidChange(const std::optional<QString> &option,
                                                const std::optional<QString> &ppdChoice)
{
    write("didChange " + option.value_or(QString()).toStdString() + "="
          + ppdChoice.value_or(QString()).toStdString());
    GraphicsPDE13_v300_::PPDOptionKeyValueDidChange(option, ppdChoice);
}

PanelTest::PanelTest()
{
    usePpd(sixOptions());
}

PanelTest::~PanelTest()
{
    platform::NotificationCenter::defaultCenter().removeObserver(this);
}

void PanelTest::usePpd(const std::vector<PpdOption> &options)
{
    ppd.emplace(TestPpd::fromText(ppdText(options)));
}

void PanelTest::usePpdFile(const QString &name)
{
    ppd.emplace(TestPpd::fromFile(name));
}

void PanelTest::useNoPpd()
{
    ppd.reset();
}

void PanelTest::useTranslations()
{
    const QString strings = mFolder.filePath(QStringLiteral("Resources/en.lproj/Localizable.qm"));
    QFile source(QStringLiteral(PANEL_TEST_STRINGS));
    ASSERT_TRUE(source.open(QIODevice::ReadOnly));
    writeFile(strings, source.readAll());
}

void PanelTest::makePanel()
{
    if (!host) {
        host = std::make_shared<RecordingHost>(ppd ? &*ppd : nullptr);
    }
    bundle = std::make_unique<platform::Bundle>(bundleFolder);
    panel = std::make_shared<RecordingPanel>();
    ASSERT_EQ(panel->initWithCallback(host, bundle.get()), panel.get());
}

void PanelTest::makeView(const QStringList &missing)
{
    writeFile(mFolder.filePath(QStringLiteral("Resources/GraphicsPDE.ui")),
              interfaceDescription(missing));
    if (!panel) {
        makePanel();
    }
    view = panel->panelView();
    ASSERT_NE(view, nullptr);
}

void PanelTest::showPanel(const QStringList &missing)
{
    makeView(missing);
    panel->willShow();
    takeCalls();
}

std::string PanelTest::text(const char *field) const
{
    return control<QLineEdit>(field)->text().toStdString();
}

std::string PanelTest::label(const char *name) const
{
    return control<QLabel>(name)->text().toStdString();
}

int PanelTest::slider(const char *name) const
{
    return control<QSlider>(name)->value();
}

void PanelTest::moveSlider(const char *name, int level)
{
    control<QSlider>(name)->setValue(level);
}

void PanelTest::pickItem(int index)
{
    control<QComboBox>("mColorPUBtn")->setCurrentIndex(index);
}

void PanelTest::setText(const char *field, const char *text)
{
    control<QLineEdit>(field)->setText(QLatin1String(text));
}

void PanelTest::setTicket(const QByteArray &colorMode)
{
    RecordingPaper paper;
    paper.name.value = QStringLiteral("62x100");
    paper.paperHeight.value = 283.46;
    host->format.chosen = paper;
    host->settings.values.insert(QString(ExtendedTicketKey),
                                 "<plist version=\"1.0\"><dict><key>KtVLMultiColor</key><string>"
                                     + colorMode + "</string></dict></plist>");
}

qint64 PanelTest::selected(const QByteArray &option) const
{
    return GraphicsPDETestAccess(*panel).selected(option);
}

void PanelTest::recordEverything()
{
    panel->log = &host->calls;
    const GraphicsPDETestAccess access(*panel);
    if (access.halftoneView()) {
        QObject::connect(access.halftoneView(), &HalftoneView13_v300_::displayRequested,
                         [calls = &host->calls] { calls->emplace_back("display halftone"); });
    }
    if (access.briConView()) {
        QObject::connect(access.briConView(), &BriConView13_v300_::displayRequested,
                         [calls = &host->calls] { calls->emplace_back("display preview"); });
    }
    recordPosts();
}

void PanelTest::recordPosts()
{
    platform::NotificationCenter::defaultCenter().addObserver(
        this,
        [calls = &host->calls](const platform::Notification &notification) {
            const QVariant value = notification.userInfo->value(QStringLiteral("CvMultiColor"));
            ASSERT_EQ(value.metaType(), QMetaType::fromType<bool>());
            calls->emplace_back(value.toBool() ? "post true" : "post false");
        },
        QStringLiteral("CVAdvancedColorSettingNotification"),
        static_cast<const void *>(static_cast<PDEPluginCallback13_v300_ *>(host.get())));
}

std::vector<std::string> PanelTest::takeCalls()
{
    return std::exchange(host->calls, {});
}

std::vector<std::string> PanelTest::takeChanges()
{
    std::vector<std::string> changes = host->changes();
    host->calls.clear();
    return changes;
}

const GraphicsPDE13_v300_::BoundOption &GraphicsPDETestAccess::bound(const QByteArray &option) const
{
    for (const auto &bound : GraphicsPDE13_v300_::kBoundOptions) {
        if (option == bound.keyword) {
            return bound;
        }
    }
    throw std::logic_error("The panel does not bind " + option.toStdString());
}

qint64 GraphicsPDETestAccess::selected(const QByteArray &option) const
{
    const PDEChoice *selection = mPanel.*bound(option).selection;
    const ChoiceList *list = choices(option);
    for (size_t i = 0; selection && list && i < list->size(); ++i) {
        if ((*list)[i].get() == selection) {
            return qint64(i);
        }
    }
    return selection ? -2 : -1;
}

void GraphicsPDETestAccess::select(const QByteArray &option, qint64 index)
{
    mPanel.*bound(option).selection =
        index == -1 ? nullptr : choices(option)->at(size_t(index)).get();
}

void GraphicsPDETestAccess::selectForeign(const QByteArray &option, PDEChoice *choice)
{
    mPanel.*bound(option).selection = choice;
}

bool GraphicsPDETestAccess::hasRecord(const QByteArray &option) const
{
    return mPanel.*bound(option).option != nullptr;
}

const ChoiceList *GraphicsPDETestAccess::choices(const QByteArray &option) const
{
    return (mPanel.*bound(option).choices).get();
}

void GraphicsPDETestAccess::emptyChoices(const QByteArray &option)
{
    (mPanel.*bound(option).choices)->clear();
}

QStringList GraphicsPDETestAccess::unconnected() const
{
    const std::pair<const char *, const QWidget *> outlets[] = {
        {"mSeparateLineGR", mPanel.mSeparateLineGR},
        {"mHalftoneTitle", mPanel.mHalftoneTitle},
        {"mHalftoneRadio", mPanel.mHalftoneRadio},
        {"HlftnColMinTx", mPanel.HlftnColMinTx},
        {"HlftnColMidTx", mPanel.HlftnColMidTx},
        {"HlftnColMaxTx", mPanel.HlftnColMaxTx},
        {"Hlftn2ColMinTx", mPanel.Hlftn2ColMinTx},
        {"Hlftn2ColMidTx", mPanel.Hlftn2ColMidTx},
        {"Hlftn2ColMaxTx", mPanel.Hlftn2ColMaxTx},
        {"mBrightnessTitle", mPanel.mBrightnessTitle},
        {"mContrustTitle", mPanel.mContrustTitle},
        {"mBrightnessSlider", mPanel.mBrightnessSlider},
        {"mContrustSlider", mPanel.mContrustSlider},
        {"mBrightnessText", mPanel.mBrightnessText},
        {"mContrustText", mPanel.mContrustText},
        {"mBiDiPrintChkBx", mPanel.mBiDiPrintChkBx},
        {"mBiDiPrintStrGR", mPanel.mBiDiPrintStrGR},
        {"mColorTitle", mPanel.mColorTitle},
        {"mColorPUBtn", mPanel.mColorPUBtn},
        {"mRedLevelTitle", mPanel.mRedLevelTitle},
        {"mRedLevelText", mPanel.mRedLevelText},
        {"mRedLevelMinTx", mPanel.mRedLevelMinTx},
        {"mRedLevelMidTx", mPanel.mRedLevelMidTx},
        {"mRedLevelMaxTx", mPanel.mRedLevelMaxTx},
        {"mRedLevelSlider", mPanel.mRedLevelSlider},
    };
    QStringList names;
    for (const auto &[name, control] : outlets) {
        if (!control || control->objectName() != QLatin1String(name)) {
            names << QLatin1String(name);
        }
    }
    return names;
}
