#include "ClickableImage.h"

#include <QMouseEvent>

namespace ostrel::ui {

ClickableImage::ClickableImage(QWidget* parent) : QLabel(parent) {
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::NoFocus);
}

void ClickableImage::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) Q_EMIT clicked();
    QLabel::mouseReleaseEvent(event);
}

void ClickableImage::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) Q_EMIT doubleClicked();
    QLabel::mouseDoubleClickEvent(event);
}

} // namespace ostrel::ui
