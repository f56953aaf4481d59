// SPDX-License-Identifier: Apache-2.0
#include "dialog/CodeWarning.h"

#include <QLocale>

namespace dialog {

QString CodeWarning::shown(const QString &text)
{
    QString plain;
    for (const char32_t c : text.toUcs4()) {
        const QChar::Category category = QChar::category(c);
        const bool acts = category == QChar::Other_Control || category == QChar::Other_Format
            || category == QChar::Separator_Line || category == QChar::Separator_Paragraph
            || category == QChar::Other_NotAssigned || category == QChar::Other_PrivateUse;
        plain += acts ? QStringLiteral(" ") : QString::fromUcs4(&c, 1);
    }
    plain = plain.simplified();
    if (plain.size() <= kLongestText) {
        return plain;
    }
    qsizetype length = kLongestText - 1;
    if (plain.at(length - 1).isHighSurrogate()) {
        --length;
    }
    return plain.left(length).trimmed() + QChar(0x2026);
}

QString CodeWarning::whatToDo(const LostCode &code)
{
    switch (code.remedy) {
    case CodeRemedy::Binary:
        return tr("cannot be read from these dots; choose Binary as the halftone");
    case CodeRemedy::WholeDots:
        return tr("cannot be read from these dots; choose Whole dots as the scale");
    case CodeRemedy::BinaryAndWholeDots:
        return tr("cannot be read from these dots; choose Binary as the halftone and Whole dots "
                  "as the scale");
    case CodeRemedy::ActualSize:
        return tr("cannot be read from these dots; choose Actual size as the scale");
    case CodeRemedy::Fit:
        return tr("cannot be read from these dots; choose Fit to label as the scale");
    case CodeRemedy::PlainLevels:
        return tr("cannot be read from these dots; set brightness and contrast to 0");
    case CodeRemedy::MonochromeAndBinary:
        return tr("is printed in red, which scanners do not see; choose Monochrome, and Binary as "
                  "the halftone");
    case CodeRemedy::Monochrome:
        return tr("is printed in red, which scanners do not see; choose Monochrome");
    case CodeRemedy::MonochromeOrLessRed:
        return tr("is printed in red, which scanners do not see; choose Monochrome or lower the "
                  "red level");
    case CodeRemedy::Larger:
        return tr("cannot be read from these dots; make the code larger: its bars are %1 dots "
                  "wide, %2 or more are safe")
            .arg(QLocale().toString(code.bars, 'f', 1))
            .arg(code.safeBars);
    case CodeRemedy::None:
        break;
    }
    return code.isRed
        ? tr("is printed in red, which scanners do not see; print it in black in the document")
        : tr("cannot be read from these dots, and no setting helps; make the code larger and "
             "pure black on white in the document");
}

Failure CodeWarning::failureOf(const LostCode &code)
{
    const QString text = shown(code.text);
    const QString page = QLocale().toString(code.page + 1);
    const QString what = text.isEmpty()
        ? tr("%1 on page %2", "a kind of barcode").arg(code.format, page)
        : tr("%1 “%2” on page %3", "a kind of barcode and what it says")
              .arg(code.format, text, page);
    return {FailureKind::Barcode, what, whatToDo(code)};
}

QString CodeWarning::actionOf(CodeRemedy remedy)
{
    switch (remedy) {
    case CodeRemedy::Binary:
        return tr("Use Binary");
    case CodeRemedy::WholeDots:
        return tr("Whole dots");
    case CodeRemedy::BinaryAndWholeDots:
        return tr("Binary and whole dots");
    case CodeRemedy::ActualSize:
        return tr("Actual size");
    case CodeRemedy::Fit:
        return tr("Fit to label");
    case CodeRemedy::PlainLevels:
        return tr("Set to 0");
    case CodeRemedy::MonochromeAndBinary:
        return tr("Monochrome and Binary");
    case CodeRemedy::Monochrome:
    case CodeRemedy::MonochromeOrLessRed:
        return tr("Use Monochrome");
    case CodeRemedy::Larger:
    case CodeRemedy::None:
        break;
    }
    return {};
}

} // namespace dialog
