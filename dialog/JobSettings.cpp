// SPDX-License-Identifier: Apache-2.0
#include "dialog/JobSettings.h"

#include "dialog/PropertyList.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace dialog {

namespace {

constexpr QLatin1String kTitle("Title");
constexpr QLatin1String kCopies("Copies");
constexpr QLatin1String kPages("Pages");
constexpr QLatin1String kScaling("Scaling");
constexpr QLatin1String kLabelSize("LabelSize");
constexpr QLatin1String kName("Name");
constexpr QLatin1String kWidth("WidthPoints");
constexpr QLatin1String kHeight("HeightPoints");
constexpr QLatin1String kOptions("Options");
constexpr QLatin1String kOption("Option");
constexpr QLatin1String kChoice("Choice");
constexpr QLatin1String kValues("Values");
constexpr QLatin1String kPageSize("PageSize");
const QString kWholeDots = QStringLiteral("whole-dots");

/// For the print system, which knows nothing of whole dots; a document that goes there without
/// dots is fitted.
QString printScalingOf(Scaling scaling)
{
    return scaling == Scaling::ActualSize ? QStringLiteral("none") : QStringLiteral("fit");
}

/// For settings.plist.
QString keywordOf(Scaling scaling)
{
    return scaling == Scaling::WholeDots ? kWholeDots : printScalingOf(scaling);
}

template <class Choices> auto find(Choices &choices, const QString &option)
{
    return std::find_if(choices.begin(), choices.end(),
                        [&option](const OptionChoice &pair) { return pair.option == option; });
}

QVariantMap mapOf(const LabelSize &size)
{
    return {{kName, size.name}, {kTitle, size.title}, {kWidth, size.width}, {kHeight, size.height}};
}

QVariantList listOf(const OptionChoices &choices)
{
    QVariantList list;
    for (const OptionChoice &pair : choices) {
        list.append(QVariantMap{{kOption, pair.option}, {kChoice, pair.choice}});
    }
    return list;
}

bool isString(const QVariant &value)
{
    return value.typeId() == QMetaType::QString;
}

} // namespace

void JobSettings::takeGeneralPart(const JobSettings &other)
{
    mTitle = other.mTitle;
    mCopies = other.mCopies;
    mPages = other.mPages;
    mScaling = other.mScaling;
}

void JobSettings::setTitle(const QString &title)
{
    mTitle = title;
    for (QChar &c : mTitle) {
        if (c.category() == QChar::Other_Control) {
            c = QLatin1Char(' ');
        }
    }
}

std::optional<Failure> JobSettings::setCopies(int copies)
{
    if (copies < 1 || copies > kMaxCopies) {
        return Failure{FailureKind::Settings, tr("%n copies", nullptr, copies),
                       tr("choose from 1 to %1").arg(kMaxCopies)};
    }
    mCopies = copies;
    return {};
}

std::optional<Failure> JobSettings::setCopies(const QString &text)
{
    bool isNumber = false;
    const int copies = text.trimmed().toInt(&isNumber);
    if (!isNumber) {
        return Failure{FailureKind::Settings, tr("Copies “%1”").arg(text),
                       tr("write a number from 1 to %1").arg(kMaxCopies)};
    }
    return setCopies(copies);
}

std::optional<Failure> JobSettings::setPages(const QString &text)
{
    const auto pages = PageRanges::parse(text);
    if (!pages) {
        return pages.failure();
    }
    mPages = pages.value();
    return {};
}

std::optional<QString> JobSettings::choice(const QString &option) const
{
    const auto pair = find(mChoices, option);
    return pair == mChoices.end() ? std::nullopt : std::optional(pair->choice);
}

void JobSettings::setChoice(const QString &option, const QString &choice)
{
    const auto pair = find(mChoices, option);
    if (pair == mChoices.end()) {
        mChoices.push_back({option, choice});
    } else {
        pair->choice = choice;
    }
}

void JobSettings::removeChoice(const QString &option)
{
    std::erase_if(mChoices, [&option](const OptionChoice &pair) { return pair.option == option; });
}

std::optional<Scaling> JobSettings::scalingCalled(const QString &word)
{
    const std::pair<QString, Scaling> words[] = {{QStringLiteral("fit"), Scaling::Fit},
                                                 {QStringLiteral("actual"), Scaling::ActualSize},
                                                 {kWholeDots, Scaling::WholeDots}};
    for (const auto &[known, scaling] : words) {
        if (word == known) {
            return scaling;
        }
    }
    return {};
}

OptionChoices JobSettings::jobOptions() const
{
    OptionChoices options{{QStringLiteral("copies"), QString::number(mCopies)}};
    if (!mPages.isAll()) {
        options.push_back({QStringLiteral("page-ranges"), mPages.text()});
    }
    if (mLabelSize) {
        options.push_back({kPageSize, mLabelSize->pageSizeChoice()});
    }
    options.push_back({QStringLiteral("print-scaling"), printScalingOf(mScaling)});
    std::copy_if(
        mChoices.begin(), mChoices.end(), std::back_inserter(options),
        [this](const OptionChoice &pair) { return !mLabelSize || pair.option != kPageSize; });
    return options;
}

