// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "GraphicsBundle.h"
#include "TestDocuments.h"
#include "dialog/LibcupsServer.h"
#include "dialog/PrintDialog.h"

#include <QComboBox>
#include <QSettings>

#include <memory>

/// The window on screen, with a printer that is a folder and a server that is not there.
class DialogWindow : public DocumentFolder
{
protected:
    DialogWindow()
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                           folder.filePath(QStringLiteral("config")));
    }
    void makeController(const QString &ppd = kSamplePpd,
                        const dialog::PlugIns &plugIns = graphicsPlugIn())
    {
        window.reset();
        controller = std::make_unique<dialog::PrintController>(
            cups, plugIns, dialog::PrintController::Folder{ppd, out()},
            dialog::PanelSet::Views::Made);
    }
    void showWindow()
    {
        printers = std::make_unique<dialog::PrinterList>(cups);
        window = std::make_unique<dialog::PrintDialog>(*controller, *printers);
        window->setDocument(opened(pdfOfPages(3)));
        window->wishPrinter(QStringLiteral("folder"));
        window->show();
    }
    void open(const QString &ppd = kSamplePpd, const dialog::PlugIns &plugIns = graphicsPlugIn())
    {
        makeController(ppd, plugIns);
        showWindow();
    }
    template <class W> W *find(const char *name)
    {
        W *widget = window->findChild<W *>(QLatin1String(name));
        EXPECT_TRUE(widget) << name;
        return widget;
    }
    /// As the user picks it.
    void pick(const char *comboBox, int index)
    {
        auto *box = find<QComboBox>(comboBox);
        box->setCurrentIndex(index);
        Q_EMIT box->activated(index);
    }
    QString out() const { return folder.filePath(QStringLiteral("out")); }

    static QString testPpd(const char *name)
    {
        return QStringLiteral(TEST_DATA_DIR "/ppd/") + QLatin1String(name);
    }

    std::shared_ptr<dialog::CupsServer> cups =
        std::make_shared<dialog::LibcupsServer>(QStringLiteral("/nonexistent/cups.sock"));
    std::unique_ptr<dialog::PrintController> controller;
    std::unique_ptr<dialog::PrinterList> printers;
    std::unique_ptr<dialog::PrintDialog> window;
};
