#pragma once

class QMenu;
class QWidget;

namespace ostrel {
class frmInvoice;
}

namespace ostrel::ui {

// Builds every widget of the invoice window, named after its control, into `window`; returns the
// pop-up menu of a body line.
QMenu* BuildInvoiceWidgets(QWidget* window, const frmInvoice& screen);

} // namespace ostrel::ui
