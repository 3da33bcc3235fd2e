#pragma once

#include "ControlBinding.h"

namespace ostrel::ui {

// A frame: a group box shows the caption as its title; a plain frame has none to show.
class FrameBinding : public ControlBinding {
    Q_OBJECT
public:
    FrameBinding(Binder& binder, QWidget* frame, Frame& model);

protected:
    void pushState() override;
    QString caption() const override { return m_model.caption; }

private:
    Frame& m_model;
};

} // namespace ostrel::ui
