// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/Failure.h"
#include "dialog/LabelSize.h"
#include "dialog/OptionChoice.h"
#include "dialog/PageRanges.h"
#include "platform/PrintCore.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QMap>
#include <QString>

#include <optional>

namespace dialog {

/// How a page gets onto the label.
enum class Scaling
{
    Fit, ///< as large as the label allows
    ActualSize, ///< as large as in the document
    WholeDots ///< each pixel of a picture so many whole dots, as many as fit; else as Fit
};

/// The settings of one print job: its own (title, copies, pages, label size, scaling) and the
/// choices of the printer's options. A value; copies are independent.
///
/// The label size stands apart from the option choices: a choice for PageSize is the label size.
class JobSettings : public PMPrintSettings
{
    Q_DECLARE_TR_FUNCTIONS(dialog::JobSettings)

public:
    static constexpr int kMaxCopies = 9999;

    /// The status of a page number that no document has.
    static constexpr OSStatus kInvalidPage = -50;

    /// Takes over what means the same to every printer: title, copies, pages and scaling.
    void takeGeneralPart(const JobSettings &other);

    const QString &title() const { return mTitle; }
    /// Control characters become spaces: neither the print system nor a property list takes them.
    void setTitle(const QString &title);

    int copies() const { return mCopies; }
    std::optional<Failure> setCopies(int copies);
    /// The same with text as a person typed it.
    std::optional<Failure> setCopies(const QString &text);

    const PageRanges &pages() const { return mPages; }
    void setPages(const PageRanges &pages) { mPages = pages; }
    /// The same with text like "1-3,5"; empty is every page.
    std::optional<Failure> setPages(const QString &text);

    const std::optional<LabelSize> &labelSize() const { return mLabelSize; }
    void setLabelSize(const std::optional<LabelSize> &size) { mLabelSize = size; }

    Scaling scaling() const { return mScaling; }
    void setScaling(Scaling scaling) { mScaling = scaling; }

    /// The choices by keyword, in the order in which the options were first set.
    const OptionChoices &choices() const { return mChoices; }
    std::optional<QString> choice(const QString &option) const;
    void setChoice(const QString &option, const QString &choice);
    void removeChoice(const QString &option);

    /// "fit", "actual" or "whole-dots", as the command line has them; nothing for other words.
    static std::optional<Scaling> scalingCalled(const QString &word);

    /// Everything as options of the print job: the job's own first, then the choices.
    OptionChoices jobOptions() const;

    /// Bytes for panels, held under a key of theirs; an extended ticket is such a value.
    void setValue(const QString &key, const QByteArray &bytes) { mValues.insert(key, bytes); }
    void removeValue(const QString &key) { mValues.remove(key); }

    std::optional<QByteArray> value(const QString &key) const override;

    /// First page of the first range and last page of the last one. Setting what is there already
    /// changes nothing; anything else makes one range of the two, and a page beyond the other end
    /// takes that end along.
    PMResult<quint32> firstPage() const override;
    OSStatus setFirstPage(quint32 page) override;
    PMResult<quint32> lastPage() const override;
    OSStatus setLastPage(quint32 page) override;

    std::optional<QByteArray> dataRepresentation() const override;

    /// Reads what dataRepresentation() wrote. `name` names the source in the failure.
    static Result<JobSettings> fromDataRepresentation(const QByteArray &xml, const QString &name);

    bool operator==(const JobSettings &other) const;

private:
    std::optional<Failure> readFrom(const QVariantMap &map, const QString &name);
    bool readSize(const QVariant &value);
    bool readChoices(const QVariant &value);

    QString mTitle;
    int mCopies = 1;
    PageRanges mPages;
    std::optional<LabelSize> mLabelSize;
    Scaling mScaling = Scaling::Fit;
    OptionChoices mChoices;
    QMap<QString, QByteArray> mValues;
};

} // namespace dialog
