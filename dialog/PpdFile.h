// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/Failure.h"
#include "dialog/LabelSize.h"
#include "dialog/OptionChoice.h"

#include <QCoreApplication>
#include <QMarginsF>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

#include <cups/ppd.h>

namespace dialog {

/// The limits of sizes of the user's own, in millimetres.
struct CustomSizeRange
{
    double minWidth = 0;
    double maxWidth = 0;
    double minHeight = 0;
    double maxHeight = 0;
};

/// A choice that cannot be had together with another one, with titles for people.
struct PpdConflict
{
    OptionChoice keywords;
    QString optionTitle;
    QString choiceTitle;
};

/// An open PPD: its options, sizes, marks and constraints.
///
/// Its records stay where they are as long as it lives. One thread at a time; a worker may open it
/// and hand it over.
class PpdFile
{
    Q_DECLARE_TR_FUNCTIONS(dialog::PpdFile)

public:
    /// Opens the PPD (plain or gzip), puts its texts into the user's language and marks its
    /// defaults. `name` stands for the file in texts for people, where its path says nothing to
    /// them.
    static Result<std::unique_ptr<PpdFile>> open(const QString &path, const QString &name = {});

    ~PpdFile();
    PpdFile(const PpdFile &) = delete;
    PpdFile &operator=(const PpdFile &) = delete;

    /// For a panel's host. Owned by this.
    ppd_file_t *file() const { return mPpd; }

    /// The printer's name for people; the model's, or the file's, when the PPD has none.
    QString nickName() const;
    QString modelName() const;

    /// The options by keyword, in PPD order, each once.
    QStringList options() const;
    bool hasOption(const QString &option) const;

    /// The choices of an option by keyword, in PPD order; empty when there is no such option.
    /// Where own values are possible, libcups lists them as "Custom".
    QStringList choices(const QString &option) const;

    /// Titles for people; the keyword itself when the PPD has no readable one.
    QString optionTitle(const QString &option) const;
    QString choiceTitle(const QString &option, const QString &choice) const;

    void markDefaults();

    /// Marks on top of what is marked; general options ("media") are translated by libcups, and
    /// what the PPD does not know changes nothing.
    void markOptions(const OptionChoices &options);

    /// Marks a choice, or "Custom.60x100mm" of PageSize. True when another choice record is marked
    /// than before; a new own size instead of an old one is the same record. An unknown pair
    /// changes nothing.
    bool mark(const QString &option, const QString &choice);

    /// The keyword of the marked choice, or nothing.
    std::optional<QString> markedChoice(const QString &option) const;

    /// Why `choice` cannot be chosen for `option`, in words for the user.
    std::optional<Failure> check(const QString &option, const QString &choice) const;

    /// The sizes that PageSize offers, in PPD order, without "Custom".
    std::vector<LabelSize> sizes() const;
    std::optional<LabelSize> defaultSize() const;

    /// The marked size; named "Custom" when it is one of the user's own.
    std::optional<LabelSize> markedSize() const;

    /// The edges of a label of this size that the printer cannot reach, in points.
    QMarginsF margins(const LabelSize &size) const;

    /// Nothing when the PPD has only its own sizes.
    std::optional<CustomSizeRange> customSizes() const;

    /// Marks one of the PPD's sizes or a custom one; the failure names the limits.
    std::optional<Failure> markSize(const LabelSize &size);

    /// The marked choices that clash with `choice` of `option`, if that were marked.
    std::vector<PpdConflict> conflictsWith(const QString &option, const QString &choice) const;

    /// The marked choices that clash with one another.
    std::vector<PpdConflict> conflicts() const;

    /// What else to mark so that `choice` of `option` clashes with nothing; nothing when libcups
    /// finds no way.
    std::optional<OptionChoices> resolution(const QString &option, const QString &choice) const;

private:
    PpdFile(ppd_file_t *ppd, const QString &name);
    std::vector<PpdConflict> described(const OptionChoices &pairs) const;
    std::optional<Failure> checkCustomSize(const LabelSize &size) const;
    LabelSize sizeOf(const ppd_size_t &size) const;

    ppd_file_t *mPpd;
    QString mName;
};

} // namespace dialog
