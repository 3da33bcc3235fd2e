#include "NewCustomerViewLayout.h"
#include "NamedWidgets.h"

#include "binder/ClickableImage.h"
#include "binder/GridWheel.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace ostrel::ui {

namespace {

QLineEdit* box(const QString& name, QWidget* parent, int minWidth = 0) {
    auto* e = named<QLineEdit>(name, parent);
    if (minWidth > 0) e->setMinimumWidth(minWidth);
    return e;
}

QComboBox* combo(const QString& name, QWidget* parent, bool editable) {
    auto* c = named<QComboBox>(name, parent);
    c->setEditable(editable);
    if (editable) c->setCompleter(nullptr); // the screen does its own completing, or none
    c->setInsertPolicy(QComboBox::NoInsert);
    // Sized by a few characters, not by measuring every entry of a list of thousands.
    c->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    c->setMinimumContentsLength(8);
    return c;
}

QPushButton* button(const QString& name, QWidget* parent) {
    return named<QPushButton>(name, parent);
}

// A handset drawn once: the dial image has no picture file of its own.
QPixmap dialPicture() {
    QPixmap pm(34, 34);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(30, 90, 40), 2));
    p.setBrush(QColor(70, 160, 80));
    p.drawRoundedRect(QRectF(2, 2, 30, 30), 7, 7);
    QFont f = p.font();
    f.setPixelSize(20);
    p.setFont(f);
    p.setPen(Qt::white);
    p.drawText(QRectF(2, 2, 30, 30), Qt::AlignCenter, QString(QChar(0x260E)));
    return pm;
}

