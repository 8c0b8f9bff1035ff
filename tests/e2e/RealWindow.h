#pragma once

#include "LiveHand.h"
#include "app/MainWnd.h"

#include <QImage>

#include <memory>

class XServer;

/// The program's window in the test's own process, on a real X server's screen: its state can be read.
/// Without a MIDI service.
class RealWindow
{
public:
    /// The window's size in the pixels of the screen.
    [[nodiscard]] static QSize screenSize();
    /// Before the application object: starts the server and points Qt to it, as the program itself sets Qt
    /// up.
    [[nodiscard]] static bool prepare(XServer& server);

    /// A fresh window at the screen's origin, with the keyboard's focus; waits for it.
    [[nodiscard]] bool open();
    void close();

    MainWnd* operator->() const { return window.get(); }
    MainWnd& operator*() const { return *window; }
    LiveHand& hand() const { return *ownHand; }

    /// What the screen shows now.
    [[nodiscard]] QImage picture() const;

private:
    std::unique_ptr<MainWnd> window;
    std::unique_ptr<LiveHand> ownHand;
};
