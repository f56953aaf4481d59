// SPDX-License-Identifier: Apache-2.0
#include "platform/TextEncodings.h"

#include <QByteArray>
#include <QStringDecoder>
#include <QStringEncoder>

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>

#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>

namespace platform {
namespace {

using Converter = std::unique_ptr<UConverter, decltype(&ucnv_close)>;

constexpr std::array kTriedInTurn{TextEncoding::MacRoman,
                                  TextEncoding::ShiftJis,
                                  TextEncoding::Big5,
                                  TextEncoding::EucKr,
                                  TextEncoding::MacGreek,
                                  TextEncoding::MacCyrillic,
                                  TextEncoding::MacCentralEurope,
                                  TextEncoding::MacTurkish,
                                  TextEncoding::Utf16,
                                  TextEncoding::Utf8};

TextEncoding gSystemEncoding = TextEncoding::Utf8;

const char *converterName(TextEncoding encoding)
{
    switch (encoding) {
    case TextEncoding::Ascii:
        return "US-ASCII";
    case TextEncoding::MacRoman:
        return "macintosh";
    case TextEncoding::ShiftJis:
        return "Shift_JIS";
    case TextEncoding::Big5:
        return "Big5";
    case TextEncoding::EucKr:
        return "EUC-KR";
    case TextEncoding::MacGreek:
        return "x-mac-greek";
    case TextEncoding::MacCyrillic:
        return "x-mac-cyrillic";
    case TextEncoding::MacCentralEurope:
        return "x-mac-centraleurroman";
    case TextEncoding::MacTurkish:
        return "x-mac-turkish";
    case TextEncoding::Utf16:
        return "UTF-16";
    case TextEncoding::Utf8:
        break;
    }
    return "UTF-8";
}

/// Leaves the error standing. The library's own callback for this skips soft hyphens, zero-width
/// spaces and their like and reports success.
void refuseCharacter(const void *, UConverterFromUnicodeArgs *, const UChar *, int32_t, UChar32,
                     UConverterCallbackReason, UErrorCode *)
{ }

/// Null when the library comes without that encoding.
Converter strictConverter(TextEncoding encoding)
{
    UErrorCode error = U_ZERO_ERROR;
    Converter converter(ucnv_open(converterName(encoding), &error), &ucnv_close);
    ucnv_setFromUCallBack(converter.get(), &refuseCharacter, nullptr, nullptr, nullptr, &error);
    ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr,
                        &error);
    if (U_FAILURE(error)) {
        return Converter(nullptr, &ucnv_close);
    }
    ucnv_setFallback(converter.get(), false);
    return converter;
}

/// Letters with their combining marks made one character each. Characters that stand alone stay as
/// they are, also where the composed form of the whole text would replace them (the Kelvin sign).
QString withMarksComposed(const QString &text)
{
    if (std::none_of(text.begin(), text.end(), [](QChar unit) { return unit.isMark(); })) {
        return text;
    }
    QString composed;
    for (qsizetype start = 0; start < text.size();) {
        qsizetype end = start + 1;
        while (end < text.size() && text.at(end).isMark()) {
            ++end;
        }
        const QString piece = text.mid(start, end - start);
        composed += piece.size() == 1 ? piece : piece.normalized(QString::NormalizationForm_C);
        start = end;
    }
    return composed;
}

std::optional<QByteArray> encodeUtf8(const QString &text)
{
    QStringEncoder encoder(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
    const QByteArray bytes = encoder(text);
    return encoder.hasError() ? std::nullopt : std::optional(bytes);
}

QByteArray encodeUtf16(const QString &text)
{
    const QString marked = QChar(QChar::ByteOrderMark) + text;
    return {reinterpret_cast<const char *>(marked.utf16()), 2 * marked.size()};
}

std::optional<QByteArray> encode(const QString &text, TextEncoding encoding)
{
    if (encoding == TextEncoding::Utf8) {
        return encodeUtf8(text);
    }
    if (encoding == TextEncoding::Utf16) {
        return encodeUtf16(text);
    }
    if (encoding == TextEncoding::Ascii || encoding == TextEncoding::MacRoman) {
        // Spares what people type most the set-up of a converter.
        const bool ascii =
            std::all_of(text.begin(), text.end(), [](QChar unit) { return unit.unicode() < 0x80; });
        if (ascii || encoding == TextEncoding::Ascii) {
            return ascii ? std::optional(text.toLatin1()) : std::nullopt;
        }
    }
    const Converter converter = strictConverter(encoding);
    if (!converter) {
        return std::nullopt;
    }
    QString composed = withMarksComposed(text);
    if (encoding == TextEncoding::MacRoman) {
        // Its omega may be spelled as the unit of resistance; the library knows the letter only.
        composed.replace(QChar(0x2126), QChar(0x03A9));
    }
    QByteArray bytes(4 * composed.size() + 8, Qt::Uninitialized);
    UErrorCode error = U_ZERO_ERROR;
    const int32_t length = ucnv_fromUChars(converter.get(), bytes.data(), int32_t(bytes.size()),
                                           reinterpret_cast<const UChar *>(composed.utf16()),
                                           int32_t(composed.size()), &error);
    bytes.truncate(length);
    return U_FAILURE(error) ? std::nullopt : std::optional(bytes);
}

} // namespace

std::optional<QString> decodeAscii(const char *text)
{
    if (!text) {
        return std::nullopt;
    }
    const std::string_view bytes(text);
    const bool ascii = std::all_of(bytes.begin(), bytes.end(), [](char byte) {
        return static_cast<unsigned char>(byte) < 0x80;
    });
    return ascii ? std::optional<QString>(QLatin1String(text)) : std::nullopt;
}

std::optional<QString> decodeUtf8(const char *text)
{
    if (!text) {
        return std::nullopt;
    }
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless
                               | QStringDecoder::Flag::ConvertInitialBom);
    const QString decoded = decoder(QByteArrayView(text));
    return decoder.hasError() ? std::nullopt : std::optional(decoded);
}

std::optional<QString> decodeSystem(const char *text)
{
    if (!text || gSystemEncoding == TextEncoding::Utf8) {
        return decodeUtf8(text);
    }
    const Converter converter = strictConverter(gSystemEncoding);
    if (!converter) {
        return std::nullopt;
    }
    const auto size = qstrlen(text);
    QString decoded(qsizetype(2 * size + 1), Qt::Uninitialized);
    UErrorCode error = U_ZERO_ERROR;
    const int32_t length = ucnv_toUChars(converter.get(), reinterpret_cast<UChar *>(decoded.data()),
                                         int32_t(decoded.size()), text, int32_t(size), &error);
    if (U_FAILURE(error)) {
        return std::nullopt;
    }
    decoded.truncate(length);
    return decoded;
}

TextEncoding systemEncoding()
{
    return gSystemEncoding;
}

void setSystemEncoding(TextEncoding encoding)
{
    gSystemEncoding = encoding;
}

std::optional<QByteArray> encodeSystem(const QString &text)
{
    return encode(text, gSystemEncoding);
}

std::optional<qsizetype> encodedLength(const QString &text, TextEncoding encoding)
{
    const std::optional<QByteArray> bytes = encode(text, encoding);
    return bytes ? std::optional(bytes->size()) : std::nullopt;
}

qsizetype lengthInFirstFittingEncoding(const QString &text)
{
    for (const TextEncoding encoding : kTriedInTurn) {
        if (const auto length = encodedLength(text, encoding)) {
            return *length;
        }
    }
    return 0;
}

} // namespace platform
