// SPDX-License-Identifier: Apache-2.0
#include "contract/TestPlugIn.h"

namespace {

class WrongKeysPanel : public TestPanel
{
public:
    using TestPanel::TestPanel;
    std::shared_ptr<const QStringList> supportedPPDOptionKeys() override
    {
        return std::make_shared<QStringList>(
            QStringList{QStringLiteral("CvHalftonePattern"), QStringLiteral("NoSuchOption")});
    }
};

} // namespace

TEST_PLUGIN_EXPORT PDEPlugIn *WrongKeys_initWithBundle(platform::Bundle *)
{
    return new TestPlugIn<WrongKeysPanel>;
}
