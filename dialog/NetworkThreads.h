// SPDX-License-Identifier: Apache-2.0
#pragma once

class QThreadPool;

namespace dialog {

/// The threads for jobs and for work that waits for the network, apart from those that compute for
/// the screen. They end with
/// the application, which waits for them: such work is to be told to stop before. The interface
/// thread only.
QThreadPool *networkThreads();

} // namespace dialog
