// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Export.h"

#include <QStringList>
#include <QWidget>

#include <optional>
#include <vector>

class QRadioButton;

namespace platform {

/// One column of radio buttons of which at most one is on; its height is shared evenly by the rows.
///
/// Starts with row 0 on. The focus that its label's mnemonic gives it goes to the row that is on.
/// An interface description names the class and lists the titles in `rows`.
class PLATFORM_EXPORT RadioMatrix : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QStringList rows READ titles WRITE setRows)
public:
    explicit RadioMatrix(QWidget *parent = nullptr);

    /// Makes the rows anew, one for each title, and turns row 0 on.
    void setRows(const QStringList &titles);

    /// The titles as they were set.
    QStringList titles() const;

    /// The row that is on, or -1 when none is.
    int selectedRow() const;

    /// Turns row `row` on without `picked`; a row that does not exist changes nothing.
    void selectCellAtRow(int row);

    /// Turns every row off without `picked`.
    void deselectAllCells();

    /// Titles are data: an ampersand is shown as one. A row that does not exist changes nothing.
    void setTitle(int row, const QString &title);

Q_SIGNALS:
    /// The user, or an assistive tool, turned a row on, or picked the one that is on once more.
    void picked();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QRadioButton *buttonAt(int row) const;
    void addRow(const QString &title);
    void placeRows();

    std::vector<QRadioButton *> mRows;
    bool mOnWhenPressed = false;
};

} // namespace platform
