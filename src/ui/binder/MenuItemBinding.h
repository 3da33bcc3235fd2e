#pragma once

#include "ControlBinding.h"

class QAction;

namespace ostrel::ui {

// A menu entry: caption, enabled, visible, tooltip, check mark; Click when chosen. The check mark is
// the program's to set, as in the legacy menus: choosing an entry does not toggle it.
class MenuItemBinding : public ControlBinding {
    Q_OBJECT
public:
    MenuItemBinding(Binder& binder, QAction* action, MenuItem& model);

protected:
    void pushState() override;

private:
    MenuItem& m_model;
};

} // namespace ostrel::ui
