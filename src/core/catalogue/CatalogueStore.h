#pragma once

#include "CatalogueGrids.h"
#include "CatalogueLists.h"
#include "LaborRates.h"
#include "store/DiskRoutines.h"
#include "store/Record.h"

#include <QStringList>
#include <QVector>

namespace ostrel {

// The catalogue routines of frmServices: the loads fill its grids and the lists of the other
// screens from the files, SaveCatalogue rewrites the files from the grids. Nothing is cached: each
// routine opens, reads or writes and closes within the call.
class CatalogueStore {
public:
    CatalogueStore(DiskRoutines& disk, CatalogueGrids& grids, CatalogueLists& lists);

    void LoadLabor() { ostrel::LoadLabor(m_disk, m_grids); }
    void SaveLabor() { ostrel::SaveLabor(m_disk, m_grids); }

    // Each load fills its grid (one row per record below the heading) and its lists, in file order,
    // and returns true. An absent file changes nothing and gives false. A file of more than 255
    // records is refused with a StoreError before anything changes.
    bool LoadServices();
    bool LoadInventoriedItems(); // also rebuilds the categories and the item discount tables
    bool LoadCustomItems();      // also the custom discount tables; appended to cboItems
    // Services, inventoried items and custom items, in this order.
    void LoadCatalogue();

    // Adds a category to cboCategory and the two category lists unless cboCategory has an entry
    // equal to it; an empty name is ignored. The entry added is the trimmed name.
    void AddCategory(const QString& name);

    // Rewrites the three files from the grids, in the order services, inventoried items, custom
    // items, and reloads each that exists afterwards. A grid whose first data cell is empty leaves
    // no file; the lists then keep what they held. All three grids are checked first: a cell that
    // is not a number, or more than 255 rows, stops the save with a StoreError and no file changed.
    void SaveCatalogue();

    // True when both /Services.txt and /OIInventoriedItems.txt exist: the menu then offers
    // appointment creation first, and the catalogue routine until then.
    bool ServicesAndItemsExist();

    DiskRoutines& disk() { return m_disk; }
    CatalogueGrids& grids() { return m_grids; }
    CatalogueLists& lists() { return m_lists; }

private:
    QVector<Record> serviceRecordsFromGrid() const;
    QVector<Record> itemRecordsFromGrid() const;
    QVector<Record> customRecordsFromGrid() const;
    QString timeEntry(int index) const;
    qint16 timeIndexOf(const QString& text) const;
    void removeCustomItemsFromCreateLists();

    DiskRoutines& m_disk;
    CatalogueGrids& m_grids;
    CatalogueLists& m_lists;
    // The custom items the last LoadCustomItems appended to cboItems, so that a reload of the custom
    // items alone replaces them instead of adding them twice.
    QStringList m_customInCreateLists;
};

} // namespace ostrel
