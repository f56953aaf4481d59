// SPDX-License-Identifier: Apache-2.0
#include "platform/NSException.h"

#include <gmock/gmock.h>

namespace {

TEST(NSException, RaisesItselfWithNameAndReason)
{
    const NSException exception(QStringLiteral("NSRangeException"), QStringLiteral("caf\u00E9"));
    EXPECT_STREQ(exception.what(), "caf\xC3\xA9");
    try {
        exception.raise();
        FAIL() << "nothing was thrown";
    } catch (const std::exception &caught) {
        EXPECT_STREQ(caught.what(), "caf\xC3\xA9");
        const auto *raised = dynamic_cast<const NSException *>(&caught);
        ASSERT_TRUE(raised);
        EXPECT_EQ(raised->name(), QStringLiteral("NSRangeException"));
    }
}

} // namespace
