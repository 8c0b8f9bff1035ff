#pragma once

#include "app/KeyRepeats.h"

#include <QApplication>

/// The application object. An error that a port raises where nobody waits for one ends that event, not the
/// program. On a dense screen the pointer means what is seen under it, to the pixel. A key that is held is
/// told from one that is pressed over and over.
class Application : public QApplication
{
    Q_OBJECT

public:
    using QApplication::QApplication;
    /// To be called before the application object is made: the window has the density of its screen, whole or
    /// not.
    static void followScreens();
    bool notify(QObject* receiver, QEvent* event) override;

    /// The logical pixel that a screen of that ratio shows in its pixel at a logical place. Where two share
    /// it half and half, the left or the upper one is painted there.
    [[nodiscard]] static QPoint shownAt(QPointF place, qreal ratio);

private:
    bool deliver(QObject* receiver, QEvent* event);
    bool deliverMouse(QWindow& window, QMouseEvent& event);

    KeyRepeats repeats{
        [this](QObject* receiver, QEvent* event) { return QApplication::notify(receiver, event); }};
};
