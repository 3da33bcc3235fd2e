#include "CatalogueLists.h"

namespace ostrel {

namespace {
QString indexed(const char* name, int i) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(i);
}
} // namespace

CatalogueLists::CatalogueLists() {
    for (int k = 0; k <= 2; ++k) {
        frmInvoice.cboDescription[k].name = indexed("cboDescription", k);
        frmInvoice.cboPrice[k].name = indexed("cboPrice", k);
    }
    frmInvoice.cboDescription[2].sorted = true;
    frmInvoice.lstCategories.name = QStringLiteral("lstCategories");
    frmInvoice.lstCategories.AddItem(QStringLiteral("All"));

    frmCreate.lstServices.name = QStringLiteral("lstServices");
    frmCreate.cboServicesCost.name = QStringLiteral("cboServicesCost");
    frmCreate.cboTime.name = QStringLiteral("cboTime");
    frmCreate.cboItems.name = QStringLiteral("cboItems");
    frmCreate.cboItemPrices.name = QStringLiteral("cboItemPrices");
    frmCreate.lstCategories.name = QStringLiteral("lstCategories");

    Grid& g = frmWorkOrders.fgAddServices;
    g.name = QStringLiteral("fgAddServices");
    g.SetCols(3);
    g.SetRows(1);
}

} // namespace ostrel
