// SPDX-License-Identifier: Apache-2.0
#include "dialog/CupsServer.h"

namespace dialog {

JobChannel::~JobChannel() = default;
CupsServer::~CupsServer() = default;

} // namespace dialog
