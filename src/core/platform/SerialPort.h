#pragma once

#include <QByteArray>

#include <memory>

namespace ostrel {

// One channel to the machine's serial ports, numbered 1 up in a stable order, as the modem code
// needs it: open a port by number, send, count and read what came back. Failures are quiet (a
// port that cannot be opened just stays closed), since every caller ignores them.
class SerialPort {
public:
    virtual ~SerialPort() = default;

    // Opens port `number` (closing any port this channel holds). False when there is no such port
    // or it cannot be opened, for instance because another program holds it.
    virtual bool open(int number) = 0;
    virtual void close() = 0;
    virtual bool isOpen() const = 0;
    // The port last opened, or 0.
    virtual int port() const = 0;

    // False when the port is closed or the write failed.
    virtual bool write(const QByteArray& data) = 0;
    // Bytes received and not read yet.
    virtual int bytesWaiting() = 0;
    // Drops what was received and not read.
    virtual void clearInput() = 0;
    virtual QByteArray readAll() = 0;

    // Lets the program's waiting events run for up to `ms` milliseconds, returning sooner when this
    // channel has input waiting. Every channel receives while any one waits. Returns the time spent.
    virtual int wait(int ms) = 0;

    // Another, independent channel to the same ports.
    virtual std::unique_ptr<SerialPort> newChannel() = 0;
};

} // namespace ostrel
