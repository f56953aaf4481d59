// SPDX-License-Identifier: Apache-2.0
#include "dialog/Printer.h"

#include <QLatin1String>

#include <array>

namespace dialog {

namespace {

struct ReasonText
{
    QLatin1String keyword;
    const char *text;
};

constexpr std::array kReasons{
    ReasonText{QLatin1String("connecting-to-device"),
               QT_TRANSLATE_NOOP("dialog::Printer", "connecting")},
    ReasonText{QLatin1String("cover-open"), QT_TRANSLATE_NOOP("dialog::Printer", "cover is open")},
    ReasonText{QLatin1String("door-open"), QT_TRANSLATE_NOOP("dialog::Printer", "door is open")},
    ReasonText{QLatin1String("marker-supply-empty"),
               QT_TRANSLATE_NOOP("dialog::Printer", "ink or ribbon is used up")},
    ReasonText{QLatin1String("marker-supply-low"),
               QT_TRANSLATE_NOOP("dialog::Printer", "ink or ribbon is low")},
    ReasonText{QLatin1String("media-empty"),
               QT_TRANSLATE_NOOP("dialog::Printer", "labels are used up")},
    ReasonText{QLatin1String("media-jam"), QT_TRANSLATE_NOOP("dialog::Printer", "labels jammed")},
    ReasonText{QLatin1String("media-low"), QT_TRANSLATE_NOOP("dialog::Printer", "few labels left")},
    ReasonText{QLatin1String("media-needed"),
               QT_TRANSLATE_NOOP("dialog::Printer", "other labels needed")},
    ReasonText{QLatin1String("offline"), QT_TRANSLATE_NOOP("dialog::Printer", "switched off")},
    ReasonText{QLatin1String("timed-out"), QT_TRANSLATE_NOOP("dialog::Printer", "does not answer")},
};

/// A reason for people, or nothing when it says no more than the state does.
QString textOf(QString reason)
{
    for (const char *severity : {"-error", "-warning", "-report"}) {
        if (reason.endsWith(QLatin1String(severity))) {
            reason.chop(QLatin1String(severity).size());
        }
    }
    for (const ReasonText &known : kReasons) {
        if (reason == known.keyword) {
            return Printer::tr(known.text);
        }
    }
    return {};
}

QString textOf(Printer::State state)
{
    switch (state) {
    case Printer::State::Printing:
        return Printer::tr("printing");
    case Printer::State::Stopped:
        return Printer::tr("stopped");
    case Printer::State::Idle:
        break;
    }
    return Printer::tr("ready");
}

} // namespace

Printer Printer::folder()
{
    Printer printer;
    printer.name = QStringLiteral("folder");
    printer.description = tr("Print into a folder");
    printer.isFolder = true;
    return printer;
}

QString Printer::title() const
{
    const QString text = description.simplified();
    const auto slash = name.indexOf(QLatin1Char('/'));
    if (text.isEmpty()) {
        return name;
    }
    return slash < 0 ? text : text + QStringLiteral(" (%1)").arg(name.mid(slash + 1));
}

QString Printer::stateText() const
{
    QStringList texts;
    if (acceptsJobs || state != State::Idle) {
        texts.append(textOf(state));
    }
    if (!acceptsJobs) {
        texts.append(tr("not accepting jobs"));
    }
    for (const QString &reason : stateReasons) {
        const QString text = textOf(reason);
        if (!text.isEmpty() && !texts.contains(text)) {
            texts.append(text);
        }
    }
    return texts.join(QStringLiteral(", "));
}

} // namespace dialog
