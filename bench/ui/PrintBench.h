#pragma once

// What a benchmark that prints a document stands on: an offscreen application, a data folder of its
// own, the letterhead of a real business in colour, a fixed clock, no question answered (a document
// asks none, so any box is a failure worth seeing), and the print dialog's PDF choice pointed at a
// file in that folder.
#include "BenchUtil.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/QtPrintDialogs.h"
#include "printing/PrinterRoutines.h"
#include "setup/SetupSettings.h"
#include "store/DataRoot.h"
#include "store/DiskRoutines.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdio>

namespace ostrel::bench {

class FixedClock : public Clock {
public:
    QDateTime now() const override { return QDateTime(QDate(2026, 3, 4), QTime(10, 0)); }
};

class FailingDialogs : public Dialogs {
public:
    QString programTitle() const override { return QStringLiteral("OstrelAppointmentScheduler"); }

protected:
    MsgBoxResult showMsgBox(const MsgBoxRequest& request) override {
        qFatal("unexpected box: %s", qPrintable(request.prompt));
    }
    void beep() override {}
    std::optional<QString> openFileName(const OpenFileRequest&) override { return std::nullopt; }
    std::optional<Colour> chooseColour(Colour, const QString&) override { return std::nullopt; }
    std::optional<FontChoice> chooseFont(const FontChoice&, const QString&) override { return std::nullopt; }
    std::optional<QString> inputBox(const QString&, const QString&, const QString&) override {
        return std::nullopt;
    }
};

class PrintBench {
public:
    // `pdfName` is the file the PDF choice writes, inside the bench's own folder.
    PrintBench(int& argc, char** argv, const QString& pdfName)
        : app(offscreenUnlessTold(argc), argv), root(dir.path()), disk(root), settings(letterhead()),
          pdf(dir.filePath(pdfName)), printDialogs(ui::QtPrintDialogs::PdfFileChooser(pdf)),
          printer(printDialogs, dialogs, disk, settings, clock) {}

    // The median beside the size of the PDF last written and the document's target.
    void report(const char* what, double ms, const char* target) const {
        bench::report(what, ms);
        std::printf("%-58s %10lld bytes\n", "PDF size", static_cast<long long>(QFileInfo(pdf).size()));
        std::printf("%-58s %10s\n", "target", target);
    }

    QGuiApplication app;
    QTemporaryDir dir;
    DataRoot root;
    DiskRoutines disk;
    SetupSettings settings;
    FixedClock clock;
    FailingDialogs dialogs;
    QString pdf;
    ui::QtPrintDialogs printDialogs;
    PrinterRoutines printer;

private:
    static int& offscreenUnlessTold(int& argc) {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        return argc;
    }
    static SetupSettings letterhead() {
        SetupSettings s;
        s.business.txtBusiness = {"Prairie Comfort Heating", "1207 Wabash Ave", "Suite B", "Springfield", "IL",
                                  "62704", "217-555-0142", "Fax 217-555-0143", "FEIN 37-1234567"};
        s.colors.ckColor = 1;
        return s;
    }
};

} // namespace ostrel::bench
