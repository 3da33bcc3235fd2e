#include "SetupScreenControls.h"

namespace ostrel {

void SetupTabStrip::SetCaptions(const QStringList& captions) {
    TabCaption = captions;
    TabEnabled = QVector<bool>(captions.size(), true);
    Tab = 0;
}

int SetupTabStrip::NextTab() const {
    const int count = Tabs();
    for (int step = 1; step <= count; ++step) {
        const int candidate = (Tab + step) % count;
        // A page that cannot be chosen by the mouse is passed over by the stepping too.
        if (TabEnabled.value(candidate, true)) return candidate;
    }
    return Tab;
}

} // namespace ostrel
