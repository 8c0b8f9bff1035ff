#include "screen/LibraryButton.h"

#include "app/MainWnd.h"
#include "keys/pictures.h"
#include "library/shown_text.h"
#include "screen/CenterScreen.h"
#include "screen/library_name.h"

#include <QGraphicsSceneMouseEvent>
#include <QPainter>

namespace {

constexpr qreal ghostOpacity = 0.35;
constexpr int longest = 40; // characters of a plate; the widest shows some twenty
const QColor ink(0x57, 0x54, 0x50);

// At the size of the lists the widest short name would leave no air on its plate.
QFont plateFont()
{
    QFont font = library_name::libraryFont();
    font.setPixelSize(9);
    return font;
}

/// Narrowed as far as it can still be read, where the words are wider than the room.
QFont narrowed(QFont font, const QString& words, int room)
{
    constexpr int narrowest = 75; // percent
    const int width = QFontMetrics(font).horizontalAdvance(words);
    if (width > room)
        font.setStretch(qMax(narrowest, 100 * room / width));
    return font;
}

} // namespace

LibraryButton::LibraryButton(Code buttonCode, QPoint place, const QPixmap& neutral, const QPixmap& active,
                             QGraphicsItem* parent)
    : QGraphicsPixmapItem(neutral, parent), code(buttonCode), neutralPix(neutral), activePix(active),
      ghostPix(pictures::faded(neutral, ghostOpacity))
{
    setPos(place);
    setShapeMode(BoundingRectShape);
}

void LibraryButton::setEnabled(bool enabled)
{
    if (isEnabled() == enabled)
        return;
    QGraphicsPixmapItem::setEnabled(enabled);
    setPlain();
}

void LibraryButton::setPlain()
{
    pressed = false;
    setPixmap(isEnabled() ? neutralPix : ghostPix);
}

void LibraryButton::showPressed(bool down)
{
    if (pressed == down)
        return;
    pressed = down;
    setPixmap(down ? activePix : neutralPix);
}

void LibraryButton::setText(const QString& words)
{
    const QString line = shownText(words, longest);
    if (plateText == line)
        return;
    plateText = line;
    update();
}

void LibraryButton::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget)
{
    QGraphicsPixmapItem::paint(painter, option, widget);
    if (plateText.isEmpty())
        return;
    constexpr int rim = 3, shadow = 1; // of a plate's picture
    const int room = qRound(boundingRect().width()) - 2 * rim;
    const QFont font = narrowed(plateFont(), plateText, room);
    painter->setFont(font);
    painter->setPen(ink);
    painter->drawText(boundingRect().adjusted(0, 0, 0, -shadow), Qt::AlignCenter,
                      QFontMetrics(font).elidedText(plateText, Qt::ElideRight, room));
}

void LibraryButton::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || mainWnd->dialogOpen) {
        event->ignore();
        return;
    }
    showPressed(true);
    event->accept();
}

void LibraryButton::mouseMoveEvent(QGraphicsSceneMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton) && !mainWnd->dialogOpen)
        showPressed(contains(event->pos()));
}

void LibraryButton::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const bool acts = pressed && contains(event->pos()) && !mainWnd->dialogOpen;
    setPlain();
    if (acts)
        mainWnd->centerScreen->carryOut(code);
}

bool LibraryButton::sceneEvent(QEvent* event)
{
    if (event->type() == QEvent::UngrabMouse && pressed)
        setPlain(); // no release will come
    return QGraphicsPixmapItem::sceneEvent(event);
}
