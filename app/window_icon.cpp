#include "app/window_icon.h"

#include <QGuiApplication>
#include <QIcon>
#include <QWindow>

void nameDesktopEntry()
{
    QGuiApplication::setDesktopFileName(QStringLiteral("sorvane"));
}

// Not the icon of all windows: on X11 each tool tip and menu would send the pictures anew while notes are
// played.
void giveIcon(QWindow& window)
{
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512})
        icon.addFile(QStringLiteral(":/Resources/Icons/sorvane-%1.png").arg(size), QSize(size, size));
    window.setIcon(icon);
}
