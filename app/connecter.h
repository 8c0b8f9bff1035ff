#pragma once

#include <QObject>

#include <vector>

class MainWnd;

/// The door through which the MIDI library's threads enter. Static use only.
class connecter : public QObject
{
    Q_OBJECT

public:
    /// Called once, before any port can open; read by the MIDI threads afterwards.
    static void setPtr(MainWnd* dialog);
    /// The callback of every input port. Runs on a thread of the MIDI library.
    static void mycallback(double deltaTime, std::vector<unsigned char>* message, void* userData);

    static MainWnd* m_dialogPtr;

signals:
    void signalKey(); ///< never emitted
};

/// Takes no part in the flow.
class CBConnecter
{
public:
    CBConnecter() = default;
};
