// SPDX-License-Identifier: Apache-2.0
#include "filter/FilterRoutes.h"
#include "filter/GraphicsPpd.h"
#include "filter/OpenPpd.h"
#include "filter/StockPpd.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <algorithm>
#include <stdexcept>

#include <cups/raster.h>
#include <gmock/gmock.h>

namespace {

using namespace filter;

const std::vector<std::string> kLabelPrinters = {"dymo",     "intelbar", "zebra",
                                                 "zebracpl", "zebraep1", "zebraep2"};

OpenPpd opened(const std::string &text)
{
    auto result = openPpd(text);
    if (const auto *why = std::get_if<std::string>(&result)) {
        throw std::runtime_error(*why);
    }
    return std::get<OpenPpd>(std::move(result));
}

bool isForLabels(const std::string &text)
{
    const OpenPpd ppd = opened(text);
    const auto routes = filterRoutes(ppd.get());
    return std::any_of(routes.begin(), routes.end(),
                       [](const FilterRoute &route) { return route.program == "rastertolabel"; });
}

/// "option=choice" of every choice, "*" behind the default ones, in the PPD's order.
std::vector<std::string> choicesOf(const OpenPpd &ppd)
{
    std::vector<std::string> choices;
    for (int g = 0; g < ppd->num_groups; ++g) {
        for (int o = 0; o < ppd->groups[g].num_options; ++o) {
            const ppd_option_t &option = ppd->groups[g].options[o];
            for (int c = 0; c < option.num_choices; ++c) {
                const ppd_choice_t &choice = option.choices[c];
                choices.push_back(std::string(option.keyword) + "=" + choice.choice + "/"
                                  + choice.text + (choice.marked ? "*" : ""));
            }
        }
    }
    return choices;
}

bool isAdded(const std::string &choice)
{
    return choice.compare(0, 2, "Cv") == 0;
}

/// cupstestppd with a folder of filters that has labelgraphics in it.
class ConformanceTest
{
public:
    ConformanceTest()
    {
        const QDir folder(mFolder.path());
        folder.mkdir(QStringLiteral("filter"));
        const QDir filters(QStringLiteral("/usr/lib/cups/filter"));
        for (const QString &name : filters.entryList(QDir::Files)) {
            QFile::link(filters.filePath(name), folder.filePath(QStringLiteral("filter/") + name));
        }
        QFile::link(QStringLiteral("/usr/lib/cups/filter/rastertolabel"),
                    folder.filePath(QStringLiteral("filter/labelgraphics")));
    }

    struct Verdict
    {
        int status = -1;
        qsizetype warnings = 0;
        std::string text;
    };

    Verdict of(const std::string &ppd) const
    {
        const QString path = mFolder.filePath(QStringLiteral("a.ppd"));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly)) {
            throw std::runtime_error("the PPD cannot be written");
        }
        file.write(ppd.data(), static_cast<qint64>(ppd.size()));
        file.close();
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("CUPS_SERVERBIN"), mFolder.path());
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral("cupstestppd"), {path});
        process.waitForFinished();
        const QByteArray text = process.readAll();
        return {process.exitCode(), text.count("WARN"), text.toStdString()};
    }

private:
    QTemporaryDir mFolder;
};

TEST(StockPrinters, TheLabelPrintersOfCupsAreTheSixThatAreTested)
{
    const StockDrivers drivers;
    std::vector<std::string> found;
    for (const QString &name : drivers.names()) {
        const QString prefix = QStringLiteral("drv:///sample.drv/");
        if (name.startsWith(prefix) && isForLabels(drivers.ppd(name).toStdString())) {
            found.push_back(name.mid(prefix.size()).chopped(4).toStdString());
        }
    }
    EXPECT_THAT(found, testing::UnorderedElementsAreArray(kLabelPrinters));
}

class StockPrinter : public testing::TestWithParam<std::string>
{
protected:
    StockPrinter()
        : mOriginal(StockDrivers()
                        .ppd(QStringLiteral("drv:///sample.drv/%1.ppd")
                                 .arg(QString::fromStdString(GetParam())))
                        .toStdString())
        , mResult(std::get<std::string>(withGraphicsOptions(mOriginal, Colours::Black)))
    { }

    const std::string mOriginal;
    const std::string mResult;
};

TEST_P(StockPrinter, KeepsEveryByteOfItsPpd)
{
    const auto [behindStart, inResult] =
        std::mismatch(mOriginal.begin(), mOriginal.end(), mResult.begin());
    const auto rest = static_cast<std::size_t>(mOriginal.end() - behindStart);
    EXPECT_EQ(mResult.substr(mResult.size() - rest), std::string(behindStart, mOriginal.end()));
    EXPECT_LT(rest, 100U);
}

TEST_P(StockPrinter, HasEveryOptionAndChoiceThatItHad)
{
    const std::vector<std::string> before = choicesOf(opened(mOriginal));
    std::vector<std::string> after = choicesOf(opened(mResult));
    after.erase(std::remove_if(after.begin(), after.end(), isAdded), after.end());
    EXPECT_EQ(after, before);
}

TEST_P(StockPrinter, HasTheSixOptionsWithTheirDefaultsMarked)
{
    const OpenPpd ppd = opened(mResult);
    std::vector<std::string> marked;
    for (const std::string &choice : choicesOf(ppd)) {
        if (isAdded(choice) && choice.back() == '*') {
            marked.push_back(choice.substr(0, choice.find('/')));
        }
    }
    EXPECT_THAT(marked,
                testing::ElementsAre("CvHalftonePattern=ErrorDiffusion", "CvBrightness=0",
                                     "CvContrast=0", "CvBiDiPrint=ON",
                                     "CvMultiColor=CvMultiColorMonochrome", "CvRedLevel=0"));
    EXPECT_EQ(ppdConflicts(ppd.get()), 0);
}

TEST_P(StockPrinter, KeepsItsFilterAndGetsLabelgraphicsBeforeIt)
{
    const OpenPpd ppd = opened(mResult);
    const auto before = preFilterRoutes(ppd.get());
    ASSERT_EQ(before.size(), 1U);
    EXPECT_EQ(before[0].program, "labelgraphics");
    const auto own = filterRoutes(ppd.get());
    ASSERT_EQ(own.size(), 1U);
    EXPECT_EQ(own[0].program, "rastertolabel");
}

TEST_P(StockPrinter, PassesCupstestppdWithNoMoreWarningsThanBefore)
{
    const ConformanceTest test;
    const auto before = test.of(mOriginal);
    const auto after = test.of(mResult);
    EXPECT_EQ(before.status, 0) << before.text;
    EXPECT_EQ(after.status, 0) << after.text;
    EXPECT_LE(after.warnings, before.warnings) << after.text;
}

INSTANTIATE_TEST_SUITE_P(All, StockPrinter, testing::ValuesIn(kLabelPrinters),
                         [](const auto &name) { return name.param; });

} // namespace
