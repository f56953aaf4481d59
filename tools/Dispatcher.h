// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "tools/LineReader.h"
#include "tools/Session.h"

#include <QByteArray>

namespace tools {

/// Answers the lines of a session, one after the other, whatever they hold.
class Dispatcher
{
public:
    /// `session` outlives the dispatcher.
    explicit Dispatcher(Session &session)
        : mSession(session)
    { }

    /// The events of the line's request in their order, then its one reply, each as a line. An
    /// error reply stands alone.
    QByteArray answer(const LineReader::Line &line);

private:
    QJsonObject run(const QJsonObject &request);

    Session &mSession;
};

} // namespace tools
