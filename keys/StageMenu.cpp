#include "keys/StageMenu.h"

#include "app/MainWnd.h"

#include <QFile>

namespace {

QString menuStyle()
{
    QFile file(QStringLiteral(":/Resources/Headers/menu.qss"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

StageMenu::StageMenu(QWidget* window) : QMenu(window)
{
    setStyleSheet(menuStyle());
    connect(mainWnd, &MainWnd::specialKeyPressed, this, &StageMenu::specialKeyPress);
}

// The main Return key reaches the menu by itself.
void StageMenu::specialKeyPress(int key)
{
    if (!isVisible() || key == Qt::Key_Return)
        return;
    QAction* chosen = key == Qt::Key_Enter ? activeAction() : nullptr;
    close();
    if (chosen && chosen->isEnabled())
        chosen->trigger();
}
