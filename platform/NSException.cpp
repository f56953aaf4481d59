// SPDX-License-Identifier: Apache-2.0
#include "platform/NSException.h"

#include <utility>

NSException::NSException(QString name, const QString &reason)
    : mName(std::move(name))
    , mReason(reason.toUtf8())
{ }

NSException::~NSException() = default;

const char *NSException::what() const noexcept
{
    return mReason.constData();
}

void NSException::raise() const
{
    throw *this;
}
