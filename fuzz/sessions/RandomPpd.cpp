// SPDX-License-Identifier: Apache-2.0
#include "fuzz/sessions/RandomPpd.h"

#include <algorithm>

int between(Random &random, int least, int most)
{
    return std::uniform_int_distribution(least, most)(random);
}

bool chance(Random &random, int percent)
{
    return between(random, 1, 100) <= percent;
}

const QStringList &boundOptions()
{
    static const QStringList options{
        QStringLiteral("CvHalftonePattern"), QStringLiteral("CvBrightness"),
        QStringLiteral("CvContrast"),        QStringLiteral("CvBiDiPrint"),
        QStringLiteral("CvMultiColor"),      QStringLiteral("CvRedLevel")};
    return options;
}

namespace {

/// A title that a PPD can hold on its line: no control characters, no colon, which ends it.
QByteArray randomTitle(Random &random)
{
    static const QList<QByteArray> texts{"Level",
                                         "+5",
                                         "50 %d %s %@",
                                         "\xC3\x9C"
                                         "berall",
                                         "Auto & R",
                                         "\xE7\xB4\x99",
                                         " ",
                                         "a<b>"};
    if (chance(random, 80)) {
        return texts[between(random, 0, int(texts.size()) - 1)];
    }
    QByteArray bytes;
    for (int length = between(random, 1, 12); length > 0; --length) {
        bytes += char(between(random, 0x80, 0xFF));
    }
    return bytes;
}

QByteArray withTitle(Random &random, const QByteArray &keyword)
{
    return chance(random, 20) ? keyword : keyword + "/" + randomTitle(random);
}

int randomCount(Random &random)
{
    switch (between(random, 0, 5)) {
    case 0:
        return between(random, 0, 3);
    case 1:
        return between(random, 0, 200);
    default:
        return between(random, 2, 41);
    }
}

QList<QByteArray> randomKeywords(Random &random, int count)
{
    QList<QByteArray> keywords;
    const bool levels = chance(random, 50);
    for (int i = 0; i < count; ++i) {
        const bool twice = i > 0 && chance(random, 3);
        const QByteArray fresh =
            levels ? QByteArray::number(20 - i) : "Choice" + QByteArray::number(i);
        keywords += twice ? keywords[between(random, 0, i - 1)] : fresh;
    }
    return keywords;
}

QByteArray defaultLine(Random &random, const QByteArray &option, const QList<QByteArray> &keywords)
{
    const QByteArray choice = keywords.isEmpty() || chance(random, 5)
        ? QByteArray("Unknown")
        : keywords[between(random, 0, int(keywords.size()) - 1)];
    return "*Default" + option + ": " + choice + "\n";
}

QByteArray optionText(Random &random, const QByteArray &option, const QList<QByteArray> &keywords)
{
    QByteArray text = "*OpenUI *" + withTitle(random, option) + ": PickOne\n";
    const int defaults = chance(random, 80) ? 1 : between(random, 0, 2);
    for (int i = 0; i < defaults; ++i) {
        text += defaultLine(random, option, keywords);
    }
    for (const QByteArray &keyword : keywords) {
        text += "*" + option + " " + withTitle(random, keyword) + ": \"\"\n";
    }
    return text + "*CloseUI: *" + option + "\n";
}

void addBoundOption(Random &random, RandomPpd &ppd, const QString &option)
{
    const QList<QByteArray> keywords = randomKeywords(random, randomCount(random));
    ppd.text += optionText(random, option.toLatin1(), keywords);
    ppd.count[option] = int(keywords.size());
    for (const QByteArray &keyword : keywords) {
        ppd.choices[option].insert(QString::fromLatin1(keyword));
    }
}

} // namespace

RandomPpd randomPpd(Random &random)
{
    RandomPpd ppd;
    ppd.text = "*PPD-Adobe: \"4.3\"\n*LanguageEncoding: UTF-8\n";
    QStringList options = boundOptions();
    std::shuffle(options.begin(), options.end(), random);
    for (const QString &option : options) {
        if (chance(random, 25)) {
            const QByteArray other = "Other" + option.toLatin1();
            ppd.text += optionText(random, other, randomKeywords(random, between(random, 1, 5)));
        }
        if (!chance(random, 15)) {
            addBoundOption(random, ppd, option);
        }
    }
    return ppd;
}
