// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

/// Copies of the test bundles in a folder of their own, for one test to damage.
/// Only their owner may write to them, whatever the build gave them.
class TestBundles
{
public:
    TestBundles();

    QString path() const { return mFolder.path(); }

    /// Copies the bundle `name`, here under the name `as`, and answers the path of the copy.
    QString copy(const QString &name, const QString &as = {});

    static void write(const QString &file, const QByteArray &content);
    static void setMode(const QString &file, int mode);
    static void link(const QString &target, const QString &file);

    /// Whether code of a test bundle was loaded since the last TestBundles was made.
    static bool codeRan();

private:
    QTemporaryDir mFolder;
};
