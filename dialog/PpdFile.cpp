// SPDX-License-Identifier: Apache-2.0
#include "dialog/PpdFile.h"

#include "dialog/CupsOptions.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace dialog {

namespace {

constexpr QLatin1String kPageSize("PageSize");
constexpr QLatin1String kCustom("Custom");
constexpr QLatin1String kCustomPrefix("Custom.");

/// Why the file can be no PPD, as far as that shows before it is read.
std::optional<QString> checkFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return PpdFile::tr("there is no such file");
    }
    if (info.isDir()) {
        return PpdFile::tr("is a folder; choose the PPD file in it");
    }
    // A pipe or a device could keep the dialog waiting for ever.
    if (!info.isFile()) {
        return PpdFile::tr("is not an ordinary file; choose a PPD file");
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return PpdFile::tr("cannot be read (%1)").arg(file.errorString());
    }
    if (file.size() == 0) {
        return PpdFile::tr("is empty; choose the printer's PPD file");
    }
    return {};
}

QString notAPpd()
{
    int line = 0;
    const QString reason = QString::fromUtf8(ppdErrorString(ppdLastError(&line)));
    if (line <= 0) {
        return PpdFile::tr("is not a usable PPD (%1); choose another one").arg(reason);
    }
    return PpdFile::tr("is not a usable PPD (line %1: %2); choose another one")
        .arg(line)
        .arg(reason);
}

/// A text of the PPD for people, or `keyword` when there is none that can be read.
QString titleOr(const char *text, const QString &keyword)
{
    const QString title = QString::fromUtf8(text).simplified();
    return title.isEmpty() || title.contains(QChar::ReplacementCharacter) ? keyword : title;
}

ppd_option_t *find(ppd_file_t *ppd, const QString &option)
{
    const QByteArray key = option.toUtf8();
    return ppdFindOption(ppd, key.constData());
}

ppd_choice_t *find(ppd_file_t *ppd, const QString &option, const QString &choice)
{
    ppd_option_t *record = find(ppd, option);
    const QByteArray key = choice.toUtf8();
    return record == nullptr ? nullptr : ppdFindChoice(record, key.constData());
}

ppd_choice_t *findMarked(ppd_file_t *ppd, const QString &option)
{
    const QByteArray key = option.toUtf8();
    return ppdFindMarkedChoice(ppd, key.constData());
}

template <class Function> void forEachOption(const ppd_file_t *ppd, Function function)
{
    // Not with ppdFirstOption: its cursor is moved by every look-up.
    for (int g = 0; g < ppd->num_groups; ++g) {
        const ppd_group_t &group = ppd->groups[g];
        std::for_each(group.options, group.options + group.num_options, function);
        for (int s = 0; s < group.num_subgroups; ++s) {
            const ppd_group_t &inner = group.subgroups[s];
            std::for_each(inner.options, inner.options + inner.num_options, function);
        }
    }
}

bool isOwnSize(const QString &option, const QString &choice)
{
    return option.compare(kPageSize, Qt::CaseInsensitive) == 0
        && choice.startsWith(kCustomPrefix, Qt::CaseInsensitive);
}

/// "Custom" is a choice only once it has got its numbers.
bool isSizeWithoutNumbers(ppd_file_t *ppd, const QString &option, const QString &choice)
{
    const ppd_size_t *size = ppdPageSize(ppd, kCustom.data());
    return option.compare(kPageSize, Qt::CaseInsensitive) == 0
        && choice.compare(kCustom, Qt::CaseInsensitive) == 0
        && (size == nullptr || size->width <= 0 || size->length <= 0);
}

Result<LabelSize> ownSize(const QString &choice)
{
    // Without a unit the print system takes points, a person means millimetres.
    QString text = choice.mid(kCustomPrefix.size());
    if (!text.isEmpty() && text.back().isDigit()) {
        text += QLatin1String("pt");
    }
    return LabelSize::fromText(text);
}

} // namespace

PpdFile::PpdFile(ppd_file_t *ppd, const QString &name)
    : mPpd(ppd)
    , mName(name)
{ }

PpdFile::~PpdFile()
{
    ppdClose(mPpd);
}

Result<std::unique_ptr<PpdFile>> PpdFile::open(const QString &path, const QString &name)
{
    const QString forPeople = name.isEmpty() ? path : name;
    if (const auto why = checkFile(path)) {
        return Failure{FailureKind::Ppd, forPeople, *why};
    }
    const QByteArray encoded = QFile::encodeName(path);
    ppd_file_t *ppd = ppdOpenFile(encoded.constData());
    if (ppd == nullptr) {
        return Failure{FailureKind::Ppd, forPeople, notAPpd()};
    }
    std::unique_ptr<PpdFile> file(new PpdFile(ppd, forPeople));
    ppdLocalize(ppd);
    file->markDefaults();
    return file;
}

