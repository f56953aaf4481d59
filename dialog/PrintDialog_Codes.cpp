// SPDX-License-Identifier: Apache-2.0
#include "dialog/PrintDialog.h"

#include "dialog/BarcodeGuard.h"
#include "dialog/CodeWarning.h"
#include "dialog/ColourMode.h"
#include "dialog/DotPlacement.h"
#include "dialog/JobBox.h"
#include "dialog/MessageBar.h"
#include "dialog/PagePreview.h"
#include "dialog/PrintedPages.h"

#include <QPushButton>

namespace dialog {

void PrintDialog::setStrict(bool strict)
{
    mIsStrict = strict;
    showCodes();
}

bool PrintDialog::hasCheckedCodes() const
{
    return !mGuard->isBusy();
}

void PrintDialog::guardCodes()
{
    PrinterSetup *setup = mController.setup();
    const std::optional<PrintedPage> printed =
        setup ? printedPageOf(*setup, mDocument) : std::optional<PrintedPage>();
    if (mJobBox->offerWholeDots(printed && printed->mayHaveWholeDots)) {
        // The job was edited by that, and has led here once more.
        return;
    }
    if (printed) {
        mGuard->check(
            {*printed, pagesFrom(mJob.pages(), mDocument->pageCount(), mPreview->currentPage())});
    } else {
        mGuard->clear();
    }
    showCodes();
}

// What the guard has to say lies below everything else that there is to be said.
void PrintDialog::showCodes()
{
    const std::vector<LostCode> &lost = mGuard->lost();
    if (!lost.empty()) {
        QString text = CodeWarning::failureOf(lost.front()).text();
        if (lost.size() > 1) {
            text = tr("%1; %n more cannot be read either", "a sentence about a barcode",
                      int(lost.size()) - 1)
                       .arg(text);
        }
        mMessages->setStanding(MessageBar::Kind::Warning, text,
                               CodeWarning::actionOf(lost.front().remedy),
                               [this, remedy = lost.front().remedy] { applyRemedy(remedy); });
    } else if (mGuard->failure()
               && (mIsStrict || mGuard->failure()->kind == FailureKind::Barcode)) {
        // A page that is damaged is the preview's business, unless it keeps the job waiting.
        mMessages->setStanding(MessageBar::Kind::Warning, mGuard->failure()->text());
    } else {
        mMessages->setStanding(MessageBar::Kind::Information, noteOnWholeDots());
    }
    updatePrintButton();
    Q_EMIT settled();
}

QString PrintDialog::noteOnWholeDots() const
{
    PrinterSetup *setup = mController.setup();
    const std::optional<PrintedPage> printed =
        setup ? printedPageOf(*setup, mDocument) : std::optional<PrintedPage>();
    if (!printed || printed->scaling != Scaling::WholeDots
        || !placeOnDots(*mDocument, 0, printed->sheet, Scaling::WholeDots, printed->form)
                .dotsOfPixel.isEmpty()) {
        return {};
    }
    return tr("Whole dots: the picture has more pixels than the label has dots; it is fitted to "
              "the label");
}

void PrintDialog::applyRemedy(CodeRemedy remedy)
{
    const auto choose = [this](const OptionChoices &choices) {
        PrinterSetup *setup = mController.setup();
        const std::optional<Failure> failure =
            setup ? setup->choose(choices) : std::optional<Failure>();
        if (failure) {
            showFailure(*failure);
        }
    };
    const OptionChoices binary{{QStringLiteral("CvHalftonePattern"), QStringLiteral("Binary")}};
    switch (remedy) {
    case CodeRemedy::Binary:
        return choose(binary);
    case CodeRemedy::BinaryAndWholeDots:
        choose(binary);
        return mJobBox->pickScaling(Scaling::WholeDots);
    case CodeRemedy::WholeDots:
        return mJobBox->pickScaling(Scaling::WholeDots);
    case CodeRemedy::Fit:
        return mJobBox->pickScaling(Scaling::Fit);
    case CodeRemedy::ActualSize:
        return mJobBox->pickScaling(Scaling::ActualSize);
    case CodeRemedy::PlainLevels:
        return choose({{QStringLiteral("CvBrightness"), QStringLiteral("0")},
                       {QStringLiteral("CvContrast"), QStringLiteral("0")}});
    case CodeRemedy::MonochromeAndBinary:
        choose(binary);
        [[fallthrough]];
    case CodeRemedy::Monochrome:
    case CodeRemedy::MonochromeOrLessRed:
        return choose({{kColourOption, kBlackChoice}});
    case CodeRemedy::Larger:
    case CodeRemedy::None:
        break;
    }
}

QString PrintDialog::objectionOfGuard() const
{
    PrinterSetup *setup = mController.setup();
    if (mIsStrict && setup && mDocument && !printedPageOf(*setup, mDocument)) {
        return tr("The printer's dots are not known, so barcodes cannot be checked; choose another "
                  "printer (--strict)");
    }
    const bool isClear = !mGuard->isBusy() && mGuard->lost().empty() && !mGuard->failure();
    return mIsStrict && !isClear
        ? tr("Nothing is printed until all barcodes can be read (--strict)")
        : QString();
}

} // namespace dialog
