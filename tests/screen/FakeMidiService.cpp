// A MidiService of the tests' own. A program that links this file leaves the real one in its library, so
// ports with any name, order and fault can be had without a driver.

#include "FakeMidiService.h"

#include "app/JackWatch.h"
#include "app/MidiService.h"

const QString virtualInName = QStringLiteral("Sorvane MIDI In");
const QString virtualOutName = QStringLiteral("Sorvane MIDI Out");

Rig rig;

namespace {

void openNamed(const QString& name, const QString& how)
{
    if (name == rig.failing)
        throw RtMidiError("it is busy", RtMidiError::DRIVER_ERROR);
    rig.log << how;
}

template <typename Api>
class FakeApi : public Api
{
public:
    template <typename... Arguments>
    explicit FakeApi(const char* direction, Arguments... arguments) : Api(arguments...), side(direction)
    {
    }
    RtMidi::Api getCurrentApi() override { return RtMidi::RTMIDI_DUMMY; }
    void openPort(unsigned int index, const std::string& portName) override
    {
        name = rig.names.value(static_cast<int>(index));
        openNamed(name, QStringLiteral("%1 open %2 %3 as %4")
                            .arg(side, QString::number(index), name, QString::fromStdString(portName)));
        opened();
    }
    void openVirtualPort(const std::string& portName) override
    {
        name = QString::fromStdString(portName);
        openNamed(name, QStringLiteral("%1 virtual %2").arg(side, name));
        opened();
    }
    void closePort() override { rig.log << QStringLiteral("%1 close %2").arg(side, name); }
    void setClientName(const std::string&) override {}
    void setPortName(const std::string&) override {}
    unsigned int getPortCount() override { return static_cast<unsigned>(rig.names.size()); }
    std::string getPortName(unsigned int index) override
    {
        return rig.names.value(static_cast<int>(index)).toStdString();
    }

protected:
    void initialize(const std::string&) override {}
    virtual void opened() {}

    const QString side;
    QString name;
};

class FakeInApi : public FakeApi<MidiInApi>
{
public:
    FakeInApi() : FakeApi<MidiInApi>("in", 100U) {}
    ~FakeInApi() override { rig.plays.remove(name); }
    void ignoreTypes(bool sysex, bool time, bool sense) override
    {
        rig.log << QStringLiteral("in ignores %1%2%3").arg(sysex).arg(time).arg(sense);
    }

protected:
    void opened() override
    {
        rig.plays.insert(name, [this](std::vector<unsigned char> message) {
            if (inputData_.usingCallback)
                inputData_.userCallback(0, &message, inputData_.userData);
        });
    }
};

class FakeOutApi : public FakeApi<MidiOutApi>
{
public:
    FakeOutApi() : FakeApi<MidiOutApi>("out") {}
    void sendMessage(const unsigned char* message, size_t) override
    {
        rig.log << QStringLiteral("%1 hears %2").arg(name).arg(message[1]);
    }
};

template <typename Port, typename Api>
class FakePort : public Port
{
public:
    FakePort() : Port(RtMidi::UNIX_JACK) // lazy: it needs no server
    {
        delete this->rtapi_;
        this->rtapi_ = new Api;
    }
};

} // namespace

MidiService::MidiService() = default;
MidiService::~MidiService() = default;
void MidiService::choose(Wanted) {}
std::optional<MidiService::Wanted> MidiService::wantedFromName(const QString&)
{
    return Wanted::any;
}

QString MidiService::backEndName()
{
    return QStringLiteral("made up");
}

QString MidiService::missingText()
{
    return {};
}

bool MidiService::isAvailable()
{
    return true;
}
bool MidiService::mayWrite()
{
    return true;
}
QStringList MidiService::inputNames()
{
    return rig.names;
}
QStringList MidiService::outputNames()
{
    return rig.names;
}
std::unique_ptr<RtMidiIn> MidiService::makeInput()
{
    if (rig.failing == QLatin1String("*"))
        throw RtMidiError("no server", RtMidiError::DRIVER_ERROR);
    return std::make_unique<FakePort<RtMidiIn, FakeInApi>>();
}
std::unique_ptr<RtMidiOut> MidiService::makeOutput()
{
    if (rig.failing == QLatin1String("*"))
        throw RtMidiError("no server", RtMidiError::DRIVER_ERROR);
    return std::make_unique<FakePort<RtMidiOut, FakeOutApi>>();
}
MidiService& midiService()
{
    static MidiService service;
    return service;
}
