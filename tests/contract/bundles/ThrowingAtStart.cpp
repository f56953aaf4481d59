// SPDX-License-Identifier: Apache-2.0
#include "contract/TestPlugIn.h"

#include <stdexcept>

TEST_PLUGIN_EXPORT PDEPlugIn *ThrowingAtStart_initWithBundle(platform::Bundle *)
{
    throw std::runtime_error("no licence");
}
