// SPDX-License-Identifier: Apache-2.0
#include "dialog/LabelSize.h"

#include <QLocale>
#include <QRegularExpression>

#include <cmath>

namespace dialog {

namespace {

/// At most two decimals, none that is not needed, always with a point.
QString forPrintSystem(double millimetres)
{
    return QString::number(std::round(millimetres * 100) / 100, 'g', 12);
}

double millimetresOf(const QString &unit)
{
    if (unit == QLatin1String("cm")) {
        return 10;
    }
    if (unit == QLatin1String("in")) {
        return 25.4;
    }
    return unit == QLatin1String("pt") ? 1 / kPointsPerMillimetre : 1;
}

} // namespace

LabelSize LabelSize::custom(double widthMillimetres, double heightMillimetres)
{
    return {QStringLiteral("Custom"), tr("Own size"), widthMillimetres * kPointsPerMillimetre,
            heightMillimetres * kPointsPerMillimetre};
}

Result<LabelSize> LabelSize::fromText(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral(R"(^\s*(\d{1,6}(?:[.,]\d{1,6})?)\s*(?:x|X|\x{d7}|\*)\s*)"
                       R"((\d{1,6}(?:[.,]\d{1,6})?)\s*(mm|cm|in|pt)?\s*$)"));
    const QRegularExpressionMatch match = form.match(text);
    const auto number = [&match](int group) {
        return match.captured(group).replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
    };
    if (!match.hasMatch() || number(1) <= 0 || number(2) <= 0) {
        return Failure{FailureKind::Settings, text,
                       tr("is no label size; write width and height like 60x100mm")};
    }
    const double unit = millimetresOf(match.captured(3));
    return custom(number(1) * unit, number(2) * unit);
}

QString LabelSize::forPeople(double millimetres)
{
    const double whole = std::round(millimetres);
    const bool isWhole = std::abs(millimetres - whole) <= 0.25 && whole > 0;
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(isWhole ? whole : millimetres, 'f', isWhole ? 0 : 1);
}

QString LabelSize::millimetres() const
{
    if (!isKnown()) {
        return {};
    }
    return tr("%1 × %2 mm").arg(forPeople(widthMillimetres()), forPeople(heightMillimetres()));
}

QString LabelSize::pageSizeChoice() const
{
    if (!isCustom()) {
        return name;
    }
    return QStringLiteral("Custom.%1x%2mm")
        .arg(forPrintSystem(widthMillimetres()), forPrintSystem(heightMillimetres()));
}

} // namespace dialog
