// SPDX-License-Identifier: Apache-2.0
#include "dialog/Application.h"

#include "dialog/BatchPrint.h"
#include "dialog/DialogRun.h"
#include "dialog/LibcupsServer.h"
#include "dialog/Remembered.h"
#include "dialog/Terminal.h"
#include "dialog/Translations.h"
#include "loading/BundleFinder.h"
#include "loading/BundleLoader.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace dialog {
namespace {

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY")
        || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

/// Without a display everything but the waiting dialog works all the same.
void doWithoutDisplay()
{
    if (hasDisplay()) {
        return;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("QT_LOGGING_RULES")) {
        // Qt warns about a session and a window manager that nobody expects here.
        qputenv("QT_LOGGING_RULES", "default.warning=false");
    }
}

} // namespace

int Application::run(int argc, char **argv)
{
    const bool display = hasDisplay();
    doWithoutDisplay();
    // Qt would take --plugin for itself, so it does not get to see the arguments.
    int programOnly = 1;
    QApplication app(programOnly, argv);
    QApplication::setApplicationName(QStringLiteral("label-print"));
    QApplication::setApplicationVersion(QStringLiteral(LABELPRINT_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("label-print"));
    const Translations translations;

    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    const auto read = CommandLineReader::read(arguments);
    if (const QString *text = std::get_if<QString>(&read)) {
        say(*text);
        return int(ExitCode::Done);
    }
    if (const Failure *failure = std::get_if<Failure>(&read)) {
        complain(*failure);
        return int(exitCodeOf(failure->kind));
    }
    const CommandLine &line = std::get<CommandLine>(read);
    if (!display && !line.noDialog && !line.listPrinters && line.screenshot.isEmpty()) {
        complain(
            {FailureKind::Usage, tr("display"),
             tr("there is none to show the dialog on; print with --no-dialog, or save a picture "
                "of the dialog with --screenshot")});
        return int(ExitCode::Usage);
    }
    return int(Application(line).start());
}

Application::Application(const CommandLine &line)
    : mLine(line)
    , mServer(std::make_shared<LibcupsServer>())
{ }

ExitCode Application::start()
{
    if (mLine.listPrinters) {
        return listPrinters();
    }
    for (const std::optional<Failure> &failure : {openDocument(), openTicket()}) {
        if (failure && (mLine.noDialog || !mLine.screenshot.isEmpty())) {
            complain(*failure);
            return exitCodeOf(failure->kind);
        }
        if (failure) {
            mComplaints.push_back(*failure);
        }
    }
    loadPlugIns();
    for (const Failure &failure : mComplaints) {
        complain(failure);
    }
    return mLine.noDialog ? printAtOnce() : showDialog();
}

std::optional<Failure> Application::openDocument()
{
    if (mLine.document.isEmpty()) {
        return {};
    }
    const auto document = DocumentPages::open(mLine.document);
    if (!document) {
        return document.failure();
    }
    mDocument = document.value();
    return {};
}

std::optional<Failure> Application::openTicket()
{
    if (mLine.ticket.isEmpty()) {
        return {};
    }
    const Result<ExtendedTicket> ticket = ExtendedTicket::open(mLine.ticket);
    if (!ticket) {
        return ticket.failure();
    }
    mTicket = ticket.value();
    return {};
}

ExitCode Application::listPrinters()
{
    CancelFlag never;
    const auto printers = mServer->printers(never);
    // The folder needs no server, so it is listed whatever the server says.
    std::vector<Printer> all = printers ? printers.value() : std::vector<Printer>();
    all.push_back(Printer::folder());
    for (const Printer &printer : all) {
        const QString title = printer.title() == printer.name
            ? QString()
            : QStringLiteral(" (%1)").arg(printer.title());
        say(printer.name + title + QStringLiteral(": ") + printer.stateText()
            + (printer.isDefault ? tr(", the default") : QString()) + u'\n');
    }
    if (!printers) {
        complain(printers.failure());
        return exitCodeOf(printers.failure().kind);
    }
    return ExitCode::Done;
}

void Application::loadPlugIns()
{
    const QStringList asked = mLine.plugIn.isEmpty() ? QStringList() : QStringList{mLine.plugIn};
    const loading::BundleFinder::Found found = loading::BundleFinder(asked).find();
    for (const loading::Refusal &refusal : found.failures) {
        complainLater(refusal);
    }
    const loading::BundleLoader loader;
    for (const QString &bundle : found.bundles) {
        auto plugIn = loader.load(bundle);
        if (plugIn) {
            mPlugIns.push_back(std::make_shared<loading::LoadedPlugIn>(std::move(plugIn).value()));
        } else {
            complainLater(plugIn.failure());
        }
    }
}

void Application::complainLater(const loading::Refusal &refusal)
{
    mComplaints.push_back({FailureKind::Panel, refusal.what, refusal.why});
}

PrintController::Folder Application::folder() const
{
    PrintController::Folder folder{mLine.ppdFile, mLine.outputFolder};
    if (folder.ppdFile.isEmpty()) {
        const QString sample =
            QDir::cleanPath(QCoreApplication::applicationDirPath()
                            + QStringLiteral("/../share/label-print/ppd/label-300.ppd"));
        folder.ppdFile = QFileInfo::exists(sample) ? sample : QString();
    }
    if (folder.output.isEmpty()) {
        folder.output = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
            + QStringLiteral("/Labels");
    }
    return folder;
}

QString Application::wishedPrinter() const
{
    const bool isFolder = !mLine.ppdFile.isEmpty() || !mLine.outputFolder.isEmpty();
    return isFolder ? Printer::folder().name : mLine.printer;
}

JobSettings Application::wishedJob() const
{
    JobSettings job;
    job.setCopies(mLine.copies.value_or(1));
    job.setPages(mLine.pages.value_or(PageRanges()));
    job.setScaling(mLine.scaling.value_or(Scaling::Fit));
    return job;
}

Result<Printer> Application::findPrinter()
{
    const QString wished = wishedPrinter();
    if (wished == Printer::folder().name) {
        return Printer::folder();
    }
    CancelFlag never;
    const auto printers = mServer->printers(never);
    if (!printers) {
        return printers.failure();
    }
    const auto found =
        std::find_if(printers.value().begin(), printers.value().end(), [&](const Printer &one) {
            return wished.isEmpty() ? one.isDefault : one.name == wished;
        });
    if (found != printers.value().end()) {
        return *found;
    }
    return Failure{FailureKind::Printer, wished.isEmpty() ? tr("printer") : wished,
                   wished.isEmpty()
                       ? tr("there is no default printer; choose one with --printer")
                       : tr("there is no such printer; --list-printers lists those there are")};
}

ExitCode Application::printAtOnce()
{
    const Result<Printer> printer = findPrinter();
    if (!printer) {
        complain(printer.failure());
        return exitCodeOf(printer.failure().kind);
    }
    JobSettings job = wishedJob();
    if (const auto failure = job.pages().check(quint32(mDocument->pageCount()))) {
        complain(*failure);
        return ExitCode::Usage;
    }
    PrintController controller(mServer, mPlugIns, folder(), PanelSet::Views::None);
    controller.setWishes(mLine.choices);
    controller.setTicket(mTicket);
    return BatchPrint(controller).run(printer.value(), job, mDocument, mLine.strict);
}

ExitCode Application::showDialog()
{
    PrintController controller(mServer, mPlugIns, folder(), PanelSet::Views::Made);
    controller.setWishes(mLine.choices);
    controller.setTicket(mTicket);
    PrinterList printers(mServer);
    DialogRun run(controller, printers);
    PrintDialog &window = run.window();
    window.setStrict(mLine.strict);
    window.setJob(wishedJob());
    window.setDocument(mDocument);
    window.wishPrinter(wishedPrinter());
    for (const Failure &failure : mComplaints) {
        window.showFailure(failure);
    }
    printers.refresh();
    return mLine.screenshot.isEmpty() ? run.show() : run.savePicture(mLine.screenshot);
}

} // namespace dialog
