#include "app/FocusRing.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>

namespace {

// The light of what the player does, between dark lines: one of them stands out from any ground.
const QColor light(0xa6, 0xdb, 0xff), rim(0x24, 0x23, 0x21);

} // namespace

FocusRing::FocusRing(QWidget* window) : QWidget(window)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void FocusRing::wake()
{
    if (awake)
        return;
    awake = true;
    QCoreApplication::instance()->installEventFilter(this);
}

void FocusRing::sleep()
{
    awake = false;
    QCoreApplication::instance()->removeEventFilter(this);
    hide();
    emit slept();
}

void FocusRing::enclose(const QRect& place)
{
    const QRect outer = place.adjusted(-thickness, -thickness, thickness, thickness) & parentWidget()->rect();
    if (!awake || place.isEmpty() || outer.isEmpty()) {
        hide();
        return;
    }
    setGeometry(outer);
    raise(); // a dialog may have come up since
    show();
}

bool FocusRing::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress && event->spontaneous()) // not one of the program's own
        sleep();
    else if (event->type() == QEvent::UpdateRequest && object == parent())
        emit windowChanges();
    else if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress)
        emit keyComes(static_cast<QKeyEvent*>(event)->key());
    return false;
}

// Whole logical pixels: sharp at every whole ratio of the screen.
void FocusRing::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const auto frame = [&](int inset, int width, const QColor& colour) {
        const QRect outer = rect().adjusted(inset, inset, -inset, -inset);
        painter.setClipRegion(QRegion(outer) - outer.adjusted(width, width, -width, -width));
        painter.fillRect(outer, colour);
    };
    frame(0, thickness, rim);
    frame(1, thickness - 2, light);
}
