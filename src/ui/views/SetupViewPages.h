#pragma once

#include <QString>

class QLabel;
class QTabWidget;
class QWidget;

namespace ostrel::ui::setupview {

// The pages of the Setup window, each built from widgets named as the screen's controls. The
// binder joins them to the models by those names afterwards.
QWidget* BusinessInfoPage(QWidget* parent);
QWidget* SetupHelpPage(QWidget* parent);
QWidget* OptionsPage(QWidget* parent);
QWidget* LogoPage(QWidget* parent);
QWidget* PointsOfServicePage(QWidget* parent);
QWidget* OperationsPage(QWidget* parent);

// A tab strip named as its control; its page captions come from the screen.
QTabWidget* TabStrip(const QString& name, QWidget* parent);
// The step image of a strip: "Image1(i)".
QWidget* StepImage(int index, QWidget* parent);

// Screen pixels for a length in twips. Boxes come out a little wider than 15 twips a pixel gives,
// since today's screen font is wider than the one the sizes were made for.
int BoxPixels(double twips);
// A picture's length at its printed size on a 96 dots per inch screen.
int PicturePixels(double twips);

} // namespace ostrel::ui::setupview
