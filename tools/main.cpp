// SPDX-License-Identifier: Apache-2.0
#include "loading/BundleFinder.h"
#include "loading/BundleLoader.h"
#include "plugin/FormatterInspection.h"
#include "tools/Arguments.h"
#include "tools/Dispatcher.h"

#include <QApplication>
#include <QLoggingCategory>

#include <cstdio>
#include <optional>

#include <unistd.h>

using loading::BundleCode;
using loading::Refusal;

namespace {

constexpr int kUnusable = 2;

void write(std::FILE *stream, const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stream);
    std::fflush(stream);
}

int complain(const QString &why)
{
    write(stderr, "panel-session: " + why.simplified().toUtf8() + '\n');
    return kUnusable;
}

/// The first bundle that can be looked into; the first that can be loaded when there is none.
loading::Result<BundleCode, Refusal> loadBundle(const QString &asked)
{
    const auto found = asked.isEmpty() ? loading::BundleFinder({}).find()
                                       : loading::BundleFinder({asked}, {}).find();
    std::optional<BundleCode> first;
    std::vector<Refusal> refusals = found.failures;
    for (const QString &bundle : found.bundles) {
        const auto code = loading::BundleLoader().loadCode(bundle);
        if (!code) {
            refusals.push_back(code.failure());
        } else if (code.value().function(kMakeFormatterFunction)) {
            return code;
        } else if (!first) {
            first = code.value();
        }
    }
    if (first) {
        return *first;
    }
    refusals.push_back({QStringLiteral("plug-in"),
                        QStringLiteral("none is installed; give --plugin the path of one")});
    return refusals.front();
}

int runSession(const BundleCode &code)
{
    tools::Session session(code);
    tools::Dispatcher dispatcher(session);
    tools::LineReader lines(STDIN_FILENO);
    while (const auto line = lines.next()) {
        write(stdout, dispatcher.answer(*line));
    }
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // Qt warns about a session that nobody expects here.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    // Qt would take --plugin for itself, so it does not get to see the arguments.
    int programOnly = 1;
    const QApplication app(programOnly, argv);
    QLoggingCategory::setFilterRules({});
    QApplication::setApplicationName(QStringLiteral("panel-session"));
    QApplication::setApplicationVersion(QStringLiteral(LABELPRINT_VERSION));
    QStringList words;
    for (int i = 0; i < argc; ++i) {
        words << QString::fromLocal8Bit(argv[i]);
    }
    const auto read = tools::Arguments::read(words);
    if (const auto *text = std::get_if<tools::Arguments::Text>(&read)) {
        write(stdout, text->text.toUtf8());
        return 0;
    }
    if (const auto *complaint = std::get_if<tools::Arguments::Complaint>(&read)) {
        return complain(complaint->text + QStringLiteral(" (--help lists the options)"));
    }
    const auto code = loadBundle(std::get<tools::Arguments>(read).plugIn);
    return code ? runSession(code.value()) : complain(code.failure().text());
}
