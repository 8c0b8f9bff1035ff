#include "app/KeyRepeats.h"

#include <utility>

namespace {

// The server sends both at once; a busy machine reads them one after the other.
constexpr int patienceMs = 10;

class RepeatedPress : public QKeyEvent
{
public:
    explicit RepeatedPress(const QKeyEvent& event) : QKeyEvent(event) { autor = true; }
};

} // namespace

KeyRepeats::KeyRepeats(Send hand) : send(std::move(hand))
{
    patience.setSingleShot(true);
    patience.setInterval(patienceMs);
    patience.setTimerType(Qt::PreciseTimer);
    connect(&patience, &QTimer::timeout, this, &KeyRepeats::letGo);
}

bool KeyRepeats::deliver(QWindow& window, QKeyEvent& event)
{
    if (isTakenBackBy(event)) {
        release.reset();
        patience.stop();
        RepeatedPress repeat(event);
        const bool delivered = send(&window, &repeat);
        event.setAccepted(repeat.isAccepted());
        return delivered;
    }
    letGo();
    if (event.type() != QEvent::KeyRelease || event.isAutoRepeat())
        return send(&window, &event);
    release = std::make_unique<QKeyEvent>(event);
    receiver = &window;
    patience.start();
    return true;
}

bool KeyRepeats::isTakenBackBy(const QKeyEvent& event) const
{
    return release && event.type() == QEvent::KeyPress && event.timestamp() == release->timestamp() &&
           event.key() == release->key() && event.nativeScanCode() == release->nativeScanCode();
}

void KeyRepeats::letGo()
{
    patience.stop();
    const std::unique_ptr<QKeyEvent> waiting = std::move(release);
    if (waiting && receiver)
        send(receiver, waiting.get());
}
