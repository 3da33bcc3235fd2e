#pragma once

#include "binder/ScreenView.h"

namespace ostrel {
class Session;
class frmReprint;
} // namespace ostrel

namespace ostrel::ui {

// The completed invoices: the list, with the sort options and the delete-before date beside it, and
// over it, when a row is clicked, the whole invoice with its memo and the reprint.
class ReprintView : public ScreenView {
    Q_OBJECT
public:
    ReprintView(Session& session, frmReprint& screen);

private:
    QWidget* listPanel();
    QWidget* detailFrame();
    QWidget* sortFrame();
    void wire();

    frmReprint& m_screen;
};

} // namespace ostrel::ui
