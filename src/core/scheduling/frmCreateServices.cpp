// Building the appointment: services, the additional service and comments, sales items, summary.
#include "frmCreate.h"

#include "SlotArithmetic.h"
#include "catalogue/frmServices.h"
#include "shell/KeyFilters.h"
#include "shell/Session.h"
#include "util/VbText.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ostrel {

namespace {

// The inventoried items grid of the catalogue screen: description, category, ..., sell price.
constexpr int kItemDescription = 0;
constexpr int kItemCategory = 1;
constexpr int kItemSellPrice = 3;

// Amounts on this screen are shown in currency form; an amount that does not read counts as 0.
Money amountOf(const QString& text) { return Money::fromDisplayText(text).value_or(Money()); }

// A quantity as the number test takes it ("2", "1.5", " 3 "); nothing when it is not a number.
std::optional<qint64> quantityOf(const QString& text) {
    const QString t = text.trimmed();
    if (t.isEmpty()) return std::nullopt;
    bool ok = false;
    const double v = t.toDouble(&ok);
    if (!ok || !std::isfinite(v)) return std::nullopt;
    return static_cast<qint64>(std::llround(v * 10000.0));
}

// Price times quantity, to the ten-thousandth, halves to even as currency arithmetic rounds. A
// product past 64 bits counts as 0, which the total then shows.
Money times(Money price, qint64 quantityTenThousandths) {
    qint64 product = 0;
    if (__builtin_mul_overflow(price.tenThousandths(), quantityTenThousandths, &product)) return Money();
    qint64 q = product / 10000;
    const qint64 r = product % 10000;
    const qint64 twice = (r < 0 ? -r : r) * 2;
    if (twice > 10000 || (twice == 10000 && (q % 2) != 0)) q += product < 0 ? -1 : 1;
    return Money::fromTenThousandths(q);
}

bool rowHasText(const Grid& g, int row) {
    for (int c = 0; c < g.Cols(); ++c)
        if (!g.TextMatrix(row, c).isEmpty()) return true;
    return false;
}

// Slots is a 16-bit count in the slip; it stops at its largest value instead of wrapping.
qint16 addSlots(qint16 slots, int more) {
    const int sum = static_cast<int>(slots) + more;
    return static_cast<qint16>(std::clamp(sum, 0, static_cast<int>(std::numeric_limits<qint16>::max())));
}

} // namespace

void frmCreate::cmdService_Click(int index) {
    switch (index) {
    case kMenu: ReturnToMenu(); break;
    case kCloseWithoutSaving: CloseWithoutSaving(); break;
    case kSchedule: SaveScheduled(); break;
    case kClearAdded: ClearAddedService(); break;
    case kSaveUnscheduled: SaveUnscheduled(); break;
    case kCloseAddTo: CloseAddTo(); break;
    case kCreateAppointment: CreateAppointment(); break;
    case kClearComments: txtComments.text.clear(); break;
    case kStartOverSummary:
    case kStartOverItems: ClearStartOver(); break;
    case kAddItem: AddItem(); break;
    case kCalculate: Calculate(); break;
    case kAddService: AddService(); break;
    case kScheduleForDate: ShowDaySchedule(); break;
    case kDifferentDate: SelectDifferentDate(); break;
    case kAllServicesSelected: fraServices.visible = false; break;
    default: break;
    }
}

// Services.

void frmCreate::lstServices_Click() { cmdService[kAddService].enabled = true; }

void frmCreate::AddService() {
    lstAssignments.enabled = false;
    int checked = -1;
    for (int i = 0; i < lstServices.ListCount() && checked < 0; ++i)
        if (ServiceChecked(i)) checked = i;
    if (checked < 0) {
        Box(QStringLiteral("Click on the Services Checkbox [] to Proceed"));
        return;
    }
    // The grid takes the current entry of the list, the count and the cost the first checked one.
    const int current = lstServices.listIndex;
    const int row = fgServices.Rows() - 1;
    fgServices.SetTextMatrix(row, 0, lstServices.List(current));
    fgServices.SetTextMatrix(row, 1, cboServicesCost.List(current));
    fgServices.SetTextMatrix(row, 2, cboTime.List(current));
    fgServices.SetRows(fgServices.Rows() + 1);
    fgServices.row = fgServices.Rows() - 1;

    Slots = addSlots(Slots, ParseTimeLabel(cboTime.List(checked)));
    TotalCost += amountOf(cboServicesCost.List(checked));
    SetServiceChecked(checked, false);

    fraServices.visible = true;
    cmdService[kAddService].enabled = false;
}

void frmCreate::fgServices_RightClick() {
    // Removing a row gives back neither its time nor its cost.
    if (fgServices.Rows() - fgServices.fixedRows < 2)
        EmptyToOneBlankRow(fgServices);
    else
        RemoveGridRow(fgServices, fgServices.row);
}

void frmCreate::fgItems_RightClick() {
    if (fgItems.row == 1)
        EmptyToOneBlankRow(fgItems);
    else
        RemoveGridRow(fgItems, fgItems.row);
}

// The additional service and the comments.

void frmCreate::txtAdditional_Change() { cmdService[kClearAdded].enabled = true; }

