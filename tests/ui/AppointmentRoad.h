#pragma once

// The steps of the road of one appointment, each done through the program's real windows as a
// person does it. Tests of the later screens (work orders, invoice, schedules) go on from where
// these leave off.
#include "CatalogueSamples.h"
#include "ProgramWindows.h"
#include "binder/ClickableImage.h"
#include "catalogue/ServiceRecord.h"

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

// The catalogue the road sells from, written by the catalogue's own record writers: Tune Up 1:00
// at $45.00, Inspection 0:15 at $20.00; the item Filter in Parts at $12.50.
inline void WriteRoadCatalogue(TestDataRoot& t) {
    t.writeBytes("/Services.txt", ServiceRecord{"Tune Up", "$45.00", 4}.toRecord().bytes() +
                                      ServiceRecord{"Inspection", "$20.00", 1}.toRecord().bytes());
    t.writeBytes("/OIInventoriedItems.txt", item("Filter", "Parts").toRecord().bytes());
}

// Welcome, the logo into Setup, the business name and telephone, the Points of Service one by one,
// Quit: the menu comes up.
inline void FirstRunThroughSetup(ProgramWindows& w, const QString& business, const QString& telephone,
                                 const QStringList& pointsOfService) {
    road::press("frmSplash", QStringLiteral("cmdContinue"));
    test::click(ProgramWindows::child<ui::ClickableImage>("frmSplash", "Image1(1)"));
    test::settle();
    ASSERT_TRUE(w.shown("frmSetup"));
    road::type(ProgramWindows::child<QLineEdit>("frmSetup", "txtBusiness(0)"), business);
    road::type(ProgramWindows::child<QLineEdit>("frmSetup", "txtBusiness(6)"), telephone);
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

// "Create an Appointment" on the menu, by a double click on its button.
inline void OpenCreateAnAppointment(ProgramWindows& w) {
    auto* option = ProgramWindows::child<QRadioButton>("frmStartup", "optMainMenuSub(5)");
    ASSERT_NE(option, nullptr);
    test::doubleClick(option);
    test::settle();
    ASSERT_TRUE(w.shown("frmNewCustomer"));
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

} // namespace ostrel::test
