#include "app/Application.h"

#include "logging/categories.h"

#include <RtMidi.h>

bool Application::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const RtMidiError& error) {
        qCWarning(lcApp, "MIDI error: %s", error.what());
        return true;
    }
}