QWidget* accountFields(QWidget* parent) {
    auto* fields = named<QWidget>(QStringLiteral("accountFields"), parent);
    auto* g = new QGridLayout(fields);
    g->setContentsMargins(0, 0, 0, 0);
    g->setHorizontalSpacing(8);
    g->setVerticalSpacing(6);
    g->setColumnStretch(1, 1);

    QLineEdit* account = box(element("txtCustomer", 0), fields, 180);
    g->addWidget(label(element("lblCustomer", 0), fields, account), 0, 0);
    auto* typeRow = new QHBoxLayout;
    typeRow->addWidget(account, 1);
    typeRow->addSpacing(12);
    QLabel* type = label(QStringLiteral("lbLType"), fields);
    QFont bold = type->font();
    bold.setBold(true);
    type->setFont(bold);
    type->setMinimumWidth(90);
    typeRow->addWidget(type);
    typeRow->addWidget(button(QStringLiteral("cmdAcctType"), fields));
    g->addLayout(typeRow, 0, 1);

    // The name: the business name box, the person's four fields, or the name list, in one place.
    QLineEdit* name = box(element("txtCustomer", 1), fields);
    g->addWidget(label(element("lblCustomer", 1), fields, name), 1, 0);
    auto* nameCell = new QGridLayout;
    nameCell->addWidget(name, 0, 0);
    auto* person = new QHBoxLayout;
    person->setSpacing(6);
    QComboBox* title = combo(QStringLiteral("cboTitle"), fields, true);
    title->setMinimumWidth(80);
    person->addWidget(label(QStringLiteral("lblTitle"), fields, title));
    person->addWidget(title);
    const std::pair<int, int> parts[] = {{8, 100}, {9, 26}, {10, 120}};
    for (auto [i, width] : parts) {
        QLineEdit* part = box(element("txtCustomer", i), fields, width);
        if (i == 9) part->setMaximumWidth(36); // one letter
        person->addSpacing(8);
        person->addWidget(label(element("lblCustomer", i), fields, part));
        person->addWidget(part, i == 9 ? 0 : 1);
    }
    nameCell->addLayout(person, 0, 0);
    QComboBox* names = combo(QStringLiteral("cboAccounts"), fields, true);
    names->setAccessibleName(QStringLiteral("Name List"));
    names->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    nameCell->addWidget(names, 0, 0);
    g->addLayout(nameCell, 1, 1);

    for (int i : {2, 3}) {
        QLineEdit* line = box(element("txtCustomer", i), fields);
        g->addWidget(label(element("lblCustomer", i), fields, line), i, 0);
        g->addWidget(line, i, 1);
    }

    auto* addressCell = new QGridLayout;
    auto* usa = named<QGroupBox>(QStringLiteral("fraUSAddress"), fields);
    usa->setAccessibleName(QStringLiteral("Address"));
    auto* ul = new QHBoxLayout(usa);
    ul->setSpacing(6);
    QComboBox* city = combo(QStringLiteral("cboCity"), usa, true);
    city->setMinimumWidth(170);
    ul->addWidget(label(QStringLiteral("lblCity"), usa, city));
    ul->addWidget(city, 2);
    ul->addSpacing(8);
    QComboBox* state = combo(QStringLiteral("cboStates"), usa, true);
    state->setMinimumWidth(70);
    ul->addWidget(label(QStringLiteral("lblState"), usa, state));
    ul->addWidget(state);
    ul->addSpacing(8);
    QLineEdit* postal = box(element("txtCustomer", 5), usa, 90);
    ul->addWidget(label(element("lblCustomer", 5), usa, postal));
    ul->addWidget(postal, 1);
    addressCell->addWidget(usa, 0, 0);
    auto* international = named<QGroupBox>(QStringLiteral("fraIntAddress"), fields);
    international->setAccessibleName(QStringLiteral("Address"));
    auto* il = new QHBoxLayout(international);
    il->setSpacing(6);
    QLineEdit* add3 = box(QStringLiteral("txtAdd3"), international, 150);
    il->addWidget(label(QStringLiteral("lblAdd3"), international, add3));
    il->addWidget(add3, 1);
    il->addSpacing(8);
    QLineEdit* add4 = box(QStringLiteral("txtAdd4"), international, 150);
    il->addWidget(label(QStringLiteral("lblAdd4"), international, add4));
    il->addWidget(add4, 1);
    addressCell->addWidget(international, 0, 0);
    g->addLayout(addressCell, 4, 0, 1, 2);

    QLineEdit* phone = box(element("txtCustomer", 6), fields, 130);
    g->addWidget(label(element("lblCustomer", 6), fields, phone), 5, 0);
    auto* phoneRow = new QHBoxLayout;
    phoneRow->setSpacing(6);
    phoneRow->addWidget(phone, 1);
    auto* dial = named<ClickableImage>(element("Image1", 1), fields);
    dial->setCursor(Qt::PointingHandCursor);
    phoneRow->addWidget(dial);
    phoneRow->addSpacing(12);
    QLineEdit* cell = box(element("txtCustomer", 11), fields, 130);
    phoneRow->addWidget(label(element("lblCustomer", 11), fields, cell));
    phoneRow->addWidget(cell, 1);
    g->addLayout(phoneRow, 5, 1);

    QLineEdit* email = box(element("txtCustomer", 7), fields);
    g->addWidget(label(element("lblCustomer", 7), fields, email), 6, 0);
    g->addWidget(email, 6, 1);

    QComboBox* assignments = combo(QStringLiteral("cboAssignments"), fields, false);
    assignments->setMinimumWidth(200);
    g->addWidget(label(QStringLiteral("lblAssignments"), fields, assignments), 7, 0);
    auto* assignmentRow = new QHBoxLayout;
    assignmentRow->addWidget(assignments);
    assignmentRow->addStretch(1);
    g->addLayout(assignmentRow, 7, 1);
    g->setRowStretch(8, 1);
    return fields;
}

