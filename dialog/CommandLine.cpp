// SPDX-License-Identifier: Apache-2.0
#include "dialog/CommandLine.h"

#include "dialog/JobSettings.h"
#include "dialog/Printer.h"

#include <QCommandLineParser>

namespace dialog {
namespace {

Failure usage(const QString &what, const QString &why)
{
    return {FailureKind::Usage, what, why};
}

} // namespace

ExitCode exitCodeOf(FailureKind kind)
{
    switch (kind) {
    case FailureKind::Usage:
        return ExitCode::Usage;
    case FailureKind::Document:
        return ExitCode::Document;
    case FailureKind::Ppd:
    case FailureKind::Settings:
    case FailureKind::Printer:
    case FailureKind::Panel:
        return ExitCode::Printer;
    case FailureKind::Server:
    case FailureKind::Job:
    case FailureKind::Folder:
        return ExitCode::Job;
    case FailureKind::Barcode:
        return ExitCode::Barcode;
    case FailureKind::Cancelled:
        return ExitCode::Cancelled;
    }
    return ExitCode::Job;
}

void CommandLineReader::addOptions(QCommandLineParser &parser)
{
    parser.addPositionalArgument(QStringLiteral("document"),
                                 tr("The document to print: PDF, PNG, JPEG, TIFF or SVG."),
                                 tr("[document]"));
    parser.addOptions({
        {QStringLiteral("printer"), tr("Print to the printer called <name>."), tr("name")},
        {QStringLiteral("ppd"),
         tr("Print to a folder, with the settings of the printer that <file> describes."),
         tr("file")},
        {QStringLiteral("output"), tr("The <folder> that jobs printed to a folder go to."),
         tr("folder")},
        {QStringLiteral("o"), tr("Set an option of the printer; may be given several times."),
         tr("option=choice")},
        {QStringLiteral("copies"), tr("Print <number> copies."), tr("number")},
        {QStringLiteral("pages"), tr("Print these pages only, for example 1-3,5."), tr("pages")},
        {QStringLiteral("scaling"),
         tr("How a page gets onto the label: fit, actual (its own size) or whole-dots (each pixel "
            "of a picture so many whole dots)."),
         tr("way")},
        {QStringLiteral("plugin"), tr("Look for panels in <folder> first."), tr("folder")},
        {QStringLiteral("ticket"),
         tr("Start with the label, the colours and what else the print ticket in <file> holds."),
         tr("file")},
        {QStringLiteral("no-dialog"), tr("Print at once, without showing the dialog.")},
        {QStringLiteral("strict"),
         tr("Print nothing while a barcode of the document would not be readable or cannot be "
            "checked.")},
        {QStringLiteral("list-printers"), tr("List the printers and stop.")},
        {QStringLiteral("screenshot"), tr("Save a picture of the dialog in <file> and stop."),
         tr("file")},
        {QStringList{QStringLiteral("h"), QStringLiteral("help")}, tr("Show this help and stop.")},
        {QStringList{QStringLiteral("v"), QStringLiteral("version")},
         tr("Show the version and stop.")},
    });
}

QString CommandLineReader::exitCodesText()
{
    return tr("Exit codes:\n"
              "  0  printed, or did what else was asked for\n"
              "  1  the dialog was closed without printing\n"
              "  2  the command line cannot be used\n"
              "  3  the document cannot be read\n"
              "  4  the printer, its PPD or a setting for it cannot be used\n"
              "  5  the job could not be handed over\n"
              "  6  a barcode would not be readable, or cannot be checked (--strict)\n");
}

std::variant<CommandLine, QString, Failure> CommandLineReader::read(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Prints a document on a label printer."));
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsOptions);
    addOptions(parser);
    if (!parser.parse(arguments)) {
        return usage(tr("command line"),
                     tr("%1 (--help lists the options)").arg(parser.errorText().chopped(1)));
    }
    if (parser.isSet(QStringLiteral("help"))) {
        QString help = parser.helpText();
        // The way to the program says nothing to the reader.
        help.replace(QCoreApplication::arguments().constFirst(), QStringLiteral("label-print"));
        return QString(help + u'\n' + exitCodesText());
    }
    if (parser.isSet(QStringLiteral("version"))) {
        return QString(QStringLiteral("label-print ") + QCoreApplication::applicationVersion()
                       + u'\n');
    }
    Result<CommandLine> line = take(parser);
    if (!line) {
        return line.failure();
    }
    return std::move(line).value();
}

