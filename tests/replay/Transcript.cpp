// SPDX-License-Identifier: Apache-2.0
#include "replay/Transcript.h"

#include "replay/Comparison.h"

#include <QJsonDocument>

#include <algorithm>

namespace replay {
namespace {

const QString kOk = QStringLiteral("ok");
const QString kError = QStringLiteral("error");

bool isState(const QByteArray &request)
{
    return QJsonDocument::fromJson(request).object().value(QStringLiteral("do"))
        == QJsonValue(QStringLiteral("state"));
}

std::optional<QString> eventDifference(const Answer &expected, const Answer &actual)
{
    const std::size_t both = std::min(expected.events.size(), actual.events.size());
    for (std::size_t i = 0; i < both; ++i) {
        if (auto found = difference(expected.events[i], actual.events[i], Members::All)) {
            return QStringLiteral("event %1: %2\n  expected %3\n  got      %4")
                .arg(i + 1)
                .arg(*found, asText(expected.events[i]), asText(actual.events[i]));
        }
    }
    if (expected.events.size() > both) {
        return QStringLiteral("event %1 is missing: %2")
            .arg(both + 1)
            .arg(asText(expected.events[both]));
    }
    if (actual.events.size() > both) {
        return QStringLiteral("event %1 was not expected: %2")
            .arg(both + 1)
            .arg(asText(actual.events[both]));
    }
    return {};
}

std::optional<QString> replyDifference(QJsonObject expected, QJsonObject actual, Members members)
{
    const bool anyError = expected.value(kOk) == QJsonValue(false) && !expected.contains(kError);
    if (anyError && actual.contains(kError)) {
        const QString text = actual.take(kError).toString();
        if (text.trimmed().isEmpty() || text.contains(u'\n')) {
            return QStringLiteral("the error reply has no text of one line: %1")
                .arg(asText(actual));
        }
    }
    const auto found = difference(expected, actual, members);
    return found ? std::optional(QStringLiteral("reply: %1\n  got %2").arg(*found, asText(actual)))
                 : std::nullopt;
}

} // namespace

std::variant<std::vector<Answer>, QString> readAnswers(const QByteArray &lines)
{
    std::vector<Answer> answers;
    Answer answer;
    int number = 0;
    QList<QByteArray> all = lines.split('\n');
    if (all.constLast().isEmpty()) {
        all.removeLast();
    }
    for (const QByteArray &line : std::as_const(all)) {
        ++number;
        const QJsonDocument document = QJsonDocument::fromJson(line);
        if (!document.isObject()) {
            return QStringLiteral("line %1 is not a JSON object: %2")
                .arg(number)
                .arg(QString::fromUtf8(line));
        }
        if (document.object().contains(kOk)) {
            answer.reply = document.object();
            answers.push_back(std::exchange(answer, {}));
        } else {
            answer.events.push_back(document.object());
        }
    }
    if (!answer.events.empty()) {
        return QStringLiteral("there is no reply behind the last event");
    }
    return answers;
}

std::optional<QString> firstDifference(const QList<QByteArray> &requests,
                                       const std::vector<Answer> &expected,
                                       const std::vector<Answer> &actual)
{
    for (const auto &[answers, whose] :
         {std::pair(&expected, "expected"), std::pair(&actual, "got")}) {
        if (answers->size() != std::size_t(requests.size())) {
            return QStringLiteral("%1 %2 replies to %3 requests")
                .arg(QLatin1String(whose))
                .arg(answers->size())
                .arg(requests.size());
        }
    }
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const QByteArray &request = requests.at(qsizetype(i));
        const Members members = isState(request) ? Members::Named : Members::All;
        auto found = eventDifference(expected[i], actual[i]);
        if (!found) {
            found = replyDifference(expected[i].reply, actual[i].reply, members);
        }
        if (found) {
            return QStringLiteral("request %1: %2\n%3")
                .arg(i + 1)
                .arg(QString::fromUtf8(request.left(300)), *found);
        }
    }
    return {};
}

} // namespace replay
