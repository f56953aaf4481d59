// SPDX-License-Identifier: Apache-2.0
#include "contract/TestPlugIn.h"

namespace {

class NullViewPanel : public TestPanel
{
public:
    using TestPanel::TestPanel;
    QWidget *panelView() override { return nullptr; }
};

} // namespace

TEST_PLUGIN_EXPORT PDEPlugIn *NullView_initWithBundle(platform::Bundle *)
{
    return new TestPlugIn<NullViewPanel>;
}
