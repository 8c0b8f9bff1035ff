#pragma once

#include <QObject>
#include <QStringList>

#include <RtMidi.h>

#include <memory>
#include <optional>

class JackWatch;

/// The names of the program's own ports, as rows of the lists and as others see them.
extern const QString virtualInName;
extern const QString virtualOutName;

/// The one choice of a MIDI back end, and the maker of every port object. Main thread only.
///
/// The compiled-in back ends are tried in their order, once, at the first use; the first that can be had is
/// kept.
class MidiService : public QObject
{
    Q_OBJECT

public:
    enum class Wanted { any, alsa, jack, none };

    MidiService();
    ~MidiService() override;

    /// "alsa", "jack", or "" for any; nothing for another name.
    [[nodiscard]] static std::optional<Wanted> wantedFromName(const QString& name);

    /// Makes the choice anew. No port may be open.
    void choose(Wanted wanted);
    [[nodiscard]] bool isAvailable();
    /// "ALSA" or "JACK"; "none" without a service.
    [[nodiscard]] QString backEndName();
    /// One line for the user: what is missing and how to get it.
    [[nodiscard]] static QString missingText();

    /// Throw RtMidiError where the service cannot be had (any more).
    [[nodiscard]] std::unique_ptr<RtMidiIn> makeInput();
    [[nodiscard]] std::unique_ptr<RtMidiOut> makeOutput();

    /// The system's ports, by index. Empty, after the library's own message, if they cannot be listed.
    [[nodiscard]] QStringList inputNames();
    [[nodiscard]] QStringList outputNames();

    /// False while nobody takes messages away: the library would then wait for ever on a full buffer.
    /// Call it once a message.
    [[nodiscard]] bool mayWrite();

signals:
    /// The service has gone while it was in use.
    void stopped();

private:
    [[nodiscard]] bool tryBackEnd(RtMidi::Api candidate);
    [[nodiscard]] bool connectJack();
    void requireService();

    std::optional<RtMidi::Api> api; ///< UNSPECIFIED: none can be had
    std::unique_ptr<JackWatch> watch;
};

/// The service of this process, made at the first call and freed with the application object.
[[nodiscard]] MidiService& midiService();
