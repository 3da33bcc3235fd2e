#include "SetupView.h"

#include "ScreenWindow.h"
#include "SetupViewPages.h"
#include "platform/QtColour.h"
#include "setup/frmSetup.h"
#include "shell/Session.h"

#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace ostrel::ui {

using namespace setupview;

SetupView::SetupView(Session& session, frmSetup& screen)
    : ScreenView(session.platform.dialogs), m_screen(screen) {
    setMinimumSize(900, 620);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(10, 10, 10, 10);

    QTabWidget* info = TabStrip(QStringLiteral("tabInfo"), this);
    info->addTab(BusinessInfoPage(info), QString());
    info->addTab(SetupHelpPage(info), QString());
    info->addTab(OptionsPage(info), QString());
    info->addTab(LogoPage(info), QString());
    info->addTab(PointsOfServicePage(info), QString());
    info->addTab(OperationsPage(info), QString());
    outer->addWidget(info, 1);

    auto* bottom = new QHBoxLayout;
    bottom->addWidget(StepImage(0, this));
    bottom->addStretch(1);
    auto* quit = new QPushButton(this);
    quit->setObjectName(QStringLiteral("cmdQuit"));
    quit->setMinimumWidth(260);
    bottom->addWidget(quit);
    outer->addLayout(bottom);

    binder().bindAll(screen.controls);
    wireEvents();
    FollowScreen(*this, screen, session);
    // Showing the window follows the screen's activation, which moves the strips.
    setActivateHandler([this] { pushExtras(); });
    binder().sync();
    pushExtras();
}

std::function<void()> SetupView::handler(std::function<void()> event) {
    return [this, event = std::move(event)] {
        event();
        pushExtras();
    };
}

void SetupView::wireEvents() {
    Binder& b = binder();
    frmSetup& s = m_screen;
    const auto option = handler([this] { m_screen.OptionChanged(); });

    wireTabStrip(s.tabInfo, [this](int tab) { m_screen.tabInfo_Click(tab); });
    wireTabStrip(s.SSTab2, [this](int tab) { m_screen.SSTab2_Click(tab); });
    wireTabStrip(s.SSTab1, [this](int tab) { m_screen.SSTab1_Click(tab); });
    b.onClick(s.Image1, [this](int i) { handler([this, i] { m_screen.Image1_Click(i); })(); });

    b.onClick(s.cmdQuit, handler([this] { m_screen.cmdQuit_Click(); }));
    b.onClick(s.cmdAddress, handler([this] { m_screen.cmdAddress_Click(); }));
    b.onClick(s.Image4, handler([this] { m_screen.Image4_Click(); }));
    b.onClick(s.Image5, handler([this] { m_screen.Image5_Click(); }));
    b.onClick(s.optBusinessType,
              [this](int i) { handler([this, i] { m_screen.optBusinessType_Click(i); })(); });

    for (CheckBox* box :
         {&s.ckEstimate, &s.ckTerms, &s.ckShipping, &s.ckMisc, &s.ckManualInvoiceNo, &s.ckColor,
          &s.ckApply1stTax, &s.ckApply2ndTax, &s.ckSalesItems, &s.ckServices, &s.ckLabor, &s.ckCustom,
          &s.ckApplyGraduated, &s.ckPhone, &s.ckCallerID, &s.ckPrompts, &s.ckAlarms})
        b.onClick(*box, option);
    b.onClick(s.ckReturnParts, handler([this] { m_screen.ckReturnParts_Click(); }));
    b.onChange(s.txtReturnParts, option);
    b.onClick(s.cmdReturn, [this](int i) { handler([this, i] { m_screen.cmdReturn_Click(i); })(); });
    b.onClick(s.optMF, handler([this] { m_screen.optMF_Click(); }));
    b.onClick(s.optMS, handler([this] { m_screen.optMS_Click(); }));
    b.onClick(s.optSF, handler([this] { m_screen.optSF_Click(); }));
    b.onClick(s.optSS, handler([this] { m_screen.optSS_Click(); }));
    b.onClick(s.optPlain, option);
    b.onClick(s.optReturn, option);
    for (ComboBox* list : {&s.cboCopies, &s.cboRate1, &s.cboRate2, &s.cboTaxHeading1, &s.cboTaxHeading2}) {
        b.onClick(*list, option);
        b.onChange(*list, option);
    }

    b.onClick(s.cmdLogo, [this](int i) { handler([this, i] { m_screen.cmdLogo_Click(i); })(); });
    wireUpDown(
        QStringLiteral("UpDown1"), [this] { m_screen.UpDown1_UpClick(); },
        [this] { m_screen.UpDown1_DownClick(); });
    wireUpDown(
        QStringLiteral("UpDown2"), [this] { m_screen.UpDown2_UpClick(); },
        [this] { m_screen.UpDown2_DownClick(); });

    b.onClick(s.cboAssignments, handler([this] { m_screen.cboAssignments_Click(); }));
    b.onClick(s.cmdSave, handler([this] { m_screen.cmdSave_Click(); }));
    b.onClick(s.cmdDelete, handler([this] { m_screen.cmdDelete_Click(); }));
    b.onClick(s.cmdOops, handler([this] { m_screen.cmdOops_Click(); }));
    b.onClick(s.cmdChange, [this](int i) { handler([this, i] { m_screen.cmdChange_Click(i); })(); });

    b.onClick(s.cmdGraduatedTax,
              [this](int i) { handler([this, i] { m_screen.cmdGraduatedTax_Click(i); })(); });
    b.onGotFocus(s.txtGradulated,
                 [this](int i) { handler([this, i] { m_screen.txtGradulated_GotFocus(i); })(); });
    b.onChange(s.txtGradulated, [option](int) { option(); });
}

