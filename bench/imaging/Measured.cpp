// SPDX-License-Identifier: Apache-2.0
#include "imaging/Measured.h"

#include <cstdlib>
#include <fstream>

namespace {

std::string quoted(const std::string &text)
{
    std::string safe = "'";
    for (const char letter : text) {
        safe += letter == '\'' ? std::string("'\\''") : std::string(1, letter);
    }
    return safe + "'";
}

} // namespace

std::optional<Needed> measured(const std::string &command, const std::string &out)
{
    const std::string report = out + ".needed";
    const std::string line = "exec " + command + " >" + quoted(out) + " 2>/dev/null";
    const std::string run = MEASURED_RUN " " + quoted(report) + " /bin/sh -c " + quoted(line);
    if (std::system(run.c_str()) != 0) {
        return {};
    }
    std::ifstream file(report);
    Needed needed;
    if (!(file >> needed.milliseconds >> needed.kibibytes)) {
        return {};
    }
    return needed;
}
