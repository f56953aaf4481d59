// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace dialog {

class PageSource;

/// The pages of `source` as a PDF document with pages of the same sizes. Drawings stay drawings,
/// pictures keep every pixel. Nothing when a page is damaged.
std::optional<QByteArray> documentToPdf(const PageSource &source, const QString &title);

} // namespace dialog
