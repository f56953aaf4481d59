// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Export.h"

#include <QByteArray>
#include <QString>

#include <exception>

/// What an operation of a control raises when it cannot go on. Thrown by value; whoever catches one
/// and does not handle it raises it again.
class PLATFORM_EXPORT NSException : public std::exception
{
public:
    NSException(QString name, const QString &reason);
    ~NSException() override;

    const QString &name() const { return mName; }
    /// The reason in UTF-8.
    const char *what() const noexcept override;

    /// Throws this exception, as the type that it is: a subclass throws itself.
    [[noreturn]] virtual void raise() const;

private:
    QString mName;
    QByteArray mReason;
};
