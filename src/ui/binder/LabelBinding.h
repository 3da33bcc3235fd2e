#pragma once

#include "ControlBinding.h"

class QLabel;

namespace ostrel::ui {

// A label: its caption, shown as plain text; Click and DblClick by the mouse.
class LabelBinding : public ControlBinding {
    Q_OBJECT
public:
    LabelBinding(Binder& binder, QLabel* label, Label& model);

protected:
    void pushState() override;
    QString caption() const override { return m_model.caption; }

private:
    Label& m_model;
};

} // namespace ostrel::ui
