#include "ServicesView.h"
#include "NamedWidgets.h"

#include "ScreenWindow.h"
#include "binder/ClickableImage.h"
#include "catalogue/frmServices.h"
#include "shell/Session.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

namespace ostrel::ui {

namespace {

QPushButton* button(int index, QWidget* parent) { return named<QPushButton>(element("cmdServices", index), parent); }

QLineEdit* edit(const QString& name, QWidget* parent, int width = 0) {
    auto* e = named<QLineEdit>(name, parent);
    if (width > 0) {
        e->setMinimumWidth(width * 3 / 4);
        e->setMaximumWidth(width);
    }
    return e;
}

QTableWidget* grid(const char* name, int columns, QWidget* parent) {
    auto* t = new QTableWidget(0, columns, parent);
    t->setObjectName(QLatin1String(name));
    t->setAlternatingRowColors(true);
    t->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    // The description takes what the other columns leave.
    t->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    t->horizontalHeader()->setMinimumSectionSize(70);
    return t;
}

// A caption beside its box, which also names the box to assistive tools.
void addRow(QFormLayout* form, const QString& caption, QWidget* box) {
    auto* l = new QLabel(caption, box->parentWidget());
    l->setBuddy(box);
    form->addRow(l, box);
}

// The tab's six buttons, two to a row, in the order a user works through them.
QGridLayout* buttonBlock(std::initializer_list<int> indices, QWidget* parent) {
    auto* g = new QGridLayout;
    int n = 0;
    for (int i : indices) {
        g->addWidget(button(i, parent), n / 2, n % 2);
        ++n;
    }
    return g;
}

} // namespace

ServicesView::ServicesView(Session& session, frmServices& screen)
    : ScreenView(session.platform.dialogs), m_screen(screen) {
    setMinimumSize(1000, 620);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(12, 12, 12, 12);

    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("tabServices"));
    m_tabs->addTab(servicesPage(), QString());
    m_tabs->addTab(itemsPage(), QString());
    m_tabs->addTab(laborPage(), QString());
    m_tabs->addTab(customPage(), QString());
    m_tabs->addTab(instructionsPage(), QString());
    for (int i = 0; i < screen.tabServices.Tabs() && i < m_tabs->count(); ++i)
        m_tabs->setTabText(i, screen.tabServices.TabCaption[i]);
    m_tabs->setCurrentIndex(screen.tabServices.Tab);
    outer->addWidget(m_tabs, 1);

    auto* bottom = new QHBoxLayout;
    auto* next = new ClickableImage(this);
    next->setObjectName(QStringLiteral("Image1"));
    next->setCursor(Qt::PointingHandCursor);
    next->setFrameShape(QFrame::StyledPanel);
    next->setMargin(6);
    bottom->addWidget(next);
    bottom->addSpacing(12);
    bottom->addWidget(button(24, this));
    bottom->addWidget(button(25, this));
    bottom->addStretch(1);
    bottom->addWidget(button(0, this));
    outer->addLayout(bottom);

    binder().bindAll(screen.controls);
    // The picture is the arrow's caption; the binding drew it empty once and leaves it from then on.
    next->setText(QStringLiteral("Next Tab  >"));
    // Captions are in now: no button narrower than its caption, none narrower than its neighbours need.
    for (auto& [i, model] : screen.cmdServices)
        if (QWidget* b = binder().widgetFor(model)) b->setMinimumWidth(std::max(120, b->sizeHint().width()));
    wire();
    FollowScreen(*this, screen, session);
    // Closing by the frame writes the catalogue and the rates first, whatever the program does next.
    setExitHandler([this, &session] {
        m_screen.Form_Unload();
        session.ExitProgram();
    });
    binder().sync();
}

QWidget* ServicesView::servicesPage() {
    auto* page = new QWidget;
    auto* row = new QHBoxLayout(page);
    row->addWidget(grid("fgServices", 3, page), 3);

    auto* side = new QVBoxLayout;
    auto* form = new QFormLayout;
    addRow(form, QStringLiteral("Description"), edit(element("txtDescription", 0), page));
    addRow(form, QStringLiteral("Charge"), edit(element("txtCharge", 0), page, 140));
    auto* time = new QListWidget(page);
    time->setObjectName(QStringLiteral("lstTime"));
    time->setMaximumWidth(140);
    time->setMinimumHeight(170);
    addRow(form, QStringLiteral("Time Required"), time);
    side->addLayout(form);
    side->addLayout(buttonBlock({1, 3, 4, 2, 5, 7}, page));
    side->addStretch(1);
    row->addLayout(side, 2);
    return page;
}

