#pragma once

#include <QListWidget>

/// A list of ports, of which any number can be selected. A click or Return toggles the current row; the arrow
/// keys move up, down and to the other list; Escape gives the keyboard back.
class PortListWidget : public QListWidget
{
    Q_OBJECT

public:
    explicit PortListWidget(QWidget* parent);

    /// Appends a row. Its text is elided where it is longer than the list, and is its tool tip.
    QListWidgetItem* addRow(const QString& name);
    /// Empty: typing never moves the current row.
    void keyboardSearch(const QString&) override {}

    PortListWidget* neighbour = nullptr; ///< the list of the other direction

public slots:
    void specialKeyPress(int key);

signals:
    /// Escape was pressed.
    void left();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
};
