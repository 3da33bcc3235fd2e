#include "LoadPhoneSettings.h"

#include "ModemProbe.h"
#include "platform/SerialPort.h"
#include "setup/PhoneSettings.h"
#include "shell/Session.h"

namespace ostrel {

namespace {

// What follows when no port answered: nothing on the other screens offers the modem.
void NoModem(Session& session, PhoneControls& controls) {
    controls.dialImageEnabled = false;
    controls.ckPhone = false;
    session.settings.phone.PhoneChained = false;
    controls.lblCallidVisible = false;
    controls.ckCallerID = false;
    controls.phoneTabEnabled = false;
}

} // namespace

PhoneControls LoadPhoneSettings(Session& session, SerialPort& port) {
    PhoneControls controls;
    PhoneSettings& phone = session.settings.phone;
    ModemStatus& modem = session.modem;

    const int found = ProbeModem(port);
    modem.detected = found != 0;
    if (modem.detected) {
        phone.ModemPort = static_cast<qint16>(found);
        modem.statusText = ModemPortMessage(phone.ModemPort);
    } else {
        // The port number stays as it was; only a port the probe could have found is worth opening.
        modem.statusText = kModemNotDetected;
        NoModem(session, controls);
    }
    modem.foundPort = phone.ModemPort;
    controls.txtModemPort = QString::number(phone.ModemPort);
    if (phone.ModemPort >= 1 && phone.ModemPort <= kModemPorts) RequestCallerId(port, phone.ModemPort);

    session.Guarded([&] { LoadPhoneFiles(session.disk, phone); });
    controls.ckPhone = phone.PhoneChained;
    // Both values of the caller ID flag show the note and tick the box, undoing the no-modem path.
    controls.lblCallidVisible = true;
    controls.ckCallerID = true;
    return controls;
}

} // namespace ostrel
