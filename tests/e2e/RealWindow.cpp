#include "RealWindow.h"

#include "XServer.h"
#include "app/Application.h"
#include "app/MidiService.h"
#include "library/SettingsStore.h"

#include <QScreen>
#include <QtTest>

QSize RealWindow::screenSize()
{
    const double ratio = qMax(1.0, qEnvironmentVariable("QT_SCALE_FACTOR").toDouble());
    return (QSizeF(952, 480) * ratio).toSize();
}

bool RealWindow::prepare(XServer& server)
{
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    qputenv("QT_FONT_DPI", "96");
    Application::followScreens();
    return server.start();
}

bool RealWindow::open()
{
    midiService().choose(MidiService::Wanted::none);
    // Rows that are selected at the start take the focus a moment later.
    SettingsStore::setMidiInPortSelected(virtualInName, false);
    SettingsStore::setMidiOutPortSelected(virtualOutName, false);
    window = std::make_unique<MainWnd>();
    window->setPower(false); // as the program begins
    window->move(0, 0);
    window->show();
    ownHand = std::make_unique<LiveHand>();
    if (!QTest::qWaitForWindowExposed(window.get()))
        return false;
    window->activateWindow(); // no window manager does
    return QTest::qWaitForWindowActive(window.get()) && ownHand->rest();
}

void RealWindow::close()
{
    ownHand.reset();
    window.reset();
}

// The repaint reaches the server on the connection that asks for the picture.
QImage RealWindow::picture() const
{
    window->repaint();
    return window->screen()->grabWindow(0).toImage();
}
