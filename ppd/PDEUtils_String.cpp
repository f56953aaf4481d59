// SPDX-License-Identifier: Apache-2.0
#include "ppd/PDEUtilsMethod.h"

#include "platform/TextEncodings.h"

namespace {

/// Where `pattern` first occurs in `text`; -1 when it does not, or when it is empty or missing.
qsizetype literalIndex(const std::optional<QString> &text, const std::optional<QString> &pattern)
{
    if (!text || !pattern || pattern->isEmpty()) {
        return -1;
    }
    return text->indexOf(*pattern, 0, Qt::CaseSensitive);
}

} // namespace

quint32 PDEUtilsMethod13::stringLengthConvertedToEncoding(const std::optional<QString> &text)
{
    if (!text) {
        return 0;
    }
    const auto length = platform::encodedLength(*text, platform::systemEncoding());
    return quint32(length ? *length : platform::lengthInFirstFittingEncoding(*text));
}

bool PDEUtilsMethod13::scanString(const std::optional<QString> &text,
                                  const std::optional<QString> &intoString)
{
    return literalIndex(text, intoString) >= 0;
}

std::optional<QString> PDEUtilsMethod13::deleteString(const std::optional<QString> &text,
                                                      const std::optional<QString> &intoString)
{
    const qsizetype index = literalIndex(text, intoString);
    if (index < 0) {
        return std::nullopt;
    }
    QString rest = *text;
    return rest.remove(index, intoString->size());
}
