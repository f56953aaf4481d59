// SPDX-License-Identifier: Apache-2.0
#include "dialog/SvgContent.h"

#include "dialog/SvgComplexity.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <optional>

namespace dialog {

namespace {

constexpr double kPointsPerPixel = 0.75;
// The renderer calls itself for every level.
constexpr int kDeepest = 400;

double pointsPerUnit(const QString &unit)
{
    static const QHash<QString, double> kUnits{
        {QString(), kPointsPerPixel},      {QStringLiteral("px"), kPointsPerPixel},
        {QStringLiteral("pt"), 1},         {QStringLiteral("pc"), 12},
        {QStringLiteral("mm"), 72 / 25.4}, {QStringLiteral("cm"), 72 / 2.54},
        {QStringLiteral("in"), 72},
    };
    return kUnits.value(unit, 0);
}

// 0 for what is no absolute length, like "100%".
double pointsOf(QStringView text)
{
    static const QRegularExpression kLength(
        QStringLiteral("^\\s*([0-9]*\\.?[0-9]+(?:[eE][-+]?[0-9]+)?)\\s*([a-z]*)\\s*$"));
    const QRegularExpressionMatch match = kLength.match(text);
    return match.hasMatch() ? match.captured(1).toDouble() * pointsPerUnit(match.captured(2)) : 0;
}

QSizeF viewBoxOf(QStringView text)
{
    static const QRegularExpression kGap(QStringLiteral("[\\s,]+"));
    const QStringList numbers = text.toString().split(kGap, Qt::SkipEmptyParts);
    return numbers.size() == 4
        ? QSizeF(numbers[2].toDouble(), numbers[3].toDouble()) * kPointsPerPixel
        : QSizeF(0, 0);
}

// A side that is not stated follows from the other one and the proportions of the view box.
QSizeF sizeOf(const QXmlStreamAttributes &attributes)
{
    const double width = pointsOf(attributes.value(QLatin1String("width")));
    const double height = pointsOf(attributes.value(QLatin1String("height")));
    const QSizeF box = viewBoxOf(attributes.value(QLatin1String("viewBox")));
    if (width > 0 && height > 0) {
        return {width, height};
    }
    if (box.isEmpty()) {
        return {0, 0};
    }
    if (width > 0) {
        return {width, width * box.height() / box.width()};
    }
    return height > 0 ? QSizeF(height * box.width() / box.height(), height) : box;
}

QString linkOf(const QXmlStreamAttributes &attributes)
{
    for (const QXmlStreamAttribute &attribute : attributes) {
        if (attribute.name() == QLatin1String("href")) {
            return attribute.value().toString().trimmed();
        }
    }
    return {};
}

bool drawsItsLink(QStringView element)
{
    return element == QLatin1String("image") || element == QLatin1String("feImage")
        || element == QLatin1String("use");
}

bool isInside(const QString &link)
{
    return link.isEmpty() || link.startsWith(u'#')
        || link.startsWith(QLatin1String("data:"), Qt::CaseInsensitive);
}

QString needsFile(const QString &link)
{
    return SvgContent::tr("needs another file (%1), which is not read; put it into the drawing")
        .arg(link);
}

} // namespace

Result<SvgContent> SvgContent::read(const QByteArray &content, const QString &name)
{
    const auto refused = [&name](const QString &why) {
        return Failure{FailureKind::Document, name, why};
    };
    SvgContent drawing;
    SvgComplexity complexity;
    QXmlStreamReader xml(content);
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isEndElement()) {
            complexity.end();
        }
        for (const QXmlStreamEntityDeclaration &entity : xml.entityDeclarations()) {
            if (!entity.systemId().isEmpty()) {
                return refused(needsFile(entity.systemId().toString()));
            }
        }
        if (!xml.isStartElement()) {
            continue;
        }
        const QXmlStreamAttributes attributes = xml.attributes();
        const QString link = drawsItsLink(xml.name()) ? linkOf(attributes) : QString();
        if (!isInside(link)) {
            return refused(needsFile(link));
        }
        if (complexity.depth() == 0) {
            drawing.mSize = sizeOf(attributes);
            drawing.mStretched =
                attributes.value(QLatin1String("preserveAspectRatio")) == QLatin1String("none");
        }
        complexity.begin(attributes.value(QLatin1String("id")).toString(),
                         link.startsWith(u'#') ? link.mid(1) : QString());
        if (complexity.depth() > kDeepest) {
            return refused(tr("is nested too deeply to be drawn; make the drawing simpler"));
        }
    }
    if (xml.hasError()) {
        return refused(tr("is a damaged SVG drawing (line %1: %2)")
                           .arg(xml.lineNumber())
                           .arg(xml.errorString()));
    }
    if (complexity.shapes() > SvgComplexity::kMostShapes) {
        return refused(tr("has too many repeated shapes; make the drawing simpler"));
    }
    return drawing;
}

} // namespace dialog
