// SPDX-License-Identifier: Apache-2.0
#include "ppd/ExtendedTicket.h"

#include "ppd/PropertyList.h"

#include <QVariant>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr OSStatus kNoError = 0;
constexpr OSStatus kParameterError = -50;
constexpr OSStatus kNoDataInSession = -30891;

/// The ticket's string under `key`; nothing when anything on the way to it is missing.
std::optional<QString> ticketString(const PMPrintSettings *settings, const char *key)
{
    const auto data = settings ? settings->value(ExtendedTicketKey) : std::nullopt;
    if (!data) {
        return std::nullopt;
    }
    const std::optional<PropertyList> ticket = PropertyList::fromXml(*data);
    return ticket ? ticket->string(key) : std::nullopt;
}

qint32 cutToward0(double value)
{
    using Limits = std::numeric_limits<qint32>;
    if (std::isnan(value)) {
        return 0;
    }
    return qint32(std::clamp(value, double(Limits::min()), double(Limits::max())));
}

/// Nothing when the data is no number.
std::optional<qint32> numberIn(const QVariant &data)
{
    switch (data.typeId()) {
    case QMetaType::Float:
    case QMetaType::Double:
        return cutToward0(data.toDouble());
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return qint32(quint32(data.toLongLong()));
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return qint32(quint32(data.toULongLong()));
    default:
        return std::nullopt;
    }
}

} // namespace

OSStatus GetTapeInfo2(const void *, const PMPrintSettings *settings, TapeInfo *info)
{
    if (!info) {
        return kParameterError;
    }
    info->paperName = ticketString(settings, "KtPaperName2");
    return kNoError;
}

OSStatus GetColorSetting(const void *, const PMPrintSettings *settings, TapeInfo *info)
{
    if (!info) {
        return kParameterError;
    }
    info->colorSetting = 2;
    const std::optional<QString> value = ticketString(settings, "KtVLMultiColor");
    if (value && value->contains(QStringLiteral("MultiColorMonochrome"))) {
        info->colorSetting = 0;
    }
    // Meant: asked second, so that a value with both texts is black and red.
    if (value && value->contains(QStringLiteral("MultiColorBlackRed"))) {
        info->colorSetting = 1;
    }
    return kNoError;
}

OSStatus GetTicketFromSession(const PMPrintSession *session, const QString &key, qint32 *number)
{
    const auto data = session ? session->data(key) : PMResult<QVariant>();
    if (data.status != kNoError || !data.value.isValid()) {
        return kNoDataInSession;
    }
    const std::optional<qint32> value = numberIn(data.value);
    if (value && number) {
        *number = *value;
    }
    return kNoError;
}
