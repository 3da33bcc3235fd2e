#pragma once

#include "controls/Controls.h"

#include <QStringList>
#include <QVector>

namespace ostrel {

// A tab strip: the pages' captions, which of them can be chosen, and the page shown.
struct SetupTabStrip : Control {
    QStringList TabCaption;
    QVector<bool> TabEnabled;
    int Tab = 0;

    int Tabs() const { return static_cast<int>(TabCaption.size()); }
    void SetCaptions(const QStringList& captions);
    // The next page that can be chosen after the one shown, going back to the first after the last.
    int NextTab() const;
};

// An up-down control: two arrows whose clicks the screen turns into a change of some value.
struct SetupUpDown : Control {};

// A text box whose width (twips; 0: the view decides) and back colour the screen sets.
struct SetupTextBox : TextBox {
    int Width = 0;
    Colour BackColor = kNoColour;
};

// A picture whose size the screen sets, in twips.
struct SetupImage : Image {
    float Width = 0;
    float Height = 0;
};

} // namespace ostrel
