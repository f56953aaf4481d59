// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>
#include <variant>
#include <vector>

namespace replay {

/// What was answered to one request: its events in their order, then the reply.
struct Answer
{
    std::vector<QJsonObject> events;
    QJsonObject reply;
};

/// The answers of a whole session, or what is wrong with its lines. Each line is a JSON object; the
/// one that has a member "ok" ends an answer.
std::variant<std::vector<Answer>, QString> readAnswers(const QByteArray &lines);

/// The first difference between the answers to `requests` (one a line), in words; nothing when
/// there is none.
///
/// Events and replies are compared as JSON values, the events in their order. The reply to a
/// "state" request is compared in the members alone that the expected reply names. An expected
/// error reply without a text stands for any error of one line.
std::optional<QString> firstDifference(const QList<QByteArray> &requests,
                                       const std::vector<Answer> &expected,
                                       const std::vector<Answer> &actual);

} // namespace replay
