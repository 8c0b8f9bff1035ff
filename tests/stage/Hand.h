#pragma once

#include <QEvent>
#include <QPointF>
#include <Qt>

class QGraphicsView;
class ResizableItem;

/// A hand with one pointer on a view. It knows which buttons it holds and tells each event as a window system
/// would. All places are scene points; those outside the view are allowed.
class Hand
{
public:
    explicit Hand(QGraphicsView* onView) : view(onView) {}

    void press(QPointF place, Qt::MouseButton button = Qt::LeftButton);
    /// The second press of a double click.
    void pressAgain(QPointF place, Qt::MouseButton button = Qt::LeftButton);
    void move(QPointF place);
    /// Lets a button go where the hand is.
    void release(Qt::MouseButton button = Qt::LeftButton);
    void click(QPointF place, Qt::MouseButton button = Qt::LeftButton);
    /// Presses at `from`, moves to `to` by at most `step` scene pixels a move, and holds on.
    void drag(QPointF from, QPointF to, qreal step = 5);
    /// Moves from where the hand is.
    void glideTo(QPointF to, qreal step = 5);
    /// Asks for a context menu; the buttons stay as they are.
    void askForMenuAt(QPointF place) const;

    [[nodiscard]] QPointF place() const { return where; }
    [[nodiscard]] Qt::MouseButtons held() const { return buttons; }

private:
    void send(QEvent::Type type, Qt::MouseButton button) const;

    QGraphicsView* view;
    QPointF where;
    Qt::MouseButtons buttons;
};

/// The middle of the part of a key that nothing lies on: below black keys, the power button and the presets,
/// or below the button on a black key.
[[nodiscard]] QPointF onKey(const ResizableItem* key);
