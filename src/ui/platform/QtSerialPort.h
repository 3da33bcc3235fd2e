#pragma once

#include "platform/SerialPort.h"

#include <QStringList>

#include <memory>

class QSerialPort;

namespace ostrel::ui {

// The serial ports through QSerialPort. Port n is the nth device of one sorted list, fixed when the
// first channel is made: the machine's serial devices and any device paths given (a test's
// pseudo-terminals), in natural order (/dev/ttyACM0, /dev/ttyS0, /dev/ttyS2, /dev/ttyS10, /dev/ttyUSB0).
// Ports are opened at 9600 baud, 8 data bits, no parity, one stop bit, no flow control.
class QtSerialPort : public SerialPort {
public:
    explicit QtSerialPort(const QStringList& extraDevices = {}, bool includeSystemDevices = true);
    ~QtSerialPort() override;
    QtSerialPort(const QtSerialPort&) = delete;
    QtSerialPort& operator=(const QtSerialPort&) = delete;

    // The machine's serial devices as the system lists them.
    static QStringList SystemDevices();
    // Sorts device paths so that the numbers in them count as numbers.
    static void SortDevices(QStringList& devices);
    // The devices by port number, port 1 first.
    const QStringList& devices() const { return *m_devices; }

    bool open(int number) override;
    void close() override;
    bool isOpen() const override;
    int port() const override { return m_number; }
    bool write(const QByteArray& data) override;
    int bytesWaiting() override;
    void clearInput() override;
    QByteArray readAll() override;
    int wait(int ms) override;
    std::unique_ptr<SerialPort> newChannel() override;

private:
    explicit QtSerialPort(std::shared_ptr<const QStringList> devices);
    void pullInput();

    std::shared_ptr<const QStringList> m_devices;
    std::unique_ptr<QSerialPort> m_port;
    int m_number = 0;
};

} // namespace ostrel::ui
