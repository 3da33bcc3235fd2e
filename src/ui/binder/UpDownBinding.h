#pragma once

#include "ControlBinding.h"
#include "controls/PickerControls.h"

class QAbstractSlider;
class QSpinBox;

namespace ostrel::ui {

// An up-down control shown as a slider (or scroll bar) or a spin box: the number and its limits
// are pushed; a user's step is pulled, then Change.
class UpDownBinding : public ControlBinding {
    Q_OBJECT
public:
    UpDownBinding(Binder& binder, QAbstractSlider* slider, UpDown& model);
    UpDownBinding(Binder& binder, QSpinBox* spin, UpDown& model);

protected:
    void pushState() override;
    void pull() override;

private:
    void changed();
    QAbstractSlider* slider() const;
    QSpinBox* spin() const;

    UpDown& m_model;
};

} // namespace ostrel::ui
