// SPDX-License-Identifier: Apache-2.0
#include "contract/TestPlugIn.h"

TEST_PLUGIN_EXPORT PDEPlugIn *Declining_initWithBundle(platform::Bundle *)
{
    return nullptr;
}
