#include "logging/DatagramDevice.h"

#include <algorithm>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr qint64 mostOfADatagram = 65507; // bytes, of UDP over IPv4

} // namespace

DatagramDevice::DatagramDevice(quint16 receiver) : port(receiver) {}

DatagramDevice::~DatagramDevice()
{
    DatagramDevice::close();
}

bool DatagramDevice::open(OpenMode mode)
{
    if (socket < 0)
        socket = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    // A reader that stands still must not hold up who logs.
    return socket >= 0 && QIODevice::open(mode | Unbuffered);
}

void DatagramDevice::close()
{
    QIODevice::close();
    if (socket >= 0)
        ::close(socket);
    socket = -1;
}

qint64 DatagramDevice::readData(char*, qint64)
{
    return -1;
}

qint64 DatagramDevice::writeData(const char* data, qint64 size)
{
    const char* end = data + size;
    for (const char* lineEnd = std::find(data, end, '\n'); lineEnd != end;
         lineEnd = std::find(data, end, '\n')) {
        begunLine.append(data, static_cast<int>(lineEnd + 1 - data));
        send(begunLine.constData(), begunLine.size());
        begunLine.clear();
        data = lineEnd + 1;
    }
    begunLine.append(data, static_cast<int>(end - data));
    return size;
}

void DatagramDevice::send(const char* data, qint64 size) const
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    for (qint64 sent = 0; sent < size; sent += mostOfADatagram)
        ::sendto(socket, data + sent, static_cast<std::size_t>(std::min(mostOfADatagram, size - sent)),
                 MSG_DONTWAIT, reinterpret_cast<const sockaddr*>(&address), sizeof address);
}
