#include "RecordingPort.h"

namespace {

class RecordingApi : public MidiOutApi
{
public:
    RtMidi::Api getCurrentApi() override { return RtMidi::RTMIDI_DUMMY; }
    void openPort(unsigned int, const std::string&) override {}
    void openVirtualPort(const std::string&) override {}
    void closePort() override {}
    void setClientName(const std::string&) override {}
    void setPortName(const std::string&) override {}
    unsigned int getPortCount() override { return 0; }
    std::string getPortName(unsigned int) override { return {}; }
    void initialize(const std::string&) override {}
    void sendMessage(const unsigned char* message, size_t size) override
    {
        if (failing)
            throw RtMidiError("no room", RtMidiError::DRIVER_ERROR);
        sent.emplace_back(message, message + size);
    }

    std::vector<RecordingPort::Message> sent;
    bool failing = false;
};

RecordingApi& recorder(const MidiApi* api)
{
    return *const_cast<RecordingApi*>(static_cast<const RecordingApi*>(api));
}

} // namespace

// The library's JACK object is lazy: it is made without a server and thrown away at once.
RecordingPort::RecordingPort() : RtMidiOut(RtMidi::UNIX_JACK)
{
    delete rtapi_;
    rtapi_ = new RecordingApi;
}

const std::vector<RecordingPort::Message>& RecordingPort::messages() const
{
    return recorder(rtapi_).sent;
}

std::vector<RecordingPort::Message> RecordingPort::take()
{
    std::vector<Message> sent;
    sent.swap(recorder(rtapi_).sent);
    return sent;
}

QList<QList<int>> RecordingPort::takeLists()
{
    QList<QList<int>> lists;
    for (const Message& message : take()) {
        QList<int> list;
        for (const unsigned char byte : message)
            list.append(byte);
        lists.append(list);
    }
    return lists;
}

void RecordingPort::clear()
{
    recorder(rtapi_).sent.clear();
}

void RecordingPort::fail()
{
    recorder(rtapi_).failing = true;
}
