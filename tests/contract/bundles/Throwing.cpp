// SPDX-License-Identifier: Apache-2.0
#include "contract/TestPlugIn.h"

#include <stdexcept>

namespace {

/// Starts well, then throws from everything.
class ThrowingPanel : public TestPanel
{
public:
    using TestPanel::TestPanel;
    void PPDOptionKeyValueDidChange(const std::optional<QString> &,
                                    const std::optional<QString> &) override
    {
        throw std::runtime_error("change");
    }
    bool saveValuesAndReturnError(QString *) override { throw std::runtime_error("save"); }
    bool shouldPrint() override { throw std::runtime_error("print"); }
    std::optional<QVariantMap> summaryInfo() override { throw std::invalid_argument("summary"); }
    void printWindowWillClose(bool) override { throw 42; }
};

} // namespace

TEST_PLUGIN_EXPORT PDEPlugIn *Throwing_initWithBundle(platform::Bundle *)
{
    return new TestPlugIn<ThrowingPanel>;
}
