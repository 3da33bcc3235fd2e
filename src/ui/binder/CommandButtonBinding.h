#pragma once

#include "ControlBinding.h"

class QAbstractButton;

namespace ostrel::ui {

// A push or tool button: caption, default and cancel marks; Click.
class CommandButtonBinding : public ControlBinding {
    Q_OBJECT
public:
    CommandButtonBinding(Binder& binder, QAbstractButton* button, CommandButton& model);
    CommandButton& button() const { return m_model; }

protected:
    void pushState() override;
    QString caption() const override { return m_model.caption; }

private:
    CommandButton& m_model;
    bool m_syncedDefault = false;
};

} // namespace ostrel::ui
