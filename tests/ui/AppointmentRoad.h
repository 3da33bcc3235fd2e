#pragma once

// The steps of the road of one appointment, each done through the program's real windows as a
// person does it. Tests of the later screens (work orders, invoice, schedules) go on from where
// these leave off.
#include "CatalogueSamples.h"
#include "ProgramWindows.h"
#include "ShippedData.h"
#include "binder/ClickableImage.h"
#include "catalogue/LaborRates.h"
#include "catalogue/ServiceRecord.h"
#include "store/DiskRoutines.h"
#include "store/TextStatements.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableWidget>

namespace ostrel::test {

namespace road {

inline QPushButton* button(const char* form, const QString& name) {
    return ProgramWindows::child<QPushButton>(QLatin1String(form), name);
}

inline void press(const char* form, const QString& name) {
    QPushButton* b = button(form, name);
    ASSERT_NE(b, nullptr);
    ASSERT_TRUE(b->isEnabled() && b->isVisible()) << name.toStdString();
    test::click(b);
    test::settle();
}

// Into the box, the keys, out of it.
inline void type(QLineEdit* box, const QString& text) {
    ASSERT_NE(box, nullptr);
    box->setFocus();
    test::focusIn(box);
    test::settle();
    test::typeText(box, text);
    test::focusOut(box);
    test::settle();
}

// A list entry chosen by its text, as a click on it.
inline void chooseInList(QListWidget* list, const QString& text) {
    ASSERT_NE(list, nullptr);
    const QList<QListWidgetItem*> found = list->findItems(text, Qt::MatchExactly);
    ASSERT_FALSE(found.isEmpty()) << text.toStdString();
    list->scrollToItem(found.first());
    test::click(list->viewport(), list->visualItemRect(found.first()).center());
    test::settle();
}

inline void chooseInCombo(QComboBox* combo, const QString& text) {
    ASSERT_NE(combo, nullptr);
    const int i = combo->findText(text);
    ASSERT_GE(i, 0) << text.toStdString();
    combo->setCurrentIndex(i);
    Q_EMIT combo->activated(i);
    test::settle();
}

} // namespace road

// The data folder as the program is installed: its two shipped files and the folders that no
// routine of the program makes.
inline void LayInstalledTree(TestDataRoot& t) {
    for (const char* name : {"StatesList.txt", "GenericContract.rtf"})
        t.writeBytes(QLatin1Char('/') + QLatin1String(name), shippedDataFile(QLatin1String(name)));
    for (const char* folder : {"/CompletedInvoices", "/OstrelInvoicer", "/OstrelInvoicer/Narratives", "/Templates",
                               "/Templates/Contracts"})
        t.makeDir(QLatin1String(folder));
}

// The catalogue the road sells from, written by the catalogue's own writers: Tune Up 1:00 at
// $45.00, Inspection 0:15 at $20.00; the item Filter in Parts at $12.50, 12 on hand; labor at
// $85.00 an hour.
inline void WriteRoadCatalogue(TestDataRoot& t) {
    t.writeBytes("/Services.txt", ServiceRecord{"Tune Up", "$45.00", 4}.toRecord().bytes() +
                                      ServiceRecord{"Inspection", "$20.00", 1}.toRecord().bytes());
    t.writeBytes("/OIInventoriedItems.txt", item("Filter", "Parts").toRecord().bytes());
    TextWriter labor;
    labor.write({QStringLiteral("General Labor"), QStringLiteral("$85.00")});
    labor.write({QString(), QString()});
    labor.write({QString(), QString()});
    t.disk().ReplaceTextFile(kLaborFileName, labor);
}

// The road's Monday morning, 23 November 2026.
inline const QDate kRoadDay(2026, 11, 23);

// The program started as installed on a first run, with the road's catalogue, at half past eight on
// the road's day; every print goes into a PDF file of its own.
inline void StartOnTheRoadsDay(ProgramWindows& w) {
    w.clock.set(kRoadDay, QTime(8, 30));
    w.options.clock = &w.clock;
    w.options.choosePrinter = w.printed.chooser();
    LayInstalledTree(w.t);
    WriteRoadCatalogue(w.t);
    w.start();
}

// Welcome, the logo into Setup, the business name and telephone, the Points of Service one by one,
// Quit: the menu comes up.
inline void FirstRunThroughSetup(ProgramWindows& w, const QString& business, const QString& telephone,
                                 const QStringList& pointsOfService, bool associateSales = false) {
    road::press("frmSplash", QStringLiteral("cmdContinue"));
    test::click(ProgramWindows::child<ui::ClickableImage>("frmSplash", "Image1(1)"));
    test::settle();
    ASSERT_TRUE(w.shown("frmSetup"));
    road::type(ProgramWindows::child<QLineEdit>("frmSetup", "txtBusiness(0)"), business);
    road::type(ProgramWindows::child<QLineEdit>("frmSetup", "txtBusiness(6)"), telephone);
    if (associateSales) {
        test::click(ProgramWindows::child<QRadioButton>("frmSetup", "optBusinessType(1)"));
        test::settle();
    }
    ProgramWindows::child<QTabWidget>("frmSetup", "tabInfo")->setCurrentIndex(4);
    test::settle();
    auto* areas = ProgramWindows::child<QComboBox>("frmSetup", "cboAssignments");
    for (const QString& name : pointsOfService) {
        areas->setFocus();
        test::typeText(areas->lineEdit(), name);
        road::press("frmSetup", QStringLiteral("cmdSave"));
    }
    road::press("frmSetup", QStringLiteral("cmdQuit"));
    ASSERT_TRUE(w.shown("frmStartup"));
}

// A routine of the main menu, by a double click on its button: the window of `form` comes up.
inline void OpenRoutine(ProgramWindows& w, int routine, const char* form) {
    auto* option = ProgramWindows::child<QRadioButton>("frmStartup", QStringLiteral("optMainMenuSub(%1)").arg(routine));
    ASSERT_NE(option, nullptr);
    ASSERT_TRUE(option->isVisible()) << routine;
    test::doubleClick(option);
    test::settle();
    ASSERT_TRUE(w.shown(QLatin1String(form))) << form;
}

// "Create an Appointment" on the menu.
inline void OpenCreateAnAppointment(ProgramWindows& w) { OpenRoutine(w, 5, "frmNewCustomer"); }

// A click on a cell of a table, as a person does it.
inline void ClickCell(const char* form, const QString& table, int row, int column) {
    auto* grid = ProgramWindows::child<QTableWidget>(QLatin1String(form), table);
    ASSERT_NE(grid, nullptr);
    QTableWidgetItem* cell = grid->item(row, column);
    ASSERT_NE(cell, nullptr) << table.toStdString() << " " << row << "," << column;
    grid->scrollToItem(cell);
    test::click(grid->viewport(), grid->visualItemRect(cell).center());
    test::settle();
}

// " Print &Work Order(s)": today's appointment from the list, out of the overview, Prepare, and
// Print Documents; the work order's question is answered Yes.
inline void PrintTheWorkOrder(ProgramWindows& w, const QString& slip) {
    OpenRoutine(w, 9, "frmWorkOrders");
    road::chooseInList(ProgramWindows::child<QListWidget>("frmWorkOrders", "lstWorkorders"), slip);
    road::press("frmWorkOrders", QStringLiteral("cmdWorkOrders(14)"));
    road::press("frmWorkOrders", QStringLiteral("cmdWorkOrders(9)"));
    road::press("frmWorkOrders", QStringLiteral("cmdWorkOrders(2)"));
}

// " &Invoice a Completed Appointment": the routine comes up chosen; the slip's row, then Create
// Invoice: the invoice screen opens on it.
inline void HandTheSlipToInvoicing(ProgramWindows& w) {
    OpenRoutine(w, 2, "frmAppointments");
    ClickCell("frmAppointments", QStringLiteral("fgAppointments"), 0, 2);
    road::press("frmAppointments", QStringLiteral("cmdAppointments(2)"));
    ASSERT_TRUE(w.shown("frmInvoice"));
}

// "Continue......", Print, "Finalize Invoice", then print it: the question is answered Yes and the
// invoice is posted.
inline void FinalizeAndPrintTheInvoice() {
    road::press("frmInvoice", QStringLiteral("cmdInvoice(0)"));
    road::press("frmInvoice", QStringLiteral("cmdPrint"));
    road::press("frmInvoice", QStringLiteral("cmdInvoice(9)"));
    road::press("frmInvoice", QStringLiteral("cmdInvoiceContinue"));
}

// "Reprint Completed Invoices": the invoice's row, then RePrint.
inline void ReprintTheInvoice(ProgramWindows& w) {
    OpenRoutine(w, 12, "frmReprint");
    ClickCell("frmReprint", QStringLiteral("fgReceivables"), 0, 0);
    road::press("frmReprint", QStringLiteral("cmdPrint"));
}

struct RoadCustomer {
    QString account, first, last, street, telephone;
};

// Types a person into the account screen's boxes (the screen opens on an empty form when the
// customer file is empty).
inline void TypeCustomer(const RoadCustomer& c) {
    const auto box = [](int i) {
        return ProgramWindows::child<QLineEdit>("frmNewCustomer", QStringLiteral("txtCustomer(%1)").arg(i));
    };
    road::type(box(0), c.account);
    road::type(box(8), c.first);
    road::type(box(10), c.last);
    road::type(box(2), c.street);
    road::type(box(6), c.telephone);
}

// "Select this Account and Start Routine": the customer is saved and the appointment screen opens.
inline void SelectCustomer(ProgramWindows& w) {
    road::press("frmNewCustomer", QStringLiteral("cmdCustomer(1)"));
    ASSERT_TRUE(w.shown("frmCreate"));
}

// Ticks a service's box in the list and presses "Add Service to Appointment".
inline void AddService(const QString& name) {
    auto* list = ProgramWindows::child<QListWidget>("frmCreate", "lstServices");
    ASSERT_NE(list, nullptr);
    const QList<QListWidgetItem*> found = list->findItems(name, Qt::MatchExactly);
    ASSERT_FALSE(found.isEmpty()) << name.toStdString();
    found.first()->setCheckState(Qt::Checked);
    test::settle();
    road::press("frmCreate", QStringLiteral("cmdService(11)"));
}

// A category, an item, the quantity typed, Calculate, "Add Item to Appointment".
inline void AddSalesItem(const QString& category, const QString& item, const QString& quantity) {
    road::chooseInList(ProgramWindows::child<QListWidget>("frmCreate", "lstCategories"), category);
    road::chooseInCombo(ProgramWindows::child<QComboBox>("frmCreate", "cboItems"), item);
    road::type(ProgramWindows::child<QLineEdit>("frmCreate", "txtQuantity"), quantity);
    road::press("frmCreate", QStringLiteral("cmdService(10)"));
    road::press("frmCreate", QStringLiteral("cmdService(9)"));
}

// "Create Appointment", then "Schedule Appointment for This Date": the day grid comes up.
inline void CreateAndOpenTheDay() {
    road::press("frmCreate", QStringLiteral("cmdService(6)"));
    road::press("frmCreate", QStringLiteral("cmdService(13)"));
}

// A click on the time column of a row of the day grid (rows 1 to 48).
inline void ClickDayRow(int row) {
    auto* grid = ProgramWindows::child<QTableWidget>("frmCreate", "fgDaySchedule");
    ASSERT_NE(grid, nullptr);
    QTableWidgetItem* cell = grid->item(row - 1, 0);
    ASSERT_NE(cell, nullptr);
    test::click(grid->viewport(), grid->visualItemRect(cell).center());
    test::settle();
}

// "Schedule Appointment    Save Day Schedule".
inline void SaveDaySchedule() { road::press("frmCreate", QStringLiteral("cmdService(2)")); }

// "Print Invoice AFTER Saving Day Schdule" ticked.
inline void TickPrintInvoiceAfterSaving() {
    auto* box = ProgramWindows::child<QCheckBox>("frmCreate", "ckPrintInvoice");
    ASSERT_NE(box, nullptr);
    test::click(box);
    test::settle();
    ASSERT_TRUE(box->isChecked());
}

// A menu entry of a window, as a click on it.
inline void ChooseMenu(const char* form, const QString& name) {
    auto* entry = ProgramWindows::child<QAction>(QLatin1String(form), name);
    ASSERT_NE(entry, nullptr);
    ASSERT_TRUE(entry->isEnabled()) << name.toStdString();
    entry->trigger();
    test::settle();
}

// On the invoice: hours of the first labor rate, calculated and added to the body.
inline void AddLaborHours(const QString& hours) {
    ChooseMenu("frmInvoice", QStringLiteral("mnuLabor"));
    road::type(ProgramWindows::child<QLineEdit>("frmInvoice", "txtHours(0)"), hours);
    road::press("frmInvoice", QStringLiteral("cmdLabor(0)"));
    road::press("frmInvoice", QStringLiteral("cmdLabor(1)"));
}

// On the invoice: a catalogue item and its units, posted to the body.
inline void AddInvoiceItem(const QString& item, const QString& units) {
    ChooseMenu("frmInvoice", QStringLiteral("mnuItems"));
    road::chooseInCombo(ProgramWindows::child<QComboBox>("frmInvoice", "cboDescription(1)"), item);
    road::type(ProgramWindows::child<QLineEdit>("frmInvoice", "txtUnits"), units);
    road::press("frmInvoice", QStringLiteral("cmdPost(1)"));
}

} // namespace ostrel::test
