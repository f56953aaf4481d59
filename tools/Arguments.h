// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <variant>

namespace tools {

/// What the command line asks for.
struct Arguments
{
    /// A plug-in's folder or a folder of plug-ins; empty for where the print dialog looks.
    QString plugIn;

    /// Standing in for arguments: a text to print on standard output instead (help, version), or
    /// what is wrong.
    struct Text
    {
        QString text;
    };
    struct Complaint
    {
        QString text;
    };

    /// `arguments` begin with the program's own name.
    static std::variant<Arguments, Text, Complaint> read(const QStringList &arguments);
};

} // namespace tools
