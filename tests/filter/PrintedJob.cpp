// SPDX-License-Identifier: Apache-2.0
#include "filter/PrintedJob.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <map>
#include <stdexcept>

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr char kEscape = '\x1b';

[[noreturn]] void fail(const std::string &why)
{
    throw std::runtime_error("what the printer got: " + why);
}

/// The bytes of a job, read from the front, and what becomes of them.
class Reader
{
public:
    explicit Reader(const std::string &bytes)
        : mBytes(bytes)
    { }

    bool isAtEnd() const { return mPlace == mBytes.size(); }

    /// Goes on behind `word` when it stands here.
    bool takes(const std::string &word)
    {
        const bool isHere = mBytes.compare(mPlace, word.size(), word) == 0;
        mPlace += isHere ? word.size() : 0;
        return isHere;
    }

    void expect(const std::string &word)
    {
        if (!takes(word)) {
            fail(word + " is missing at byte " + std::to_string(mPlace));
        }
    }

    char next()
    {
        if (isAtEnd()) {
            fail("it ends in the middle");
        }
        return mBytes[mPlace++];
    }

    std::size_t byte() { return static_cast<unsigned char>(next()); }

    /// A number of so many digits, or of all that there are.
    std::size_t number(std::size_t digits = std::string::npos)
    {
        std::size_t value = 0;
        while (digits-- > 0 && mPlace < mBytes.size()
               && std::isdigit(static_cast<unsigned char>(mBytes[mPlace])) != 0) {
            value = value * 10 + std::size_t(next() - '0');
        }
        return value;
    }

    Bytes take(std::size_t count)
    {
        Bytes bytes(count);
        std::generate(bytes.begin(), bytes.end(),
                      [this] { return static_cast<std::uint8_t>(next()); });
        return bytes;
    }

    /// What stands from `begin` to here belongs to the commands.
    std::size_t place() const { return mPlace; }
    void keepFrom(std::size_t begin) { mJob.commands.append(mBytes, begin, mPlace - begin); }
    void keep() { mJob.commands += next(); }

    void startLabel() { mJob.labels.emplace_back(); }
    PrintedLabel &label()
    {
        if (mJob.labels.empty()) {
            fail("dots stand before the first label");
        }
        return mJob.labels.back();
    }
    void setRowBytes(std::size_t count)
    {
        if (label().rowBytes != 0 && label().rowBytes != count) {
            fail("rows of one label have several widths");
        }
        label().rowBytes = count;
    }
    void append(const Bytes &row)
    {
        label().dots.insert(label().dots.end(), row.begin(), row.end());
    }
    /// Paper up to the row.
    void goTo(std::size_t row) { label().dots = label().dotsOf(row); }
    std::size_t rows() { return label().dots.size() / label().rowBytes; }

    PrintedJob take() { return std::move(mJob); }

private:
    const std::string &mBytes;
    std::size_t mPlace = 0;
    PrintedJob mJob;
};

/// ZPL: hexadecimal digits with counts before them (G = 1 .. Y = 19, g = 20 .. z = 400), a comma
/// for zeros to the end of the row, a colon for the row above once more.
std::string zplDigits(Reader &reader, std::size_t total, std::size_t row)
{
    std::string digits;
    std::size_t count = 0;
    while (digits.size() < 2 * total) {
        const char c = reader.next();
        if (c >= 'G' && c <= 'Y') {
            count += std::size_t(c - 'G' + 1);
        } else if (c >= 'g' && c <= 'z') {
            count += std::size_t(c - 'g' + 1) * 20;
        } else if (c == ',') {
            digits.append(2 * row - digits.size() % (2 * row), '0');
        } else if (c == ':') {
            digits += digits.substr(digits.size() - 2 * row);
        } else if (std::isxdigit(static_cast<unsigned char>(c)) != 0) {
            digits.append(std::max<std::size_t>(count, 1), c);
            count = 0;
        } else if (c != '\n') {
            fail(std::string("no digit of a picture: ") + c);
        }
    }
    return digits;
}

void readZpl(Reader &reader)
{
    while (!reader.isAtEnd()) {
        const std::size_t begin = reader.place();
        if (!reader.takes("~DGR:CUPS.GRF,")) {
            reader.keep();
            continue;
        }
        const std::size_t total = reader.number();
        reader.expect(",");
        const std::size_t row = reader.number();
        reader.expect(",");
        reader.keepFrom(begin);
        reader.startLabel();
        reader.setRowBytes(row);
        const std::string digits = zplDigits(reader, total, row);
        for (std::size_t i = 0; i < digits.size(); i += 2) {
            reader.append({std::uint8_t(std::stoi(digits.substr(i, 2), nullptr, 16))});
        }
    }
}

/// EPL2, in lines: N clears the picture; GW, x, y, bytes and height of each row that has dots,
/// then its dots, where 1 is paper.
void readEpl2(Reader &reader)
{
    while (!reader.isAtEnd()) {
        if (reader.takes("GW0,")) {
            const std::size_t y = reader.number();
            reader.expect(",");
            reader.setRowBytes(reader.number());
            reader.expect(",1\n");
            reader.goTo(y);
            Bytes row = reader.take(reader.label().rowBytes);
            std::transform(row.begin(), row.end(), row.begin(),
                           [](std::uint8_t bits) { return std::uint8_t(~bits); });
            reader.append(row);
            reader.expect("\n");
            continue;
        }
        const std::size_t begin = reader.place();
        if (reader.takes("N\n")) {
            reader.startLabel();
        } else {
            while (reader.next() != '\n') { }
        }
        reader.keepFrom(begin);
    }
}