void frmCreate::txtCost_GotFocus() {
    if (txtCost.text == zeroMoney()) txtCost.text.clear();
}

void frmCreate::txtCost_LostFocus() {
    if (const std::optional<Money> v = Money::fromDisplayText(txtCost.text)) txtCost.text = FormatMoney(*v);
}

void frmCreate::txtCost_KeyPress(int& keyAscii) {
    if (keyAscii == kKeyBackspace) return;
    keyAscii = CurrencyKeyFilter(keyAscii, txtCost.text,
                                 KeyFilterEnv{m_session.platform.dialogs, m_session.settings.program.alarms()});
}

void frmCreate::CloseAddTo() {
    if (!txtAdditional.text.isEmpty() && lstTime.listIndex < 0) {
        Box(QStringLiteral("Select a Time before Exiting"));
        return;
    }
    lstAssignments.enabled = false;
    AdditionalFlag = true;
    if (txtComments.text.isEmpty() && txtAdditional.text.isEmpty()) {
        AdditionalFlag = false;
        return;
    }
    fraAddTo.visible = false;
    mnuAddto.enabled = false;
}

void frmCreate::CloseWithoutSaving() {
    ClearAddedService();
    txtComments.text.clear();
    mnuAddto.enabled = true;
    fraAddTo.visible = false;
}

void frmCreate::ClearAddedService() {
    txtAdditional.text.clear();
    txtCost.text = zeroMoney();
    lstTime.SetListIndex(-1);
}

// Sales items.

void frmCreate::lstCategories_Click() {
    cboItems.Clear();
    cboItemPrices.Clear();
    txtQuantity.text.clear();
    const frmServices* catalogue = m_session.ScreenAs<frmServices>(ScreenId::frmServices);
    if (!catalogue) return;
    const QString category = lstCategories.text;
    const Grid& g = catalogue->fgItems;
    for (int r = 1; r < g.Rows(); ++r) {
        if (g.TextMatrix(r, kItemCategory) != category) continue;
        cboItems.AddItem(g.TextMatrix(r, kItemDescription));
        cboItemPrices.AddItem(g.TextMatrix(r, kItemSellPrice));
    }
    if (cboItems.ListCount() > 0) {
        cboItems.SetListIndex(0);
        cboItemPrices.SetListIndex(0);
    }
}

void frmCreate::cboItems_Click() {
    if (cboItems.listIndex >= 0 && cboItems.listIndex < cboItemPrices.ListCount())
        cboItemPrices.SetListIndex(cboItems.listIndex);
    txtQuantity.text.clear();
    Focus(txtQuantity);
}

void frmCreate::Calculate() {
    if (!quantityOf(txtQuantity.text)) txtQuantity.text = QStringLiteral("1");
    const Money price = amountOf(cboItemPrices.text);
    lblItemTotal.caption = FormatMoney(times(price, quantityOf(txtQuantity.text).value_or(10000)));
}

void frmCreate::AddItem() {
    lstAssignments.enabled = false;
    if (txtQuantity.text.isEmpty()) {
        Box(QStringLiteral("Enter a Quantity for this Item"));
        Focus(txtQuantity);
        return;
    }
    fraItems.visible = true;
    if (lblItemTotal.caption.isEmpty()) Calculate();
    const int row = fgItems.Rows() - 1;
    fgItems.SetTextMatrix(row, 0, txtQuantity.text);
    fgItems.SetTextMatrix(row, 1, cboItems.text);
    fgItems.SetTextMatrix(row, 2, cboItemPrices.text);
    fgItems.SetTextMatrix(row, 3, lblItemTotal.caption);
    fgItems.SetRows(fgItems.Rows() + 1);
    fgItems.row = fgItems.Rows() - 1;
    lblItemTotal.caption.clear();
    txtQuantity.text.clear();
}

// The summary.

void frmCreate::CreateAppointment() {
    // Each press adds the additional time and the costs again: the summary is built on top of
    // what the screen holds, not from scratch.
    txtServicesSummary.text.clear();
    if (AdditionalFlag) Slots = addSlots(Slots, lstTime.listIndex + 1);
    lblTime.caption = SlotsAsTime(Slots);

    EmptyToOneBlankRow(fgItemSummary);
    for (int r = 1; r < fgServices.Rows(); ++r)
        if (!fgServices.TextMatrix(r, 0).isEmpty())
            txtServicesSummary.text += fgServices.TextMatrix(r, 0) + QStringLiteral("\r\n");

    if (!txtAdditional.text.isEmpty()) {
        txtServicesSummary.text += txtAdditional.text;
        TotalCost += amountOf(txtCost.text);
    }

    for (int r = 1; r < fgItems.Rows(); ++r) {
        if (!rowHasText(fgItems, r)) continue;
        const int to = fgItemSummary.Rows() - 1;
        for (int c = 0; c < 4; ++c)
            fgItemSummary.SetTextMatrix(to, c, fgItems.TextMatrix(r, c));
        fgItemSummary.SetRows(fgItemSummary.Rows() + 1);
        TotalCost += amountOf(fgItems.TextMatrix(r, 3));
    }

    lblCost.caption = FormatMoney(TotalCost);
    fraSummary.visible = true;
}

} // namespace ostrel
