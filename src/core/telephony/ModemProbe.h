#pragma once

#include <QByteArray>
#include <QString>

namespace ostrel {

class SerialPort;

// The ports the probe tries, 1 to this.
constexpr int kModemPorts = 16;
// One wait shared by all ports: start-up stays quick, and a modem slower than this counts as none.
constexpr int kProbeWaitMs = 150;
// An answer of fewer bytes is no modem (a line that echoes the first byte, for instance).
constexpr int kModemAnswerBytes = 2;

inline const QString kModemNotDetected = QStringLiteral("Modem Not Detected Or In Use.");

// Sends "AT" and a carriage return to every port from 1 to kModemPorts that opens, waits once for all
// of them, and returns the first port, in port order, that answered with two bytes or more; 0 when
// none did. Every port it opened is closed again.
int ProbeModem(SerialPort& port);

// Leaves `port` open on `modemPort` with its input cleared and the modem asked to report callers
// ("AT#CID=1"). The reply is not read. Nothing happens when the port cannot be opened.
void RequestCallerId(SerialPort& port, int modemPort);

// The dialer's line about the probe, and the port caption beside it.
QString ModemPortMessage(int modemPort); // "Your Modem Comm Port Is 3."
QString ModemPortCaption(int modemPort); // "COM Port # 3"

// A Hayes command with its carriage return.
QByteArray HayesCommand(const QString& command);

} // namespace ostrel
