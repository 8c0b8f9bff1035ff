// The window on its screen: pictures that are neither blurred nor torn, whatever the device pixel ratio.

#include "app/MainWnd.h"

#include "headers/AnchorsGroup.h"
#include "keys/PowerItem.h"
#include "keys/pictures.h"

#include <QCursor>
#include <QGraphicsScene>
#include <QPainter>
#include <QScreen>
#include <QWindow>

// What is on the stage was made by now; what is made later asks its own screen.
void MainWnd::matchScreen()
{
    const qreal screen = devicePixelRatioF();
    const QList<QGraphicsView*> views = findChildren<QGraphicsView*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QGraphicsView* view : views)
        if (view->scene())
            pictures::smooth(*view->scene(), screen);
    const QPixmap logo = pictures::load(QStringLiteral(":/Resources/CenterScreen/Sorvane-Logo-CM.png"));
    ui.centerLogo->setPixmap(pictures::fitted(logo, screen));
    const QPixmap slide = pictures::load(QStringLiteral(":/Resources/Cursor/cursorHr.png"));
    const QList<QGraphicsItem*> anchors = powerItem->anchorsGroup->childItems();
    for (const QGraphicsItem* anchor : anchors) {
        const QList<QGraphicsItem*> parts = anchor->childItems();
        for (QGraphicsItem* part : parts)
            part->setCursor(pictures::cursor(slide, screen));
    }
}

// The style sheet has drawn the case, but never smooths it.
void MainWnd::paintEvent(QPaintEvent* event)
{
    QDialog::paintEvent(event);
    if (!pictures::needsSmoothing(devicePixelRatioF()))
        return;
    const QPixmap panel = pictures::load(QStringLiteral(":/Resources/Background/BG_off.png"));
    QPainter painter(this);
    pictures::smooth(painter);
    painter.drawPixmap(QPointF(0, height() - panel.height() / panel.devicePixelRatio()), panel);
}

void MainWnd::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    matchScreen();
    connect(windowHandle(), &QWindow::screenChanged, this, &MainWnd::matchScreen, Qt::UniqueConnection);
}