/// EPL1: escape, g, bytes in three digits, then the dots of every row; a form feed behind a label.
void readEpl1(Reader &reader)
{
    bool isInLabel = false;
    while (!reader.isAtEnd()) {
        if (!reader.takes("\x1bg")) {
            const bool isEnd = reader.takes("\f");
            isInLabel = isInLabel && !isEnd;
            if (!isEnd) {
                reader.keep();
            }
            continue;
        }
        if (!isInLabel) {
            reader.startLabel();
            isInLabel = true;
        }
        reader.setRowBytes(reader.number(3));
        reader.append(reader.take(reader.label().rowBytes));
    }
}

/// CPCL, in lines: an exclamation mark begins a label; CG, bytes, height, x and y of each row that
/// has dots, then the dots.
void readCpcl(Reader &reader)
{
    while (!reader.isAtEnd()) {
        if (reader.takes("CG ")) {
            reader.setRowBytes(reader.number());
            reader.expect(" 1 0 ");
            reader.goTo(reader.number());
            reader.expect(" ");
            reader.append(reader.take(reader.label().rowBytes));
            reader.expect("\r\n");
            continue;
        }
        const std::size_t begin = reader.place();
        if (reader.takes("! ")) {
            reader.startLabel();
        }
        while (!reader.takes("\r\n")) {
            reader.next();
        }
        reader.keepFrom(begin);
    }
}

/// One letter behind an escape and so many bytes. Escape D: bytes in a row; escape f 1: rows of
/// paper; escape E or G: the end of the label; 16 (hexadecimal): a row.
void readDymo(Reader &reader)
{
    const std::map<char, std::size_t> arguments = {{'L', 2}, {'q', 1}, {'B', 1}};
    while (!reader.isAtEnd()) {
        const std::size_t begin = reader.place();
        if (reader.takes("\x16")) {
            reader.append(reader.take(reader.label().rowBytes));
            continue;
        }
        if (reader.takes("\x1b"
                         "f\x01")) {
            reader.goTo(reader.rows() + reader.byte());
            continue;
        }
        reader.expect({kEscape});
        // Many of them bring a printer back that waits for the rest of a row.
        while (reader.takes({kEscape})) { }
        if (reader.takes("D")) {
            reader.startLabel();
            reader.setRowBytes(reader.byte());
        } else {
            const auto found = arguments.find(reader.next());
            reader.take(found == arguments.end() ? 0 : found->second);
        }
        reader.keepFrom(begin);
    }
}

/// PCL's way to tell a row by what is other than in the row above: places and bytes.
void applyDelta(Bytes &row, const Bytes &delta)
{
    constexpr std::uint8_t kMore = 31;
    std::size_t column = 0;
    for (std::size_t i = 0; i < delta.size();) {
        const std::size_t count = (delta[i] >> 5) + 1U;
        std::size_t offset = delta[i++] & kMore;
        for (bool goesOn = offset == kMore; goesOn && i < delta.size();) {
            goesOn = delta[i] == 255;
            offset += delta[i++];
        }
        column += offset;
        for (std::size_t k = 0; k < count && i < delta.size(); ++k) {
            row.at(column++) = delta[i++];
        }
    }
}

/// PCL: escape, two letters, a number, a letter. *rS: dots in a row; *rT: rows; *b3M: rows come as
/// what has changed; *bW: a row; *bY: rows of paper; *rB: the end of the picture.
void readPcl(Reader &reader)
{
    std::size_t width = 0;
    std::size_t height = 0;
    Bytes row;
    while (!reader.isAtEnd()) {
        const std::size_t begin = reader.place();
        if (reader.takes("\x1b*b")) {
            const std::size_t count = reader.number();
            const char what = reader.next();
            if (what == 'W') {
                applyDelta(row, reader.take(count));
                reader.append(row);
            } else if (what == 'Y') {
                row.assign(row.size(), 0);
                reader.goTo(reader.rows() + count);
            } else {
                reader.keepFrom(begin);
            }
            continue;
        }
        if (reader.takes("\x1b*r")) {
            const std::size_t value = reader.number();
            const char what = reader.next();
            if (what == 'S') {
                width = value;
            } else if (what == 'T') {
                height = value;
            } else if (what == 'A') {
                reader.startLabel();
                reader.setRowBytes((width + 7) / 8);
                row.assign((width + 7) / 8, 0);
            } else if (what == 'B') {
                reader.goTo(height);
            }
        } else {
            reader.next();
        }
        reader.keepFrom(begin);
    }
}

} // namespace

std::vector<std::uint8_t> PrintedLabel::dotsOf(std::size_t rows) const
{
    if (dots.size() > rows * rowBytes) {
        fail("there are more rows than " + std::to_string(rows));
    }
    std::vector<std::uint8_t> all = dots;
    all.resize(rows * rowBytes);
    return all;
}

PrintedJob printedJob(const std::string &printer, const std::string &bytes)
{
    using Language = void (*)(Reader &);
    static const std::map<std::string, Language> languages = {
        {"dymo", readDymo},     {"intelbar", readPcl},  {"zebra", readZpl},
        {"zebracpl", readCpcl}, {"zebraep1", readEpl1}, {"zebraep2", readEpl2}};
    Reader reader(bytes);
    languages.at(printer)(reader);
    return reader.take();
}
