#pragma once

#include "ControlBinding.h"

namespace ostrel::ui {

// A screen's window and its form model: caption is the window title, enabled and visible act on the
// whole window. Shows wait until every window to be hidden is hidden, so two screens never stand
// together in between.
class WindowBinding : public ControlBinding {
    Q_OBJECT
public:
    WindowBinding(Binder& binder, QWidget* window, Frame& form);
    Frame& form() const { return m_form; }

protected:
    void pushState() override;
    QString caption() const override { return m_form.caption; }

private:
    Frame& m_form;
};

} // namespace ostrel::ui
