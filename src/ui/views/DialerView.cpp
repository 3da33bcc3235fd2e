#include "DialerView.h"
#include "NamedWidgets.h"

#include "ScreenWindow.h"
#include "shell/Session.h"
#include "telephony/frmDialer.h"

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace ostrel::ui {

namespace {

// The call-in-progress picture: a telephone drawn from the font, so it needs no picture file.
class PhonePicture : public QLabel {
public:
    explicit PhonePicture(QWidget* parent) : QLabel(parent) { setFixedSize(48, 48); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        QFont f = font();
        f.setPixelSize(40);
        p.setFont(f);
        p.setPen(QColor(0x20, 0x70, 0x30));
        p.drawText(rect(), Qt::AlignCenter, QString(QChar(0x260E)));
    }
};

QLabel* styledLabel(const QString& name, QWidget* parent, int grow = 0, bool bold = false) {
    auto* l = named<QLabel>(name, parent);
    if (grow || bold) {
        QFont f = l->font();
        f.setBold(bold);
        f.setPointSize(f.pointSize() + grow);
        l->setFont(f);
    }
    return l;
}

QPushButton* button(const QString& name, QWidget* parent) {
    auto* b = named<QPushButton>(name, parent);
    b->setMinimumHeight(30);
    return b;
}

} // namespace

DialerView::DialerView(Session& session, frmDialer& screen)
    : ScreenView(session.platform.dialogs), m_screen(screen) {
    setWindowModality(Qt::ApplicationModal);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(16, 14, 16, 14);
    outer->setSpacing(10);
    // The window grows with the help and entry frames instead of squeezing the buttons.
    outer->setSizeConstraint(QLayout::SetMinimumSize);

    // The recipient and the status of the call.
    auto* callBox = new QFrame(this);
    callBox->setFrameShape(QFrame::StyledPanel);
    callBox->setMinimumWidth(700);
    auto* call = new QGridLayout(callBox);
    call->setContentsMargins(12, 10, 12, 10);
    call->addWidget(styledLabel(QStringLiteral("Label2(4)"), callBox), 0, 0, 1, 2);
    QLabel* name = styledLabel(QStringLiteral("lblName"), callBox, 6, true);
    name->setMinimumHeight(34);
    call->addWidget(name, 1, 0, 1, 2);
    QLabel* number = styledLabel(QStringLiteral("lblNumber"), callBox, 4, true);
    number->setMinimumHeight(30);
    call->addWidget(number, 2, 0);
    call->addWidget(named<QCheckBox>(QStringLiteral("ckDial1"), callBox), 2, 1, Qt::AlignRight);
    auto* statusRow = new QHBoxLayout;
    QLabel* status = styledLabel(QStringLiteral("lblStatus"), callBox, 2, true);
    status->setFrameShape(QFrame::Panel);
    status->setFrameShadow(QFrame::Sunken);
    status->setMinimumHeight(48);
    status->setContentsMargins(8, 2, 8, 2);
    statusRow->addWidget(status, 1);
    auto* phone = new PhonePicture(callBox);
    phone->setObjectName(QStringLiteral("Image2"));
    QSizePolicy keep = phone->sizePolicy();
    keep.setRetainSizeWhenHidden(true);
    phone->setSizePolicy(keep);
    statusRow->addWidget(phone);
    call->addLayout(statusRow, 3, 0, 1, 2);
    call->setColumnStretch(0, 1);
    outer->addWidget(callBox);

    auto* callButtons = new QHBoxLayout;
    QPushButton* dial = button(QStringLiteral("cmdNewDial"), this);
    dial->setMinimumWidth(110);
    callButtons->addWidget(dial);
    callButtons->addWidget(button(QStringLiteral("cmdCancel"), this), 1);
    callButtons->addWidget(button(QStringLiteral("cmdHangup"), this));
    outer->addLayout(callButtons);

    // The speed dial buttons, two columns of five, with what acts on them.
    auto* speed = new QHBoxLayout;
    auto* entries = new QVBoxLayout;
    entries->addWidget(styledLabel(QStringLiteral("Label2(0)"), this, 1, true));
    auto* grid = new QGridLayout;
    for (int i = 0; i < 10; ++i) {
        QPushButton* b = button(QStringLiteral("cmdDialer(%1)").arg(i), this);
        b->setMinimumWidth(170);
        grid->addWidget(b, i % 5, i / 5);
    }
    entries->addLayout(grid);
    auto* entryButtons = new QHBoxLayout;
    entryButtons->addWidget(button(QStringLiteral("cmdSpeedDialer(2)"), this));
    entryButtons->addWidget(button(QStringLiteral("cmdSpeedDialer(3)"), this));
    entries->addLayout(entryButtons);
    speed->addLayout(entries, 3);

    // A new entry is typed here.
    auto* frame = named<QGroupBox>(QStringLiteral("fraSpeedDial"), this);
    auto* form = new QGridLayout(frame);
    QLabel* nameCaption = styledLabel(QStringLiteral("Label2(1)"), frame);
    auto* nameBox = named<QLineEdit>(QStringLiteral("txtDialer(0)"), frame);
    nameCaption->setBuddy(nameBox);
    QLabel* numberCaption = styledLabel(QStringLiteral("Label2(2)"), frame);
    auto* numberBox = named<QLineEdit>(QStringLiteral("txtDialer(1)"), frame);
    numberCaption->setBuddy(numberBox);
    form->addWidget(nameCaption, 0, 0);
    form->addWidget(nameBox, 0, 1, 1, 2);
    form->addWidget(numberCaption, 1, 0);
    form->addWidget(numberBox, 1, 1, 1, 2);
    form->addWidget(button(QStringLiteral("cmdSpeedDialer(0)"), frame), 2, 1);
    form->addWidget(button(QStringLiteral("cmdSpeedDialer(1)"), frame), 2, 2);
    form->addWidget(button(QStringLiteral("cmdSpeedDialer(4)"), frame), 3, 1, 1, 2);
    form->setColumnStretch(1, 1);
    form->setColumnStretch(2, 1);
    form->setRowStretch(4, 1);
    frame->setMinimumWidth(260);
    speed->addWidget(frame, 2);
    outer->addLayout(speed);

    auto* help = named<QGroupBox>(QStringLiteral("fraHelp"), this);
    auto* helpLayout = new QVBoxLayout(help);
    QLabel* helpText = styledLabel(QStringLiteral("lblHelp"), help);
    helpText->setWordWrap(true);
    helpLayout->addWidget(helpText);
    outer->addWidget(help);
    outer->addStretch(1);

    // The modem the program found.
    auto* modem = new QHBoxLayout;
    auto* probe = named<QLineEdit>(QStringLiteral("Text1"), this);
    probe->setMinimumWidth(260);
    QLabel* port = styledLabel(QStringLiteral("Label2(3)"), this);
    port->setBuddy(probe);
    modem->addWidget(probe, 1);
    modem->addSpacing(8);
    modem->addWidget(port);
    modem->addStretch(1);
    modem->addWidget(button(QStringLiteral("cmdHelp"), this));
    outer->addLayout(modem);

    binder().bindAll(screen.controls);
    Binder& b = binder();
    b.onClick(screen.cmdNewDial, [this] { m_screen.cmdNewDial_Click(); });
    b.onClick(screen.cmdCancel, [this] { m_screen.cmdCancel_Click(); });
    b.onClick(screen.cmdHangup, [this] { m_screen.cmdHangup_Click(); });
    b.onClick(screen.cmdHelp, [this] { m_screen.cmdHelp_Click(); });
    b.onClick(screen.ckDial1, [this] { m_screen.ckDial1_Click(); });
    b.onClick(screen.cmdDialer, [this](int i) { m_screen.cmdDialer_Click(i); });
    b.onClick(screen.cmdSpeedDialer, [this](int i) { m_screen.cmdSpeedDialer_Click(i); });
    // The dial waits inside its click; the window shows its progress meanwhile.
    screen.showProgress = [] { Binder::syncAll(); };
    dial->setDefault(true);
    FollowScreen(*this, screen, session);
    b.sync();
}

} // namespace ostrel::ui
