// SPDX-License-Identifier: Apache-2.0
#include "plugin/CVVLGraphics17PlugIn.h"

#include "graphics_panel/GraphicsPDE.h"
#include "platform/SystemVersion.h"
#include "support/RecordingHost.h"

#include <gmock/gmock.h>

#include <ostream>

using platform::SystemVersionPart;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsNull;
using testing::NotNull;
using testing::SizeIs;

/// Lets a test ask for the system version anew.
class PlugInTestAccess
{
public:
    static void forgetSystemVersion()
    {
        CVVLGraphics17PlugIn13_v300_::sRunningOnLeopardOrLater.reset();
    }
};

namespace {

const QString kPrintType = kPrintDialogPanelType;

using Number = std::optional<qint32>;

class SystemVersionCase : public testing::Test
{
protected:
    SystemVersionCase() { PlugInTestAccess::forgetSystemVersion(); }
    ~SystemVersionCase() override
    {
        platform::setSystemVersionQuery({});
        PlugInTestAccess::forgetSystemVersion();
    }

    /// Nothing where the query is to fail.
    void runOn(Number major, Number minor, Number bugFix)
    {
        platform::setSystemVersionQuery([this, major, minor, bugFix](SystemVersionPart part) {
            asked.push_back(part);
            return part == SystemVersionPart::Major ? major
                : part == SystemVersionPart::Minor  ? minor
                                                    : bugFix;
        });
    }

    bool starts()
    {
        const std::unique_ptr<PDEPlugIn> plugIn(
            CVVLGraphics17PlugIn13_v300__initWithBundle(&bundle));
        return plugIn != nullptr;
    }

    platform::Bundle bundle{QStringLiteral("/nowhere/GraphicsPDE.plugin")};
    std::vector<SystemVersionPart> asked;
};

struct VersionRow
{
    const char *name;
    Number major, minor, bugFix;
    bool starts;
};

void PrintTo(const VersionRow &row, std::ostream *out)
{
    *out << row.name;
}

class SystemVersionRow : public SystemVersionCase, public testing::WithParamInterface<VersionRow>
{ };

TEST_P(SystemVersionRow, DecidesWhetherThePlugInStarts)
{
    runOn(GetParam().major, GetParam().minor, GetParam().bugFix);
    EXPECT_EQ(starts(), GetParam().starts);
}

INSTANTIATE_TEST_SUITE_P(CVVLGraphics17PlugIn, SystemVersionRow,
                         testing::Values(VersionRow{"v10_4_11", 10, 4, 11, false},
                                         VersionRow{"v10_5_0", 10, 5, 0, true},
                                         VersionRow{"v10_6", 10, 6, 0, true},
                                         VersionRow{"v11_0", 11, 0, 0, true},
                                         VersionRow{"v12_without_minor", 12, {}, 0, true},
                                         VersionRow{"v9_9", 9, 9, 0, false},
                                         VersionRow{"majorFailsMinorIs6", {}, 6, 0, true},
                                         VersionRow{"majorFailsMinorIs4", {}, 4, 0, false},
                                         VersionRow{"minorFailsMajorIs10", 10, {}, 9, false},
                                         VersionRow{"minorFailsMajorIs11", 11, {}, {}, true},
                                         VersionRow{"bugFixFails", 10, 5, {}, true},
                                         VersionRow{"allFail", {}, {}, {}, false}),
                         [](const auto &row) { return std::string(row.param.name); });

TEST_F(SystemVersionCase, AsksForEachPartOnceInAProcess)
{
    runOn(10, 6, 0);
    const CVVLGraphics17PlugIn13_v300_ first;
    EXPECT_TRUE(first.runningOnLeopardOrLater());
    EXPECT_THAT(
        asked,
        ElementsAre(SystemVersionPart::Major, SystemVersionPart::Minor, SystemVersionPart::BugFix));
    runOn(10, 4, 0);
    const CVVLGraphics17PlugIn13_v300_ second;
    EXPECT_TRUE(second.runningOnLeopardOrLater());
    EXPECT_TRUE(first.runningOnLeopardOrLater());
    EXPECT_THAT(asked, SizeIs(3));
}

TEST_F(SystemVersionCase, KeepsANoAsWell)
{
    runOn(10, 4, 11);
    EXPECT_FALSE(starts());
    runOn(11, 0, 0);
    EXPECT_FALSE(starts());
    EXPECT_THAT(asked, SizeIs(3));
}

/// A plug-in whose panel can be made to fail.
class FailingPlugIn : public CVVLGraphics17PlugIn13_v300_
{
protected:
    std::shared_ptr<PDEPanel> makePanel(const std::shared_ptr<PDEPluginCallback13_v300_> &) override
    {
        return nullptr;
    }
};

class CVVLGraphics17PlugIn : public SystemVersionCase
{
protected:
    CVVLGraphics17PlugIn()
        : host(std::make_shared<RecordingHost>())
        , plugIn(CVVLGraphics17PlugIn13_v300__initWithBundle(&bundle))
    { }

