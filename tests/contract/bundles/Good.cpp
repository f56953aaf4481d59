// SPDX-License-Identifier: Apache-2.0
#include "contract/TestPlugIn.h"

TEST_PLUGIN_EXPORT PDEPlugIn *Good_initWithBundle(platform::Bundle *)
{
    return new TestPlugIn<TestPanel>;
}
