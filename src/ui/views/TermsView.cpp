#include "TermsView.h"
#include "NamedWidgets.h"

#include "ScreenWindow.h"
#include "shell/Session.h"
#include "workorders/frmTerms.h"

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace ostrel::ui {

namespace {

QLabel* heading(int index, QWidget* parent) {
    auto* l = named<QLabel>(element("lblCaption", index), parent);
    QFont f = l->font();
    f.setBold(true);
    f.setPointSize(f.pointSize() + 1);
    l->setFont(f);
    return l;
}

// A generic text, shown as the printed page will carry it.
QLabel* genericText(int index, QWidget* parent) {
    auto* l = named<QLabel>(element("Label1", index), parent);
    l->setWordWrap(true);
    l->setFrameShape(QFrame::StyledPanel);
    l->setMargin(8);
    l->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    l->setTextInteractionFlags(Qt::TextSelectableByMouse);
    l->setMinimumHeight(120);
    return l;
}

QPushButton* button(int index, QWidget* parent) {
    auto* b = named<QPushButton>(element("Command1", index), parent);
    b->setMinimumHeight(28);
    return b;
}

// One custom text: its heading, its box, the report of the load, and its four buttons.
QGroupBox* customBlock(int box, const char* checkName, std::initializer_list<int> buttons, QWidget* parent) {
    auto* group = new QGroupBox(parent);
    auto* column = new QVBoxLayout(group);
    QLabel* title = heading(2 + box, group);
    column->addWidget(title);
    auto* edit = named<QPlainTextEdit>(element("Text1", box), group);
    edit->setMinimumHeight(90);
    title->setBuddy(edit);
    column->addWidget(edit, 1);
    column->addWidget(named<QCheckBox>(QLatin1String(checkName), group));
    auto* row = new QGridLayout;
    int n = 0;
    for (int i : buttons) {
        row->addWidget(button(i, group), n / 2, n % 2);
        ++n;
    }
    column->addLayout(row);
    return group;
}

} // namespace

TermsView::TermsView(Session& session, frmTerms& screen)
    : ScreenView(session.platform.dialogs), m_screen(screen) {
    setMinimumSize(960, 600);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(14, 12, 14, 12);
    outer->setSpacing(10);

    auto* intro = new QLabel(QStringLiteral("The generic texts print on every work order unless you choose a custom "
                                            "text on the Work Orders screen. Write your own below and save it."),
                             this);
    intro->setWordWrap(true);
    outer->addWidget(intro);

    auto* columns = new QHBoxLayout;
    auto* generic = new QGroupBox(this);
    auto* genericColumn = new QVBoxLayout(generic);
    genericColumn->addWidget(heading(0, generic));
    genericColumn->addWidget(genericText(1, generic));
    genericColumn->addSpacing(8);
    genericColumn->addWidget(heading(1, generic));
    genericColumn->addWidget(genericText(0, generic));
    genericColumn->addStretch(1);
    columns->addWidget(generic, 1);

    auto* custom = new QVBoxLayout;
    custom->addWidget(customBlock(0, "ckTerms", {frmTerms::kSaveTerms, frmTerms::kLoadTerms, frmTerms::kClearTerms,
                                                 frmTerms::kDeleteTerms},
                                  this),
                      1);
    custom->addWidget(customBlock(1, "ckDisclaimer",
                                  {frmTerms::kSaveDisclaimer, frmTerms::kLoadDisclaimer, frmTerms::kClearDisclaimer,
                                   frmTerms::kDeleteDisclaimer},
                                  this),
                      1);
    columns->addLayout(custom, 1);
    outer->addLayout(columns, 1);

    auto* bottom = new QHBoxLayout;
    bottom->addStretch(1);
    QPushButton* menu = button(frmTerms::kMenu, this);
    menu->setMinimumWidth(120);
    bottom->addWidget(menu);
    outer->addLayout(bottom);

    binder().bindAll(screen.controls);
    binder().onClick(screen.Command1, [this](int i) { m_screen.Command1_Click(i); });
    FollowScreen(*this, screen, session);
    binder().sync();
}

} // namespace ostrel::ui
