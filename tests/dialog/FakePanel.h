// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "loading/BundleLoader.h"
#include "plugin/PrintDialogExtension.h"

#include <QLabel>
#include <QStringList>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

/// What all fake plug-ins and panels of a test were asked, in order: "A.willShow".
using Calls = std::shared_ptr<QStringList>;

/// What a fake panel does; everything that is empty does nothing and answers well.
struct FakeBehaviour
{
    QStringList keys = {};
    std::function<void(PDEPluginCallback13_v300_ &)> onKeys = {};
    std::function<void(PDEPluginCallback13_v300_ &)> onShow = {};
    std::function<void(PDEPluginCallback13_v300_ &, const QString &option, const QString &choice)>
        onChange = {};
    std::function<void(PDEPluginCallback13_v300_ &)> onSave = {};
    std::function<void(PDEPluginCallback13_v300_ &)> onEnd = {};
    std::function<std::optional<QVariantMap>()> summary = {};
    bool restores = true;
    bool saves = true;
    bool prints = true;
};

/// A panel that writes down its calls.
class FakePanel : public PDEPanel
{
public:
    FakePanel(QString name, FakeBehaviour behaviour, Calls calls,
              std::shared_ptr<PDEPluginCallback13_v300_> host)
        : mName(std::move(name))
        , mBehaviour(std::move(behaviour))
        , mCalls(std::move(calls))
        , mHost(std::move(host))
    { }
    ~FakePanel() override
    {
        note("gone");
        if (mBehaviour.onEnd) {
            mBehaviour.onEnd(*mHost);
        }
    }

    QWidget *panelView() override
    {
        note("view");
        return &mView;
    }
    QString panelName() override { return mName; }
    QString panelKind() const override { return QStringLiteral("org.example.fake"); }
    std::shared_ptr<const QStringList> supportedPPDOptionKeys() override
    {
        note("keys");
        if (mBehaviour.onKeys) {
            mBehaviour.onKeys(*mHost);
        }
        return std::make_shared<QStringList>(mBehaviour.keys);
    }
    void printWindowWillClose(bool userCancelled) override
    {
        note(userCancelled ? "cancelled" : "closed");
    }
    void willShow() override
    {
        note("willShow");
        if (mBehaviour.onShow) {
            mBehaviour.onShow(*mHost);
        }
    }
    bool shouldHide() override { return true; }
    bool shouldPrint() override
    {
        note("shouldPrint");
        return mBehaviour.prints;
    }
    bool shouldShowHelp() override { return false; }
    void PPDOptionKeyValueDidChange(const std::optional<QString> &option,
                                    const std::optional<QString> &choice) override
    {
        note(qUtf8Printable(*option + QLatin1Char('=') + *choice));
        if (mBehaviour.onChange) {
            mBehaviour.onChange(*mHost, *option, *choice);
        }
    }
    bool restoreValuesAndReturnError(QString *error) override
    {
        note("restore");
        *error = mBehaviour.restores ? QString() : QStringLiteral("no restoring");
        return mBehaviour.restores;
    }
    bool saveValuesAndReturnError(QString *error) override
    {
        note("save");
        if (mBehaviour.onSave) {
            mBehaviour.onSave(*mHost);
        }
        *error = mBehaviour.saves ? QString() : QStringLiteral("no saving");
        return mBehaviour.saves;
    }
    std::optional<QVariantMap> summaryInfo() override
    {
        return mBehaviour.summary ? mBehaviour.summary() : std::nullopt;
    }

private:
    void note(const char *call) { *mCalls << mName + QLatin1Char('.') + QLatin1String(call); }

    QString mName;
    FakeBehaviour mBehaviour;
    Calls mCalls;
    std::shared_ptr<PDEPluginCallback13_v300_> mHost;
    QLabel mView;
};

/// A plug-in with one fake panel for each behaviour; like a real one it keeps the panels.
class FakePlugIn : public PDEPlugIn
{
public:
    FakePlugIn(QString name, std::vector<FakeBehaviour> behaviours, Calls calls)
        : mName(std::move(name))
        , mBehaviours(std::move(behaviours))
        , mCalls(std::move(calls))
    { }
    ~FakePlugIn() override
    {
        mPanels.reset();
        *mCalls << mName + QLatin1String(" plug-in gone");
    }

    std::shared_ptr<const PDEPanelList>
    PDEPanelsForType(const QString &type,
                     const std::shared_ptr<PDEPluginCallback13_v300_> &host) override
    {
        EXPECT_EQ(type, kPrintDialogPanelType);
        mPanels = std::make_shared<PDEPanelList>();
        for (std::size_t i = 0; i < mBehaviours.size(); ++i) {
            const QString name = i == 0 ? mName : mName + QString::number(i + 1);
            mPanels->push_back(std::make_shared<FakePanel>(name, mBehaviours[i], mCalls, host));
        }
        return mPanels;
    }

    /// `name`.plugin, as if it had been loaded.
    static std::shared_ptr<loading::LoadedPlugIn>
    loaded(const QString &name, std::vector<FakeBehaviour> behaviours, const Calls &calls)
    {
        auto bundle =
            std::make_unique<platform::Bundle>(QStringLiteral("/none/%1.plugin").arg(name));
        return std::make_shared<loading::LoadedPlugIn>(
            std::move(bundle), std::make_unique<FakePlugIn>(name, std::move(behaviours), calls));
    }

private:
    QString mName;
    std::vector<FakeBehaviour> mBehaviours;
    Calls mCalls;
    std::shared_ptr<PDEPanelList> mPanels;
};
