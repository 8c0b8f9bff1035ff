#pragma once

#include <QByteArray>
#include <QIODevice>

/// Sends each line that is written to it as one UDP datagram to the loopback address. A line that no datagram
/// holds goes in pieces. Whether anybody listens cannot be told. Any thread may write, one at a time: that is
/// why it is no QUdpSocket, which belongs to one thread.
class DatagramDevice : public QIODevice
{
public:
    explicit DatagramDevice(quint16 receiver);
    ~DatagramDevice() override;

    bool open(OpenMode mode) override;
    void close() override;
    [[nodiscard]] bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char* data, qint64 size) override;

private:
    void send(const char* data, qint64 size) const;

    quint16 port; // the receiver's
    int socket = -1;
    QByteArray begunLine;
};
