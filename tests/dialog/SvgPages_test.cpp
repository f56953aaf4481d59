// SPDX-License-Identifier: Apache-2.0
#include "dialog/SvgPages.h"
#include "tests/dialog/TestDocuments.h"

#include <gmock/gmock.h>

using dialog::SvgPages;

namespace {

QByteArray drawing(const QByteArray &attributes, const QByteArray &content = "<path/>")
{
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
        + attributes + '>' + content + "</svg>";
}

QSizeF sizeOf(const QByteArray &attributes)
{
    const auto pages = SvgPages::open(drawing(attributes, "<rect x='10' width='40' height='20'/>"),
                                      QStringLiteral("a.svg"));
    return pages ? pages.value()->pageSize(0) : QSizeF();
}

std::string whyNotDrawing(const QByteArray &content)
{
    const auto pages = SvgPages::open(content, QStringLiteral("a.svg"));
    return pages ? std::string() : pages.failure().why.toStdString();
}

void expectSize(const QSizeF &size, double width, double height)
{
    EXPECT_NEAR(size.width(), width, 0.001);
    EXPECT_NEAR(size.height(), height, 0.001);
}

TEST(SvgPages, LengthsHaveUnits)
{
    expectSize(sizeOf("width='62mm' height='10cm'"), 175.748, 283.465);
    expectSize(sizeOf("width='2in' height='6pc'"), 144, 72);
    expectSize(sizeOf("width='50.5pt' height='1e2'"), 50.5, 75);
    expectSize(sizeOf("width='96px' height=' 48 '"), 72, 36);
}

TEST(SvgPages, ViewBoxGivesTheSizeThatIsNotStated)
{
    expectSize(sizeOf("viewBox='0 0 100 200'"), 75, 150);
    expectSize(sizeOf("viewBox='0,0,100,200' width='100%' height='100%'"), 75, 150);
    expectSize(sizeOf("viewBox='0 0 100 200' width='40pt'"), 40, 80);
    expectSize(sizeOf("viewBox='0 0 100 200' height='40pt'"), 20, 40);
}

TEST(SvgPages, DrawingWithoutAnySizeIsAsLargeAsItsShapes)
{
    expectSize(sizeOf(""), 30, 15);
}

TEST(SvgPages, DrawingOfNoOrOfAbsurdSizeIsRefused)
{
    EXPECT_THAT(whyNotDrawing(drawing("width='0' height='10'")), testing::HasSubstr("no size"));
    EXPECT_THAT(whyNotDrawing(drawing("width='9999in' height='10'")),
                testing::HasSubstr("make it smaller"));
}

TEST(SvgPages, LinksInsideOfTheDrawingAreFine)
{
    EXPECT_EQ(
        whyNotDrawing(drawing("width='9' height='9'",
                              "<g id='a'><path/></g><use href='#a'/>"
                              "<image width='1' height='1' xlink:href='data:image/png;base64,'/>"
                              "<a href='http://127.0.0.1/'><path/></a>")),
        "");
}

TEST(SvgPages, LinksToOtherFilesAreRefused)
{
    for (const char *element : {"<image href='a.png'/>", "<image xlink:href='/etc/hostname'/>",
                                "<use href='b.svg#c'/>", "<image href=' file:///a.png'/>"}) {
        EXPECT_THAT(whyNotDrawing(drawing("width='9' height='9'", element)),
                    testing::HasSubstr("needs another file"))
            << element;
    }
}

TEST(SvgPages, RepetitionsAreCountedBeforeTheyAreDrawn)
{
    QByteArray repeated = "<g id='a'><path/></g>";
    EXPECT_EQ(whyNotDrawing(drawing("width='9' height='9'", repeated + "<use href='#a'/>")), "");
    repeated += "<g id='b'>" + QByteArray("<use href='#a'/>").repeated(1000) + "</g><g id='c'>"
        + QByteArray("<use href='#b'/>").repeated(1000) + "</g>";
    EXPECT_THAT(whyNotDrawing(drawing("width='9' height='9'", repeated)),
                testing::HasSubstr("too many repeated shapes"));
}

TEST(SvgPages, ShapeThatRepeatsItselfIsCountedOnce)
{
    EXPECT_EQ(
        whyNotDrawing(drawing("width='9' height='9'",
                              "<g id='a'><use href='#b'/></g><g id='b'><use href='#a'/></g>")),
        "");
}

TEST(SvgPages, DeepNestingIsRefused)
{
    const QByteArray deep =
        QByteArray("<g>").repeated(50'000) + QByteArray("</g>").repeated(50'000);
    EXPECT_THAT(whyNotDrawing(drawing("width='9' height='9'", deep)),
                testing::HasSubstr("nested too deeply"));
}

TEST(SvgPages, DamagedDrawingNamesTheLine)
{
    EXPECT_THAT(whyNotDrawing("<svg width='9'>\n<path>\n</svg>"), testing::HasSubstr("line 3"));
}

} // namespace
