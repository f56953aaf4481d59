// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <memory>
#include <optional>

#include <cups/ppd.h>

namespace tools {

/// The open PPD of a session's host. Its records stay where they are as long as it lives.
class SessionPpd
{
public:
    /// Opens the PPD in the user's language, with nothing marked. A file that cannot be used is a
    /// RequestError.
    static std::unique_ptr<SessionPpd> open(const QString &path);

    ~SessionPpd();
    SessionPpd(const SessionPpd &) = delete;
    SessionPpd &operator=(const SessionPpd &) = delete;

    /// Owned by this.
    ppd_file_t *file() const { return mPpd; }

    void markDefaults();

    /// True when another choice record is marked than before. Words that the PPD does not know
    /// change nothing.
    bool mark(const QString &option, const QString &choice);

    /// Leaves the option with no marked choice.
    void unmark(const QString &option);

    /// The keyword of the marked choice, or nothing.
    std::optional<QString> marked(const QString &option) const;

private:
    explicit SessionPpd(ppd_file_t *ppd)
        : mPpd(ppd)
    { }

    ppd_file_t *mPpd;
};

} // namespace tools
