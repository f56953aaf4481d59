// SPDX-License-Identifier: Apache-2.0
#include "tools/Arguments.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace tools {
namespace {

const QString kPlugIn = QStringLiteral("plugin");
const QString kHelp = QStringLiteral("help");
const QString kVersion = QStringLiteral("version");

QString helpOf(const QCommandLineParser &parser)
{
    QString help = parser.helpText();
    // The way to the program says nothing to the reader.
    help.replace(QCoreApplication::arguments().constFirst(), QStringLiteral("panel-session"));
    return help
        + QStringLiteral("\nExit status: 0 at the end of the input, 2 for unusable arguments or a "
                         "plug-in that cannot be loaded.\n");
}

} // namespace

std::variant<Arguments, Arguments::Text, Arguments::Complaint>
Arguments::read(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Drives the Graphics panel with requests, one JSON object a line, from "
                       "standard input, and writes\nevents and replies, one a line, to standard "
                       "output."));
    parser.addOptions(
        {{kPlugIn,
          QStringLiteral("Load the plug-in in <folder>, not the one that the print "
                         "dialog loads."),
          QStringLiteral("folder")},
         {{QStringLiteral("h"), kHelp}, QStringLiteral("Show this help and stop.")},
         {{QStringLiteral("v"), kVersion}, QStringLiteral("Show the version and stop.")}});
    if (!parser.parse(arguments)) {
        return Complaint{parser.errorText().chopped(1)};
    }
    if (parser.isSet(kHelp)) {
        return Text{helpOf(parser)};
    }
    if (parser.isSet(kVersion)) {
        return Text{
            QStringLiteral("panel-session %1\n").arg(QCoreApplication::applicationVersion())};
    }
    if (!parser.positionalArguments().isEmpty()) {
        return Complaint{QStringLiteral("%1: requests are read from standard input")
                             .arg(parser.positionalArguments().constFirst())};
    }
    if (parser.isSet(kPlugIn) && parser.value(kPlugIn).isEmpty()) {
        return Complaint{QStringLiteral("--plugin needs the path of a folder")};
    }
    return Arguments{parser.value(kPlugIn)};
}

} // namespace tools
