// SPDX-License-Identifier: Apache-2.0
#include "ppd/PDEChoice.h"

#include "platform/TextEncodings.h"

#include <cstring>

namespace {

QString shown(const std::optional<QString> &title)
{
    return title.value_or(QStringLiteral("(null)"));
}

} // namespace

PDEChoice::PDEChoice(ppd_choice_t *choice)
    : mChoice(choice)
{ }

std::shared_ptr<PDEChoice> PDEChoice::choiceWithChoice(ppd_choice_t *choice)
{
    return std::make_shared<PDEChoice>(choice);
}

std::optional<QString> PDEChoice::userTitle() const
{
    if (!mUserTitle && mChoice) {
        mUserTitle = platform::decodeUtf8(mChoice->text);
    }
    return mUserTitle;
}

std::optional<QString> PDEChoice::ppdTitle() const
{
    if (!mPPDTitle && mChoice) {
        mPPDTitle = platform::decodeAscii(mChoice->choice);
    }
    return mPPDTitle;
}

bool PDEChoice::isDefaultChoice() const
{
    // Up to the terminator: what stands behind it in the default is left over from older values.
    return mChoice && mChoice->option
        && std::strncmp(mChoice->choice, mChoice->option->defchoice, PPD_MAX_NAME) == 0;
}

QString PDEChoice::description() const
{
    const bool marked = mChoice && mChoice->marked;
    const ppd_option_t *option = mChoice ? mChoice->option : nullptr;
    const qsizetype position = option ? mChoice - option->choices + 1 : 0;
    const int count = option ? option->num_choices : 0;
    return QStringLiteral("<PDEChoice ") + QString::asprintf("%p", static_cast<const void *>(this))
        + QStringLiteral(" userTitle:\"") + shown(userTitle()) + QStringLiteral("\" ppdTitle:\"")
        + shown(ppdTitle()) + QStringLiteral("\" marked:")
        + (marked ? QStringLiteral("YES") : QStringLiteral("NO")) + QStringLiteral(" choice:")
        + QString::number(position) + QStringLiteral(" of ") + QString::number(count)
        + QStringLiteral(">");
}
