// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFrame>

#include <functional>

class QLabel;
class QToolButton;

namespace dialog {

/// One sentence for the user at the foot of the window, with at most one button that puts it right.
///
/// Stays until it is closed, replaced or cleared; assistive tools are told of a new sentence.
class MessageBar : public QFrame
{
    Q_OBJECT
public:
    enum class Kind
    {
        Information,
        Warning
    };

    explicit MessageBar(QWidget *parent = nullptr);

    void show(Kind kind, const QString &text);

    /// As above, with a button called `actionText` that runs `action`.
    void show(Kind kind, const QString &text, const QString &actionText,
              std::function<void()> action);
    void clear();

    /// The sentence, empty when none is shown.
    QString text() const;

private:
    QLabel *mIcon;
    QLabel *mText;
    QToolButton *mAction;
    QToolButton *mClose;
    std::function<void()> mRun;
};

} // namespace dialog