void SetupView::wireTabStrip(SetupTabStrip& strip, std::function<void(int)> click) {
    QTabWidget* tabs = findChild<QTabWidget*>(strip.name);
    if (!tabs) return;
    const QString spoken = strip.name == QLatin1String("tabInfo")  ? QStringLiteral("Setup pages")
                           : strip.name == QLatin1String("SSTab2") ? QStringLiteral("Options pages")
                                                                   : QStringLiteral("Operations pages");
    tabs->setAccessibleName(spoken);
    connect(tabs, &QTabWidget::currentChanged, this, [this, click](int tab) {
        if (m_pushing) return;
        binder().dispatch(handler([click, tab] { click(tab); }));
    });
}

void SetupView::wireUpDown(const QString& name, std::function<void()> up, std::function<void()> down) {
    auto* upButton = findChild<QToolButton*>(name + QStringLiteral("Up"));
    auto* downButton = findChild<QToolButton*>(name + QStringLiteral("Down"));
    if (upButton)
        connect(upButton, &QToolButton::clicked, this, [this, up] { binder().dispatch(handler(up)); });
    if (downButton)
        connect(downButton, &QToolButton::clicked, this, [this, down] { binder().dispatch(handler(down)); });
}

QTabWidget* SetupView::tabStrip(const SetupTabStrip& strip) const {
    return findChild<QTabWidget*>(strip.name);
}

void SetupView::pushTabStrip(const SetupTabStrip& strip) {
    QTabWidget* tabs = tabStrip(strip);
    if (!tabs) return;
    const QSignalBlocker block(tabs);
    for (int i = 0; i < tabs->count() && i < strip.Tabs(); ++i) {
        if (tabs->tabText(i) != strip.TabCaption[i]) tabs->setTabText(i, strip.TabCaption[i]);
        tabs->setTabEnabled(i, strip.TabEnabled.value(i, true));
    }
    if (tabs->currentIndex() != strip.Tab) tabs->setCurrentIndex(strip.Tab);
}

void SetupView::pushExtras() {
    m_pushing = true;
    frmSetup& s = m_screen;
    pushTabStrip(s.tabInfo);
    pushTabStrip(s.SSTab2);
    pushTabStrip(s.SSTab1);

    for (auto& [index, box] : s.txtBusiness) {
        if (QWidget* w = binder().widgetFor(box); w && box.Width > 0) w->setFixedWidth(BoxPixels(box.Width));
    }
    for (SetupTextBox* swatch : {&s.txtBorders, &s.txtData}) {
        QWidget* w = binder().widgetFor(*swatch);
        if (!w) continue;
        QPalette p = w->palette();
        const QColor colour = toQColor(swatch->BackColor);
        p.setColor(QPalette::Base, colour.isValid() ? colour : palette().color(QPalette::Base));
        w->setPalette(p);
    }
    if (auto* font = qobject_cast<QLabel*>(binder().widgetFor(s.lblFont))) {
        QFont f = font->font();
        f.setFamily(s.lblFont.caption);
        font->setFont(f);
    }
    for (SetupUpDown* upDown : {&s.UpDown1, &s.UpDown2}) {
        if (QWidget* w = findChild<QWidget*>(upDown->name)) {
            w->setEnabled(upDown->enabled);
            w->setVisible(upDown->visible);
            w->setToolTip(upDown->toolTip);
            w->setAccessibleName(upDown->toolTip);
        }
    }
    pushPictureSizes();
    m_pushing = false;
}

void SetupView::pushPictureSizes() {
    frmSetup& s = m_screen;
    if (QWidget* sample = binder().widgetFor(s.Image3))
        sample->setFixedSize(PicturePixels(s.Image3.Width), PicturePixels(s.Image3.Height));
    QWidget* found = binder().widgetFor(s.Image2);
    if (!found) return;
    // The picture as it is, shrunk to fit the page when it is larger.
    QSize size(PicturePixels(s.Image2.Width), PicturePixels(s.Image2.Height));
    if (!s.Image2.picture.isEmpty()) {
        const QSize natural = QImageReader(s.Image2.picture).size();
        if (natural.isValid())
            size = natural.boundedTo(QSize(240, 200)) == natural
                       ? natural
                       : natural.scaled(240, 200, Qt::KeepAspectRatio);
    }
    found->setFixedSize(size.expandedTo(QSize(1, 1)));
}

} // namespace ostrel::ui
