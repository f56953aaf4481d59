// SPDX-License-Identifier: Apache-2.0
#include "platform/SystemVersion.h"

#include <utility>

namespace platform {
namespace {

constexpr qint32 kExtensionInterfaceLevel = 11;

SystemVersionQuery &replacement()
{
    static SystemVersionQuery query;
    return query;
}

} // namespace

std::optional<qint32> systemVersion(SystemVersionPart part)
{
    if (replacement()) {
        return replacement()(part);
    }
    return part == SystemVersionPart::Major ? kExtensionInterfaceLevel : 0;
}

void setSystemVersionQuery(SystemVersionQuery query)
{
    replacement() = std::move(query);
}

} // namespace platform
