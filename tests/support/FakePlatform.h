#pragma once

#include "FakeBrowser.h"
#include "FakeClock.h"
#include "FakeInstance.h"
#include "RecordingPageSurface.h"
#include "ScriptedDialogs.h"
#include "ScriptedSerialPort.h"
#include "platform/Platform.h"

namespace ostrel::test {

// The whole outside world for a test: scripted boxes, a set clock, a settable single-copy guard, a
// recording browser, a machine whose serial ports hold no modem until a test attaches one, a print
// dialog that records each job, and a program that lives in `dataRoot` under its shipped name.
class FakePlatform {
public:
    explicit FakePlatform(const QString& dataRoot = QStringLiteral("/nonexistent"))
        : app(dataRoot + QStringLiteral("/OstrelAppointmentScheduler")) {
        dialogs.setProgramTitle(app.title());
    }
    FakePlatform(const FakePlatform&) = delete;
    FakePlatform& operator=(const FakePlatform&) = delete;

    ScriptedDialogs dialogs;
    FakeClock clock;
    FakeInstance instance;
    FakeBrowser browser;
    AppInfo app; // after a setTitle, call dialogs.setProgramTitle too
    ScriptedSerialMachine serialMachine;
    ScriptedSerialPort serial{serialMachine};
    RecordingPrintDialogs printDialogs;
    Platform platform{dialogs, clock, instance, browser, app, serial, printDialogs};

    operator Platform&() { return platform; }
};

} // namespace ostrel::test
