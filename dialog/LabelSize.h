// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/Failure.h"

#include <QCoreApplication>
#include <QString>

namespace dialog {

inline constexpr double kPointsPerMillimetre = 72.0 / 25.4;

/// A size of label, tape or paper.
struct LabelSize
{
    Q_DECLARE_TR_FUNCTIONS(dialog::LabelSize)

public:
    /// The name as the PPD spells it; "Custom" for a size of the user's own.
    QString name;
    /// For people.
    QString title;
    /// In points; 0 when the PPD does not say.
    double width = 0;
    double height = 0;

    /// A size of the user's own.
    static LabelSize custom(double widthMillimetres, double heightMillimetres);

    /// Reads "60x100" (millimetres) or "60x100mm", "6x10cm", "2.4x4in", "170x283pt".
    static Result<LabelSize> fromText(const QString &text);

    bool isCustom() const { return name == QLatin1String("Custom"); }
    bool isKnown() const { return width > 0 && height > 0; }
    double widthMillimetres() const { return width / kPointsPerMillimetre; }
    double heightMillimetres() const { return height / kPointsPerMillimetre; }

    /// "62 × 100 mm" in the user's number format; empty when the PPD does not say. Whole
    /// millimetres when the size is at most a quarter of a millimetre off, because many PPDs give
    /// whole points.
    QString millimetres() const;

    /// A length in the user's number format, rounded like that.
    static QString forPeople(double millimetres);

    /// What the option PageSize of a job gets: the name, or "Custom.60x100mm".
    QString pageSizeChoice() const;

    bool operator==(const LabelSize &) const = default;
};

} // namespace dialog
