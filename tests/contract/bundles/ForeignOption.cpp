// SPDX-License-Identifier: Apache-2.0
#include "contract/TestPlugIn.h"

namespace {

/// Marks an option that it does not claim whenever it is told of a change.
class ForeignOptionPanel : public TestPanel
{
public:
    using TestPanel::TestPanel;
    void PPDOptionKeyValueDidChange(const std::optional<QString> &,
                                    const std::optional<QString> &) override
    {
        host().willChangePPDOptionKeyValue(QStringLiteral("CvBrightness"), QStringLiteral("5"));
    }
};

} // namespace

TEST_PLUGIN_EXPORT PDEPlugIn *ForeignOption_initWithBundle(platform::Bundle *)
{
    return new TestPlugIn<ForeignOptionPanel>;
}
