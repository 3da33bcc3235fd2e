#include "frmInvoice.h"

#include "catalogue/VolumePrice.h"
#include "catalogue/frmServices.h"
#include "setup/NumericText.h"
#include "setup/frmSetup.h"
#include "shell/GridRoutines.h"
#include "shell/KeyFilters.h"
#include "shell/Session.h"
#include "store/LocaleText.h"

namespace ostrel {

namespace {
constexpr int kKeyEnter = 13;
const QString kHours = QStringLiteral("Hrs");
} // namespace

bool frmInvoice::taxFlag(int kind) const {
    const ProgramSettings& program = m_session.settings.program;
    switch (kind) {
    case kPostService:
        return program.taxServices();
    case kPostItem:
        return program.taxSalesItems();
    default: {
        // "Tax Custom Sales Items" lives on the Setup screen only and starts unticked each run.
        const frmSetup* setup = m_session.ScreenAs<frmSetup>(ScreenId::frmSetup);
        return setup && setup->ckCustom.checked();
    }
    }
}

frmInvoice::LaborTexts frmInvoice::laborTexts() const {
    LaborTexts out;
    if (const frmServices* services = m_session.ScreenAs<frmServices>(ScreenId::frmServices))
        for (int i = 0; i <= 2; ++i) {
            out.heading[i] = services->txtLabor[i].text;
            out.rate[i] = services->txtLaborRate[i].text;
        }
    return out;
}

void frmInvoice::AddLineRow(int row, const QString& quantity, const QString& description, const QString& date,
                            const QString& price, const QString& extension, const QString& taxed) {
    fgInvoice.SetTextMatrix(row, kQuantity, quantity);
    fgInvoice.SetTextMatrix(row, kDescription, description);
    fgInvoice.SetTextMatrix(row, kServiceDate, date);
    fgInvoice.SetTextMatrix(row, kUnitPrice, price);
    fgInvoice.SetTextMatrix(row, kExtension, extension);
    fgInvoice.SetTextMatrix(row, kApplyTax, taxed);
}

void frmInvoice::cmdPost_Click(int index) {
    const int k = index == kPostCustom ? 2 : index;
    ComboBox& description = m_lists.frmInvoice.cboDescription[k];
    ComboBox& priceList = m_lists.frmInvoice.cboPrice[k];
    cmdPrint.enabled = true;

    if (priceList.text.isEmpty() || !IsNumericText(priceList.text)) return refuse(priceList);
    Money price = Money::fromDisplayText(priceList.text).value_or(Money());
    if (description.text.isEmpty()) return refuse(description);

    TextBox* units = nullptr;
    if (index == kPostItem) {
        units = &txtUnits;
        Label4[42].visible = false;
    } else if (index == kPostCustom) {
        units = &txtCUnits;
    }
    if (units) {
        if (units->text.isEmpty()) return refuse(*units);
        // The discount follows the position of the price in its list: a price typed by hand has
        // none, and gets no discount.
        const double count = units->text.toDouble();
        if (ckApplyVolumeDiscount.checked()) {
            const bool item = index == kPostItem;
            const QVector<qint32>& quantities = item ? m_lists.ItemDiscountQuantity : m_lists.CustomDiscountQuantity;
            const QVector<qint64>& prices = item ? m_lists.ItemDiscountPrice : m_lists.CustomDiscountPrice;
            if (VolumePriceApplies(quantities, priceList.listIndex, count)) {
                price = Money::fromTenThousandths(
                    VolumePrice(prices, quantities, priceList.listIndex, count, price.tenThousandths()));
                if (item) Label4[42].visible = true;
            }
        }
    }

    if (LineCount >= kMaxLines) {
        // The grid has no row for a 101st line: refused, and the body stays as it is.
        m_session.Beep();
        message(QStringLiteral("The Invoice is full"));
        cmdPost[index].enabled = false;
        return;
    }
    const int row = LineCount + 1;
    const QString taxed = taxFlag(index) ? kTrue : kFalse;
    if (index == kPostService) {
        // A service posted by hand has no quantity, whatever the instructions suggest.
        AddLineRow(row, QString(), description.text, ShortDateText(DTPicker1), FormatMoney(price), FormatMoney(price),
                   taxed);
    } else {
        const Money extension = Money::fromDouble(price.toDouble() * units->text.toDouble());
        AddLineRow(row, units->text, description.text, QString(), FormatMoney(price), FormatMoney(extension), taxed);
    }
    ++LineCount;
    if (LineCount == kMaxLines) {
        m_session.Beep();
        message(QStringLiteral("The Invoice is full"));
        cmdPost[index].enabled = false;
    }
    txtUnits.text.clear();
    txtCUnits.text.clear();
    description.SetListIndex(-1);
    description.text.clear();
    priceList.SetListIndex(-1);
    priceList.text.clear();
    description.SetFocus();
}

void frmInvoice::cboDescription_Click(int k) {
    ComboBox& description = m_lists.frmInvoice.cboDescription[k];
    ComboBox& price = m_lists.frmInvoice.cboPrice[k];
    const int at = description.listIndex;
    if (at < 0) return;
    price.SetListIndex(k == 2 ? description.ItemData(at) : at);
    if (k == 1) txtUnits.SetFocus();
    if (k == 2) txtCUnits.SetFocus();
}

void frmInvoice::cboDescription_KeyDown(int /*k*/, int keyCode) {
    // Delete and Backspace stop the completion for one pass, so that a letter can be taken back.
    constexpr int kKeyDelete = 46;
    if (keyCode == kKeyBackspace || keyCode == kKeyDelete) m_completionPass = true;
}

void frmInvoice::cboDescription_Change(int k) {
    ComboBox& description = m_lists.frmInvoice.cboDescription[k];
    txtUnits.text.clear();
    txtCUnits.text.clear();
    if (m_completionPass) {
        m_completionPass = false;
        return;
    }
    const QString typed = description.text;
    if (typed.isEmpty()) return;
    for (const QString& entry : description.items) {
        if (!entry.startsWith(typed, Qt::CaseInsensitive)) continue;
        description.text = typed + entry.mid(typed.size());
        descriptionSelStart = static_cast<int>(typed.size());
        descriptionSelLength = static_cast<int>(entry.size() - typed.size());
        return;
    }
}

void frmInvoice::cboPrice_LostFocus(int k) {
    // The money form is worked out and kept to the price box's own text; nothing is shown.
    (void)Money::fromDisplayText(m_lists.frmInvoice.cboPrice[k].text);
}

// Picking a category fills the item lists with that category's items, and their discounts.
void frmInvoice::lstCategories_Click() {
    const frmServices* services = m_session.ScreenAs<frmServices>(ScreenId::frmServices);
    if (!services) return;
    ListBox& categories = m_lists.frmInvoice.lstCategories;
    const QString picked = categories.text;
    const bool all = categories.listIndex == 0;
    ComboBox& description = m_lists.frmInvoice.cboDescription[1];
    ComboBox& price = m_lists.frmInvoice.cboPrice[1];
    description.Clear();
    price.Clear();
    const Grid& items = services->fgItems;
    int n = 0;
    for (int row = 1; row < items.Rows(); ++row) {
        if (items.TextMatrix(row, 0).isEmpty()) continue;
        if (!all && items.TextMatrix(row, 1) != picked) continue;
        description.AddItem(items.TextMatrix(row, 0));
        description.SetItemData(n, n);
        price.AddItem(items.TextMatrix(row, 3));
        ++n;
        if (m_lists.ItemDiscountPrice.size() <= n) {
            m_lists.ItemDiscountPrice.resize(n + 1);
            m_lists.ItemDiscountQuantity.resize(n + 1);
        }
        m_lists.ItemDiscountPrice[n] = Money::fromDisplayText(items.TextMatrix(row, 5)).value_or(Money()).tenThousandths();
        m_lists.ItemDiscountQuantity[n] = items.TextMatrix(row, 6).toInt();
    }
}

void frmInvoice::fgInvoice_KeyPress(int keyAscii) {
    const int row = fgInvoice.row;
    const int col = fgInvoice.col;
    if (row < 1) return;
    if (fgInvoice.TextMatrix(row, kQuantity).contains(kHours)) {
        message(QStringLiteral("Labor cannot be changed inside the Invoice Body") + u'\n' +
                QStringLiteral("Delete the Labor Item and Re-enter from the labor Grid)"));
        return;
    }
    if (keyAscii == kKeyEnter) {
        const QString quantity = fgInvoice.TextMatrix(row, kQuantity);
        const QString price = fgInvoice.TextMatrix(row, kUnitPrice);
        if (quantity.isEmpty() || price.isEmpty()) return;
        const Money unit = Money::fromDisplayText(price).value_or(Money());
        fgInvoice.SetTextMatrix(row, kUnitPrice, FormatMoney(unit));
        fgInvoice.SetTextMatrix(row, kExtension, FormatMoney(Money::fromDouble(unit.toDouble() * quantity.toDouble())));
        return;
    }
    if (col == kUnitPrice) {
        if (keyAscii == kKeyBackspace) {
            fgInvoice.SetTextMatrix(row, kUnitPrice, FormatMoney(Money()));
            fgInvoice.SetTextMatrix(row, kExtension, FormatMoney(Money()));
            return;
        }
        QString cell = fgInvoice.TextMatrix(row, kUnitPrice);
        if (cell == FormatMoney(Money())) cell.clear();
        const QChar c(keyAscii);
        if (c == u'.' && cell.contains(u'.')) {
            m_session.Beep();
            fgInvoice.SetTextMatrix(row, kUnitPrice, cell);
            return;
        }
        if (QStringLiteral("0123456789.").contains(c)) cell += c;
        fgInvoice.SetTextMatrix(row, kUnitPrice, cell);
    } else if (col == kQuantity) {
        if (keyAscii == kKeyBackspace) {
            fgInvoice.SetTextMatrix(row, kQuantity, QString());
            fgInvoice.SetTextMatrix(row, kExtension, FormatMoney(Money()));
            return;
        }
        const int kept = DigitsKeyFilter(keyAscii, KeyFilterEnv{m_session.platform.dialogs,
                                                                m_session.settings.program.alarms()});
        if (kept != 0) fgInvoice.SetTextMatrix(row, kQuantity, fgInvoice.TextMatrix(row, kQuantity) + QChar(kept));
    }
}

void frmInvoice::fgInvoice_Click() {
    const int row = fgInvoice.row;
    UpDown1.enabled = row >= 1 && !fgInvoice.TextMatrix(row, kQuantity).isEmpty();
    if (row < 1 || fgInvoice.col != kApplyTax || fgInvoice.TextMatrix(row, kQuantity).isEmpty()) return;
    const bool taxed = fgInvoice.TextMatrix(row, kApplyTax) == kTrue;
    fgInvoice.SetTextMatrix(row, kApplyTax, taxed ? kFalse : kTrue);
}

void frmInvoice::fgInvoice_RightClick() {
    const int row = fgInvoice.row;
    if (row >= 1 && !fgInvoice.TextMatrix(row, kDescription).isEmpty()) popupMenuRequested = true;
}

void frmInvoice::mnuDeleteItem_Click() {
    popupMenuRequested = false;
    const int row = fgInvoice.row;
    if (row < 1 || fgInvoice.TextMatrix(row, kDescription).isEmpty()) return;
    const MsgBoxResult answer = m_session.platform.dialogs.MsgBox(
        QStringLiteral("Delete item ") + fgInvoice.TextMatrix(row, kDescription) + QStringLiteral(" from Invoice?"),
        vbYesNo, QStringLiteral("Item Deletion"));
    if (answer != vbYes) return;
    RemoveRow(row);
}

void frmInvoice::RemoveRow(int row) {
    for (int r = row; r < kGridRows - 1; ++r)
        for (int c = 0; c < 6; ++c)
            fgInvoice.SetTextMatrix(r, c, fgInvoice.TextMatrix(r + 1, c));
    for (int c = 0; c < 6; ++c)
        fgInvoice.SetTextMatrix(kGridRows - 1, c, QString());
    fgInvoice.SetRows(kGridRows);
    --LineCount;
}

void frmInvoice::UpDown1_Change(int direction) {
    const int row = fgInvoice.row;
    if (row < 1 || fgInvoice.TextMatrix(row, kQuantity).isEmpty()) return;
    MoveGridRow(fgInvoice, direction < 0 ? kMoveRowUp : kMoveRowDown, 6);
}

void frmInvoice::DTPicker1_Change(const QDate& date) {
    if (date > m_session.today()) {
        m_session.Beep();
        return;
    }
    DTPicker1 = date;
    if (fgInvoice.row != 0) fgInvoice.SetTextMatrix(fgInvoice.row, kServiceDate, ShortDateText(date));
}

void frmInvoice::cmdResetDate_Click() {
    if (fgInvoice.row >= 1) fgInvoice.SetTextMatrix(fgInvoice.row, kServiceDate, QString());
}

} // namespace ostrel
