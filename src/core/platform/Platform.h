#pragma once

#include "AppInfo.h"
#include "Browser.h"
#include "Clock.h"
#include "Dialogs.h"
#include "Instance.h"
#include "PrintDialogs.h"
#include "SerialPort.h"

namespace ostrel {

// Everything the logic needs from outside, in one object a screen or the session takes whole.
struct Platform {
    Dialogs& dialogs;
    const Clock& clock;
    Instance& instance;
    Browser& browser;
    AppInfo& app;
    SerialPort& serial;
    PrintDialogs& printDialogs;
};

} // namespace ostrel