std::optional<QByteArray> JobSettings::value(const QString &key) const
{
    const auto bytes = mValues.find(key);
    return bytes == mValues.end() ? std::nullopt : std::optional(bytes.value());
}

PMResult<quint32> JobSettings::firstPage() const
{
    return {0, mPages.first()};
}

OSStatus JobSettings::setFirstPage(quint32 page)
{
    if (page == 0) {
        return kInvalidPage;
    }
    if (page != mPages.first()) {
        mPages = PageRanges(page, std::max(page, mPages.last()));
    }
    return 0;
}

PMResult<quint32> JobSettings::lastPage() const
{
    return {0, mPages.last()};
}

OSStatus JobSettings::setLastPage(quint32 page)
{
    if (page == 0) {
        return kInvalidPage;
    }
    if (page != mPages.last()) {
        mPages = PageRanges(std::min(page, mPages.first()), page);
    }
    return 0;
}

std::optional<QByteArray> JobSettings::dataRepresentation() const
{
    QVariantMap map{{kTitle, mTitle},
                    {kCopies, mCopies},
                    {kPages, mPages.text()},
                    {kScaling, keywordOf(mScaling)},
                    {kOptions, listOf(mChoices)}};
    if (mLabelSize) {
        map.insert(kLabelSize, mapOf(*mLabelSize));
    }
    QVariantMap values;
    for (auto item = mValues.begin(); item != mValues.end(); ++item) {
        values.insert(item.key(), item.value());
    }
    if (!values.isEmpty()) {
        map.insert(kValues, values);
    }
    return toPropertyList(map);
}

bool JobSettings::readSize(const QVariant &value)
{
    const QVariantMap map = value.toMap();
    const QVariant width = map.value(kWidth);
    const QVariant height = map.value(kHeight);
    if (!isString(map.value(kName)) || width.typeId() != QMetaType::Double
        || height.typeId() != QMetaType::Double) {
        return false;
    }
    mLabelSize = LabelSize{map.value(kName).toString(), map.value(kTitle).toString(),
                           width.toDouble(), height.toDouble()};
    return true;
}

bool JobSettings::readChoices(const QVariant &value)
{
    const QVariantList list = value.toList();
    return std::all_of(list.begin(), list.end(), [this](const QVariant &item) {
        const QVariantMap pair = item.toMap();
        setChoice(pair.value(kOption).toString(), pair.value(kChoice).toString());
        return isString(pair.value(kOption)) && isString(pair.value(kChoice));
    });
}

std::optional<Failure> JobSettings::readFrom(const QVariantMap &map, const QString &name)
{
    const auto unusable = [&name](QLatin1String key) {
        return Failure{FailureKind::Settings, name,
                       tr("the setting %1 is missing or cannot be used").arg(key)};
    };
    setTitle(map.value(kTitle).toString());
    const quint64 copies = map.value(kCopies).toULongLong();
    if (copies > kMaxCopies || setCopies(static_cast<int>(copies))) {
        return unusable(kCopies);
    }
    if (!isString(map.value(kPages)) || setPages(map.value(kPages).toString())) {
        return unusable(kPages);
    }
    const QString scaling = map.value(kScaling).toString();
    const Scaling known[] = {Scaling::Fit, Scaling::ActualSize, Scaling::WholeDots};
    const auto *found = std::find_if(std::begin(known), std::end(known),
                                     [&](Scaling one) { return keywordOf(one) == scaling; });
    if (found == std::end(known)) {
        return unusable(kScaling);
    }
    mScaling = *found;
    if (map.contains(kLabelSize) && !readSize(map.value(kLabelSize))) {
        return unusable(kLabelSize);
    }
    if (!readChoices(map.value(kOptions))) {
        return unusable(kOptions);
    }
    const QVariantMap values = map.value(kValues).toMap();
    for (auto item = values.begin(); item != values.end(); ++item) {
        setValue(item.key(), item.value().toByteArray());
    }
    return {};
}

Result<JobSettings> JobSettings::fromDataRepresentation(const QByteArray &xml, const QString &name)
{
    const auto map = fromPropertyList(xml);
    if (!map) {
        return Failure{FailureKind::Settings, name, tr("is no XML property list of settings")};
    }
    JobSettings settings;
    if (const auto failure = settings.readFrom(*map, name)) {
        return *failure;
    }
    return settings;
}

bool JobSettings::operator==(const JobSettings &other) const
{
    return mTitle == other.mTitle && mCopies == other.mCopies && mPages == other.mPages
        && mLabelSize == other.mLabelSize && mScaling == other.mScaling
        && mChoices == other.mChoices && mValues == other.mValues;
}

} // namespace dialog
