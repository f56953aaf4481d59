// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

#include <cups/ppd.h>

/// An open PPD for one test, closed when it goes. Nothing is marked in it at first.
/// A PPD that does not open fails the test with an exception that says why.
class TestPpd
{
public:
    /// A file of tests/data/ppd, by its name there.
    static TestPpd fromFile(const QString &name);

    /// Text that begins with `*PPD-Adobe: "4.3"`.
    static TestPpd fromText(const QByteArray &text);

    /// Owned by this object.
    ppd_file_t *get() const { return mPpd.get(); }

    void markDefaults();

    /// An unknown option or choice changes nothing.
    void mark(const QByteArray &option, const QByteArray &choice);

    /// The keyword of the marked choice, empty when none is marked.
    QByteArray marked(const QByteArray &option) const;

    /// The option's record, or null.
    ppd_option_t *option(const QByteArray &keyword) const;

private:
    struct Closer
    {
        void operator()(ppd_file_t *ppd) const;
    };

    explicit TestPpd(const QString &path);

    std::unique_ptr<ppd_file_t, Closer> mPpd;
};
