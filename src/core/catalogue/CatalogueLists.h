#pragma once

#include "controls/Controls.h"

#include <QVector>

namespace ostrel {

// The selection lists of the other screens that show the catalogue. They are filled only by the
// catalogue loads, in file order, and those screens bind their controls to them rather than read
// the catalogue files.
struct CatalogueLists {
    struct InvoiceLists {
        // Index 0 services, 1 inventoried items, 2 custom items; cboDescription(k) and cboPrice(k)
        // go together. Item data of cboDescription: 0 the charge as a whole number, 1 the record
        // number minus 1, 2 the position in cboPrice(2) (that list is sorted, the prices are not).
        ControlArray<ComboBox> cboDescription;
        ControlArray<ComboBox> cboPrice;
        ListBox lstCategories; // "All", then the categories
    } frmInvoice;

    struct CreateLists {
        ListBox lstServices;      // descriptions
        ComboBox cboServicesCost; // charges, at the same index
        ComboBox cboTime;         // time texts, at the same index
        ComboBox cboItems;        // inventoried items, then custom items
        ComboBox cboItemPrices;   // their prices in currency form
        ListBox lstCategories;
    } frmCreate;

    struct WorkOrderLists {
        Grid fgAddServices; // 0 description, 1 time text, 2 charge
    } frmWorkOrders;

    // Quantity pricing for the invoice, indexed from 1 in record order; element 0 stays 0.
    QVector<qint64> ItemDiscountPrice{0};
    QVector<qint32> ItemDiscountQuantity{0};
    QVector<qint64> CustomDiscountPrice{0};
    QVector<qint32> CustomDiscountQuantity{0};

    CatalogueLists();
};

} // namespace ostrel
