// SPDX-License-Identifier: Apache-2.0
// Any bytes as the lines of a session with the sample printer: each line gets exactly one reply,
// and the session goes on.
#include "fuzz/Require.h"
#include "loading/BundleLoader.h"
#include "tools/Dispatcher.h"

#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstddef>
#include <cstdint>

namespace {

QByteArray toLine(const QJsonObject &request)
{
    return QJsonDocument(request).toJson(QJsonDocument::Compact);
}

/// The line, unless it would reach for other files than the sample PPD.
QByteArray harmless(const QByteArray &line)
{
    QJsonObject request = QJsonDocument::fromJson(line).object();
    const QString asked = request.value(QLatin1String("do")).toString();
    if (asked == QLatin1String("snapshot")) {
        return "{}";
    }
    if (asked != QLatin1String("open")) {
        return line;
    }
    if (request.value(QLatin1String("ppd")).isString()) {
        request[QStringLiteral("ppd")] = QStringLiteral(SAMPLE_PPD);
    }
    request.remove(QStringLiteral("ticket"));
    return toLine(request);
}

void checkAnswer(const QByteArray &answer)
{
    require(answer.endsWith('\n'));
    const QByteArrayList lines = answer.chopped(1).split('\n');
    for (const QByteArray &line : lines) {
        const QJsonDocument document = QJsonDocument::fromJson(line);
        require(document.isObject());
        const bool isReply = document.object().contains(QLatin1String("ok"));
        require(isReply == (&line == &lines.last()));
    }
}

const loading::BundleCode &bundleCode()
{
    static const auto code = loading::BundleLoader().loadCode(QStringLiteral(BUNDLE_DIR));
    require(bool(code));
    return code.value();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    // Never destroyed: the fuzzer leaves by exit(), when Qt's own statics are gone already.
    static const auto *application = new QApplication(*argc, *argv);
    require(application);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    tools::Session session(bundleCode());
    tools::Dispatcher dispatcher(session);
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    for (const QByteArray &line : bytes.split('\n')) {
        checkAnswer(dispatcher.answer({harmless(line), false}));
    }
    return 0;
}
