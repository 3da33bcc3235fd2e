#pragma once

#include "ControlBinding.h"

class QCheckBox;

namespace ostrel::ui {

// A check box: caption and value (0 clear, 1 ticked, 2 grayed); a user's tick is pulled, then Click.
class CheckBoxBinding : public ControlBinding {
    Q_OBJECT
public:
    CheckBoxBinding(Binder& binder, QCheckBox* box, CheckBox& model);

protected:
    void pushState() override;
    void pull() override;
    QString caption() const override { return m_model.caption; }

private:
    CheckBox& m_model;
    // A toggle no click followed: made through the accessibility interface, still the user's.
    bool m_toggledWithoutClick = false;
};

} // namespace ostrel::ui
