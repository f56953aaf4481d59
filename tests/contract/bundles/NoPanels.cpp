// SPDX-License-Identifier: Apache-2.0
#include "contract/TestPlugIn.h"

namespace {

/// Has a list of panels with nothing in its places.
class NullPanels : public PDEPlugIn
{
public:
    std::shared_ptr<const PDEPanelList>
    PDEPanelsForType(const QString &, const std::shared_ptr<PDEPluginCallback13_v300_> &) override
    {
        return std::make_shared<PDEPanelList>(2);
    }
};

} // namespace

TEST_PLUGIN_EXPORT PDEPlugIn *NoPanels_initWithBundle(platform::Bundle *)
{
    return new NullPanels;
}
