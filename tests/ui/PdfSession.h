#pragma once

// A program session over a fresh data folder whose print dialog sends every job into one PDF file,
// for the screens whose printed documents are read back with the poppler tools.
#include "FakePlatform.h"
#include "PdfText.h"
#include "TestDataRoot.h"
#include "platform/QtPageSurface.h"
#include "platform/QtPrintDialogs.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <QFontMetricsF>
#include <QPrinter>
#include <QTemporaryDir>

namespace ostrel::test {

struct PdfSession {
    explicit PdfSession(const QString& fileName) : pdf(out.filePath(fileName)) {
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        fake.clock.set(QDate(2026, 11, 22), QTime(9, 0));
        session.settings.business.txtBusiness = {"Prairie Comfort Heating", "1207 Wabash Ave", "", "Springfield",
                                                 "IL", "62704", "217-555-0142", "", ""};
    }

    // The height of a line of the document's font on the PDF printer, in twips.
    double lineHeight(double size, bool bold) {
        QPrinter& p = printDialogs.printer();
        return QFontMetricsF(ui::QtPageSurface::toQFont({session.settings.colors.lblFont, size, bold, false}), &p)
                   .lineSpacing() *
               1440.0 / p.resolution();
    }

    TestDataRoot t;
    FakePlatform fake{t.path()};
    QTemporaryDir out;
    QString pdf;
    ui::QtPrintDialogs printDialogs{ui::QtPrintDialogs::PdfFileChooser(pdf)};
    Platform platform{fake.dialogs, fake.clock, fake.instance, fake.browser, fake.app, fake.serial, printDialogs};
    Session session{t.path(), platform};
};

} // namespace ostrel::test
