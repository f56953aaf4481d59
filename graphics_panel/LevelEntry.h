// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLineEdit>
#include <QObject>
#include <QPointer>
#include <QSlider>
#include <QString>

#include <functional>

class QKeyEvent;

namespace graphics {

/// Lets a person type a level into the number field beside its slider.
///
/// Return, Tab and leaving the field take the level over, cut to -20..20: the slider moves there
/// and sends its action, once and only when the level is another. Escape, an empty text or a lone
/// minus sign bring the slider's level back. Up and Down step by one, Page Up and Page Down by
/// five. While the slider is disabled the field can only be read.
///
/// Made for a loaded view, and gone before the panel. A field or a slider that the panel has
/// dropped is left alone. The interface thread only.
class LevelEntry : public QObject
{
public:
    struct Panel
    {
        /// The panel's fields; they outlive this object.
        const QPointer<QLineEdit> *text;
        const QPointer<QSlider> *slider;
        /// Takes a level over where there is no slider to do it.
        std::function<void(qint32 level)> commit;
        /// What shows the level beside the field when it is drawn, or null.
        QPointer<QWidget> preview;
        /// Whether the field holds a text that is not taken over yet: told before the preview is
        /// drawn, and when the typing ends.
        std::function<void(bool typing)> typing;
        /// The translation of a key.
        std::function<QString(QLatin1String key)> localized;
    };
    explicit LevelEntry(Panel panel);
    ~LevelEntry() override;

    /// Takes over what was typed; does nothing where nothing was.
    void takeOver();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QLineEdit *field() const;
    QSlider *slider() const;
    bool isTyping() const;
    bool takeKey(QKeyEvent *event);
    bool overrideShortcut(QKeyEvent *event) const;
    bool handleKey(int key);
    void step(qint32 by);
    void setLevel(qint32 level);
    void showLevel();
    void followSlider();
    void explain(QLatin1String key);

    Panel mPanel;
};

} // namespace graphics
