// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/PrintCore.h"

#include <QVariantMap>

namespace dialog {

/// What the dialog and its panels keep under keys of their own until the job is done.
class JobSession : public PMPrintSession
{
public:
    PMResult<QVariant> data(const QString &key) const override { return {0, mData.value(key)}; }
    void setData(const QString &key, const QVariant &value) { mData.insert(key, value); }

private:
    QVariantMap mData;
};

} // namespace dialog
