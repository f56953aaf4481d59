// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/Failure.h"
#include "dialog/JobSettings.h"
#include "dialog/OptionChoice.h"
#include "dialog/PageRanges.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

class QCommandLineParser;

namespace dialog {

/// What the program answers to the shell.
enum class ExitCode
{
    Done = 0, ///< printed, or did what else it was asked for
    Cancelled = 1, ///< the user closed the dialog without printing
    Usage = 2, ///< the command line cannot be used
    Document = 3, ///< the document cannot be read
    Printer = 4, ///< the printer, its PPD or a setting for it cannot be used
    Job = 5, ///< the job could not be handed over
    Barcode = 6 ///< --strict, and a barcode would not be readable, or cannot be checked
};

ExitCode exitCodeOf(FailureKind kind);

/// What the command line asks for. Empty texts stand for "not given".
struct CommandLine
{
    QString document;
    QString printer;
    QString ppdFile;
    QString outputFolder;
    QString plugIn;
    QString ticket;
    QString screenshot;
    OptionChoices choices;
    std::optional<int> copies;
    std::optional<PageRanges> pages;
    std::optional<Scaling> scaling;
    bool noDialog = false;
    /// Nothing is printed when a barcode would not be readable, or cannot be checked.
    bool strict = false;
    bool listPrinters = false;
};

/// Reads the program's arguments.
class CommandLineReader
{
    Q_DECLARE_TR_FUNCTIONS(dialog::CommandLineReader)

public:
    /// What was asked for, a text to print instead (help, version), or what is wrong with the
    /// arguments. `arguments` begin with the program's own name.
    static std::variant<CommandLine, QString, Failure> read(const QStringList &arguments);

private:
    static void addOptions(QCommandLineParser &parser);
    static QString exitCodesText();
    static Result<CommandLine> take(const QCommandLineParser &parser);
    static std::optional<Failure> takeJob(const QCommandLineParser &parser, CommandLine &line);
    static std::optional<Failure> checkTogether(const CommandLine &line);
};

} // namespace dialog
