#include "app/Application.h"

#include "logging/categories.h"

#include <QMouseEvent>
#include <QWindow>
#include <QtMath>

#include <RtMidi.h>

namespace {

int shownAlong(qreal place, qreal ratio)
{
    constexpr qreal hair = 1e-6; // of what is lost where a ratio is no sum of halves
    return qCeil(place + 0.5 / ratio - hair) - 1;
}

/// A mouse event of a window at the logical pixel that is seen under the pointer.
class SeenMouseEvent : public QMouseEvent
{
public:
    SeenMouseEvent(const QMouseEvent& event, const QWindow& window) : QMouseEvent(event)
    {
        const QPoint seen = Application::shownAt(event.localPos(), window.devicePixelRatio());
        l = w = seen;
        s = window.mapToGlobal(seen);
    }
};

bool isMouse(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
           type == QEvent::MouseButtonDblClick || type == QEvent::MouseMove;
}

} // namespace

void Application::followScreens()
{
    setAttribute(Qt::AA_EnableHighDpiScaling);
    setAttribute(Qt::AA_UseHighDpiPixmaps);
    setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

QPoint Application::shownAt(QPointF place, qreal ratio)
{
    return {shownAlong(place.x(), ratio), shownAlong(place.y(), ratio)};
}

// What comes from the screen and the keyboard comes to a window first.
bool Application::deliver(QObject* receiver, QEvent* event)
{
    if (!receiver->isWindowType())
        return QApplication::notify(receiver, event);
    auto& window = *static_cast<QWindow*>(receiver);
    if (isMouse(event->type()))
        return deliverMouse(window, *static_cast<QMouseEvent*>(event));
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease)
        return repeats.deliver(window, *static_cast<QKeyEvent*>(event));
    return QApplication::notify(receiver, event);
}

// Qt would round the place on its way to a widget: half of an edge's pixels would belong to the neighbour.
bool Application::deliverMouse(QWindow& window, QMouseEvent& event)
{
    SeenMouseEvent seen(event, window);
    const bool delivered = QApplication::notify(&window, &seen);
    event.setAccepted(seen.isAccepted());
    return delivered;
}

bool Application::notify(QObject* receiver, QEvent* event)
{
    try {
        return deliver(receiver, event);
    } catch (const RtMidiError& error) {
        qCWarning(lcApp, "MIDI error: %s", error.what());
        return true;
    }
}
