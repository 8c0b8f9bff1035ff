#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWindow>

#include <functional>
#include <memory>

/// Tells a key that is held from one that is pressed over and over. An X server says the same of both, but
/// for the time stamp: a repeat is a release and a press at one instant. Qt compares them only where the
/// press has arrived before the release is looked at, which is seldom.
class KeyRepeats : public QObject
{
    Q_OBJECT

public:
    using Send = std::function<bool(QObject* receiver, QEvent* event)>;

    /// `hand` takes an event on its way to the receiver.
    explicit KeyRepeats(Send hand);
    /// For each press and release that comes to a window from its system. A release waits some milliseconds
    /// for the press that takes it back; the two then go on as one press that is a repeat.
    bool deliver(QWindow& window, QKeyEvent& event);

private:
    [[nodiscard]] bool isTakenBackBy(const QKeyEvent& event) const;
    void letGo();

    Send send;
    std::unique_ptr<QKeyEvent> release; ///< waits
    QPointer<QWindow> receiver;
    QTimer patience;
};
