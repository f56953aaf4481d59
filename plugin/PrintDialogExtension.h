// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Bundle.h"
#include "platform/Export.h"
#include "platform/PrintCore.h"

#include <QLatin1String>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <memory>
#include <optional>
#include <vector>

#include <cups/ppd.h>

class QWidget;

// The contract between the print dialog and a plug-in bundle.
//
// A bundle is a folder NAME.plugin that holds bundle.json, the shared object that bundle.json
// names, and Resources. The dialog reads and judges bundle.json before it loads any code:
//
//     { "interfaceVersion": 1,                        must equal kPDEInterfaceVersion
//       "principalClass": "NAME",                     exported as NAME_initWithBundle
//       "executable": "FILE.so",                      a plain file name in the bundle's folder
//       "panelTypes": ["BDB091F4-..."] }              the panel types that the plug-in answers to
//
// The order of calls:
//  1. The dialog calls NAME_initWithBundle. Null means that the plug-in declines; the dialog goes
//  on.
//  2. PDEPlugIn::PDEPanelsForType with a panel host makes the panels, once per dialog.
//  3. Of each panel: supportedPPDOptionKeys, panelView and panelName in any order, then willShow
//     whenever its view is about to be seen.
//  4. restoreValuesAndReturnError after the marks of the PPD have changed from outside, and
//     saveValuesAndReturnError before they are read; PPDOptionKeyValueDidChange after every change.
//  5. shouldPrint before a job; printWindowWillClose before the dialog closes.
//  6. The panels are released, then the plug-in, then the host. Code is never unloaded before exit.
//
// Everything here belongs to the dialog's interface thread. No operation throws, except where it
// says so.

/// The version of this contract. A bundle made for another one is refused.
inline constexpr int kPDEInterfaceVersion = 1;

/// The panel type of the print dialog. Compared exactly, letter case included.
inline constexpr QLatin1String kPrintDialogPanelType("BDB091F4-E57F-11D3-B5CC-0050E4603277");

/// The key of the summary dictionary that holds the titles in the order in which they are shown.
inline constexpr QLatin1String kSummaryDisplayOrder("Summary Display Order");

/// The dialog posts this on the default notification centre, with the address of the panel's view
/// (as QWidget) as object, when it has grown and laid the view out anew. A panel that found the
/// dialog too low for its new size waits for it before it calls panelViewDidResize.
inline constexpr QLatin1String
    NSViewDidUpdateTrackingAreasNotification("NSViewDidUpdateTrackingAreasNotification");

/// What a print dialog offers to a panel.
///
/// The dialog keeps the host alive at least as long as the panel. A panel asks for session,
/// settings, page format, printer and PPD while it is made; any operation may be called until the
/// panel is gone.
class PLATFORM_EXPORT PDEPluginCallback13_v300_
{
public:
    virtual ~PDEPluginCallback13_v300_();

    /// Each null when there is none. Owned by the host, valid as long as the host.
    virtual PMPrintSession *printSession() const = 0;
    virtual PMPrintSettings *printSettings() const = 0;
    virtual PMPageFormat *pageFormat() const = 0;
    virtual ::PMPrinter *PMPrinter() const = 0;

    /// The open PPD of the printer, or null when the printer has none.
    /// Owned by the host; the file and all its records outlive the panel.
    virtual ppd_file_t *ppdFile() const = 0;

    /// Asks the host to mark `ppdChoice` of `option`, in the PPD and in the print settings.
    /// Keywords as the PPD spells them, not titles; an unknown pair changes nothing. Nothing as
    /// choice is ignored. PPDOptionKeyValueDidChange may reach any panel, also the caller, before
    /// this returns.
    virtual void willChangePPDOptionKeyValue(const QString &option,
                                             const std::optional<QString> &ppdChoice) = 0;

    /// Whether the optional operation called `operation` may be called ("panelViewDidResize").
    virtual bool respondsToSelector(QLatin1String operation) const = 0;

    /// Optional. The panel's view has a new size; the dialog makes room for it.
    virtual void panelViewDidResize();
};

/// One panel of the dialog: a view with controls for some options of the printer's PPD.
///
/// Made by a plug-in for one dialog and one open PPD.
class PLATFORM_EXPORT PDEPanel
{
public:
    virtual ~PDEPanel();

    /// The panel's view, made on the first call; null when it cannot be made. Owned by the panel,
    /// which deletes it when it goes: a host that gives it a parent takes it out again before that.
    /// Its size in points is the room that it needs; it does not stretch.
    virtual QWidget *panelView() = 0;

    /// The panel's name for the user, in the user's language.
    virtual QString panelName() = 0;

    /// A reverse-domain text that tells panels of one kind from others.
    virtual QString panelKind() const = 0;

    /// The PPD options that the panel claims: only it sets them, and they go with the job. Null
    /// claims nothing. The list stays the same for the panel's life. The first call may ask for
    /// choices to be marked.
    virtual std::shared_ptr<const QStringList> supportedPPDOptionKeys() = 0;

    /// The dialog is about to close; `userCancelled` tells how.
    virtual void printWindowWillClose(bool userCancelled) = 0;

    /// The view is about to be seen. The panel may mark choices so that the PPD agrees with its
    /// controls.
    virtual void willShow() = 0;

    /// Whether the view may go out of sight, and whether the job may start.
    virtual bool shouldHide() = 0;
    virtual bool shouldPrint() = 0;

    /// Whether the panel has help of its own to show.
    virtual bool shouldShowHelp() = 0;

    /// A choice was marked in the PPD, by whomever. Either may be missing; the panel then ignores
    /// the call.
    virtual void PPDOptionKeyValueDidChange(const std::optional<QString> &option,
                                            const std::optional<QString> &ppdChoice) = 0;

    /// Takes the marks of the PPD over into the controls, or the controls' state into the marks.
    /// When one answers false, `error` (may be null) has a sentence for the user.
    virtual bool restoreValuesAndReturnError(QString *error) = 0;
    virtual bool saveValuesAndReturnError(QString *error) = 0;

    /// The panel's settings for the dialog's summary: title to value text, and under
    /// kSummaryDisplayOrder the list of titles in their order; nothing when the panel has no
    /// summary. Throws std::invalid_argument when the text of a value cannot be made.
    virtual std::optional<QVariantMap> summaryInfo() = 0;
};

/// The panels of one call, shared with the plug-in that made them.
using PDEPanelList = std::vector<std::shared_ptr<PDEPanel>>;

/// A plug-in: the object of the bundle's principal class.
class PLATFORM_EXPORT PDEPlugIn
{
public:
    virtual ~PDEPlugIn();

    /// Fresh panels of `type` for a dialog; null or empty when the plug-in has none of that type.
    /// The panels retain `host`. A caller that wants to keep them keeps the list.
    virtual std::shared_ptr<const PDEPanelList>
    PDEPanelsForType(const QString &type,
                     const std::shared_ptr<PDEPluginCallback13_v300_> &host) = 0;
};

/// The exported function of a bundle, called NAME_initWithBundle for principal class NAME. `bundle`
/// outlives the plug-in; the plug-in borrows it. The caller deletes the result. Null: the plug-in
/// declines.
using PDEInitWithBundle = PDEPlugIn *(*)(platform::Bundle *bundle);
