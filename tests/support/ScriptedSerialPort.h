#pragma once

#include "platform/SerialPort.h"

#include <QByteArray>
#include <QList>

#include <functional>
#include <map>
#include <memory>

namespace ostrel::test {

// What sits on one port of a scripted machine.
struct ScriptedDevice {
    enum class Kind {
        Modem,       // answers every command ending in a carriage return
        EchoOneByte, // sends back the first byte of each command and nothing else
        Silent,      // takes commands and never answers
        InUse,       // held by another program: it will not open
    };
    Kind kind = Kind::Modem;
    int replyDelayMs = 20;               // how long a modem takes to answer a command
    int dialDelayMs = 3000;              // how long it takes to answer a dial
    bool answersDial = true;             // false: a dial gets no answer at all
    QByteArray dialReply = "\r\nOK\r\n"; // the answer to a dial ("\r\nNO DIALTONE\r\n" ...)

    static ScriptedDevice modem() { return {}; }
    static ScriptedDevice of(Kind kind) {
        ScriptedDevice d;
        d.kind = kind;
        return d;
    }
};

// A machine's serial ports for tests, on a clock of its own that moves only while some channel
// waits, so a test of a thirty-second wait runs at once.
//
//   ScriptedSerialMachine machine;
//   machine.attach(16, ScriptedDevice::modem());
//   ScriptedSerialPort port(machine);
//   EXPECT_EQ(ProbeModem(port), 16);
//   EXPECT_EQ(machine.received(16), QList<QByteArray>({"AT\r"}));
class ScriptedSerialMachine {
public:
    void attach(int port, ScriptedDevice device) { m_ports[port].device = device; }
    void detach(int port) { m_ports.erase(port); }

    // Commands each port received, each with its carriage return, in order.
    QList<QByteArray> received(int port) const;
    bool isOpen(int port) const;
    int opens(int port) const;

    // The machine's clock, in milliseconds, and the waits that moved it.
    int now() const { return m_now; }
    const QList<int>& waits() const { return m_waits; }

    // Time passes until every answer on its way has arrived, without moving the clock: what a
    // person's pause between two events amounts to.
    void settle();

    // Runs at the start of every wait, as the user's events would: a test can press a button here.
    std::function<void(int now)> duringWait;

    // Used by the channels.
    struct Line {
        ScriptedDevice device;
        void* holder = nullptr; // the channel that holds it open
        QByteArray input;       // arrived, not yet read
        QByteArray partial;     // command being typed
        QList<QByteArray> received;
        std::multimap<int, QByteArray> pending; // answers on their way, by arrival time
        int opens = 0;
    };
    Line* line(int port);
    void deliverDue();
    int wait(int ms, Line* watched);
    void take(Line& line, const QByteArray& data);

private:
    std::map<int, Line> m_ports;
    int m_now = 0;
    QList<int> m_waits;
};

// One channel of a scripted machine.
class ScriptedSerialPort : public SerialPort {
public:
    explicit ScriptedSerialPort(ScriptedSerialMachine& machine) : m_machine(machine) {}
    ~ScriptedSerialPort() override { close(); }

    bool open(int number) override;
    void close() override;
    bool isOpen() const override { return m_open != 0; }
    int port() const override { return m_port; }
    bool write(const QByteArray& data) override;
    int bytesWaiting() override;
    void clearInput() override;
    QByteArray readAll() override;
    int wait(int ms) override;
    std::unique_ptr<SerialPort> newChannel() override {
        return std::make_unique<ScriptedSerialPort>(m_machine);
    }

private:
    ScriptedSerialMachine::Line* openLine() { return m_open ? m_machine.line(m_open) : nullptr; }
    ScriptedSerialMachine& m_machine;
    int m_port = 0;
    int m_open = 0;
};

} // namespace ostrel::test
