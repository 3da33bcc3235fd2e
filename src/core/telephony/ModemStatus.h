#pragma once

#include <QString>

namespace ostrel {

// What the start-up probe found, read by the Setup screen, the dialer and the account screen.
struct ModemStatus {
    bool detected = false; // a modem answered on some port
    int foundPort = 0;     // the port the probe found (shown by Setup even when Phone.txt names another)
    QString statusText;    // the dialer's status line after the probe
};

} // namespace ostrel
