#pragma once

#include "ControlBinding.h"

class QListWidget;

namespace ostrel::ui {

// A list box: items and the selected index. A user's choice is pulled (index and text), then
// Click; a double click on an item is DblClick.
class ListBoxBinding : public ControlBinding {
    Q_OBJECT
public:
    ListBoxBinding(Binder& binder, QListWidget* list, ListControl& model);

protected:
    void pushState() override;
    void pull() override;

private:
    QListWidget* list() const;
    ListControl& m_model;
};

} // namespace ostrel::ui
