#include "ScriptedSerialPort.h"

#include <algorithm>

namespace ostrel::test {

namespace {
const QByteArray kOk = "\r\nOK\r\n";
}

QList<QByteArray> ScriptedSerialMachine::received(int port) const {
    const auto it = m_ports.find(port);
    return it == m_ports.end() ? QList<QByteArray>() : it->second.received;
}

bool ScriptedSerialMachine::isOpen(int port) const {
    const auto it = m_ports.find(port);
    return it != m_ports.end() && it->second.holder != nullptr;
}

int ScriptedSerialMachine::opens(int port) const {
    const auto it = m_ports.find(port);
    return it == m_ports.end() ? 0 : it->second.opens;
}

ScriptedSerialMachine::Line* ScriptedSerialMachine::line(int port) {
    const auto it = m_ports.find(port);
    return it == m_ports.end() ? nullptr : &it->second;
}

void ScriptedSerialMachine::deliverDue() {
    for (auto& [number, l] : m_ports) {
        auto it = l.pending.begin();
        while (it != l.pending.end() && it->first <= m_now) {
            l.input += it->second;
            it = l.pending.erase(it);
        }
    }
}

void ScriptedSerialMachine::settle() {
    for (auto& [number, l] : m_ports) {
        for (const auto& [due, bytes] : l.pending)
            l.input += bytes;
        l.pending.clear();
    }
}

int ScriptedSerialMachine::wait(int ms, Line* watched) {
    if (duringWait) duringWait(m_now);
    const int start = m_now;
    int end = start + ms;
    // A wait on an open channel ends when its answer arrives.
    if (watched && watched->input.isEmpty() && !watched->pending.empty())
        end = std::min(end, std::max(start, watched->pending.begin()->first));
    if (watched && !watched->input.isEmpty()) end = start;
    m_now = end;
    deliverDue();
    m_waits.append(end - start);
    return end - start;
}

void ScriptedSerialMachine::take(Line& l, const QByteArray& data) {
    for (char c : data) {
        l.partial += c;
        if (c != '\r') continue;
        const QByteArray command = l.partial;
        l.partial.clear();
        l.received.append(command);
        switch (l.device.kind) {
        case ScriptedDevice::Kind::Modem:
            if (command.startsWith("ATDT")) {
                if (l.device.answersDial) l.pending.emplace(m_now + l.device.dialDelayMs, l.device.dialReply);
            } else {
                l.pending.emplace(m_now + l.device.replyDelayMs, kOk);
            }
            break;
        case ScriptedDevice::Kind::EchoOneByte:
            l.pending.emplace(m_now + l.device.replyDelayMs, command.left(1));
            break;
        case ScriptedDevice::Kind::Silent:
        case ScriptedDevice::Kind::InUse:
            break;
        }
    }
}

bool ScriptedSerialPort::open(int number) {
    close();
    m_port = number;
    ScriptedSerialMachine::Line* l = m_machine.line(number);
    if (!l || l->device.kind == ScriptedDevice::Kind::InUse || l->holder) return false;
    l->holder = this;
    ++l->opens;
    m_open = number;
    return true;
}

void ScriptedSerialPort::close() {
    if (ScriptedSerialMachine::Line* l = openLine()) {
        l->holder = nullptr;
        l->input.clear();
        l->partial.clear();
        l->pending.clear();
    }
    m_open = 0;
}

bool ScriptedSerialPort::write(const QByteArray& data) {
    ScriptedSerialMachine::Line* l = openLine();
    if (!l) return false;
    m_machine.take(*l, data);
    return true;
}

int ScriptedSerialPort::bytesWaiting() {
    m_machine.deliverDue();
    ScriptedSerialMachine::Line* l = openLine();
    return l ? static_cast<int>(l->input.size()) : 0;
}

void ScriptedSerialPort::clearInput() {
    if (ScriptedSerialMachine::Line* l = openLine()) l->input.clear();
}

QByteArray ScriptedSerialPort::readAll() {
    m_machine.deliverDue();
    ScriptedSerialMachine::Line* l = openLine();
    if (!l) return {};
    QByteArray out = l->input;
    l->input.clear();
    return out;
}

int ScriptedSerialPort::wait(int ms) {
    return m_machine.wait(ms, openLine());
}

} // namespace ostrel::test
