// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/Diagnostics.h"
#include "diagnostics/Texts.h"
#include "platform/SystemLog.h"
#include "platform/TextEncodings.h"

#include <QByteArray>

#include <cstring>

using namespace diagnostics;
using platform::FormatArgument;

namespace {

void log(const char *format, const FormatArgument &argument = {})
{
    platform::systemLog(platform::formatted(QString::fromLatin1(format), {argument}));
}

/// The text that begins at `first` and has `size` bytes at most; missing when it cannot be decoded.
FormatArgument text(const void *first, size_t size)
{
    const auto *bytes = static_cast<const char *>(first);
    const QByteArray terminated(bytes, qsizetype(strnlen(bytes, size)));
    const std::optional<QString> decoded = platform::decodeSystem(terminated.constData());
    return decoded ? FormatArgument(*decoded) : FormatArgument();
}

template <size_t Size> FormatArgument text(const char (&field)[Size])
{
    return text(field, Size);
}

FormatArgument keywordText(const char *keyword)
{
    return text(keyword, std::strlen(keyword));
}

/// Meant: the flag is a byte that is read as the start of a text. A flag that is set runs on into
/// the keyword behind it.
FormatArgument flagText(const ppd_option_t &option)
{
    return text(&option, sizeof option.conflicted + sizeof option.keyword);
}

FormatArgument flagText(const ppd_choice_t &choice)
{
    return text(&choice, sizeof choice.marked + sizeof choice.choice);
}

void logFirstChoice(const ppd_option_t &option)
{
    const ppd_choice_t *choice = option.num_choices > 0 ? option.choices : nullptr;
    const FormatArgument none;
    log("***** choices->marked | %@", choice ? flagText(*choice) : none);
    log("***** choices->choice | %@", choice ? text(choice->choice) : none);
    log("***** choices->text | %@", choice ? text(choice->text) : none);
}

void logOption(const ppd_option_t &option)
{
    log("***** conflicted | %@", flagText(option));
    log("***** keyword | %@", text(option.keyword));
    log("***** defchoice | %@", text(option.defchoice));
    log("***** text | %@", text(option.text));
    log("***** ui == %d", qint64(option.ui));
    log("***** section == %d", qint64(option.section));
    log("***** order == %f", double(option.order));
    log("***** num_choices == %d", qint64(option.num_choices));
    logFirstChoice(option);
}

} // namespace

void _PDELog_ppd_option_t(ppd_file_t *ppd, const char *ppdOptionName)
{
    quietly([&] {
        if (!ppd) {
            log("PPD file is not loaded!!");
            return;
        }
        if (!ppdOptionName) {
            log("ppdOptionName is NULL!!");
            return;
        }
        log("+-+-+-+-+-+-+-+-+-+- start is %@", keywordText(ppdOptionName));
        if (const ppd_option_t *option = ppdFindOption(ppd, ppdOptionName)) {
            logOption(*option);
            log("+-+-+-+-+-+-+-+-+-+- end is %@", keywordText(ppdOptionName));
        }
    });
}
