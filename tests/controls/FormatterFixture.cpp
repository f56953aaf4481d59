// SPDX-License-Identifier: Apache-2.0
#include "controls/FormatterFixture.h"

#include "platform/Beep.h"
#include "platform/TextEncodings.h"

#include <utility>

using platform::Notification;
using platform::NotificationCenter;

void PrintTo(const Refusal &refusal, std::ostream *out)
{
    *out << refusal.name << " from " << refusal.object;
}

Refusal invalid(const std::string &object)
{
    return {"InvalidCharacterNotification", object};
}

Refusal formatError(const std::string &object)
{
    return {"FormatErrorNotification", object};
}

FormatterTest::FormatterTest()
{
    platform::setBeep([this] { ++beeps; });
    NotificationCenter::defaultCenter().addObserver(
        this,
        [this](const Notification &posted) {
            EXPECT_EQ(posted.userInfo, std::nullopt);
            std::string object = "other";
            if (const auto *text = std::get_if<QString>(&posted.object)) {
                object = '"' + text->toStdString() + '"';
            } else if (posted.object == platform::NotificationObject(&formatter)) {
                object = "formatter";
            }
            mRefusals.push_back({posted.name.toStdString(), object});
        },
        std::nullopt);
}

FormatterTest::~FormatterTest()
{
    NotificationCenter::defaultCenter().removeObserver(this);
    platform::setBeep({});
    platform::setSystemEncoding(platform::TextEncoding::Utf8);
}

bool FormatterTest::edit(const QString &before, TextRange selection, const QString &typed)
{
    QString after = before;
    after.replace(selection.location, selection.length, typed);
    std::optional<QString> proposed = after;
    TextRange proposedRange{selection.location + typed.size(), 0};
    std::optional<QString> error;
    const bool accepted =
        formatter.isPartialStringValid(&proposed, &proposedRange, before, selection, &error);
    EXPECT_EQ(proposed, after);
    EXPECT_EQ(proposedRange, (TextRange{selection.location + typed.size(), 0}));
    EXPECT_EQ(error, std::nullopt);
    return accepted;
}

bool FormatterTest::type(const QString &before, const QString &typed)
{
    return edit(before, {before.size(), 0}, typed);
}

std::vector<Refusal> FormatterTest::takeRefusals()
{
    return std::exchange(mRefusals, {});
}
