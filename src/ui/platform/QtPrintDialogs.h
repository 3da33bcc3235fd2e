#pragma once

#include "QtPageSurface.h"
#include "platform/PrintDialogs.h"

#include <QString>

#include <functional>
#include <memory>

class QPrintDialog;
class QPrinter;

namespace ostrel::ui {

// The print dialog on the desktop: Qt's, over the active window, offering the system's printers and
// a PDF file. The printer chosen is kept, so the next dialog starts from it; each job gets a fresh
// page surface on it.
class QtPrintDialogs : public PrintDialogs {
public:
    // Lets the user choose on the printer; false is Cancel.
    using Chooser = std::function<bool(QPrinter&)>;

    // The chooser that shows Qt's print dialog.
    QtPrintDialogs();
    // Another way of choosing, for a print without a person: see PdfFileChooser.
    explicit QtPrintDialogs(Chooser chooser);
    ~QtPrintDialogs() override;

    PageSurface& ShowPrinterDialog() override;

    // The dialog's choices: no page numbers, collate, and the PDF file among the printers.
    static void PrepareDialog(QPrintDialog& dialog);
    // Shows the dialog modally; true when the user pressed Print.
    static bool ExecPrintDialog(QPrinter& printer);
    // The choice the dialog makes when the user picks a PDF file with this name.
    static Chooser PdfFileChooser(const QString& fileName);

    QPrinter& printer() { return *m_printer; }

private:
    Chooser m_choose;
    std::unique_ptr<QPrinter> m_printer;
    std::unique_ptr<QtPageSurface> m_surface;
};

} // namespace ostrel::ui
