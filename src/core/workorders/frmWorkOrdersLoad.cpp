#include "frmWorkOrders.h"

#include "scheduling/SlotArithmetic.h"
#include "shell/Session.h"
#include "store/DiskRoutines.h"
#include "store/Money.h"
#include "store/StoreError.h"
#include "util/VbText.h"
#include "store/LocaleText.h"

namespace ostrel {

namespace {

const QString kAppointmentsFolder = QStringLiteral("/Appointments");

// Columns of the overview.
enum OverviewColumn { kSlipName, kDate, kAccount, kCustomer, kPointOfServiceName, kPointOfService, kStatus };

} // namespace

void frmWorkOrders::LoadWorkorders() {
    clearEntries();
    cmdWorkOrders[3].enabled = false;
    int findBy = 0;
    for (int i = 0; i <= 2; ++i)
        if (optFindBy[i].value) {
            findBy = i;
            break;
        }

    QStringList names;
    for (const QString& file : m_session.root.list(kAppointmentsFolder))
        if (file.endsWith(QLatin1String(".txt"), Qt::CaseInsensitive)) names << file.left(file.size() - 4);
    if (names.isEmpty()) return;
    const bool overLimit = names.size() > kMostSlips;
    if (overLimit) names = names.mid(0, kMostSlips);

    bool added = false;
    for (const QString& name : names) {
        const AppointmentSlip slip = ReadSlipHeader(m_session.disk, name);
        if (PurgeMode) {
            addEntry(slip.SlipName);
            continue;
        }
        if (!OverviewBuilt) {
            addOverviewRow(slip);
            added = true;
            if (slip.SlipDate < m_session.today()) cmdWorkOrders[8].enabled = true;
        }
        const bool onDate = slip.SlipDate == DTPicker1.value;
        const bool atPlace = pointOfServiceSelected(slip.SlipPointOfService);
        if ((findBy == 0 && onDate) || (findBy == 1 && atPlace) || (findBy == 2 && onDate && atPlace))
            addEntry(slip.SlipName);
    }
    if (!PurgeMode && added) {
        OverviewBuilt = true;
        fgOverview.SetRows(fgOverview.Rows() - 1); // the spare row
        fraOverview.visible = true;
    }
    if (overLimit)
        m_session.ShowMessage(QStringLiteral("The folder %1 holds more than %2 appointments.").arg(kAppointmentsFolder)
                                      .arg(kMostSlips) +
                                  u'\n' +
                                  QStringLiteral("Only the first %1 are listed: purge the expired ones.")
                                      .arg(kMostSlips),
                              QStringLiteral("Too Many Appointments"));
}

void frmWorkOrders::addOverviewRow(const AppointmentSlip& slip) {
    // The grid always keeps one spare row at its end while it is being filled.
    const int r = fgOverview.Rows() - 1;
    fgOverview.SetTextMatrix(r, kSlipName, slip.SlipName);
    fgOverview.SetTextMatrix(r, kDate, dateText(slip.SlipDate));
    fgOverview.SetTextMatrix(r, kAccount, slip.Customer[0]);
    fgOverview.SetTextMatrix(r, kCustomer, slip.Customer[1]);
    fgOverview.SetTextMatrix(r, kPointOfServiceName, lstAssignments.List(slip.SlipPointOfService - 1));
    fgOverview.SetTextMatrix(r, kPointOfService, QString::number(slip.SlipPointOfService));
    fgOverview.SetTextMatrix(r, kStatus, slip.Status);
    fgOverview.SetRows(r + 2);
}

bool frmWorkOrders::pointOfServiceSelected(int number) const {
    return number >= 1 && lstAssignments.listIndex == number - 1;
}

QStringList frmWorkOrders::selectedEntries() const {
    QStringList out;
    for (int i = 0; i < lstWorkorders.ListCount(); ++i)
        if (EntrySelected(i)) out << lstWorkorders.List(i);
    return out;
}

void frmWorkOrders::clearEntries() {
    lstWorkorders.Clear();
    m_entrySelected.clear();
}

void frmWorkOrders::addEntry(const QString& slipName) {
    lstWorkorders.AddItem(slipName);
    m_entrySelected.resize(lstWorkorders.ListCount());
}

void frmWorkOrders::loadCommand() {
    if (!optFindBy[0].value && lstAssignments.listIndex < 0) {
        m_session.platform.dialogs.MsgBox(QStringLiteral("Select a Point of Service before loading Work Orders"));
        return;
    }
    Reset();
    LoadWorkorders();
    Label1[2].visible = true;
    imgSave[1].enabled = true;
}

void frmWorkOrders::fgOverview_Click() {
    const int r = fgOverview.row;
    if (r < 1 || r >= fgOverview.Rows() || fgOverview.TextMatrix(r, kSlipName).isEmpty()) return;
    fraInstructions.visible = false;
    clearEntries();
    const QDate date = ParseShortDate(fgOverview.TextMatrix(r, kDate));
    if (date < m_session.today()) {
        m_session.platform.dialogs.MsgBox(QStringLiteral("You can not modify this Appointment") + u'\n' +
                                          QStringLiteral("The Appointment date has passed"));
        return;
    }
    DTPicker1.value = date;
    const int entry = fgOverview.TextMatrix(r, kPointOfService).toInt() - 1;
    if (entry >= 0 && entry < lstAssignments.ListCount()) lstAssignments.SetListIndex(entry);
    optFindBy_Click(2);
    addEntry(fgOverview.TextMatrix(r, kSlipName));
    fraOverview.visible = false;
    lstWorkorders.SetListIndex(0);
    lstWorkorders_Click();
    Label1[2].visible = false;
    imgSave[1].enabled = false;
}

void frmWorkOrders::lstWorkorders_Click() {
    const int index = lstWorkorders.listIndex;
    if (index < 0 || index >= lstWorkorders.ListCount()) return;
    m_entrySelected.resize(lstWorkorders.ListCount());
    m_entrySelected[index] = true;
    cmdWorkOrders_Click(5);
}

void frmWorkOrders::lstWorkorders_ItemCheck(int index, bool selected) {
    if (index < 0 || index >= lstWorkorders.ListCount()) return;
    m_entrySelected.resize(lstWorkorders.ListCount());
    m_entrySelected[index] = selected;
    lstWorkorders.SetListIndex(index);
    cmdWorkOrders_Click(5);
}

void frmWorkOrders::loadSelected() {
    ServicesAdded = false;
    emptyGrid(fgServices);
    emptyGrid(fgItemsAdded);
    const QStringList entries = selectedEntries();
    for (const QString& name : entries) {
        m_slip = ReadSlip(m_session.disk, name);
        if (!m_session.disk.FileExists(servicesFileName(name)))
            throw StoreError(servicesFileName(name),
                             QStringLiteral("The appointment has no list of services, so its work order cannot be "
                                            "loaded."));
        for (const SlipService& s : ReadServicesFile(m_session.disk, name))
            appendRow(fgServices, {s.name, BuildTime(s.slots), FormatMoney(s.cost), QString::number(s.slots)});
    }
    if (!entries.isEmpty()) cmdWorkOrders[6].enabled = true;

    // The pick list is that of the entry at the list index alone.
    emptyGrid(fgPicklist);
    const QString current = lstWorkorders.List(lstWorkorders.listIndex);
    const bool parts = !entries.isEmpty() && !current.isEmpty() && SoldItemsFileExists(m_session.disk, current);
    if (parts)
        for (const SlipSoldItem& item : ReadSoldItemsFile(m_session.disk, current))
            appendRow(fgPicklist, {item.quantity, item.description});
    ckPick.enabled = parts;
    cmdWorkOrders[12].enabled = parts;
    cmdWorkOrders[7].enabled = true;
    cmdWorkOrders[9].enabled = true;
}

} // namespace ostrel
