// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFrame>

#include <functional>

class QLabel;
class QToolButton;

namespace dialog {

/// One sentence for the user at the foot of the window, with at most one button that puts it right.
///
/// Stays until it is closed, replaced or cleared; assistive tools are told of a new sentence. Below
/// it may lie a standing sentence, which is seen while there is no other one.
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

    /// The sentence that lies below the others, until it is changed or closed; an empty `text`
    /// takes it away. The same one again changes nothing, also when it was closed.
    void setStanding(Kind kind, const QString &text, const QString &actionText = {},
                     std::function<void()> action = nullptr);

    /// The sentence, empty when none is shown.
    QString text() const;

private:
    struct Message
    {
        Kind kind = Kind::Information;
        QString text;
        QString actionText;
        std::function<void()> action;
    };

    void display(const Message &message);
    void displayStanding();
    void close();

    QLabel *mIcon;
    QLabel *mText;
    QToolButton *mAction;
    QToolButton *mClose;
    std::function<void()> mRun;
    Message mStanding;
    bool mShowsStanding = false;
    bool mStandingIsClosed = false;
};

} // namespace dialog
