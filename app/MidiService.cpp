#include "app/MidiService.h"

#include "app/JackWatch.h"

#include <QCoreApplication>

#ifdef Q_OS_LINUX
#include <unistd.h>
#endif

const QString virtualInName = QStringLiteral("Sorvane MIDI In");
const QString virtualOutName = QStringLiteral("Sorvane MIDI Out");

namespace {

constexpr char inputClient[] = "RtMidi Input Client";
constexpr char outputClient[] = "RtMidi Output Client";
constexpr unsigned queueLimit = 100;

// Asked before the library is, which would print three lines of its own about it.
bool hasAlsaSequencer()
{
#ifdef Q_OS_LINUX
    return access("/dev/snd/seq", R_OK | W_OK) == 0;
#else
    return false;
#endif
}

bool isWanted(MidiService::Wanted wanted, RtMidi::Api api)
{
    switch (wanted) {
    case MidiService::Wanted::any:
        return api != RtMidi::RTMIDI_DUMMY;
    case MidiService::Wanted::alsa:
        return api == RtMidi::LINUX_ALSA;
    case MidiService::Wanted::jack:
        return api == RtMidi::UNIX_JACK;
    case MidiService::Wanted::none:
        break;
    }
    return false;
}

template <typename Port>
QStringList namesOf(Port& port)
{
    QStringList names;
    const unsigned count = port.getPortCount();
    for (unsigned i = 0; i < count; ++i)
        names.append(QString::fromStdString(port.getPortName(i)));
    return names;
}

} // namespace

MidiService::MidiService() = default;

MidiService::~MidiService() = default;

std::optional<MidiService::Wanted> MidiService::wantedFromName(const QString& name)
{
    if (name.isEmpty())
        return Wanted::any;
    if (name == QLatin1String("alsa"))
        return Wanted::alsa;
    if (name == QLatin1String("jack"))
        return Wanted::jack;
    return {};
}

void MidiService::choose(Wanted wanted)
{
    api = RtMidi::UNSPECIFIED;
    watch.reset();
    std::vector<RtMidi::Api> compiled;
    RtMidi::getCompiledApi(compiled);
    for (const RtMidi::Api candidate : compiled)
        if (isWanted(wanted, candidate) && tryBackEnd(candidate)) {
            api = candidate;
            return;
        }
    watch.reset();
}

bool MidiService::tryBackEnd(RtMidi::Api candidate)
{
    if (candidate == RtMidi::UNIX_JACK)
        return connectJack();
    if (candidate == RtMidi::LINUX_ALSA && !hasAlsaSequencer())
        return false;
    try {
        const RtMidiIn probe(candidate, inputClient, queueLimit);
    } catch (const RtMidiError&) {
        return false;
    }
    return true;
}

// The library's own JACK objects come up without a server and say nothing, so the watch has to tell.
bool MidiService::connectJack()
{
    watch = std::make_unique<JackWatch>();
    connect(watch.get(), &JackWatch::stopped, this, &MidiService::stopped);
    return watch->isAlive();
}

bool MidiService::isAvailable()
{
    if (!api)
        choose(Wanted::any);
    return *api != RtMidi::UNSPECIFIED;
}

QString MidiService::backEndName()
{
    if (!isAvailable())
        return QStringLiteral("none");
    return *api == RtMidi::UNIX_JACK ? QStringLiteral("JACK")
                                     : QString::fromStdString(RtMidi::getApiDisplayName(*api));
}

QString MidiService::missingText()
{
    return QCoreApplication::translate(
        "MidiService", "No MIDI service: Sorvane plays by mouse only. Load the ALSA sequencer (sudo modprobe "
                       "snd-seq), get the right to it (group audio), or start JACK or PipeWire (with "
                       "pw-jack), then start Sorvane again.");
}

void MidiService::requireService()
{
    if (!isAvailable())
        throw RtMidiError(missingText().toStdString(), RtMidiError::NO_DEVICES_FOUND);
    // A server that went and came back is met again by the next port that the user selects.
    if (*api == RtMidi::UNIX_JACK && !watch->isAlive() && !connectJack())
        throw RtMidiError(missingText().toStdString(), RtMidiError::DRIVER_ERROR);
}

std::unique_ptr<RtMidiIn> MidiService::makeInput()
{
    requireService();
    return std::make_unique<RtMidiIn>(*api, inputClient, queueLimit);
}

std::unique_ptr<RtMidiOut> MidiService::makeOutput()
{
    requireService();
    return std::make_unique<RtMidiOut>(*api, outputClient);
}

QStringList MidiService::inputNames()
{
    try {
        return namesOf(*makeInput());
    } catch (const RtMidiError& error) {
        error.printMessage();
        return {};
    }
}

QStringList MidiService::outputNames()
{
    try {
        return namesOf(*makeOutput());
    } catch (const RtMidiError& error) {
        error.printMessage();
        return {};
    }
}

bool MidiService::mayWrite()
{
    return !watch || watch->mayWrite();
}

MidiService& midiService()
{
    static std::unique_ptr<MidiService> service;
    if (!service) {
        service = std::make_unique<MidiService>();
        qAddPostRoutine([] { service.reset(); });
    }
    return *service;
}