QWidget* auxFrame(QWidget* parent) {
    auto* aux = named<QGroupBox>(QStringLiteral("fraAux"), parent);
    aux->setAutoFillBackground(true); // it lies over the account fields
    auto* v = new QVBoxLayout(aux);
    auto* top = new QHBoxLayout;
    QLabel* account = label(QStringLiteral("lblAccount"), aux);
    QFont bold = account->font();
    bold.setBold(true);
    account->setFont(bold);
    top->addWidget(account, 1);
    top->addWidget(label(QStringLiteral("lblHeadings"), aux));
    v->addLayout(top);

    auto* stack = new QGridLayout;
    auto* boxes = new QWidget(aux);
    auto* g = new QGridLayout(boxes);
    g->setContentsMargins(0, 0, 0, 0);
    for (int k = 0; k < 6; ++k) {
        const int row = (k / 3) * 3;
        const int col = k % 3;
        QLineEdit* heading = box(element("txtHeading", k), boxes);
        heading->setAccessibleName(QStringLiteral("Heading %1").arg(k + 1));
        g->addWidget(heading, row, col);
        auto* text = named<QPlainTextEdit>(element("txtAux", k), boxes);
        text->setMinimumSize(150, 60);
        text->setAccessibleName(QStringLiteral("Data Box %1").arg(k + 1));
        text->setAccessibleDescription(QStringLiteral("Double click to edit in the large box"));
        g->addWidget(text, row + 1, col);
        QLabel* clear = label(element("lblClear", k), boxes);
        clear->setCursor(Qt::PointingHandCursor);
        QPalette link = clear->palette();
        link.setColor(QPalette::WindowText, QColor(0, 70, 160));
        clear->setPalette(link);
        g->addWidget(clear, row + 2, col);
    }
    stack->addWidget(boxes, 0, 0);

    auto* big = named<QGroupBox>(QStringLiteral("fraBig"), aux);
    big->setAutoFillBackground(true);
    auto* bl = new QVBoxLayout(big);
    QLabel* editing = label(QStringLiteral("lblEditing"), big);
    editing->setFont(bold);
    bl->addWidget(editing);
    auto* bigText = named<QPlainTextEdit>(QStringLiteral("txtBig"), big);
    editing->setBuddy(bigText);
    bl->addWidget(bigText, 1);
    auto* bigButtons = new QHBoxLayout;
    bigButtons->addStretch(1);
    for (int i : {4, 5, 6})
        bigButtons->addWidget(button(element("cmdSaveAux", i), big));
    bl->addLayout(bigButtons);
    stack->addWidget(big, 0, 0);
    v->addLayout(stack, 1);

    v->addWidget(named<QCheckBox>(QStringLiteral("ckSaveAux"), aux));
    auto* buttons = new QHBoxLayout;
    for (int i : {8, 7, 3, 0})
        buttons->addWidget(button(element("cmdSaveAux", i), aux));
    buttons->addStretch(1);
    buttons->addWidget(button(element("cmdSaveAux", 2), aux));
    v->addLayout(buttons);
    return aux;
}

QWidget* searchFrame(QWidget* parent) {
    auto* search = named<QGroupBox>(QStringLiteral("fraSearch"), parent);
    auto* v = new QVBoxLayout(search);
    auto* row = new QHBoxLayout;
    QLineEdit* text = box(QStringLiteral("txtSearchfor"), search, 200);
    row->addWidget(label(QStringLiteral("lblSearchfor"), search, text));
    row->addWidget(text, 1);
    for (const char* n : {"cmdStartSearch", "cmdClearSearch", "cmdHideSearch"})
        row->addWidget(button(QString::fromLatin1(n), search));
    v->addLayout(row);
    auto* options = new QGridLayout;
    for (int i = 0; i < 9; ++i)
        options->addWidget(named<QRadioButton>(element("optSearch", i), search), i % 3, i / 3);
    v->addLayout(options);
    return search;
}

