// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "tools/Members.h"
#include "tools/Session.h"

#include <QJsonObject>
#include <QLatin1String>
#include <QString>

#include <vector>

namespace tools {

/// What a line of a session can ask for.
struct Request
{
    QLatin1String name;
    /// Does it and answers the members of the reply beside "ok". A request that cannot be carried
    /// out throws a RequestError before it has changed anything.
    QJsonObject (*run)(Session &session, const Members &members);
};

using RequestTable = std::vector<Request>;

/// The requests of one source file each.
const RequestTable &hostRequests();
const RequestTable &panelRequests();
const RequestTable &controlRequests();
const RequestTable &viewRequests();
const RequestTable &stateRequests();
const RequestTable &formatterRequests();

/// The request called `name`, or null.
const Request *findRequest(const QString &name);

} // namespace tools
