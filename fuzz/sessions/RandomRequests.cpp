// SPDX-License-Identifier: Apache-2.0
#include "fuzz/sessions/RandomRequests.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <iterator>

namespace {

QByteArray line(const QJsonObject &request)
{
    return QJsonDocument(request).toJson(QJsonDocument::Compact);
}

template <typename List> const auto &anyOf(Random &random, const List &list)
{
    return *std::next(std::begin(list), between(random, 0, int(std::size(list)) - 1));
}

QJsonValue anyPaper(Random &random)
{
    if (chance(random, 30)) {
        return QJsonValue::Null;
    }
    static const std::array<const char *, 4> names{"DC24x100", "Custom.10x10mm", "A4", "C_9"};
    const auto status = [&random] { return chance(random, 10) ? -30877 : 0; };
    const QJsonValue name =
        chance(random, 15) ? QJsonValue() : QJsonValue(QLatin1String(anyOf(random, names)));
    return QJsonObject{{QStringLiteral("status"), status()},
                       {QStringLiteral("name"), name},
                       {QStringLiteral("nameStatus"), status()},
                       {QStringLiteral("height"), between(random, 0, 3000) / 10.0},
                       {QStringLiteral("heightStatus"), status()}};
}

QJsonValue anyDeviceUri(Random &random)
{
    static const std::array<const char *, 4> uris{"usb://Maker/Label", "usb:", "socket://10.0.0.7",
                                                  "no uri at all"};
    return chance(random, 40) ? QJsonValue() : QJsonValue(QLatin1String(anyOf(random, uris)));
}

QByteArray openLine(Random &random, const QString &ppdFile, bool mayDecline)
{
    QJsonObject open{{QStringLiteral("do"), QStringLiteral("open")},
                     {QStringLiteral("ppd"), chance(random, 5) ? QJsonValue() : ppdFile},
                     {QStringLiteral("paper"), anyPaper(random)},
                     {QStringLiteral("deviceURI"), anyDeviceUri(random)}};
    for (const char *flag : {"markDefaults", "reports", "settings", "resizes"}) {
        if (chance(random, 15)) {
            open[QLatin1String(flag)] = false;
        }
    }
    if (chance(random, 30)) {
        open[QStringLiteral("keyWindowHeight")] = between(random, 0, 2000);
    }
    if (mayDecline && chance(random, 20)) {
        open[QStringLiteral("systemVersion")] =
            QJsonArray{10, between(random, 0, 8), QJsonValue::Null};
    }
    return line(open);
}

QString anyChoice(Random &random, const RandomPpd &ppd, const QString &option)
{
    const QList<QString> choices = ppd.choices.value(option).values();
    // In an order that does not hang on the hash, so that a seed makes the same session everywhere.
    QStringList sorted(choices);
    sorted.sort();
    return sorted.isEmpty() || chance(random, 10) ? QStringLiteral("Unknown")
                                                  : anyOf(random, sorted);
}

QString anyOption(Random &random)
{
    return chance(random, 8) ? QStringLiteral("PageSize") : anyOf(random, boundOptions());
}

/// A control, and a value that is mostly one of its own.
QByteArray controlLine(Random &random, const char *request)
{
    struct Control
    {
        const char *name;
        int least;
        int most;
    };
    static const std::array<Control, 7> controls{{{"mHalftoneRadio", 0, 2},
                                                  {"mBrightnessSlider", -20, 20},
                                                  {"mContrustSlider", -20, 20},
                                                  {"mRedLevelSlider", -20, 20},
                                                  {"mBiDiPrintChkBx", 0, 1},
                                                  {"mColorPUBtn", 0, 1},
                                                  {"mBrightnessTitle", 0, 1}}};
    const Control &control = anyOf(random, controls);
    const bool wild = chance(random, 5);
    const QJsonValue value = wild && chance(random, 50)
        ? QJsonValue(QStringLiteral("many"))
        : QJsonValue(wild ? between(random, -1000000, 1000000)
                          : between(random, control.least, control.most));
    return line({{QStringLiteral("do"), QLatin1String(request)},
                 {QStringLiteral("control"), QLatin1String(control.name)},
                 {QStringLiteral("value"), value}});
}

QByteArray nameLine(Random &random)
{
    static const std::array<const char *, 22> names{
        "panelView",     "awake",          "panelName",
        "panelKind",     "shouldHide",     "shouldPrint",
        "isVLPrinter",   "fileVerString",  "willShow",
        "updateUI",      "saveValues",     "restoreValues",
        "initUI",        "setValuesToKey", "supportedPPDOptionKeys",
        "imageModeFlag", "summaryInfo",    "draw",
        "tapeInfo",      "expand",         "shouldShowHelp",
        "nonsense"};
    return line({{QStringLiteral("do"), QLatin1String(anyOf(random, names))}});
}

QByteArray settingLine(Random &random)
{
    static const std::array<const char *, 8> settings{"Halftone",  "Brightness", "Contrast",
                                                      "BidiPrint", "Color",      "RedLevel",
                                                      "OtherStr",  "Nothing"};
    return line(
        {{QStringLiteral("do"),
          chance(random, 50) ? QStringLiteral("initializeUI") : QStringLiteral("saveSetting")},
         {QStringLiteral("setting"), QLatin1String(anyOf(random, settings))}});
}

QByteArray optionLine(Random &random, const RandomPpd &ppd)
{
    static const std::array<const char *, 3> requests{"mark", "unmark",
                                                      "PPDOptionKeyValueDidChange"};
    const QString option = anyOption(random);
    QJsonValue choice = anyChoice(random, ppd, option);
    if (chance(random, 5)) {
        choice = QJsonValue();
    }
    return line({{QStringLiteral("do"), QLatin1String(anyOf(random, requests))},
                 {QStringLiteral("option"), option},
                 {QStringLiteral("choice"), choice}});
}

QByteArray bitsLine(Random &random)
{
    return line({{QStringLiteral("do"),
                  chance(random, 50) ? QStringLiteral("updateMarkedSelections")
                                     : QStringLiteral("updateUIItem")},
                 {QStringLiteral("bits"),
                  chance(random, 90) ? between(random, 0, 127) : between(random, -5, 1 << 30)}});
}

QByteArray typeLine(Random &random)
{
    static const std::array<const char *, 3> fields{"mBrightnessText", "mContrustText",
                                                    "mRedLevelText"};
    static const std::array<const char *, 7> texts{"5", "-20", "99", "", "-", "1x2", "007"};
    return line({{QStringLiteral("do"), QStringLiteral("type")},
                 {QStringLiteral("control"), QLatin1String(anyOf(random, fields))},
                 {QStringLiteral("text"), QLatin1String(anyOf(random, texts))}});
}

QByteArray enableLine(Random &random)
{
    static const std::array<const char *, 3> names{"mRedLevelSlider", "mColorPUBtn",
                                                   "mBiDiPrintChkBx"};
    return line({{QStringLiteral("do"), QStringLiteral("enable")},
                 {QStringLiteral("control"), QLatin1String(anyOf(random, names))},
                 {QStringLiteral("value"), chance(random, 80)}});
}

QByteArray dropLine(Random &random)
{
    static const std::array<const char *, 8> names{
        "mHalftoneRadio", "mBrightnessSlider", "mContrustText", "mBiDiPrintChkBx",
        "mColorPUBtn",    "mRedLevelSlider",   "mColorTitle",   "mHalftoneView"};
    return line({{QStringLiteral("do"), QStringLiteral("drop")},
                 {QStringLiteral("control"), QLatin1String(anyOf(random, names))}});
}

QByteArray badLine(Random &random)
{
    static const QByteArrayList lines{
        "", "{", "[]", "null", "{\"do\":7}", "\xff\xfe", "{\"do\":\"state\"", "{\"do\":\"user\"}"};
    return anyOf(random, lines);
}

QByteArray requestLine(Random &random, const RandomPpd &ppd)
{
    const int kind = between(random, 1, 100);
    if (kind <= 30) {
        return controlLine(random, "user");
    }
    if (kind <= 35) {
        return controlLine(random, "put");
    }
    if (kind <= 55) {
        return nameLine(random);
    }
    if (kind <= 65) {
        return settingLine(random);
    }
    if (kind <= 80) {
        return optionLine(random, ppd);
    }
    if (kind <= 87) {
        return bitsLine(random);
    }
    if (kind <= 92) {
        return typeLine(random);
    }
    if (kind <= 95) {
        return enableLine(random);
    }
    return kind <= 98 ? dropLine(random) : badLine(random);
}

} // namespace

QByteArrayList randomRequests(Random &random, const RandomPpd &ppd, const QString &ppdFile,
                              int count, bool mayDecline)
{
    const QByteArray state = line({{QStringLiteral("do"), QStringLiteral("state")}});
    const QByteArray keys =
        line({{QStringLiteral("do"), QStringLiteral("supportedPPDOptionKeys")}});
    QByteArrayList lines{openLine(random, ppdFile, mayDecline), state};
    if (chance(random, 20)) {
        lines += dropLine(random);
    }
    if (chance(random, 85)) {
        lines += line({{QStringLiteral("do"), QStringLiteral("panelView")}});
        lines += line({{QStringLiteral("do"), QStringLiteral("willShow")}});
    }
    for (int i = 0; i < count; ++i) {
        lines += requestLine(random, ppd);
        if (chance(random, 30)) {
            lines += state;
        }
    }
    lines += keys;
    lines += state;
    return lines;
}
