#include "frmSales.h"

#include "invoicing/AssociateJournal.h"
#include "shell/Session.h"
#include "util/VbText.h"
#include "store/LocaleText.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <optional>
#include <vector>

namespace ostrel {

frmSales::frmSales(Session& session)
    : Screen(QStringLiteral("frmSales")), m_session(session), m_printer(session, session.platform.printDialogs) {
    caption = QStringLiteral("Associate Sales Report");

    DTPicker1[0].toolTip = QStringLiteral("Start Date");
    DTPicker1[1].toolTip = QStringLiteral("End Date");
    Label1[6].caption = QStringLiteral("Select Sales Associate");

    fgSales.fixedRows = 1;
    fgSales.fixedCols = 0;
    fgSales.SetCols(7);
    fgSales.SetRows(1);
    const char* const headings[] = {"Transaction", "Date", "Account", "SubTotal", "Discount", "Tax", "Total"};
    for (int c = 0; c < 7; ++c) fgSales.SetTextMatrix(0, c, QString::fromLatin1(headings[c]));
    fgSales.colWidths = {2900, 1200, 1500, 1300, 1300, 1200, 1300};

    for (int i = 0; i < 4; ++i) lblTotal[i].caption = FormatMoney(Money());
    const char* const income[] = {"&L M", "M&TD", "&YTD", "&Eternity"};
    const char* const incomeTips[] = {"Last Month", "Month to Date", "Year to Date", "Every Sale since 1990"};
    for (int i = 0; i < 4; ++i) {
        cmdIncome[i].caption = QString::fromLatin1(income[i]);
        cmdIncome[i].toolTip = QString::fromLatin1(incomeTips[i]);
    }
    const char* const sales[] = {"&Menu", "&Load Grid", "&Delete Records", "&Print Report"};
    for (int i = 0; i < 4; ++i) cmdSales[i].caption = QString::fromLatin1(sales[i]);

    controls.add(QStringLiteral("DTPicker1"), DTPicker1);
    controls.add(QStringLiteral("cboAssociates"), cboAssociates);
    controls.add(QStringLiteral("Label1"), Label1);
    controls.add(QStringLiteral("fgSales"), fgSales);
    controls.add(QStringLiteral("lblTotal"), lblTotal);
    controls.add(QStringLiteral("cmdIncome"), cmdIncome);
    controls.add(QStringLiteral("cmdSales"), cmdSales);
    session.SetPointOfServiceList(PointOfServiceList::frmSales, &cboAssociates);
}

void frmSales::setStart(QDate d) {
    m_start = d;
    DTPicker1[0].value = d;
}

void frmSales::setEnd(QDate d) {
    m_end = d;
    DTPicker1[1].value = d;
}

void frmSales::Form_Activate() {
    const QDate today = m_session.today();
    setStart(QDate(today.year(), today.month(), 1));
    setEnd(today);
    if (cboAssociates.ListCount() > 0) cboAssociates.SetListIndex(0);
    const bool associates = !m_session.settings.program.isShopRepair();
    cboAssociates.visible = associates;
    Label1[6].visible = associates;
    LoadGrid();
}

std::pair<QDate, QDate> frmSales::PeriodOf(int index, QDate today) {
    switch (index) {
    case kLastMonth: {
        const QDate start = today.month() == 1 ? QDate(today.year() - 1, 12, 1)
                                               : QDate(today.year(), today.month() - 1, 1);
        // Back one day at a time until the month changes: the last day of last month.
        QDate end = today;
        while (end.month() == today.month()) end = end.addDays(-1);
        return {start, end};
    }
    case kMonthToDate:
        return {QDate(today.year(), today.month(), 1), today};
    case kYearToDate:
        return {QDate(today.year(), 1, 1), today};
    default:
        return {QDate(1990, 1, 1), today};
    }
}

void frmSales::cmdIncome_Click(int index) {
    const auto [start, end] = PeriodOf(index, m_session.today());
    setStart(start);
    setEnd(end);
    cmdSales_Click(kLoadGrid);
}

void frmSales::DTPicker1_Change(int index) {
    const QDate today = m_session.today();
    const QString invalid = QStringLiteral("Your Calendar Selection is Invalid");
    if (DTPicker1[index].value > today) {
        m_session.Beep();
        m_session.ShowMessage(invalid, QString());
        DTPicker1[index].value = today;
    }
    if (DTPicker1[1].value < DTPicker1[0].value) {
        m_session.ShowMessage(invalid, QString());
        DTPicker1[1].value = DTPicker1[0].value;
    }
    m_start = DTPicker1[0].value;
    m_end = DTPicker1[1].value;
}

void frmSales::cmdSales_Click(int index) {
    switch (index) {
    case kMenu:
        Hide();
        m_session.ShowScreen(ScreenId::frmStartup);
        break;
    case kLoadGrid:
        m_session.Guarded([&] { LoadGrid(); });
        break;
    case kDeleteRecords:
        m_session.Guarded([&] { DeleteRecords(); });
        break;
    case kPrintReport:
        PrintReport();
        break;
    default:
        break;
    }
}

namespace {

// The text of one sale's cell, as the report's rows show it.
QString saleCell(const AssociateJournalBytes& journal, qsizetype i, int column) {
    switch (column) {
    case frmSales::kTransaction: return vbTrim(journal.transaction(i));
    case frmSales::kDate: return ShortDateText(journal.journalDate(i));
    case frmSales::kAccount: return vbTrim(journal.account(i));
    case frmSales::kSubTotal: return FormatMoney(journal.subTotal(i));
    case frmSales::kDiscount: return FormatMoney(journal.discount(i));
    case frmSales::kTax: return FormatMoney(journal.tax(i));
    case frmSales::kNet: return FormatMoney(journal.gross(i) - journal.discount(i));
    default: return {};
    }
}

} // namespace

void frmSales::LoadGrid() {
    // A long journal is scanned on its bytes; a row's texts are made when something reads them.
    auto journal = std::make_shared<const AssociateJournalBytes>(ReadAssociateJournalBytes(m_session.disk));
    // The records shown, by number: a grid's rows are counted in int.
    const int count = static_cast<int>(std::min<qsizetype>(journal->count(), std::numeric_limits<int>::max() - 1));
    auto sales = std::make_shared<std::vector<int>>();
    sales->reserve(static_cast<size_t>(count));
    m_totals = Totals{};
    // The first entry of the list stands for every associate.
    const bool filtered = cboAssociates.listIndex > 0;
    const std::optional<QByteArray> associate =
        filtered ? AssociateJournalBytes::AssociateKey(vbTrim(cboAssociates.text)) : std::nullopt;
    if (!filtered || associate) {
        for (int i = 0; i < count; ++i) {
            const QDate date = journal->journalDate(i);
            if (date < m_start || date > m_end) continue;
            if (filtered && !journal->associateIs(i, *associate)) continue;
            sales->push_back(i);
            m_totals.discount += journal->discount(i);
            m_totals.tax += journal->tax(i);
            m_totals.subTotal += journal->subTotal(i);
            m_totals.gross += journal->gross(i);
        }
    }
    const int rows = static_cast<int>(sales->size());
    fgSales.SetRowSource(1, rows, [journal, sales](int r, int c) {
        return saleCell(*journal, (*sales)[static_cast<size_t>(r - 1)], c);
    });
    fgSales.row = rows > 0 ? 1 : 0;
    fgSales.topRow = 1;
    lblTotal[0].caption = FormatMoney(m_totals.subTotal);
    lblTotal[1].caption = FormatMoney(m_totals.discount);
    lblTotal[2].caption = FormatMoney(m_totals.tax);
    lblTotal[3].caption = FormatMoney(m_totals.gross - m_totals.discount);
}

} // namespace ostrel
