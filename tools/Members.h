// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QVariant>

#include <optional>
#include <vector>

namespace tools {

/// The members of a request, each read as the type that it must have.
///
/// A missing member is a RequestError where no default is asked for, a member of another type is
/// one everywhere. Null is a value of its own: it stands for nothing only where the name says
/// "OrNull". Further members are ignored.
class Members
{
public:
    explicit Members(QJsonObject object)
        : mObject(std::move(object))
    { }

    bool has(const char *name) const { return mObject.contains(QLatin1String(name)); }

    QString text(const char *name) const;
    QString text(const char *name, const QString &otherwise) const;
    std::optional<QString> textOrNull(const char *name) const;

    bool truth(const char *name) const;
    bool truth(const char *name, bool otherwise) const;

    /// A whole number of 32 bits; a truth value is none.
    qint32 integer(const char *name) const;

    /// A string, or a whole number that a double holds exactly.
    QVariant textOrInteger(const char *name) const;

    double number(const char *name) const;
    std::optional<double> numberOrNull(const char *name) const;

    /// An array of `count` elements, each a whole number of 32 bits or null.
    std::vector<std::optional<qint32>> integersOrNulls(const char *name, int count) const;

    /// Nothing for null.
    std::optional<Members> objectOrNull(const char *name) const;

private:
    QJsonValue required(const char *name) const;
    static QString textIn(const char *name, const QJsonValue &value, const char *expected);
    static qint32 integerIn(const char *name, const QJsonValue &value, const char *expected);

    QJsonObject mObject;
};

} // namespace tools
