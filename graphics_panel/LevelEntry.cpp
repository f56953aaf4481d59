// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/LevelEntry.h"

#include "controls/PDETextField.h"
#include "graphics_panel/GraphicsKeys.h"
#include "graphics_panel/LevelFormatter.h"
#include "platform/Controls.h"

#include <QKeyEvent>
#include <QToolTip>

#include <algorithm>
#include <optional>
#include <utility>

namespace graphics {
namespace {

constexpr qint32 kStep = 1;
constexpr qint32 kPageStep = 5;

qint32 withinBounds(qint32 level)
{
    return std::clamp(level, kLowestLevel, kHighestLevel);
}

/// Nothing for a text that is no number, or only the beginning of one.
std::optional<qint32> typedLevel(const QString &text)
{
    bool isNumber = false;
    const qint32 level = text.toInt(&isNumber);
    return isNumber ? std::optional(level) : std::nullopt;
}

/// Shows without a frame what can only be read.
void setReadOnly(QLineEdit *field, bool readOnly)
{
    QPalette palette;
    if (readOnly) {
        palette.setColor(QPalette::Base, Qt::transparent);
    }
    field->setReadOnly(readOnly);
    field->setFrame(!readOnly);
    field->setPalette(palette);
    field->setFocusPolicy(readOnly ? Qt::NoFocus : Qt::StrongFocus);
}

} // namespace

LevelEntry::LevelEntry(Panel panel)
    : mPanel(std::move(panel))
{
    QLineEdit *text = field();
    if (!text) {
        return;
    }
    text->installEventFilter(this);
    if (auto *checked = qobject_cast<PDETextField13_v300_ *>(text)) {
        checked->setFormatter(std::make_shared<LevelFormatter>());
        connect(checked, &PDETextField13_v300_::editRefused, this,
                [this] { explain(kLevelRangeKey); });
    }
    connect(text, &QLineEdit::editingFinished, this, &LevelEntry::takeOver);
    if (mPanel.preview) {
        mPanel.preview->installEventFilter(this);
    }
    if (slider()) {
        slider()->installEventFilter(this);
        followSlider();
    }
}

LevelEntry::~LevelEntry() = default;

QLineEdit *LevelEntry::field() const
{
    return *mPanel.text;
}

QSlider *LevelEntry::slider() const
{
    return *mPanel.slider;
}

bool LevelEntry::isTyping() const
{
    return field() && field()->isModified();
}

void LevelEntry::takeOver()
{
    if (!isTyping()) {
        return;
    }
    const QString text = field()->text();
    if (const std::optional<qint32> typed = typedLevel(text)) {
        setLevel(*typed);
        return;
    }
    showLevel();
    if (!text.isEmpty() && text != QLatin1String("-")) {
        explain(kLevelRangeKey);
    }
}

void LevelEntry::setLevel(qint32 level)
{
    const qint32 allowed = withinBounds(level);
    if (slider()) {
        slider()->setValue(allowed);
    } else {
        platform::setIntValue(field(), allowed);
        mPanel.commit(allowed);
    }
    if (allowed != level) {
        explain(kLevelRangeKey);
    } else if (slider() && slider()->value() != allowed) {
        explain(kLevelMissingKey);
    }
    showLevel();
}

void LevelEntry::showLevel()
{
    if (slider()) {
        platform::setIntValue(field(), slider()->value());
    }
    if (field()) {
        field()->setModified(false);
        mPanel.typing(false);
    }
}

void LevelEntry::step(qint32 by)
{
    const std::optional<qint32> typed =
        isTyping() || !slider() ? typedLevel(field()->text()) : std::nullopt;
    const qint32 from = withinBounds(typed.value_or(platform::intValue(slider())));
    setLevel(withinBounds(from + by));
    if (typed && *typed != withinBounds(*typed)) {
        explain(kLevelRangeKey);
    }
}

bool LevelEntry::eventFilter(QObject *watched, QEvent *event)
{
    // The kind comes first: a control that is being destroyed has events, but is none any more.
    switch (event->type()) {
    case QEvent::EnabledChange:
        if (watched == slider()) {
            followSlider();
        }
        return false;
    case QEvent::Paint:
        if (watched == mPanel.preview) {
            mPanel.typing(isTyping());
        }
        return false;
    case QEvent::ShortcutOverride:
        return watched == field() && overrideShortcut(static_cast<QKeyEvent *>(event));
    case QEvent::KeyPress:
        return watched == field() && takeKey(static_cast<QKeyEvent *>(event));
    default:
        return false;
    }
}

bool LevelEntry::takeKey(QKeyEvent *event)
{
    if (!field()->isEnabled() || field()->isReadOnly()) {
        return false;
    }
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && isTyping()) {
        // The field ends the edit. The dialog does not hear of it: a job begins with the next one.
        static_cast<QObject *>(field())->event(event);
        event->accept();
        return true;
    }
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    return plain && handleKey(event->key());
}

bool LevelEntry::overrideShortcut(QKeyEvent *event) const
{
    const bool endsTyping = event->key() == Qt::Key_Escape || event->key() == Qt::Key_Return
        || event->key() == Qt::Key_Enter;
    if (isTyping() && endsTyping) {
        event->accept();
        return true;
    }
    return false;
}

bool LevelEntry::handleKey(int key)
{
    switch (key) {
    case Qt::Key_Up:
        step(kStep);
        return true;
    case Qt::Key_Down:
        step(-kStep);
        return true;
    case Qt::Key_PageUp:
        step(kPageStep);
        return true;
    case Qt::Key_PageDown:
        step(-kPageStep);
        return true;
    case Qt::Key_Escape:
        if (isTyping()) {
            showLevel();
            return true;
        }
        return false;
    default:
        return false;
    }
}

void LevelEntry::followSlider()
{
    if (field() && slider()) {
        setReadOnly(field(), !platform::isEnabled(slider()));
    }
}

void LevelEntry::explain(QLatin1String key)
{
    // Later: leaving the field hides every tool tip.
    QMetaObject::invokeMethod(
        this,
        [this, key] {
            if (field() && field()->isVisible()) {
                QToolTip::showText(field()->mapToGlobal(QPoint(0, field()->height())),
                                   mPanel.localized(key), field());
            }
        },
        Qt::QueuedConnection);
}

} // namespace graphics
