// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QList>

#include <vector>

/// One option of a PPD that a test writes.
struct PpdOption
{
    QByteArray keyword;
    QByteArray title;
    /// Empty: the PPD names no default.
    QByteArray defaultChoice;
    /// "KEYWORD/Title", or "KEYWORD" alone.
    QList<QByteArray> choices;
};

/// The places of the options in sixOptions().
inline constexpr size_t kHalftone = 0;
inline constexpr size_t kBrightness = 1;
inline constexpr size_t kContrast = 2;
inline constexpr size_t kBiDiPrint = 3;
inline constexpr size_t kColor = 4;
inline constexpr size_t kRedLevel = 5;

/// The six options that the panel binds: halftone default ErrorDiffusion, levels from 20 down to
/// -20 with default 0, bi-directional printing default ON, colour default monochrome.
std::vector<PpdOption> sixOptions();

/// The levels from `highest` down, `count` of them: "20/+20", ..., "-20/-20".
QList<QByteArray> levelChoices(int count, int highest = 20);

/// A PPD with these options and nothing else. The titles count as UTF-8.
QByteArray ppdText(const std::vector<PpdOption> &options);
