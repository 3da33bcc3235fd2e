#include "CatalogueGrids.h"

#include "ServiceTimes.h"

namespace ostrel {

namespace {
QString indexed(const char* name, int i) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(i);
}

void setUp(Grid& g, const char* name, int cols) {
    g.name = QLatin1String(name);
    g.SetCols(cols);
    g.SetRows(2);
}

struct ButtonCaption {
    int index;
    const char* caption;
};
// Captions as the screen shows them, spaces included.
constexpr ButtonCaption kCaptions[] = {
    {0, "Menu"},
    {1, "Add New"},
    {2, "Delete Item"},
    {3, "Modify Item"},
    {4, "Save"},
    {5, "Clear"},
    {7, "Cancel Add New or Modify"},
    {8, "Add New"},
    {9, "Modify Item"},
    {10, "Delete Item"},
    {11, "Clear Item"},
    {12, "Create General Labor"},
    {13, "Save Sales Item"},
    {14, "Cancel Add New or Modify"},
    {15, "&Clear All"},
    {16, "Reload from File"},
    {17, "Save &Labor Rates"},
    {18, "Add New"},
    {19, "Modify Item"},
    {20, "Delete Item"},
    {21, " Clear Item"},
    {22, "Save Custom Item"},
    {23, "Cancel Add New or Modify "},
    {24, "Clear Prices"},
    {25, "No Discount"},
};
} // namespace

CatalogueGrids::CatalogueGrids() {
    setUp(fgServices, "fgServices", 3);
    setUp(fgItems, "fgItems", 9);
    setUp(fgCustom, "fgCustom", 4);
    cboCategory.name = QStringLiteral("cboCategory");
    lstTime.name = QStringLiteral("lstTime");
    FillTimeList(lstTime);
    for (int i = 0; i <= 2; ++i) {
        txtLabor[i].name = indexed("txtLabor", i);
        txtLaborRate[i].name = indexed("txtLaborRate", i);
    }
    for (const ButtonCaption& b : kCaptions) {
        cmdServices[b.index].name = indexed("cmdServices", b.index);
        cmdServices[b.index].caption = QString::fromUtf8(b.caption);
    }
}

} // namespace ostrel