    std::shared_ptr<const PDEPanelList> panels(const QString &type = kPrintType)
    {
        return plugIn->PDEPanelsForType(type, host);
    }

    std::shared_ptr<RecordingHost> host;
    std::unique_ptr<PDEPlugIn> plugIn;
};

TEST_F(CVVLGraphics17PlugIn, PrintTypeGivesExactlyOneGraphicsPanel)
{
    const auto list = panels();
    ASSERT_THAT(list, NotNull());
    ASSERT_THAT(*list, SizeIs(1));
    EXPECT_THAT(dynamic_cast<GraphicsPDE13_v300_ *>(list->front().get()), NotNull());
}

TEST_F(CVVLGraphics17PlugIn, PanelIsGivenTheHostAndTheBundle)
{
    const auto list = panels();
    ASSERT_THAT(list, NotNull());
    EXPECT_THAT(host->calls, testing::Contains("ppdFile"));
    EXPECT_EQ(host.use_count(), 2);
    EXPECT_EQ(list->front()->panelName(), QStringLiteral("AD_PANEL_NAME"));
}

TEST_F(CVVLGraphics17PlugIn, OtherTypesGiveAnEmptyList)
{
    for (const QString &type : {QString(), QStringLiteral("other"), kPrintType.toLower(),
                                kPrintType + QStringLiteral(" "), kPrintType.left(35)}) {
        const auto list = panels(type);
        ASSERT_THAT(list, NotNull()) << type.toStdString();
        EXPECT_THAT(*list, IsEmpty()) << type.toStdString();
    }
    EXPECT_THAT(host->calls, IsEmpty());
}

TEST_F(CVVLGraphics17PlugIn, PanelThatCannotBeMadeGivesNothingForThePrintTypeOnly)
{
    FailingPlugIn failing;
    EXPECT_EQ(failing.initWithBundle(&bundle), &failing);
    EXPECT_THAT(failing.PDEPanelsForType(kPrintType, host), IsNull());
    EXPECT_THAT(failing.PDEPanelsForType(QStringLiteral("other"), host), NotNull());
}

TEST_F(CVVLGraphics17PlugIn, SecondCallMakesAFreshListAndAFreshPanel)
{
    const auto first = panels();
    const auto second = panels();
    ASSERT_THAT(first, NotNull());
    ASSERT_THAT(second, NotNull());
    EXPECT_NE(first, second);
    EXPECT_THAT(*first, SizeIs(1));
    EXPECT_THAT(*second, SizeIs(1));
    EXPECT_NE(first->front(), second->front());
}

TEST_F(CVVLGraphics17PlugIn, PanelsThatTheHostHoldsOutliveLaterCallsAndThePlugIn)
{
    const auto first = panels();
    panels(QStringLiteral("other"));
    plugIn.reset();
    ASSERT_THAT(*first, SizeIs(1));
    EXPECT_TRUE(first->front()->shouldHide());
}

TEST_F(CVVLGraphics17PlugIn, KeepsThePanelsOfItsLastCallAlive)
{
    const std::weak_ptr<PDEPanel> watched = panels()->front();
    EXPECT_FALSE(watched.expired());
    plugIn.reset();
    EXPECT_TRUE(watched.expired());
}

} // namespace
