#pragma once

#include "ControlBinding.h"

class QLabel;

namespace ostrel::ui {

// A picture in a label: the model names a file or resource; an empty name shows nothing. Click and
// DblClick by the mouse.
class ImageBinding : public ControlBinding {
    Q_OBJECT
public:
    ImageBinding(Binder& binder, QLabel* label, Image& model);

protected:
    void pushState() override;

private:
    Image& m_model;
    QString m_shown;
    bool m_pushedOnce = false;
};

} // namespace ostrel::ui