QString PpdFile::nickName() const
{
    return titleOr(mPpd->nickname, modelName());
}

QString PpdFile::modelName() const
{
    return titleOr(mPpd->modelname, QFileInfo(mName).completeBaseName());
}

QStringList PpdFile::options() const
{
    QStringList keywords;
    forEachOption(mPpd, [&keywords](const ppd_option_t &option) {
        const QString keyword = QString::fromUtf8(option.keyword);
        if (!keywords.contains(keyword)) {
            keywords.append(keyword);
        }
    });
    return keywords;
}

bool PpdFile::hasOption(const QString &option) const
{
    return find(mPpd, option) != nullptr;
}

QStringList PpdFile::choices(const QString &option) const
{
    QStringList keywords;
    if (const ppd_option_t *record = find(mPpd, option)) {
        std::transform(record->choices, record->choices + record->num_choices,
                       std::back_inserter(keywords),
                       [](const ppd_choice_t &choice) { return QString::fromUtf8(choice.choice); });
    }
    return keywords;
}

QString PpdFile::optionTitle(const QString &option) const
{
    const ppd_option_t *record = find(mPpd, option);
    return record == nullptr ? option : titleOr(record->text, option);
}

QString PpdFile::choiceTitle(const QString &option, const QString &choice) const
{
    const ppd_choice_t *record = find(mPpd, option, choice);
    return record == nullptr ? choice : titleOr(record->text, choice);
}

void PpdFile::markDefaults()
{
    ppdMarkDefaults(mPpd);
}

void PpdFile::markOptions(const OptionChoices &options)
{
    const CupsOptions records(options);
    cupsMarkOptions(mPpd, records.count(), records.data());
}

bool PpdFile::mark(const QString &option, const QString &choice)
{
    if (check(option, choice)) {
        return false;
    }
    const ppd_choice_t *before = findMarked(mPpd, option);
    const QByteArray key = option.toUtf8();
    const QByteArray value = choice.toUtf8();
    ppdMarkOption(mPpd, key.constData(), value.constData());
    return findMarked(mPpd, option) != before;
}

std::optional<QString> PpdFile::markedChoice(const QString &option) const
{
    const ppd_choice_t *choice = findMarked(mPpd, option);
    return choice == nullptr ? std::nullopt : std::optional(QString::fromUtf8(choice->choice));
}

std::optional<Failure> PpdFile::check(const QString &option, const QString &choice) const
{
    if (!hasOption(option)) {
        return Failure{FailureKind::Settings, option,
                       tr("the printer has no such option; its options are %1")
                           .arg(options().join(QStringLiteral(", ")))};
    }
    if (isOwnSize(option, choice)) {
        const auto size = ownSize(choice);
        return size ? checkCustomSize(size.value()) : std::optional(size.failure());
    }
    if (isSizeWithoutNumbers(mPpd, option, choice)) {
        return Failure{FailureKind::Settings, choice,
                       tr("give the size of the label too, like Custom.60x100mm")};
    }
    if (find(mPpd, option, choice) == nullptr) {
        return Failure{FailureKind::Settings, option + QLatin1Char('=') + choice,
                       tr("the option has no such choice; its choices are %1")
                           .arg(choices(option).join(QStringLiteral(", ")))};
    }
    return {};
}

LabelSize PpdFile::sizeOf(const ppd_size_t &size) const
{
    const QString name = QString::fromUtf8(size.name);
    if (name == kCustom) {
        return LabelSize::custom(size.width / kPointsPerMillimetre,
                                 size.length / kPointsPerMillimetre);
    }
    return {name, choiceTitle(kPageSize, name), double(size.width), double(size.length)};
}

std::vector<LabelSize> PpdFile::sizes() const
{
    std::vector<LabelSize> all;
    for (int i = 0; i < mPpd->num_sizes; ++i) {
        const LabelSize size = sizeOf(mPpd->sizes[i]);
        const bool known = std::any_of(all.begin(), all.end(),
                                       [&size](const LabelSize &s) { return s.name == size.name; });
        if (!known && !size.isCustom()) {
            all.push_back(size);
        }
    }
    return all;
}

