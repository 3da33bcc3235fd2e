#include "QtPrintDialogs.h"

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>

namespace ostrel::ui {

QtPrintDialogs::QtPrintDialogs() : QtPrintDialogs(&QtPrintDialogs::ExecPrintDialog) {}

QtPrintDialogs::QtPrintDialogs(Chooser chooser)
    : m_choose(std::move(chooser)), m_printer(std::make_unique<QPrinter>(QPrinter::HighResolution)) {}

QtPrintDialogs::~QtPrintDialogs() = default;

void QtPrintDialogs::PrepareDialog(QPrintDialog& dialog) {
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintCollateCopies |
                      QAbstractPrintDialog::PrintShowPageSize);
    dialog.setPrintRange(QAbstractPrintDialog::AllPages);
}

bool QtPrintDialogs::ExecPrintDialog(QPrinter& printer) {
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    PrepareDialog(dialog);
    return dialog.exec() == QDialog::Accepted;
}

QtPrintDialogs::Chooser QtPrintDialogs::PdfFileChooser(const QString& fileName) {
    return [fileName](QPrinter& printer) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(fileName);
        return true;
    };
}

PageSurface& QtPrintDialogs::ShowPrinterDialog() {
    // The last job's surface goes first: whatever it left unfinished is ended as it stands.
    m_surface.reset();
    QtPageSurface::PrepareLetterPrinter(*m_printer);
    if (!m_choose(*m_printer))
        throw PrintError(PrintError::kCancelled, QStringLiteral("Cancel was selected"));
    if (!m_printer->isValid())
        throw PrintError(PrintError::kPrinterError, QStringLiteral("No printer is available"));
    m_surface = std::make_unique<QtPageSurface>(*m_printer);
    return *m_surface;
}

} // namespace ostrel::ui
