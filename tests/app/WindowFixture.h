#pragma once

#include "app/MainWnd.h"
#include "app/MidiService.h"

#include <QtTest>

#include <memory>

/// A fresh window as a start without a MIDI service leaves it: nothing of it is opened for the test.
class WindowFixture : public QObject
{
protected:
    void openWindow()
    {
        midiService().choose(MidiService::Wanted::none);
        window = std::make_unique<MainWnd>();
    }

    std::unique_ptr<MainWnd> window;
};
