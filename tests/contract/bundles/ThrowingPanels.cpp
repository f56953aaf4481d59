// SPDX-License-Identifier: Apache-2.0
#include "contract/TestPlugIn.h"

#include <stdexcept>

namespace {

class ThrowingFactory : public PDEPlugIn
{
public:
    std::shared_ptr<const PDEPanelList>
    PDEPanelsForType(const QString &, const std::shared_ptr<PDEPluginCallback13_v300_> &) override
    {
        throw std::runtime_error("no memory");
    }
};

} // namespace

TEST_PLUGIN_EXPORT PDEPlugIn *ThrowingPanels_initWithBundle(platform::Bundle *)
{
    return new ThrowingFactory;
}
