// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Export.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace platform {

/// The encodings that a text can be measured in; all but the first in the order in which they are
/// tried.
enum class TextEncoding
{
    Ascii,
    MacRoman,
    ShiftJis,
    Big5,
    EucKr,
    MacGreek,
    MacCyrillic,
    MacCentralEurope,
    MacTurkish,
    Utf16,
    Utf8,
};

// All decoders are strict: one byte that does not belong makes the whole result nothing. A null
// text is nothing, an empty one is the empty string. A byte order mark is part of the text.

/// Bytes 00 to 7F.
PLATFORM_EXPORT std::optional<QString> decodeAscii(const char *text);
PLATFORM_EXPORT std::optional<QString> decodeUtf8(const char *text);
PLATFORM_EXPORT std::optional<QString> decodeSystem(const char *text);

/// The text's bytes in the system encoding, or nothing when a character of it has no place there.
PLATFORM_EXPORT std::optional<QByteArray> encodeSystem(const QString &text);

/// The encoding of texts that name none of their own; UTF-8 whatever the locale, until it is set.
PLATFORM_EXPORT TextEncoding systemEncoding();
PLATFORM_EXPORT void setSystemEncoding(TextEncoding encoding);

/// The bytes that `text` takes in `encoding`, or nothing when a character of it has no place there.
/// A letter with combining marks counts as the one character that they make. UTF-16 has a byte
/// order mark of two bytes and takes any text; UTF-8 takes all but a lone surrogate.
PLATFORM_EXPORT std::optional<qsizetype> encodedLength(const QString &text, TextEncoding encoding);

/// The bytes that `text` takes in the first encoding of the list that has room for it, 0 if none.
PLATFORM_EXPORT qsizetype lengthInFirstFittingEncoding(const QString &text);

} // namespace platform
