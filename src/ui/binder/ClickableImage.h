#pragma once

#include <QLabel>

namespace ostrel::ui {

// A picture that answers the mouse, for Image controls that act as buttons (a logo that leads to
// Setup). Bound to an Image model it reports Click and DblClick like any label.
class ClickableImage : public QLabel {
    Q_OBJECT
public:
    explicit ClickableImage(QWidget* parent = nullptr);

Q_SIGNALS:
    void clicked();
    void doubleClicked();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};

} // namespace ostrel::ui
