// SPDX-License-Identifier: Apache-2.0
#include "filter/GraphicsPpd.h"

#include "filter/OpenPpd.h"
#include "filter/PpdFitness.h"

#include <algorithm>
#include <cctype>
#include <optional>
#include <sstream>

namespace filter {

namespace {

constexpr int kOrderStep = 10;
constexpr float kHighestOrder = 1000000;

/// What no PPD in an encoding that has ASCII as its part can hold.
std::optional<std::string> reasonInBytes(std::string_view text)
{
    if (text.empty()) {
        return "the file is empty; give a PPD";
    }
    if (text.find('\0') != std::string_view::npos) {
        return "there are zero bytes in it: this is not a PPD, or one in UTF-16, to be saved in "
               "UTF-8 first";
    }
    return {};
}

std::string_view lineEndOf(std::string_view text)
{
    const std::size_t end = text.find_first_of("\r\n");
    if (end == std::string_view::npos || text[end] == '\n') {
        return "\n";
    }
    return text.substr(end, 2) == "\r\n" ? "\r\n" : "\r";
}

void replaceLineEnds(std::string &lines, std::string_view lineEnd)
{
    for (std::size_t i = lines.find('\n'); i != std::string::npos;
         i = lines.find('\n', i + lineEnd.size())) {
        lines.replace(i, 1, lineEnd);
    }
}

/// Nothing but blanks, the end mark of old systems, or a comment.
bool isIdle(std::string_view line)
{
    constexpr std::string_view kBlanks = " \t\r\n\x1a";
    return line.substr(0, 2) == "*%" || line.find_first_not_of(kBlanks) == std::string_view::npos;
}

/// Where the line that ends at `end` begins; its own line end is part of it.
std::size_t startOfLine(std::string_view text, std::size_t end)
{
    if (end > 0 && text[end - 1] == '\n') {
        --end;
    }
    if (end > 0 && text[end - 1] == '\r') {
        --end;
    }
    const std::size_t before = end > 0 ? text.find_last_of("\r\n", end - 1) : text.npos;
    return before == text.npos ? 0 : before + 1;
}

/// Where the lines go: before the blank lines and comments at the end.
std::size_t endOfStatements(std::string_view text)
{
    std::size_t end = text.size();
    while (end > 0) {
        const std::size_t start = startOfLine(text, end);
        if (!isIdle(text.substr(start, end - start))) {
            return end;
        }
        end = start;
    }
    return end;
}

float highestOrder(const ppd_group_t &group)
{
    float highest = 0;
    for (int i = 0; i < group.num_options; ++i) {
        highest = std::max(highest, group.options[i].order);
    }
    for (int i = 0; i < group.num_subgroups; ++i) {
        highest = std::max(highest, highestOrder(group.subgroups[i]));
    }
    return highest;
}

int orderBehindAll(const ppd_file_t *ppd)
{
    float highest = 0;
    for (int i = 0; i < ppd->num_groups; ++i) {
        highest = std::max(highest, highestOrder(ppd->groups[i]));
    }
    return (static_cast<int>(std::min(highest, kHighestOrder)) / kOrderStep + 1) * kOrderStep;
}

bool isLanguage(const std::string &word)
{
    constexpr std::size_t kLongest = 8;
    return word != "en" && word.size() <= kLongest
        && std::all_of(word.begin(), word.end(),
                       [](unsigned char c) { return std::isalpha(c) != 0 || c == '_'; });
}

/// The PPD's own texts are English; each other language wants a text for each option and choice.
std::vector<std::string> languagesOf(ppd_file_t *ppd)
{
    std::vector<std::string> languages;
    const ppd_attr_t *attribute = ppdFindAttr(ppd, "cupsLanguages", nullptr);
    if (attribute && attribute->value) {
        std::istringstream words(attribute->value);
        for (std::string word; words >> word;) {
            if (isLanguage(word)) {
                languages.push_back(word);
            }
        }
    }
    return languages;
}

std::string joined(std::string_view text, std::string lines)
{
    const std::string_view lineEnd = lineEndOf(text);
    const std::size_t place = endOfStatements(text);
    const bool isCut = place > 0 && text[place - 1] != '\n' && text[place - 1] != '\r';
    replaceLineEnds(lines, lineEnd);
    std::string result(text.substr(0, place));
    result += isCut ? lineEnd : "";
    result += lines;
    result += text.substr(place);
    return result;
}

/// The result as libcups sees it, before anybody prints with it.
std::optional<std::string> faultIn(const std::string &text)
{
    auto opened = openPpd(text);
    if (auto *why = std::get_if<std::string>(&opened)) {
        return "the options cannot be added at its end: " + *why;
    }
    return faultOf(std::get<OpenPpd>(opened).get());
}

} // namespace

std::variant<std::string, Refusal> withGraphicsOptions(std::string_view text, Colours colours)
{
    if (auto reason = reasonInBytes(text)) {
        return Refusal{*reason};
    }
    auto opened = openPpd(text);
    if (auto *why = std::get_if<std::string>(&opened)) {
        return Refusal{*why};
    }
    ppd_file_t *ppd = std::get<OpenPpd>(opened).get();
    if (auto reason = reasonAgainst(ppd, colours)) {
        return Refusal{*reason};
    }
    std::string result =
        joined(text, graphicsOptionLines({colours, orderBehindAll(ppd), languagesOf(ppd)}));
    if (auto fault = faultIn(result)) {
        return Refusal{*fault};
    }
    return result;
}

} // namespace filter
