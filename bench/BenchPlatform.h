#pragma once

// The outside world of a benchmark nobody watches: every box answered with its default button, one
// copy running, no browser, no modem on any port and every print cancelled.
#include "platform/AppInfo.h"
#include "platform/Dialogs.h"
#include "platform/PageSurface.h"
#include "platform/Platform.h"
#include "platform/SystemClock.h"

namespace ostrel::bench {

class QuietDialogs : public Dialogs {
public:
    QString programTitle() const override { return QStringLiteral("bench"); }
    int boxes = 0;

protected:
    MsgBoxResult showMsgBox(const MsgBoxRequest& request) override {
        ++boxes;
        return MsgBoxDefaultAnswer(request.style);
    }
    void beep() override {}
    std::optional<QString> openFileName(const OpenFileRequest&) override { return std::nullopt; }
    std::optional<Colour> chooseColour(Colour, const QString&) override { return std::nullopt; }
    std::optional<FontChoice> chooseFont(const FontChoice&, const QString&) override { return std::nullopt; }
    std::optional<QString> inputBox(const QString&, const QString&, const QString&) override {
        return std::nullopt;
    }
};

class OnlyCopy : public Instance {
public:
    bool TryAcquire() override { return true; }
    void Release() override {}
};

class NoBrowser : public Browser {
public:
    bool Open(const QString&) override { return false; }
};

class NoSerialPorts : public SerialPort {
public:
    bool open(int) override { return false; }
    void close() override {}
    bool isOpen() const override { return false; }
    int port() const override { return 0; }
    bool write(const QByteArray&) override { return false; }
    int bytesWaiting() override { return 0; }
    void clearInput() override {}
    QByteArray readAll() override { return {}; }
    int wait(int) override { return 0; }
    std::unique_ptr<SerialPort> newChannel() override { return std::make_unique<NoSerialPorts>(); }
};

class NoPrinter : public PrintDialogs {
public:
    PageSurface& ShowPrinterDialog() override {
        throw PrintError(PrintError::kCancelled, QStringLiteral("Cancelled"));
    }
};

// A program of the shipped name living in `dataRoot`.
struct BenchPlatform {
    explicit BenchPlatform(const QString& dataRoot)
        : app(dataRoot + QStringLiteral("/OstrelAppointmentScheduler")) {}
    QuietDialogs dialogs;
    SystemClock clock;
    OnlyCopy instance;
    NoBrowser browser;
    AppInfo app;
    NoSerialPorts serial;
    NoPrinter printer;
    Platform platform{dialogs, clock, instance, browser, app, serial, printer};
};

} // namespace ostrel::bench
