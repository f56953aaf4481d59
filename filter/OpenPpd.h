// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <variant>

#include <cups/ppd.h>

namespace filter {

struct PpdCloser
{
    void operator()(ppd_file_t *ppd) const;
};

/// A PPD that libcups has opened; its defaults are marked.
using OpenPpd = std::unique_ptr<ppd_file_t, PpdCloser>;

/// Opens the PPD whose text is `text`. Otherwise the reason, as a sentence without a full stop.
std::variant<OpenPpd, std::string> openPpd(std::string_view text);

} // namespace filter
