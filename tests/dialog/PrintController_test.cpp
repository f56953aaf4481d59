// SPDX-License-Identifier: Apache-2.0
#include "dialog/PrintController.h"

#include "GraphicsBundle.h"
#include "TestDocuments.h"
#include "dialog/FolderPrinter.h"
#include "dialog/LibcupsServer.h"
#include "support/CupsServerFixture.h"

#include <QSignalSpy>

#include <gmock/gmock.h>

using namespace dialog;
using testing::Contains;
using testing::HasSubstr;

namespace {

constexpr int kPatience = 20000;
const QString kNowhere = QStringLiteral("/nonexistent/cups.sock");

class PrintControllerTest : public DocumentFolder
{
protected:
    std::unique_ptr<PrintController> make(const QString &ppdFile = kSamplePpd,
                                          const QString &server = kNowhere)
    {
        auto controller = std::make_unique<PrintController>(
            std::make_shared<LibcupsServer>(server), graphicsPlugIn(),
            PrintController::Folder{ppdFile, folder.filePath(QStringLiteral("out"))},
            PanelSet::Views::None);
        return controller;
    }
    static Printer queue(const QString &name)
    {
        Printer printer;
        printer.name = name;
        return printer;
    }
    static std::string sentence(const QSignalSpy &spy)
    {
        return spy.value(0).value(0).value<Failure>().text().toStdString();
    }
};

TEST_F(PrintControllerTest, PrintsIntoTheFolderWithTheWishedChoices)
{
    auto controller = make();
    controller->setWishes({{QStringLiteral("CvContrast"), QStringLiteral("7")}});
    QSignalSpy ready(controller.get(), &PrintController::setupReady);
    QSignalSpy printed(controller.get(), &PrintController::printed);
    controller->choosePrinter(Printer::folder(), {});
    ASSERT_EQ(ready.count(), 1);
    EXPECT_TRUE(controller->print(opened(pdfOfPages(2))));
    ASSERT_TRUE(printed.wait(kPatience));
    EXPECT_THAT(printed.at(0).at(0).toString().toStdString(), HasSubstr("out/job-0001"));
    const auto settings =
        FolderPrinter::readSettings(folder.filePath(QStringLiteral("out/job-0001/settings.plist")));
    ASSERT_TRUE(settings);
    EXPECT_EQ(settings.value().choice(QStringLiteral("CvContrast")), QStringLiteral("7"));
    EXPECT_EQ(settings.value().labelSize()->name, QStringLiteral("DC62x100"));
}

TEST_F(PrintControllerTest, ARefusedWishIsToldAndTheSetupIsMadeAllTheSame)
{
    auto controller = make();
    controller->setWishes({{QStringLiteral("CvContrast"), QStringLiteral("77")},
                           {QStringLiteral("CvBrightness"), QStringLiteral("3")}});
    QSignalSpy complained(controller.get(), &PrintController::complained);
    controller->choosePrinter(Printer::folder(), {});
    ASSERT_EQ(complained.count(), 1);
    EXPECT_THAT(sentence(complained), HasSubstr("CvContrast=77"));
    ASSERT_TRUE(controller->setup());
    EXPECT_EQ(controller->setup()->ppd()->markedChoice(QStringLiteral("CvBrightness")),
              QStringLiteral("3"));
}

TEST_F(PrintControllerTest, ABrokenPpdLeavesNoSetupAndOneSentence)
{
    auto controller = make(QStringLiteral(TEST_DATA_DIR "/ppd/not-a-ppd.ppd"));
    QSignalSpy failed(controller.get(), &PrintController::setupFailed);
    controller->choosePrinter(Printer::folder(), {});
    ASSERT_EQ(failed.count(), 1);
    EXPECT_THAT(sentence(failed), HasSubstr("not-a-ppd.ppd"));
    EXPECT_FALSE(controller->setup());
    EXPECT_FALSE(controller->print(opened(pdfOfPages(1))));
}

TEST_F(PrintControllerTest, ChoosingAnotherPrinterLetsGoOfTheSetupFirst)
{
    auto controller = make();
    controller->choosePrinter(Printer::folder(), {});
    bool stillThere = false;
    QObject::connect(controller.get(), &PrintController::setupGoes,
                     [&] { stillThere = controller->setup() != nullptr; });
    QSignalSpy failed(controller.get(), &PrintController::setupFailed);
    controller->choosePrinter(queue(QStringLiteral("Lab")), {});
    EXPECT_TRUE(stillThere);
    EXPECT_FALSE(controller->setup());
    EXPECT_TRUE(failed.wait(kPatience)) << "there is no server";
}

TEST_F(PrintControllerTest, AQueueGetsTheDocumentAndEveryMarkedChoice)
{
    CupsServerFixture cups;
    cups.addQueue(QStringLiteral("Lab"));
    auto controller = make(kSamplePpd, cups.address());
    controller->setWishes({{QStringLiteral("CvBrightness"), QStringLiteral("-5")}});
    QSignalSpy ready(controller.get(), &PrintController::setupReady);
    QSignalSpy printed(controller.get(), &PrintController::printed);
    controller->choosePrinter(queue(QStringLiteral("Lab")), {});
    ASSERT_TRUE(ready.wait(kPatience));
    const QByteArray content = pdfOfPages(1);
    ASSERT_TRUE(controller->print(opened(content)));
    ASSERT_TRUE(printed.wait(kPatience));
    const CupsServerFixture::Arrived arrived = cups.arrived(1);
    EXPECT_EQ(arrived.document, content);
    EXPECT_THAT(arrived.options(), Contains(QStringLiteral("CvBrightness=-5")));
    EXPECT_THAT(arrived.options(), Contains(QStringLiteral("CvHalftonePattern=ErrorDiffusion")));
    EXPECT_THAT(arrived.options(), Contains(QStringLiteral("PageSize=DC62x100")));
}

} // namespace
