#pragma once

#include <QString>

namespace ostrel {

class Session;
class SerialPort;

// What the Setup screen and the account screen show of the modem once the phone settings are loaded.
struct PhoneControls {
    QString txtModemPort;         // the port the probe found, even when "/Phone.txt" names another
    bool ckPhone = false;         // a telephone is daisy-chained
    bool lblCallidVisible = true; // the caller ID note
    bool ckCallerID = false;      // "Using Caller ID"
    bool phoneTabEnabled = true;  // tab 2, "Phone and Modem", of Setup's SSTab1
    bool dialImageEnabled = true; // Image1(1), the account screen's dial picture
};

// The start-up load of the telephony settings, after the rest of Setup's settings. Probes the ports
// for a modem (leaving the serial port open on it and asking it for caller identification), fills
// session.modem, then reads "/Phone.txt" and "/CallID.txt" into session.settings.phone: the stored
// port replaces the one found in memory, while the screens keep showing the one found. The caller
// ID note and box end up shown and ticked whatever "/CallID.txt" holds.
PhoneControls LoadPhoneSettings(Session& session, SerialPort& port);

} // namespace ostrel
