// SPDX-License-Identifier: Apache-2.0
// Any edits under any settings of a formatter: nothing is changed through the pointers, deletions
// and clearing pass, and a refusal is one beep and one notification, an acceptance none.
//
// An input is the style and the longest length (two bytes each), the bounds (four each), one byte
// that says which of them are in force (1, 2), whether the system encoding is Mac OS Roman (4) and
// whether the formatter is that of a level (8), the number of forbidden entries (one byte) and each
// entry, and then the edits: place and number of the characters to replace (one byte each), and
// what is put in. A text is a length (one byte) and as many UTF-16 units.
#include "controls/PDEFormatter.h"
#include "fuzz/Require.h"
#include "graphics_panel/LevelFormatter.h"
#include "platform/Beep.h"
#include "platform/TextEncodings.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace {

constexpr int kMostEntries = 8;
constexpr qsizetype kLongestText = 2000;

class Input
{
public:
    Input(const std::uint8_t *data, std::size_t size)
        : mData(data)
        , mLeft(size)
    { }

    bool isEmpty() const { return mLeft == 0; }

    /// Little end first, the highest bit as sign.
    qint32 number(int bytes)
    {
        quint32 value = 0;
        for (int i = 0; i < bytes; ++i) {
            value |= quint32(byte()) << (8 * i);
        }
        const int unused = 32 - 8 * bytes;
        return qint32(value << unused) >> unused;
    }

    std::uint8_t byte()
    {
        if (mLeft == 0) {
            return 0;
        }
        --mLeft;
        return *mData++;
    }

    QString text()
    {
        QString text(qsizetype(byte()), Qt::Uninitialized);
        for (QChar &unit : text) {
            unit = QChar(ushort(number(2)));
        }
        return text;
    }

private:
    const std::uint8_t *mData;
    std::size_t mLeft;
};

int gBeeps = 0;
int gPosts = 0;

/// A notification of a refusal comes from one character or from the formatter.
void watch(const PDEFormatter *formatter)
{
    platform::NotificationCenter::defaultCenter().addObserver(
        &gPosts,
        [formatter](const platform::Notification &posted) {
            ++gPosts;
            require(posted.name == kInvalidCharacterNotification
                    || posted.name == kFormatErrorNotification);
            const auto *text = std::get_if<QString>(&posted.object);
            require(text ? text->size() == 1
                         : posted.object == platform::NotificationObject(formatter));
            require(!posted.userInfo);
        },
        std::nullopt);
}

std::unique_ptr<PDEFormatter> formatterFrom(Input &input)
{
    const qint32 style = input.number(2);
    const qint32 length = input.number(2);
    const qint32 highest = input.number(4);
    const qint32 lowest = input.number(4);
    const int flags = input.byte();
    auto formatter = (flags & 8) != 0 ? std::make_unique<graphics::LevelFormatter>()
                                      : std::make_unique<PDEFormatter>(style);
    if ((flags & 8) == 0) {
        formatter->setMaxLength(length);
    }
    formatter->setMaxValue(highest);
    formatter->setMinValue(lowest);
    formatter->setValidityMaxValue((flags & 1) != 0);
    formatter->setValidityMinValue((flags & 2) != 0);
    platform::setSystemEncoding((flags & 4) != 0 ? platform::TextEncoding::MacRoman
                                                 : platform::TextEncoding::Utf8);
    for (int entries = input.byte() % kMostEntries; entries > 0; --entries) {
        const QString entry = input.text();
        formatter->addInvalidCharacter(entry);
        require(formatter->isInvalidCharacter(entry));
    }
    return formatter;
}

/// Whether the edit that puts `typed` in the place of `selection` is accepted.
bool accepts(PDEFormatter &formatter, const QString &before, const TextRange &selection,
             const QString &typed)
{
    QString after = before;
    after.replace(selection.location, selection.length, typed);
    std::optional<QString> proposed = after;
    TextRange range{selection.location + typed.size(), 0};
    const TextRange unchanged = range;
    std::optional<QString> error;
    gBeeps = 0;
    gPosts = 0;
    const bool accepted =
        formatter.isPartialStringValid(&proposed, &range, before, selection, &error);
    require(proposed == after && range == unchanged && !error);
    require(gBeeps == (accepted ? 0 : 1) && gPosts == gBeeps);
    require(accepted || !(after.isEmpty() || typed.isEmpty()));
    return accepted;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Input input(data, size);
    const std::unique_ptr<PDEFormatter> formatter = formatterFrom(input);
    platform::setBeep([] { ++gBeeps; });
    watch(formatter.get());
    QString text;
    while (!input.isEmpty()) {
        const qint64 place = std::min<qint64>(input.byte(), text.size());
        const qint64 length = std::min<qint64>(input.byte(), text.size() - place);
        const QString typed = input.text();
        if (accepts(*formatter, text, {place, length}, typed)) {
            text.replace(place, length, typed);
            text.truncate(kLongestText);
        }
    }
    require(formatter->stringForObjectValue(text) == text);
    platform::NotificationCenter::defaultCenter().removeObserver(&gPosts);
    platform::setBeep({});
    return 0;
}
