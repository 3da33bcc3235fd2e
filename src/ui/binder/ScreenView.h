#pragma once

#include "Binder.h"

#include <QWidget>

#include <functional>

namespace ostrel::ui {

// The window of one screen: a top-level widget that owns the binder of its controls. A user who
// closes it by the window frame ends the program (the exit handler runs); the program's own hide or
// close only hides it. Enter presses the screen's default button and Escape its cancel button.
class ScreenView : public QWidget {
    Q_OBJECT
public:
    explicit ScreenView(Dialogs& dialogs, QWidget* parent = nullptr);

    Binder& binder() { return m_binder; }
    // The screen's form model: caption is the title, visible shows and hides the window.
    void bindForm(Frame& form) { m_binder.bindWindow(this, form); }
    // The program's ExitProgram, for a close by the window frame.
    void setExitHandler(std::function<void()> handler) { m_exit = std::move(handler); }
    // Runs each time the program shows the window (the screen's Activate event).
    void setActivateHandler(std::function<void()> handler) { m_activate = std::move(handler); }
    // The screen's own activation has run and may have moved what the window shows.
    void screenActivated() {
        if (m_activate) m_binder.dispatch(m_activate);
    }

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    Binder m_binder;
    std::function<void()> m_exit;
    std::function<void()> m_activate;
};

} // namespace ostrel::ui
