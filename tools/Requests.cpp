// SPDX-License-Identifier: Apache-2.0
#include "tools/Requests.h"

#include <algorithm>

namespace tools {

const Request *findRequest(const QString &name)
{
    for (const RequestTable *table : {&hostRequests(), &panelRequests(), &controlRequests(),
                                      &viewRequests(), &stateRequests(), &formatterRequests()}) {
        const auto found =
            std::find_if(table->begin(), table->end(),
                         [&name](const Request &request) { return request.name == name; });
        if (found != table->end()) {
            return &*found;
        }
    }
    return nullptr;
}

} // namespace tools