Result<CommandLine> CommandLineReader::take(const QCommandLineParser &parser)
{
    CommandLine line;
    const QStringList documents = parser.positionalArguments();
    if (documents.size() > 1) {
        return usage(documents.at(1), tr("only one document can be printed at a time"));
    }
    line.document = documents.value(0);
    line.noDialog = parser.isSet(QStringLiteral("no-dialog"));
    line.strict = parser.isSet(QStringLiteral("strict"));
    line.listPrinters = parser.isSet(QStringLiteral("list-printers"));

    const std::pair<const char *, QString CommandLine::*> texts[] = {
        {"printer", &CommandLine::printer},     {"ppd", &CommandLine::ppdFile},
        {"output", &CommandLine::outputFolder}, {"plugin", &CommandLine::plugIn},
        {"ticket", &CommandLine::ticket},       {"screenshot", &CommandLine::screenshot}};
    for (const auto &[name, field] : texts) {
        const QString option = QLatin1String(name);
        line.*field = parser.value(option);
        if (parser.isSet(option) && (line.*field).isEmpty()) {
            return usage(QStringLiteral("--") + option, tr("needs a value that is not empty"));
        }
    }
    if (const std::optional<Failure> failure = takeJob(parser, line)) {
        return *failure;
    }
    if (const std::optional<Failure> failure = checkTogether(line)) {
        return *failure;
    }
    return line;
}

std::optional<Failure> CommandLineReader::takeJob(const QCommandLineParser &parser,
                                                  CommandLine &line)
{
    JobSettings job;
    if (parser.isSet(QStringLiteral("copies"))) {
        const QString text = parser.value(QStringLiteral("copies"));
        if (const std::optional<Failure> failure = job.setCopies(text)) {
            return usage(QStringLiteral("--copies ") + text, failure->why);
        }
        line.copies = job.copies();
    }
    if (parser.isSet(QStringLiteral("pages"))) {
        const QString text = parser.value(QStringLiteral("pages"));
        if (const std::optional<Failure> failure = job.setPages(text)) {
            return usage(QStringLiteral("--pages ") + text, failure->why);
        }
        line.pages = job.pages();
    }
    if (parser.isSet(QStringLiteral("scaling"))) {
        const QString text = parser.value(QStringLiteral("scaling"));
        line.scaling = JobSettings::scalingCalled(text);
        if (!line.scaling) {
            return usage(QStringLiteral("--scaling ") + text,
                         tr("choose fit, actual or whole-dots"));
        }
    }
    for (const QString &text : parser.values(QStringLiteral("o"))) {
        const qsizetype equals = text.indexOf(u'=');
        if (equals <= 0 || equals == text.size() - 1) {
            return usage(QStringLiteral("-o ") + text,
                         tr("give an option and its choice, "
                            "for example -o CvBrightness=5"));
        }
        line.choices.push_back({text.left(equals), text.mid(equals + 1)});
    }
    return {};
}

std::optional<Failure> CommandLineReader::checkTogether(const CommandLine &line)
{
    if (line.noDialog && !line.screenshot.isEmpty()) {
        return usage(QStringLiteral("--screenshot"),
                     tr("there is no dialog to picture with --no-dialog; give one of the two"));
    }
    const bool toFolder = !line.ppdFile.isEmpty() || !line.outputFolder.isEmpty();
    if (toFolder && !line.printer.isEmpty() && line.printer != Printer::folder().name) {
        return usage(QStringLiteral("--printer ") + line.printer,
                     tr("--ppd and --output print to a folder; leave out --printer, or the two"));
    }
    if (line.noDialog && line.document.isEmpty() && !line.listPrinters) {
        return usage(QStringLiteral("--no-dialog"), tr("needs the name of a document to print"));
    }
    return {};
}

} // namespace dialog
