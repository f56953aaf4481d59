// SPDX-License-Identifier: Apache-2.0
#include "contract/TestPlugIn.h"

TEST_PLUGIN_EXPORT PDEPlugIn *ThrowingNonsense_initWithBundle(platform::Bundle *)
{
    throw 42;
}
