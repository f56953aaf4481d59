// SPDX-License-Identifier: Apache-2.0
#include "dialog/NetworkThreads.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>

namespace dialog {

QThreadPool *networkThreads()
{
    static QPointer<QThreadPool> pool;
    if (!pool) {
        constexpr int kThreads = 8;
        pool = new QThreadPool(QCoreApplication::instance());
        pool->setMaxThreadCount(kThreads);
    }
    return pool;
}

} // namespace dialog
