// SPDX-License-Identifier: Apache-2.0
#include "contract/TestPlugIn.h"

#include "platform/NotificationCenter.h"

#include <QComboBox>

namespace {

const QLatin1String kKey("CvHalftonePattern");

// Runs when the code is loaded, before anything in it is called.
[[maybe_unused]] const bool kMarkLeft = qputenv("LABELPRINT_TEST_CODE_RAN", "1");

} // namespace

TestPanel::TestPanel(std::shared_ptr<PDEPluginCallback13_v300_> host)
    : mHost(std::move(host))
    , mKeys(std::make_shared<QStringList>(QStringList{kKey}))
{ }

TestPanel::~TestPanel() = default;

QWidget *TestPanel::panelView()
{
    if (!mView) {
        mView = std::make_unique<QComboBox>();
        const ppd_option_t *option = ppdFindOption(mHost->ppdFile(), kKey.data());
        for (int i = 0; option != nullptr && i < option->num_choices; ++i) {
            mView->addItem(QLatin1String(option->choices[i].choice));
        }
        QObject::connect(mView.get(), &QComboBox::activated, mView.get(),
                         [this](int index) { choose(index); });
    }
    return mView.get();
}

void TestPanel::choose(int index)
{
    mHost->willChangePPDOptionKeyValue(kKey, mView->itemText(index));
    platform::NotificationCenter::defaultCenter().post(QStringLiteral("TestPanelDidChoose"),
                                                       mView->itemText(index));
}

QString TestPanel::panelName()
{
    return QStringLiteral("Test");
}

QString TestPanel::panelKind() const
{
    return QStringLiteral("org.example.test");
}

std::shared_ptr<const QStringList> TestPanel::supportedPPDOptionKeys()
{
    return mKeys;
}

void TestPanel::printWindowWillClose(bool)
{ }

void TestPanel::willShow()
{
    if (mView && !mShown) {
        mHost->willChangePPDOptionKeyValue(kKey, mView->itemText(0));
    }
    mShown = true;
}

bool TestPanel::shouldHide()
{
    return true;
}

bool TestPanel::shouldPrint()
{
    return true;
}

bool TestPanel::shouldShowHelp()
{
    return false;
}

void TestPanel::PPDOptionKeyValueDidChange(const std::optional<QString> &,
                                           const std::optional<QString> &)
{ }

bool TestPanel::restoreValuesAndReturnError(QString *)
{
    const ppd_choice_t *marked = ppdFindMarkedChoice(mHost->ppdFile(), kKey.data());
    if (mView && marked != nullptr) {
        mView->setCurrentText(QLatin1String(marked->choice));
    }
    return true;
}

bool TestPanel::saveValuesAndReturnError(QString *)
{
    if (mView) {
        mHost->willChangePPDOptionKeyValue(kKey, mView->currentText());
    }
    return true;
}

std::optional<QVariantMap> TestPanel::summaryInfo()
{
    const QString title = QStringLiteral("Halftone");
    return QVariantMap{{title, mView ? mView->currentText() : QString()},
                       {kSummaryDisplayOrder, QStringList{title}}};
}
