#pragma once

#include "ControlBinding.h"

class QComboBox;

namespace ostrel::ui {

// A combo box: items, the selected index and, when editable, the typed text. A choice from the list
// is pulled, then Click; typing is pulled, then Change.
class ComboBoxBinding : public ControlBinding {
    Q_OBJECT
public:
    ComboBoxBinding(Binder& binder, QComboBox* combo, ListControl& model);

protected:
    void pushState() override;
    void pull() override;

private:
    QComboBox* combo() const;
    ListControl& m_model;
};

} // namespace ostrel::ui
