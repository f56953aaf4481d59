// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArrayView>

#include <csignal>

// Writing that costs the program nothing but the text: it neither ends nor waits for long when the
// other side is closed, full or slow. After the first failure the rest is dropped.

namespace diagnostics {

/// While it lives, a closed pipe does not raise SIGPIPE in this thread. The signal's action, which
/// is the host's, stays as it is, and so does a signal that was there before.
class PipeSignalGuard
{
public:
    PipeSignalGuard();
    ~PipeSignalGuard();
    PipeSignalGuard(const PipeSignalGuard &) = delete;
    PipeSignalGuard &operator=(const PipeSignalGuard &) = delete;

private:
    sigset_t mFormerMask;
    bool mWasPending;
};

/// A descriptor of the caller's, which stays open.
class DescriptorOutput
{
public:
    explicit DescriptorOutput(int descriptor);

    /// In one piece when it fits into a pipe's smallest unit.
    void write(QByteArrayView bytes);

private:
    PipeSignalGuard mGuard;
    int mDescriptor;
    bool mHasGivenUp = false;
};

/// The standard error stream.
class StandardErrorOutput
{
public:
    /// `prefix`, the text up to a zero byte, and `end`. A short text goes out in one piece.
    void print(const char *prefix, QByteArrayView text, const char *end);

private:
    void printPiece(const char *prefix, QByteArrayView piece, const char *end);

    PipeSignalGuard mGuard;
    bool mHasGivenUp = false;
};

} // namespace diagnostics
