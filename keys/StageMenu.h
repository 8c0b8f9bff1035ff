#pragma once

#include <QMenu>

/// A menu over the stage, in its colours. The window's event filter swallows Enter and Escape before a menu
/// can see them; this one hears of them all the same.
class StageMenu : public QMenu
{
    Q_OBJECT

public:
    /// `window` is the main window.
    explicit StageMenu(QWidget* window);

private:
    void specialKeyPress(int key);
};
