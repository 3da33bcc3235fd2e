#pragma once

#include "ControlBinding.h"

class QRadioButton;

namespace ostrel::ui {

// An option button: caption and value. Choosing one clears its siblings, in the widgets and, by
// settle(), in their models.
class OptionButtonBinding : public ControlBinding {
    Q_OBJECT
public:
    OptionButtonBinding(Binder& binder, QRadioButton* button, OptionButton& model);
    void settle() override {
        if (target()) pull();
    }

protected:
    void pushState() override;
    void pull() override;
    QString caption() const override { return m_model.caption; }

private:
    OptionButton& m_model;
    // Chosen by a toggle no click followed (an assistive tool's action): still the user's choice.
    bool m_chosenWithoutClick = false;
};

} // namespace ostrel::ui
