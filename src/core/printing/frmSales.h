#pragma once

#include "PrinterRoutines.h"
#include "controls/Controls.h"
#include "controls/PickerControls.h"
#include "controls/Screen.h"
#include "platform/ControlRegistry.h"
#include "store/Money.h"

#include <QDate>

namespace ostrel {

class Session;

// The associate sales report: the sales of the journal for a period and one associate, their totals,
// the printed report, and the deletion of the journal's records of a period.
class frmSales : public Screen {
public:
    enum Column { kTransaction = 0, kDate = 1, kAccount = 2, kSubTotal = 3, kDiscount = 4, kTax = 5, kNet = 6 };
    enum Command { kMenu = 0, kLoadGrid = 1, kDeleteRecords = 2, kPrintReport = 3 };
    enum Period { kLastMonth = 0, kMonthToDate = 1, kYearToDate = 2, kEternity = 3 };

    explicit frmSales(Session& session);

    // Each activation: this month so far, every associate, the associate controls by style, loaded.
    void Form_Activate() override;

    void cmdIncome_Click(int index);
    void cmdSales_Click(int index);
    // The user changed DTPicker1(index); its value holds the new date.
    void DTPicker1_Change(int index);

    ControlArray<DatePicker> DTPicker1; // 0 start, 1 end
    ComboBox cboAssociates;
    ControlArray<Label> Label1; // 6: "Select Sales Associate"
    Grid fgSales;
    ControlArray<Label> lblTotal; // 0 sub-total, 1 discounts, 2 tax, 3 revenue
    ControlArray<CommandButton> cmdIncome;
    ControlArray<CommandButton> cmdSales;

    ControlRegistry controls;

    QDate StartDate() const { return m_start; }
    QDate EndDate() const { return m_end; }

    // The running totals of the last load.
    struct Totals {
        Money discount, tax, subTotal, gross;
    };
    const Totals& totals() const { return m_totals; }

    // The period a cmdIncome button stands for, on the day `today`.
    static std::pair<QDate, QDate> PeriodOf(int index, QDate today);

private:
    void LoadGrid();
    void DeleteRecords();
    void PrintReport();
    void DeleteStrayTempFile();
    void setStart(QDate d);
    void setEnd(QDate d);

    Session& m_session;
    PrinterRoutines m_printer;
    QDate m_start;
    QDate m_end;
    Totals m_totals;
};

} // namespace ostrel