std::optional<LabelSize> PpdFile::defaultSize() const
{
    const ppd_option_t *option = find(mPpd, kPageSize);
    const ppd_size_t *size = option == nullptr ? nullptr : ppdPageSize(mPpd, option->defchoice);
    return size == nullptr ? std::nullopt : std::optional(sizeOf(*size));
}

std::optional<LabelSize> PpdFile::markedSize() const
{
    const ppd_size_t *size = ppdPageSize(mPpd, nullptr);
    return size == nullptr ? std::nullopt : std::optional(sizeOf(*size));
}

QMarginsF PpdFile::margins(const LabelSize &size) const
{
    if (size.isCustom()) {
        // In the PPD's order: left, bottom, right, top.
        const float *custom = mPpd->custom_margins;
        return {custom[0], custom[3], custom[2], custom[1]};
    }
    for (int i = 0; i < mPpd->num_sizes; ++i) {
        const ppd_size_t &one = mPpd->sizes[i];
        if (size.name == QLatin1String(one.name)) {
            return {one.left, one.length - one.top, one.width - one.right, one.bottom};
        }
    }
    return {};
}

std::optional<CustomSizeRange> PpdFile::customSizes() const
{
    if (mPpd->variable_sizes == 0 || find(mPpd, kPageSize, kCustom) == nullptr) {
        return {};
    }
    const auto millimetres = [](float points) { return double(points) / kPointsPerMillimetre; };
    return CustomSizeRange{millimetres(mPpd->custom_min[0]), millimetres(mPpd->custom_max[0]),
                           millimetres(mPpd->custom_min[1]), millimetres(mPpd->custom_max[1])};
}

std::optional<Failure> PpdFile::checkCustomSize(const LabelSize &size) const
{
    const auto range = customSizes();
    if (!range) {
        return Failure{FailureKind::Settings, size.millimetres(),
                       tr("the printer takes no sizes of your own; choose one of its sizes")};
    }
    // PPDs round the limits to whole points as often as not.
    constexpr double kSlack = 0.5 / kPointsPerMillimetre;
    const auto within = [](double value, double low, double high) {
        return low - kSlack <= value && value <= high + kSlack;
    };
    if (within(size.widthMillimetres(), range->minWidth, range->maxWidth)
        && within(size.heightMillimetres(), range->minHeight, range->maxHeight)) {
        return {};
    }
    const auto text = LabelSize::forPeople;
    return Failure{FailureKind::Settings, size.millimetres(),
                   tr("the printer takes widths of %1 to %2 mm and heights of %3 to %4 mm")
                       .arg(text(range->minWidth), text(range->maxWidth), text(range->minHeight),
                            text(range->maxHeight))};
}

std::optional<Failure> PpdFile::markSize(const LabelSize &size)
{
    const QString choice = size.pageSizeChoice();
    if (const auto failure = check(kPageSize, choice)) {
        return failure;
    }
    mark(kPageSize, choice);
    return {};
}

std::vector<PpdConflict> PpdFile::described(const OptionChoices &pairs) const
{
    std::vector<PpdConflict> conflicts;
    for (const OptionChoice &pair : pairs) {
        conflicts.push_back(
            {pair, optionTitle(pair.option), choiceTitle(pair.option, pair.choice)});
    }
    return conflicts;
}

std::vector<PpdConflict> PpdFile::conflictsWith(const QString &option, const QString &choice) const
{
    const QByteArray key = option.toUtf8();
    const QByteArray value = choice.toUtf8();
    CupsOptions clashes;
    clashes.fill([&](int, cups_option_t **records) {
        return cupsGetConflicts(mPpd, key.constData(), value.constData(), records);
    });
    return described(clashes.choices());
}

std::vector<PpdConflict> PpdFile::conflicts() const
{
    OptionChoices pairs;
    if (ppdConflicts(mPpd) > 0) {
        forEachOption(mPpd, [this, &pairs](const ppd_option_t &option) {
            const QString keyword = QString::fromUtf8(option.keyword);
            if (const auto choice = markedChoice(keyword); choice && option.conflicted != 0) {
                pairs.push_back({keyword, *choice});
            }
        });
    }
    return described(pairs);
}

std::optional<OptionChoices> PpdFile::resolution(const QString &option, const QString &choice) const
{
    const QByteArray key = option.toUtf8();
    const QByteArray value = choice.toUtf8();
    bool found = false;
    CupsOptions changes;
    changes.fill([&](int count, cups_option_t **records) {
        found =
            cupsResolveConflicts(mPpd, key.constData(), value.constData(), &count, records) != 0;
        return count;
    });
    return found ? std::optional(changes.choices()) : std::nullopt;
}

} // namespace dialog
