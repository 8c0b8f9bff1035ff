// The road of a MIDI message: from the port's thread to the key, and out to every open port.

#include "app/MainWnd.h"

#include "app/MidiService.h"
#include "keys/PowerItem.h"
#include "keys/key_roles.h"
#include "keys/midi_status.h"
#include "logging/categories.h"

#include <QScopedValueRollback>

namespace {

constexpr int messageSize = 3;

bool isNoteMessage(int status)
{
    return (status & 0xE0) == midi_status::noteOff;
}

bool isNoteOff(int status)
{
    return (status & 0xF0) == midi_status::noteOff;
}

/// Note-on and note-off of the first channel: what the keys answer to.
bool isPlayed(int status)
{
    return status == midi_status::noteOn || status == midi_status::noteOff;
}

} // namespace

void MainWnd::inSigReceived(double, std::vector<unsigned char>* message, void*)
{
    QList<int> list;
    list.reserve(static_cast<int>(message->size()));
    for (const unsigned char byte : *message)
        list.append(byte);
    emit signalKey(list);
}

ResizableItem* MainWnd::findInNote(int note) const
{
    for (QGraphicsItem* item : listItemsIN)
        if (key_roles::pitch(item) == note)
            return dynamic_cast<ResizableItem*>(item);
    return nullptr;
}

void MainWnd::pushKeySlot(QList<int> message) // NOLINT(performance-unnecessary-value-param): a queued slot
{
    if (message.size() != messageSize)
        return;
    const int status = message.at(0), note = message.at(1), velocity = message.at(2);
    if (!isNoteMessage(status) || note < pitch_mapping::lowestPitch || note >= inNoteHeld.size())
        return;
    ResizableItem* key = findInNote(note);
    if (!key)
        return;
    // Kept: only the first channel presses a key, any channel releases it.
    if (inNoteHeld.at(note) == 0 && velocity != 0 && status == midi_status::noteOn) {
        inNoteHeld[note] = 1; // before the press: it may run the event loop
        pressInKey(key, velocity);
    } else if (inNoteHeld.at(note) == 1 && (velocity == 0 || isNoteOff(status))) {
        key_roles::setVelocity(key, 0);
        key->releaseKey();
        inNoteHeld[note] = 0;
    }
}

void MainWnd::releaseHeldNotes()
{
    for (int note = 0; note < inNoteHeld.size(); ++note)
        if (inNoteHeld.at(note) != 0)
            pushKeySlot({midi_status::noteOff, note, 0});
}

void MainWnd::pressInKey(ResizableItem* key, int velocity)
{
    const bool powerKey = key_roles::isBlack(key) && key_roles::pitch(key) == key_roles::pitch(powerItem);
    if (powerKey && !isLearning()) {
        switchPower();
        return;
    }
    key_roles::setVelocity(key, velocity);
    key->pushKey();
    key_roles::setVelocity(key, 0);
}

void MainWnd::midiThru(QList<int> message) // NOLINT(performance-unnecessary-value-param): a queued slot
{
    if (isLearning() || message.size() != messageSize || isPlayed(message.at(0)))
        return;
    sendMidiOut(&message);
}

// One event a message: were its two halves events of their own, a recall between them would tear it apart.
void MainWnd::receiveMessage(QList<int> message) // NOLINT(performance-unnecessary-value-param): a queued slot
{
    waitingMessages.append(message);
    playWaiting();
}

// A dialog that comes up during a recall must not hold the music.
bool MainWnd::mustWait() const
{
    return holdMessages && !dialogOpen;
}

void MainWnd::playWaiting()
{
    while (!waitingMessages.isEmpty() && !mustWait()) {
        const QList<int> message = waitingMessages.takeFirst();
        // Mapped notes of a message leave before its forwarded copy would.
        pushKeySlot(message);
        midiThru(message);
    }
}

// The event loop must run here, and messages are events. Played from in here they would find the old mapping,
// and a flood of black keys would nest without end. What the player's hand does waits in the system's queue.
void MainWnd::showBeforeRecall()
{
    if (holdMessages)
        return;
    {
        const QScopedValueRollback<bool> hold(holdMessages, true);
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    // For a key pressed by the pointer; one pressed by MIDI runs inside playWaiting(), which goes on.
    if (!waitingMessages.isEmpty())
        QMetaObject::invokeMethod(this, &MainWnd::playWaiting, Qt::QueuedConnection);
}

void MainWnd::sendMidiOut(const QList<int>* message)
{
    if (isLearning() || !midiService().mayWrite())
        return;
    const std::vector<unsigned char> bytes{static_cast<unsigned char>(message->at(0)),
                                           static_cast<unsigned char>(message->at(1)),
                                           static_cast<unsigned char>(message->at(2))};
    for (RtMidiOut* port : qAsConst(outPorts)) {
        if (!port)
            continue;
        try {
            port->sendMessage(&bytes);
        } catch (const RtMidiError& error) { // the other ports get theirs, and the key's state stays whole
            qCWarning(lcApp, "MIDI error: %s", error.what());
        }
    }
}

bool MainWnd::checkActiveMidiOut() const
{
    for (const RtMidiOut* port : outPorts)
        if (port)
            return true;
    return false;
}