QWidget* ServicesView::itemsPage() {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->addWidget(grid("fgItems", 9, page), 1);

    // What the item is on the left, its money in the middle, its stock on the right.
    auto* fields = new QHBoxLayout;
    auto* what = new QFormLayout;
    addRow(what, QStringLiteral("Description"), edit(element("txtDescription", 1), page));
    auto* category = new QComboBox(page);
    category->setObjectName(QStringLiteral("cboCategory"));
    category->setEditable(true);
    addRow(what, QStringLiteral("Category"), category);
    auto* keep = new QCheckBox(page);
    keep->setObjectName(QStringLiteral("ckClearItem"));
    what->addRow(QString(), keep);
    fields->addLayout(what, 3);
    fields->addSpacing(16);

    auto* money = new QFormLayout;
    addRow(money, QStringLiteral("Cost per Unit (what you pay)"), edit(QStringLiteral("txtCost"), page, 140));
    addRow(money, QStringLiteral("Sell Price"), edit(element("txtCharge", 1), page, 140));
    addRow(money, QStringLiteral("Discount Price"), edit(element("txtCharge", 2), page, 140));
    addRow(money, QStringLiteral("Discount Qty"), edit(QStringLiteral("txtDiscountQty"), page, 100));
    fields->addLayout(money, 2);
    fields->addSpacing(16);

    auto* stock = new QFormLayout;
    addRow(stock, QStringLiteral("On Hand"), edit(QStringLiteral("txtOnHand"), page, 100));
    addRow(stock, QStringLiteral("Reorder (Units)"), edit(QStringLiteral("txtReorderAmount"), page, 100));
    addRow(stock, QStringLiteral("Reorder At"), edit(QStringLiteral("txtReorderAt"), page, 100));
    fields->addLayout(stock, 1);
    column->addLayout(fields);

    auto* buttons = new QHBoxLayout;
    for (int i : {8, 9, 13, 10, 11, 14})
        buttons->addWidget(button(i, page));
    buttons->addStretch(1);
    column->addLayout(buttons);
    return page;
}

QWidget* ServicesView::laborPage() {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    auto* g = new QGridLayout;
    g->addWidget(new QLabel(QStringLiteral("Labor Heading"), page), 0, 1);
    g->addWidget(new QLabel(QStringLiteral("Hourly Rate"), page), 0, 2);
    for (int i = 0; i <= 2; ++i) {
        auto* heading = edit(element("txtLabor", i), page);
        heading->setMinimumWidth(300);
        heading->setAccessibleName(QStringLiteral("Labor Heading %1").arg(i + 1));
        auto* rate = edit(element("txtLaborRate", i), page, 140);
        rate->setAccessibleName(QStringLiteral("Hourly Rate %1").arg(i + 1));
        auto* number = new QLabel(QStringLiteral("%1.").arg(i + 1), page);
        number->setBuddy(heading);
        g->addWidget(number, i + 1, 0);
        g->addWidget(heading, i + 1, 1);
        g->addWidget(rate, i + 1, 2);
    }
    g->setColumnStretch(3, 1);
    column->addLayout(g);
    column->addSpacing(16);
    auto* buttons = new QHBoxLayout;
    for (int i : {12, 15, 16, 17})
        buttons->addWidget(button(i, page));
    buttons->addStretch(1);
    column->addLayout(buttons);
    column->addStretch(1);
    return page;
}