QWidget* foundFrame(QWidget* parent) {
    auto* found = named<QGroupBox>(QStringLiteral("fraCustomersFound"), parent);
    auto* v = new QVBoxLayout(found);
    auto* grid = named<QTableWidget>(QStringLiteral("fgCustomersFound"), found);
    grid->setMinimumHeight(170);
    // The name takes the room across; the telephone and the record number only what they need.
    grid->horizontalHeader()->setStretchLastSection(false);
    QObject::connect(grid->model(), &QAbstractItemModel::columnsInserted, grid, [grid] {
        QHeaderView* header = grid->horizontalHeader();
        for (int c = 0; c < header->count(); ++c)
            header->setSectionResizeMode(c, c == 0 ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
    });
    // Rows a line of text high, so the list shows as many customers as its room holds.
    grid->verticalHeader()->setDefaultSectionSize(grid->fontMetrics().height() + 8);
    grid->setAccessibleName(QStringLiteral("Customers found"));
    InstallGridWheel(grid);
    v->addWidget(grid, 1);
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(button(QStringLiteral("cmdRetry"), found));
    v->addLayout(row);
    return found;
}

QLayout* buttonColumn(QWidget* parent) {
    auto* v = new QVBoxLayout;
    v->setSpacing(6);
    auto* nav = new QGridLayout;
    nav->setSpacing(4);
    const int firstRow[] = {0, 1, 2, 3};
    for (int c = 0; c < 4; ++c) {
        QPushButton* b = button(element("cmdNav", firstRow[c]), parent);
        b->setMinimumWidth(48);
        nav->addWidget(b, 0, c);
    }
    // The quarter moves in the order of the file: 1/4, 1/2, 3/4.
    const int secondRow[] = {4, 6, 5};
    for (int c = 0; c < 3; ++c)
        nav->addWidget(button(element("cmdNav", secondRow[c]), parent), 1, c);
    v->addLayout(nav);
    v->addSpacing(10);
    for (int i = 0; i < 4; ++i)
        v->addWidget(button(element("Command1", i), parent));
    v->addSpacing(10);
    v->addWidget(button(QStringLiteral("cmdNew"), parent));
    v->addWidget(button(element("cmdCustomer", 13), parent));
    v->addStretch(1);
    QPushButton* select = button(element("cmdCustomer", 1), parent);
    QFont bold = select->font();
    bold.setBold(true);
    select->setFont(bold);
    select->setMinimumHeight(36);
    v->addWidget(select);
    v->addWidget(button(element("cmdCustomer", 0), parent));
    return v;
}

} // namespace

QMenu* BuildNewCustomerWidgets(QWidget* window) {
    auto* outer = new QVBoxLayout(window);
    outer->setContentsMargins(0, 0, 0, 10);

    auto* bar = new QMenuBar(window);
    for (const char* n : {"mnuAdd", "mnuDelete", "mnuAux", "mnuPrint"})
        bar->addAction(namedAction(QString::fromLatin1(n), bar));
    outer->setMenuBar(bar);

    auto* body = new QHBoxLayout;
    body->setContentsMargins(14, 10, 14, 0);
    body->setSpacing(16);
    outer->addLayout(body, 1);

    auto* left = new QVBoxLayout;
    auto* over = new QGridLayout;
    over->addWidget(accountFields(window), 0, 0);
    over->addWidget(auxFrame(window), 0, 0);
    // The fields keep their own height; the room below them goes to the customer list.
    left->addLayout(over);
    left->addWidget(searchFrame(window));
    left->addWidget(foundFrame(window), 1);
    left->addStretch(0);
    body->addLayout(left, 1);
    // A column of its own width, whatever the layout of the fields beside it.
    auto* buttons = new QWidget(window);
    buttons->setFixedWidth(330);
    buttons->setLayout(buttonColumn(buttons));
    buttons->layout()->setContentsMargins(0, 0, 0, 0);
    body->addWidget(buttons);

    auto* popup = new QMenu(window);
    popup->setObjectName(QStringLiteral("mnupopupMenu"));
    popup->menuAction()->setObjectName(QStringLiteral("mnupopup"));
    popup->addAction(namedAction(QStringLiteral("mnuSelect"), popup));
    return popup;
}

void SetDialPicture(QWidget* window) {
    if (auto* dial = window->findChild<ClickableImage*>(QStringLiteral("Image1(1)")))
        dial->setPixmap(dialPicture());
}

} // namespace ostrel::ui
