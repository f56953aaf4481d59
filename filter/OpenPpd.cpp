// SPDX-License-Identifier: Apache-2.0
#include "filter/OpenPpd.h"

#include "filter/MemoryFile.h"

#include <cerrno>
#include <cstring>

namespace filter {

namespace {

constexpr std::string_view kFirstKeyword = "*PPD-Adobe:";

std::string reasonOfLibcups(std::string_view text)
{
    int line = 0;
    const ppd_status_t status = ppdLastError(&line);
    if (text.substr(0, kFirstKeyword.size()) != kFirstKeyword) {
        return "this is not a PPD, which would begin with *PPD-Adobe:";
    }
    return "line " + std::to_string(line) + " keeps libcups from opening it as a PPD ("
        + ppdErrorString(status) + "); mend that line first, cupstestppd tells more";
}

} // namespace

void PpdCloser::operator()(ppd_file_t *ppd) const
{
    ppdClose(ppd);
}

std::variant<OpenPpd, std::string> openPpd(std::string_view text)
{
    const int file = memoryFile(text);
    if (file < 0) {
        return std::string("there is no room to read it in: ") + std::strerror(errno);
    }
    // libcups closes the file.
    OpenPpd ppd(ppdOpenFd(file));
    if (!ppd) {
        return reasonOfLibcups(text);
    }
    ppdMarkDefaults(ppd.get());
    return ppd;
}

} // namespace filter
