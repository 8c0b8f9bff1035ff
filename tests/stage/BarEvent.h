#pragma once

#include <QGraphicsSceneMouseEvent>

/// What the scene would tell an anchor of a button, above the middle of the bar.
class BarEvent : public QGraphicsSceneMouseEvent
{
public:
    static constexpr auto press = QEvent::GraphicsSceneMousePress, move = QEvent::GraphicsSceneMouseMove,
                          letGo = QEvent::GraphicsSceneMouseRelease;

    BarEvent(QEvent::Type type, qreal sceneY, Qt::MouseButton button = Qt::LeftButton)
        : QGraphicsSceneMouseEvent(type)
    {
        setScenePos({400, sceneY});
        setButton(type == move ? Qt::NoButton : button);
        setButtons(type == letGo ? Qt::NoButton : button);
    }
};
