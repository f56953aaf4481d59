// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace filter {

/// From now on SIGTERM, with which the scheduler cancels a job, ends the process no longer: it ends
/// waiting. Once, before other threads start. No when the system has no room, with the reason in
/// errno.
bool listenForCancel();

/// Whether SIGTERM has come since listenForCancel().
bool isCancelled();

/// Waits until `file` is ready for `events` of poll(), or has failed or ended. No when the job was
/// cancelled before or meanwhile.
bool waitFor(int file, short events);

} // namespace filter
