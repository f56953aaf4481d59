// SPDX-License-Identifier: Apache-2.0
#include "platform/Beep.h"

#include <QApplication>

#include <utility>

namespace platform {
namespace {

std::function<void()> &replacement()
{
    static std::function<void()> sound;
    return sound;
}

} // namespace

void beep()
{
    if (replacement()) {
        replacement()();
    } else if (qApp) {
        QApplication::beep();
    }
}

void setBeep(std::function<void()> sound)
{
    replacement() = std::move(sound);
}

} // namespace platform
