#include "TabStrip.h"

#include <stdexcept>

namespace ostrel {

void TabStrip::SetTab(int tab) {
    if (tab < 0 || tab >= Tabs()) throw std::out_of_range("tab outside the tab strip");
    Tab = tab;
    if (tabChanged) tabChanged(tab);
}

} // namespace ostrel
