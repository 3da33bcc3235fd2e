#pragma once

class QMenu;
class QWidget;

namespace ostrel::ui {

// The widgets of the account screen, each named as its control, laid out in `window`: the account
// fields with the aux data frame over them, the search and results frames below, the buttons at the
// right and the menu bar. Returns the pop-up menu of the results grid.
QMenu* BuildNewCustomerWidgets(QWidget* window);

// The dial image's picture, drawn, as it has no picture file; set after the binder's first push of
// the image, which would clear it.
void SetDialPicture(QWidget* window);

} // namespace ostrel::ui
