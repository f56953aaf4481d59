// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <utility>

namespace tools {

/// Thrown by a request that cannot be carried out, before it has changed anything. `text` is one
/// line that says what is wrong.
struct RequestError
{
    explicit RequestError(QString why)
        : text(std::move(why))
    { }

    QString text;
};

} // namespace tools
