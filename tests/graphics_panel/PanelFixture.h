// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "graphics_panel/GraphicsPDE.h"
#include "graphics_panel/PanelPpd.h"
#include "platform/Bundle.h"
#include "support/PpdFixture.h"
#include "support/RecordingHost.h"

#include <QTemporaryDir>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>

/// The panel under test. While `log` is set, it writes its hooks down there as they begin.
class RecordingPanel : public GraphicsPDE13_v300_
{
public:
    ~RecordingPanel() override;

    std::vector<std::string> *log = nullptr;
    bool baseDeclines = false;

    void initSetTitleTexts() override;
    void initUI() override;
    void updateUI() override;
    void setValuesToKey() override;
    void setPDEItems() override;
    void setPDEItems2() override;
    void updateMarkedSelections(qint32 itemType) override;
    void updateUIItem(qint32 itemType) override;
    void PPDOptionKeyValueDidChange(const std::optional<QString> &option,
                                    const std::optional<QString> &ppdChoice) override;

protected:
    bool init() override { return !baseDeclines; }

private:
    void write(const std::string &line) const;
};

/// What only a look inside the panel shows.
class GraphicsPDETestAccess
{
public:
    explicit GraphicsPDETestAccess(GraphicsPDE13_v300_ &panel)
        : mPanel(panel)
    { }

    /// The place of the selection in the option's choices, -1 without a selection.
    qint64 selected(const QByteArray &option) const;
    /// Null in the panel for -1.
    void select(const QByteArray &option, qint64 index);
    /// Makes a choice of somewhere else the selection.
    void selectForeign(const QByteArray &option, PDEChoice *choice);
    bool hasRecord(const QByteArray &option) const;
    /// Null when the panel has no list of choices for the option.
    const ChoiceList *choices(const QByteArray &option) const;
    void emptyChoices(const QByteArray &option);
    void setImageModeFlag(qint16 flag) { mPanel.mImageModeFlag = flag; }
    int usbDec() const { return mPanel.usb_dec; }
    int columnDec() const { return mPanel.column_dec; }
    int formatSetting() const { return mPanel.set_formatSetting; }
    HalftoneView13_v300_ *halftoneView() const { return mPanel.mHalftoneView; }
    BriConView13_v300_ *briConView() const { return mPanel.mBriConView; }
    /// The names of all outlets that hold no control.
    QStringList unconnected() const;

private:
    const GraphicsPDE13_v300_::BoundOption &bound(const QByteArray &option) const;

    GraphicsPDE13_v300_ &mPanel;
};

/// A panel with a recording host, a PPD that a test may choose, and a bundle on disk.
///
/// Without another PPD it has sixOptions(); without translations each key answers itself.
class PanelTest : public testing::Test
{
protected:
    PanelTest();
    ~PanelTest() override;

    /// To be called before makePanel().
    void usePpd(const std::vector<PpdOption> &options);
    void usePpdFile(const QString &name);
    void useNoPpd();
    /// Each key of tests/graphics_panel/strings.ts answers itself in square brackets.
    void useTranslations();

    void makePanel();
    /// Makes the panel and loads its view; the description has no control called `missing`.
    void makeView(const QStringList &missing = {});
    /// Makes the panel, loads its view and shows it; forgets the calls of that.
    void showPanel(const QStringList &missing = {});

    template <class Control> Control *control(const char *name) const
    {
        return view->findChild<Control *>(QLatin1String(name));
    }
    std::string text(const char *field) const;
    std::string label(const char *name) const;
    int slider(const char *name) const;
    /// As a user does: the control's action is sent.
    void moveSlider(const char *name, int level);
    void pickItem(int index);
    /// Without any action.
    void setText(const char *field, const char *text);

    /// What the print ticket says about the colour mode, on a paper that can be read.
    void setTicket(const QByteArray &colorMode);
    qint64 selected(const QByteArray &option) const;
    /// Writes hooks, display requests of the previews and posts of the colour mode to host->calls.
    void recordEverything();
    /// The same for the posts alone: "post true".
    void recordPosts();
    /// host->calls, which is empty then.
    std::vector<std::string> takeCalls();
    std::vector<std::string> takeChanges();

    std::optional<TestPpd> ppd;
    std::shared_ptr<RecordingHost> host;
    std::unique_ptr<platform::Bundle> bundle;
    std::shared_ptr<RecordingPanel> panel;
    QWidget *view = nullptr;

private:
    QTemporaryDir mFolder;

protected:
    QString bundleFolder = mFolder.path();
};