QWidget* ServicesView::customPage() {
    auto* page = new QWidget;
    auto* row = new QHBoxLayout(page);
    row->addWidget(grid("fgCustom", 4, page), 3);

    auto* side = new QVBoxLayout;
    auto* form = new QFormLayout;
    addRow(form, QStringLiteral("Description"), edit(element("txtDescription", 2), page));
    addRow(form, QStringLiteral("Price"), edit(element("txtCharge", 3), page, 140));
    addRow(form, QStringLiteral("Discount Price"), edit(element("txtCharge", 4), page, 140));
    addRow(form, QStringLiteral("Discount Qty"), edit(QStringLiteral("txtCustomDiscItems"), page, 100));
    side->addLayout(form);
    side->addLayout(buttonBlock({18, 19, 22, 20, 21, 23}, page));
    side->addStretch(1);
    row->addLayout(side, 2);
    return page;
}

QWidget* ServicesView::instructionsPage() {
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    auto* body = new QWidget(area);
    auto* column = new QVBoxLayout(body);
    column->setContentsMargins(16, 12, 16, 12);
    for (const auto& [i, model] : m_screen.lblInstructions) {
        auto* l = new QLabel(body);
        l->setObjectName(element("lblInstructions", i));
        l->setWordWrap(true);
        // The headings are the lines written in capitals.
        if (model.caption == model.caption.toUpper()) {
            QFont f = l->font();
            f.setBold(true);
            l->setFont(f);
            if (i > 0) column->addSpacing(10);
        }
        column->addWidget(l);
    }
    column->addStretch(1);
    area->setWidget(body);
    return area;
}

void ServicesView::wire() {
    Binder& b = binder();
    frmServices& s = m_screen;
    b.onClick(s.cmdServices, [this](int i) { m_screen.cmdServices_Click(i); });
    b.onClick(s.fgServices, [this] { m_screen.fgServices_Click(); });
    b.onClick(s.fgItems, [this] { m_screen.fgItems_Click(); });
    b.onClick(s.fgCustom, [this] { m_screen.fgCustom_Click(); });
    b.onClick(s.Image1, [this] { m_screen.Image1_Click(); });

    b.onGotFocus(s.txtCharge, [this](int i) { m_screen.txtCharge_GotFocus(i); });
    b.onLostFocus(s.txtCharge, [this](int i) { m_screen.txtCharge_LostFocus(i); });
    b.onKeyPress(s.txtCharge, [this](int i, int& key) { m_screen.txtCharge_KeyPress(i, key); });
    b.onGotFocus(s.txtCost, [this] { m_screen.txtCost_GotFocus(); });
    b.onLostFocus(s.txtCost, [this] { m_screen.txtCost_LostFocus(); });
    b.onKeyPress(s.txtCost, [this](int& key) { m_screen.txtCost_KeyPress(key); });
    b.onGotFocus(s.txtLaborRate, [this](int i) { m_screen.txtLaborRate_GotFocus(i); });
    b.onLostFocus(s.txtLaborRate, [this](int i) { m_screen.txtLaborRate_LostFocus(i); });
    b.onKeyPress(s.txtLaborRate, [this](int i, int& key) { m_screen.txtLaborRate_KeyPress(i, key); });
    b.onGotFocus(s.txtOnHand, [this] { m_screen.txtOnHand_GotFocus(); });
    b.onGotFocus(s.txtDiscountQty, [this] { m_screen.txtDiscountQty_GotFocus(); });
    b.onLostFocus(s.txtDiscountQty, [this] { m_screen.txtDiscountQty_LostFocus(); });
    b.onGotFocus(s.txtReorderAmount, [this] { m_screen.txtReorderAmount_GotFocus(); });
    b.onGotFocus(s.txtReorderAt, [this] { m_screen.txtReorderAt_GotFocus(); });

    // The tab strip has no binding of its own: the program's moves come through tabChanged, the
    // user's through the widget's signal.
    QPointer<QTabWidget> tabs(m_tabs);
    s.tabServices.tabChanged = [this, tabs](int tab) {
        if (!tabs) return;
        m_movingTab = true;
        tabs->setCurrentIndex(tab);
        m_movingTab = false;
    };
    connect(m_tabs, &QTabWidget::currentChanged, this, [this](int tab) {
        if (m_movingTab || tab < 0) return;
        binder().dispatch([this, tab] {
            const int previous = m_screen.tabServices.Tab;
            m_screen.tabServices.Tab = tab;
            m_screen.tabServices_Click(previous);
        });
    });
}

} // namespace ostrel::ui
