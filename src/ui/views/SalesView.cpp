#include "SalesView.h"

#include "NamedWidgets.h"
#include "ScreenWindow.h"
#include "printing/frmSales.h"
#include "shell/Session.h"
#include "store/LocaleText.h"

#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>

namespace ostrel::ui {

namespace {

QDateEdit* dateBox(int index, QWidget* parent) {
    auto* d = named<QDateEdit>(element("DTPicker1", index), parent);
    d->setCalendarPopup(true);
    d->setDisplayFormat(kShortDateFormat);
    d->setMinimumWidth(130);
    return d;
}

// The money columns read from the right, as figures do.
class MoneyColumns : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.column() >= frmSales::kSubTotal) option->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
    }
};

} // namespace

SalesView::SalesView(Session& session, frmSales& screen) : ScreenView(session.platform.dialogs), m_screen(screen) {
    setMinimumSize(1000, 620);
    auto* outer = new QHBoxLayout(this);
    outer->setContentsMargins(12, 12, 12, 12);

    auto* main = new QVBoxLayout;
    auto* filters = new QHBoxLayout;
    const char* const dateCaptions[] = {"From", "To"};
    for (int i = 0; i < 2; ++i) {
        QDateEdit* d = dateBox(i, this);
        auto* l = new QLabel(QString::fromLatin1(dateCaptions[i]), this);
        l->setBuddy(d);
        filters->addWidget(l);
        filters->addWidget(d);
        filters->addSpacing(12);
    }
    auto* combo = named<QComboBox>(QStringLiteral("cboAssociates"), this);
    combo->setMinimumWidth(200);
    filters->addWidget(label(element("Label1", 6), this, combo));
    filters->addWidget(combo);
    filters->addStretch(1);
    main->addLayout(filters);

    // A journal can hold many thousand sales: the view asks the grid for the rows in sight only.
    auto* table = named<QTableView>(QStringLiteral("fgSales"), this);
    table->setAlternatingRowColors(true);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setItemDelegate(new MoneyColumns(table));
    main->addWidget(table, 1);

    auto* totals = new QGridLayout;
    const char* const totalCaptions[] = {"Sub-Total", "Discounts Applied", "Tax", "Total Revenue"};
    for (int i = 0; i < 4; ++i) {
        auto* caption = new QLabel(QString::fromLatin1(totalCaptions[i]), this);
        caption->setAlignment(Qt::AlignCenter);
        auto* amount = named<QLabel>(element("lblTotal", i), this);
        amount->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        amount->setFrameShape(QFrame::StyledPanel);
        amount->setMinimumWidth(140);
        amount->setAccessibleDescription(caption->text());
        QFont f = amount->font();
        f.setBold(i == 3);
        amount->setFont(f);
        totals->addWidget(caption, 0, i);
        totals->addWidget(amount, 1, i);
    }
    main->addLayout(totals);
    outer->addLayout(main, 1);

    auto* side = new QVBoxLayout;
    auto* periods = new QGroupBox(QStringLiteral("Period"), this);
    auto* pv = new QVBoxLayout(periods);
    for (int i = 0; i < 4; ++i) pv->addWidget(named<QPushButton>(element("cmdIncome", i), periods));
    side->addWidget(periods);
    side->addSpacing(12);
    for (int i : {1, 3, 2}) {
        auto* b = named<QPushButton>(element("cmdSales", i), this);
        b->setMinimumWidth(150);
        side->addWidget(b);
    }
    side->addStretch(1);
    side->addWidget(named<QPushButton>(element("cmdSales", 0), this));
    outer->addLayout(side);

    binder().bindAll(screen.controls);
    wire();
    FollowScreen(*this, screen, session);
    binder().sync();
    // The columns exist once the grid's model is there.
    table->horizontalHeader()->setSectionResizeMode(frmSales::kTransaction, QHeaderView::Stretch);
}

void SalesView::wire() {
    Binder& b = binder();
    frmSales& s = m_screen;
    b.onClick(s.cmdIncome, [this](int i) { m_screen.cmdIncome_Click(i); });
    b.onClick(s.cmdSales, [this](int i) { m_screen.cmdSales_Click(i); });
    b.onChange(s.DTPicker1, [this](int i) { m_screen.DTPicker1_Change(i); });
}

} // namespace ostrel::ui
