#pragma once

#include <QList>
#include <QString>

#include <alsa/asoundlib.h>

/// A client of the ALSA sequencer with one port to play from and one to listen on.
class AlsaPlayer
{
public:
    using Message = QList<int>;
    struct Address
    {
        int client, port;
    };

    AlsaPlayer();
    ~AlsaPlayer();
    AlsaPlayer(const AlsaPlayer&) = delete;
    AlsaPlayer& operator=(const AlsaPlayer&) = delete;

    [[nodiscard]] bool isOpen() const { return sequencer != nullptr; }
    /// All ports of that name, the oldest client first.
    [[nodiscard]] QList<Address> portsNamed(const QString& name) const;
    /// Waits for the n-th port of that name and connects to it or from it.
    [[nodiscard]] bool connectOutputTo(const QString& name, int n = 0);
    [[nodiscard]] bool connectInputFrom(const QString& name, int n = 0);

    /// Three-byte channel messages only.
    void send(const Message& message);
    [[nodiscard]] Message read();
    /// Plays and returns what comes back before the echo of a control change sent behind it.
    [[nodiscard]] QList<Message> answerTo(const QList<Message>& messages);

private:
    snd_seq_t* sequencer = nullptr;
    snd_midi_event_t* coder = nullptr;
    int output = -1, input = -1;
    int echoNumber = 0;
};
