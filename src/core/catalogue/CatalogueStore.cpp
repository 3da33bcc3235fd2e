#include "CatalogueStore.h"

#include "CatalogueFile.h"
#include "store/CurrencyText.h"
#include "CustomItemRecord.h"
#include "InventoriedItemRecord.h"
#include "ServiceRecord.h"
#include "shell/RecordFormats.h"
#include "store/StoreError.h"
#include "util/VbText.h"

#include <limits>

namespace ostrel {

namespace {

void addRow(Grid& g, std::initializer_list<QString> cells) {
    const int row = g.Rows();
    g.SetRows(row + 1);
    int c = 0;
    for (const QString& text : cells)
        g.SetTextMatrix(row, c++, text);
}

// A charge shown as money, as a whole number for the invoice's list; a charge that is no number
// gives 0 rather than stopping the load.
qint32 wholeCharge(const QString& charge) {
    const std::optional<qint64> v = currencytext::parseWhole(charge);
    if (!v || *v < std::numeric_limits<qint32>::min() || *v > std::numeric_limits<qint32>::max()) return 0;
    return static_cast<qint32>(*v);
}

bool gridHasData(const Grid& g) {
    return g.Rows() >= 2 && !g.TextMatrix(1, 0).isEmpty();
}

[[noreturn]] void badCell(const QString& file, const Grid& g, int row, int col, const char* kind) {
    throw StoreError(file, QStringLiteral("Row %1 of the %2 grid holds \"%3\" in column %4, which is not %5. "
                                          "Nothing was saved.")
                               .arg(row)
                               .arg(g.name)
                               .arg(g.TextMatrix(row, col))
                               .arg(col)
                               .arg(QLatin1String(kind)));
}

qint64 currencyCell(const QString& file, const Grid& g, int row, int col) {
    const std::optional<qint64> v = currencytext::parseCurrency(g.TextMatrix(row, col));
    if (!v) badCell(file, g, row, col, "a valid amount");
    return *v;
}

template <typename T> T wholeCell(const QString& file, const Grid& g, int row, int col) {
    const std::optional<qint64> v = currencytext::parseWhole(g.TextMatrix(row, col));
    if (!v || *v < std::numeric_limits<T>::min() || *v > std::numeric_limits<T>::max())
        badCell(file, g, row, col,
                sizeof(T) == 2 ? "a whole number from -32,768 to 32,767"
                               : "a whole number from -2,147,483,648 to 2,147,483,647");
    return static_cast<T>(*v);
}

} // namespace

CatalogueStore::CatalogueStore(DiskRoutines& disk, CatalogueGrids& grids, CatalogueLists& lists)
    : m_disk(disk), m_grids(grids), m_lists(lists) {}

QString CatalogueStore::timeEntry(int index) const {
    return m_grids.lstTime.List(index);
}

qint16 CatalogueStore::timeIndexOf(const QString& text) const {
    const qsizetype i = m_grids.lstTime.items.indexOf(text);
    return static_cast<qint16>(i < 0 ? 0 : i);
}

bool CatalogueStore::LoadServices() {
    if (!m_disk.FileExists(ServiceRecord::kFileName)) return false;
    const QVector<ServiceRecord> records = ReadCatalogueFile<ServiceRecord>(m_disk);

    auto& invoice = m_lists.frmInvoice;
    auto& create = m_lists.frmCreate;
    Grid& addServices = m_lists.frmWorkOrders.fgAddServices;
    invoice.cboDescription[0].Clear();
    invoice.cboPrice[0].Clear();
    create.lstServices.Clear();
    create.cboServicesCost.Clear();
    create.cboTime.Clear();
    addServices.SetRows(1);

    Grid& g = m_grids.fgServices;
    const int count = static_cast<int>(records.size());
    g.SetRows(count + 1);
    for (int row = 1; row <= count; ++row) {
        const ServiceRecord& s = records[row - 1];
        g.SetTextMatrix(row, 0, vbTrim(s.Description));
        g.SetTextMatrix(row, 1, vbTrim(s.Charge));
        // No service is shorter than one slot.
        g.SetTextMatrix(row, 2, timeEntry(s.TimeIndex == 0 ? 1 : s.TimeIndex));
    }
    for (int row = 1; row <= count; ++row) {
        const QString description = g.TextMatrix(row, 0);
        const QString charge = g.TextMatrix(row, 1);
        const QString time = g.TextMatrix(row, 2);
        invoice.cboDescription[0].AddItem(description);
        invoice.cboDescription[0].SetItemData(row - 1, wholeCharge(charge));
        invoice.cboPrice[0].AddItem(charge);
        create.lstServices.AddItem(description);
        create.cboServicesCost.AddItem(charge);
        create.cboTime.AddItem(time);
        addRow(addServices, {description, time, charge});
    }
    return true;
}

bool CatalogueStore::LoadInventoriedItems() {
    if (!m_disk.FileExists(InventoriedItemRecord::kFileName)) return false;
    const QVector<InventoriedItemRecord> records = ReadCatalogueFile<InventoriedItemRecord>(m_disk);

    auto& invoice = m_lists.frmInvoice;
    auto& create = m_lists.frmCreate;
    invoice.cboDescription[1].Clear();
    invoice.cboPrice[1].Clear();
    create.cboItems.Clear();
    create.cboItemPrices.Clear();
    m_customInCreateLists.clear();
    m_grids.cboCategory.Clear();
    invoice.lstCategories.Clear();
    invoice.lstCategories.AddItem(QStringLiteral("All"));
    create.lstCategories.Clear();

    const int count = static_cast<int>(records.size());
    m_lists.ItemDiscountPrice = QVector<qint64>(count + 1, 0);
    m_lists.ItemDiscountQuantity = QVector<qint32>(count + 1, 0);
    Grid& g = m_grids.fgItems;
    g.SetRows(count + 1);
    for (int row = 1; row <= count; ++row) {
        const InventoriedItemRecord& item = records[row - 1];
        const QString description = vbTrim(item.Description);
        const QString category = vbTrim(item.Category);
        const QString price = currencytext::format(item.SellPrice);
        g.SetTextMatrix(row, 0, description);
        g.SetTextMatrix(row, 1, category);
        g.SetTextMatrix(row, 2, currencytext::format(item.UnitCost));
        g.SetTextMatrix(row, 3, price);
        g.SetTextMatrix(row, 4, QString::number(item.OnHand));
        g.SetTextMatrix(row, 5, currencytext::format(item.DiscountPrice));
        g.SetTextMatrix(row, 6, QString::number(item.DiscountQuantity));
        g.SetTextMatrix(row, 7, QString::number(item.ReorderAmount));
        g.SetTextMatrix(row, 8, QString::number(item.ReorderAt));
        AddCategory(category);
        invoice.cboDescription[1].AddItem(description);
        invoice.cboDescription[1].SetItemData(row - 1, row - 1);
        invoice.cboPrice[1].AddItem(price);
        create.cboItems.AddItem(description);
        create.cboItemPrices.AddItem(price);
        m_lists.ItemDiscountPrice[row] = item.DiscountPrice;
        m_lists.ItemDiscountQuantity[row] = item.DiscountQuantity;
    }
    return true;
}

void CatalogueStore::removeCustomItemsFromCreateLists() {
    ComboBox& items = m_lists.frmCreate.cboItems;
    ComboBox& prices = m_lists.frmCreate.cboItemPrices;
    const int n = static_cast<int>(m_customInCreateLists.size());
    const int start = items.ListCount() - n;
    // Only when the tail is still what was appended: a screen may have refilled the list since.
    if (n > 0 && start >= 0 && items.items.mid(start) == m_customInCreateLists &&
        prices.ListCount() == items.ListCount()) {
        for (int i = items.ListCount() - 1; i >= start; --i) {
            items.RemoveItem(i);
            prices.RemoveItem(i);
        }
    }
    m_customInCreateLists.clear();
}

bool CatalogueStore::LoadCustomItems() {
    if (!m_disk.FileExists(CustomItemRecord::kFileName)) return false;
    const QVector<CustomItemRecord> records = ReadCatalogueFile<CustomItemRecord>(m_disk);

    auto& invoice = m_lists.frmInvoice;
    auto& create = m_lists.frmCreate;
    invoice.cboDescription[2].Clear();
    invoice.cboPrice[2].Clear();
    removeCustomItemsFromCreateLists();

    const int count = static_cast<int>(records.size());
    m_lists.CustomDiscountPrice = QVector<qint64>(count + 1, 0);
    m_lists.CustomDiscountQuantity = QVector<qint32>(count + 1, 0);
    Grid& g = m_grids.fgCustom;
    g.SetRows(count + 1);
    for (int row = 1; row <= count; ++row) {
        const CustomItemRecord& item = records[row - 1];
        const QString description = vbTrim(item.Description);
        const QString price = currencytext::format(item.SellPrice);
        g.SetTextMatrix(row, 0, description);
        g.SetTextMatrix(row, 1, price);
        g.SetTextMatrix(row, 2, currencytext::format(item.DiscountPrice));
        g.SetTextMatrix(row, 3, QString::number(item.DiscountQuantity));
        // The description list is sorted; its item data leads back to the price list, kept in file order.
        const int at = invoice.cboDescription[2].AddItem(description);
        invoice.cboDescription[2].SetItemData(at, row - 1);
        invoice.cboPrice[2].AddItem(price);
        create.cboItems.AddItem(description);
        create.cboItemPrices.AddItem(price);
        m_customInCreateLists.append(description);
        m_lists.CustomDiscountPrice[row] = item.DiscountPrice;
        m_lists.CustomDiscountQuantity[row] = item.DiscountQuantity;
    }
    return true;
}

void CatalogueStore::LoadCatalogue() {
    // A folder standing where a file belongs is named too, though the loads pass it over as absent.
    for (const QString* name : {&ServiceRecord::kFileName, &InventoriedItemRecord::kFileName, &CustomItemRecord::kFileName})
        if (m_disk.DirectoryExists(*name)) CheckRecordFileOnRead(m_disk, *name);
    LoadServices();
    LoadInventoriedItems();
    LoadCustomItems();
}

void CatalogueStore::AddCategory(const QString& name) {
    if (name.isEmpty()) return;
    for (const QString& entry : m_grids.cboCategory.items)
        if (entry == name) return;
    const QString category = vbTrim(name);
    m_grids.cboCategory.AddItem(category);
    m_lists.frmInvoice.lstCategories.AddItem(category);
    m_lists.frmCreate.lstCategories.AddItem(category);
}

QVector<Record> CatalogueStore::serviceRecordsFromGrid() const {
    const Grid& g = m_grids.fgServices;
    if (!gridHasData(g)) return {};
    CheckCatalogueCount(ServiceRecord::kFileName, g.Rows() - 1);
    QVector<Record> out;
    for (int row = 1; row < g.Rows(); ++row) {
        ServiceRecord s;
        s.Description = g.TextMatrix(row, 0);
        s.Charge = g.TextMatrix(row, 1);
        s.TimeIndex = timeIndexOf(g.TextMatrix(row, 2));
        out.append(s.toRecord());
    }
    return out;
}

QVector<Record> CatalogueStore::itemRecordsFromGrid() const {
    const Grid& g = m_grids.fgItems;
    const QString& file = InventoriedItemRecord::kFileName;
    if (!gridHasData(g)) return {};
    CheckCatalogueCount(file, g.Rows() - 1);
    QVector<Record> out;
    for (int row = 1; row < g.Rows(); ++row) {
        InventoriedItemRecord item;
        item.Description = g.TextMatrix(row, 0);
        item.Category = g.TextMatrix(row, 1);
        item.UnitCost = currencyCell(file, g, row, 2);
        item.SellPrice = currencyCell(file, g, row, 3);
        item.OnHand = wholeCell<qint16>(file, g, row, 4);
        item.DiscountPrice = currencyCell(file, g, row, 5);
        item.DiscountQuantity = wholeCell<qint32>(file, g, row, 6);
        item.ReorderAmount = wholeCell<qint16>(file, g, row, 7);
        item.ReorderAt = wholeCell<qint16>(file, g, row, 8);
        out.append(item.toRecord());
    }
    return out;
}

QVector<Record> CatalogueStore::customRecordsFromGrid() const {
    const Grid& g = m_grids.fgCustom;
    const QString& file = CustomItemRecord::kFileName;
    if (!gridHasData(g)) return {};
    CheckCatalogueCount(file, g.Rows() - 1);
    QVector<Record> out;
    for (int row = 1; row < g.Rows(); ++row) {
        CustomItemRecord item;
        item.Description = g.TextMatrix(row, 0);
        item.SellPrice = currencyCell(file, g, row, 1);
        item.DiscountPrice = currencyCell(file, g, row, 2);
        item.DiscountQuantity = wholeCell<qint32>(file, g, row, 3);
        out.append(item.toRecord());
    }
    return out;
}

void CatalogueStore::SaveCatalogue() {
    // Every grid is turned into records before a file is touched, so a bad cell or a grid past the
    // limit leaves all three files as they were.
    const QVector<Record> services = serviceRecordsFromGrid();
    const QVector<Record> items = itemRecordsFromGrid();
    const QVector<Record> custom = customRecordsFromGrid();
    // A damaged file the owner chose to keep is left alone; the other two are still saved.
    const auto write = [&](const QString& name, int length, const QVector<Record>& records) {
        try {
            WriteCatalogueRecords(m_disk, name, length, records);
        } catch (const DamagedFileKept&) {
        }
    };
    write(ServiceRecord::kFileName, ServiceRecord::kLength, services);
    write(InventoriedItemRecord::kFileName, InventoriedItemRecord::kLength, items);
    write(CustomItemRecord::kFileName, CustomItemRecord::kLength, custom);
    LoadCatalogue();
}

bool CatalogueStore::ServicesAndItemsExist() {
    // Both are tested, so that each absent file gets its chance to come back from /Backup.
    const bool items = m_disk.FileExists(InventoriedItemRecord::kFileName);
    const bool services = m_disk.FileExists(ServiceRecord::kFileName);
    return items && services;
}

} // namespace ostrel
