#include "SetupViewPages.h"
#include "NamedWidgets.h"

#include "binder/ClickableImage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <cmath>

namespace ostrel::ui::setupview {

namespace {

QLabel* wrapped(const QString& name, QWidget* parent) {
    QLabel* l = label(name, parent);
    l->setWordWrap(true);
    return l;
}

QLineEdit* box(const QString& name, QWidget* parent) {
    return named<QLineEdit>(name, parent);
}

QComboBox* editableList(const QString& name, QWidget* parent) {
    auto* c = named<QComboBox>(name, parent);
    c->setEditable(true);
    return c;
}

QPushButton* button(const QString& name, QWidget* parent) {
    return named<QPushButton>(name, parent);
}

ClickableImage* image(const QString& name, QWidget* parent) {
    auto* i = named<ClickableImage>(name, parent);
    i->setFixedSize(32, 32);
    i->setScaledContents(true);
    return i;
}

// Two arrows named as the up-down control; the view joins their clicks to the screen.
QWidget* upDown(const QString& name, Qt::Orientation orientation, QWidget* parent) {
    auto* w = named<QFrame>(name, parent);
    auto* l = orientation == Qt::Vertical ? static_cast<QBoxLayout*>(new QVBoxLayout(w))
                                          : static_cast<QBoxLayout*>(new QHBoxLayout(w));
    l->setContentsMargins(0, 0, 0, 0);
    l->setSpacing(2);
    const bool vertical = orientation == Qt::Vertical;
    auto* down = named<QToolButton>(name + QStringLiteral("Down"), w);
    down->setArrowType(vertical ? Qt::DownArrow : Qt::LeftArrow);
    down->setAccessibleName(vertical ? QStringLiteral("Lower") : QStringLiteral("Narrower"));
    auto* up = named<QToolButton>(name + QStringLiteral("Up"), w);
    up->setArrowType(vertical ? Qt::UpArrow : Qt::RightArrow);
    up->setAccessibleName(vertical ? QStringLiteral("Taller") : QStringLiteral("Wider"));
    if (vertical) {
        l->addWidget(up);
        l->addWidget(down);
    } else {
        l->addWidget(down);
        l->addWidget(up);
    }
    return w;
}

QWidget* padded(QWidget* parent, QLayout*& layoutOut) {
    auto* page = new QWidget(parent);
    auto* l = new QVBoxLayout(page);
    l->setContentsMargins(14, 12, 14, 12);
    layoutOut = l;
    return page;
}

} // namespace

int BoxPixels(double twips) {
    return static_cast<int>(std::lround(twips / 12.0));
}
int PicturePixels(double twips) {
    return static_cast<int>(std::lround(twips / 15.0));
}

QTabWidget* TabStrip(const QString& name, QWidget* parent) {
    return named<QTabWidget>(name, parent);
}

QWidget* StepImage(int index, QWidget* parent) {
    ClickableImage* i = image(element("Image1", index), parent);
    i->setFixedSize(24, 24);
    return i;
}

QWidget* BusinessInfoPage(QWidget* parent) {
    QLayout* layout = nullptr;
    QWidget* page = padded(parent, layout);
    auto* outer = static_cast<QVBoxLayout*>(layout);
    auto* columns = new QHBoxLayout;
    outer->addLayout(columns);

    auto* form = new QGridLayout;
    form->setHorizontalSpacing(10);
    form->setVerticalSpacing(6);
    for (int i = 0; i < 9; ++i) {
        QLineEdit* edit = box(element("txtBusiness", i), page);
        form->addWidget(label(element("lblAddress", i), page, edit), i, 0, Qt::AlignRight);
        auto* row = new QHBoxLayout;
        row->addWidget(edit);
        if (i == 5) {
            row->addSpacing(8);
            row->addWidget(label(QStringLiteral("lblPostal"), page));
        }
        row->addStretch(1);
        form->addLayout(row, i, 1);
    }
    auto* address = new QHBoxLayout;
    address->addWidget(button(QStringLiteral("cmdAddress"), page));
    address->addStretch(1);
    form->addLayout(address, 9, 1);
    form->setColumnStretch(1, 1);
    columns->addLayout(form, 3);

    auto* side = new QVBoxLayout;
    auto* type = new QGroupBox(QStringLiteral("Business Type"), page);
    auto* tl = new QVBoxLayout(type);
    tl->addWidget(named<QRadioButton>(element("optBusinessType", 0), type));
    tl->addWidget(named<QRadioButton>(element("optBusinessType", 1), type));
    tl->addWidget(wrapped(element("Label3", 0), type));
    side->addWidget(type);
    side->addSpacing(12);
    for (auto [img, caption] : {std::pair{"Image4", 2}, std::pair{"Image5", 3}}) {
        auto* row = new QHBoxLayout;
        row->addWidget(image(QString::fromLatin1(img), page));
        row->addWidget(label(element("Label3", caption), page), 1);
        side->addLayout(row);
    }
    side->addStretch(1);
    columns->addLayout(side, 2);
    outer->addStretch(1);
    return page;
}

QWidget* SetupHelpPage(QWidget* parent) {
    auto* scroll = new QScrollArea(parent);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    auto* inner = new QWidget(scroll);
    auto* l = new QVBoxLayout(inner);
    l->setContentsMargins(18, 14, 18, 14);
    QLabel* help = wrapped(QStringLiteral("lblHelp"), inner);
    help->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    l->addWidget(help);
    l->addStretch(1);
    scroll->setWidget(inner);
    return scroll;
}

QWidget* OptionsPage(QWidget* parent) {
    QLayout* layout = nullptr;
    QWidget* page = padded(parent, layout);
    auto* outer = static_cast<QVBoxLayout*>(layout);
    QTabWidget* strip = TabStrip(QStringLiteral("SSTab2"), page);
    outer->addWidget(strip, 1);

    QLayout* wl = nullptr;
    QWidget* workOrders = padded(strip, wl);
    auto* fra = named<QGroupBox>(QStringLiteral("fraWorkOrders"), workOrders);
    auto* fl = new QVBoxLayout(fra);
    for (const char* n : {"ckEstimate", "ckTerms", "ckReturnParts"})
        fl->addWidget(named<QCheckBox>(QString::fromLatin1(n), fra));
    auto* text = named<QPlainTextEdit>(QStringLiteral("txtReturnParts"), fra);
    text->setMinimumHeight(90);
    auto* textCaption =
        new QLabel(QStringLiteral("Return Parts Instructions (printed on work orders):"), fra);
    textCaption->setBuddy(text);
    fl->addSpacing(6);
    fl->addWidget(textCaption);
    fl->addWidget(text, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(button(element("cmdReturn", 0), fra));
    buttons->addWidget(button(element("cmdReturn", 1), fra));
    buttons->addStretch(1);
    fl->addLayout(buttons);
    static_cast<QVBoxLayout*>(wl)->addWidget(fra, 10);
    QLabel* none = wrapped(element("Label3", 1), workOrders);
    none->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    wl->addWidget(none);
    static_cast<QVBoxLayout*>(wl)->addStretch(1);
    strip->addTab(workOrders, QString());

    QLayout* il = nullptr;
    QWidget* invoice = padded(strip, il);
    for (const char* n : {"ckShipping", "ckMisc", "ckManualInvoiceNo"})
        il->addWidget(named<QCheckBox>(QString::fromLatin1(n), invoice));
    static_cast<QVBoxLayout*>(il)->addStretch(1);
    strip->addTab(invoice, QString());

    QLayout* dl = nullptr;
    QWidget* days = padded(strip, dl);
    auto* wd = named<QGroupBox>(QStringLiteral("fraWDOptions"), days);
    auto* wdl = new QVBoxLayout(wd);
    for (const char* n : {"optMF", "optMS", "optSF", "optSS"})
        wdl->addWidget(named<QRadioButton>(QString::fromLatin1(n), wd));
    dl->addWidget(wd);
    static_cast<QVBoxLayout*>(dl)->addStretch(1);
    strip->addTab(days, QString());

    auto* step = new QHBoxLayout;
    step->addStretch(1);
    step->addWidget(StepImage(1, page));
    outer->addLayout(step);
    return page;
}

QWidget* LogoPage(QWidget* parent) {
    QLayout* layout = nullptr;
    QWidget* page = padded(parent, layout);
    auto* outer = static_cast<QVBoxLayout*>(layout);
    QLabel* before = wrapped(element("Label2", 0), page);
    QFont bold = before->font();
    bold.setBold(true);
    before->setFont(bold);
    outer->addWidget(before);

    auto* columns = new QHBoxLayout;
    outer->addLayout(columns, 1);

    auto* left = new QVBoxLayout;
    auto* found = new QGroupBox(QStringLiteral("Picture"), page);
    auto* fl = new QVBoxLayout(found);
    auto* picture = named<QLabel>(QStringLiteral("Image2"), found);
    picture->setFrameShape(QFrame::StyledPanel);
    picture->setScaledContents(true);
    picture->setAccessibleName(QStringLiteral("Logo picture"));
    fl->addWidget(picture, 0, Qt::AlignCenter);
    fl->addStretch(1);
    left->addWidget(found, 1);
    auto* buttons = new QHBoxLayout;
    for (int i : {0, 1, 2})
        buttons->addWidget(button(element("cmdLogo", i), page));
    left->addLayout(buttons);
    left->addWidget(button(element("cmdLogo", 5), page));
    columns->addLayout(left, 1);

    auto* right = new QGroupBox(QStringLiteral("Printed Size"), page);
    auto* rl = new QVBoxLayout(right);
    QLabel* company = label(element("Label2", 2), right);
    company->setAlignment(Qt::AlignCenter);
    QFont strong = company->font();
    strong.setBold(true);
    company->setFont(strong);
    rl->addWidget(company);
    auto* sample = named<QLabel>(QStringLiteral("Image3"), right);
    sample->setFrameShape(QFrame::Box);
    sample->setScaledContents(true);
    sample->setAccessibleName(QStringLiteral("Logo at its printed size"));
    auto* sampleArea = new QWidget(right);
    sampleArea->setFixedSize(PicturePixels(1900), PicturePixels(1900));
    auto* sal = new QGridLayout(sampleArea);
    sal->setContentsMargins(0, 0, 0, 0);
    sal->addWidget(sample, 0, 0, Qt::AlignCenter);
    rl->addWidget(sampleArea, 0, Qt::AlignHCenter);
    auto* sizes = new QGridLayout;
    sizes->setHorizontalSpacing(10);
    sizes->addWidget(label(element("Label2", 3), right), 0, 0);
    sizes->addWidget(upDown(QStringLiteral("UpDown2"), Qt::Horizontal, right), 0, 1, Qt::AlignLeft);
    sizes->addWidget(label(element("Label2", 4), right), 1, 0);
    sizes->addWidget(upDown(QStringLiteral("UpDown1"), Qt::Vertical, right), 1, 1, Qt::AlignLeft);
    sizes->setColumnStretch(2, 1);
    auto* sizeRow = new QHBoxLayout;
    sizeRow->addStretch(1);
    sizeRow->addLayout(sizes);
    sizeRow->addStretch(1);
    rl->addLayout(sizeRow);
    QLabel* saved = wrapped(element("Label2", 1), right);
    saved->setAlignment(Qt::AlignCenter);
    rl->addWidget(saved);
    rl->addStretch(1);
    columns->addWidget(right, 1);
    return page;
}

QWidget* PointsOfServicePage(QWidget* parent) {
    QLayout* layout = nullptr;
    QWidget* page = padded(parent, layout);
    auto* outer = static_cast<QVBoxLayout*>(layout);
    outer->addWidget(wrapped(element("Label3", 14), page));
    auto* row = new QHBoxLayout;
    QComboBox* list = editableList(QStringLiteral("cboAssignments"), page);
    list->setMinimumWidth(BoxPixels(4200));
    list->setMaxVisibleItems(8);
    auto* name = new QLabel(QStringLiteral("Point of Service"), page);
    name->setBuddy(list);
    row->addWidget(name);
    row->addWidget(list);
    row->addStretch(1);
    outer->addLayout(row);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(button(QStringLiteral("cmdSave"), page));
    buttons->addWidget(button(element("cmdChange", 3), page));
    buttons->addWidget(button(QStringLiteral("cmdDelete"), page));
    buttons->addWidget(button(QStringLiteral("cmdOops"), page));
    buttons->addStretch(1);
    outer->addLayout(buttons);
    QLabel* tip = wrapped(element("Label3", 10), page);
    QFont italic = tip->font();
    italic.setItalic(true);
    tip->setFont(italic);
    outer->addWidget(tip);
    outer->addStretch(1);
    return page;
}

namespace {

QWidget* printingPage(QWidget* parent) {
    QLayout* layout = nullptr;
    QWidget* page = padded(parent, layout);
    auto* outer = static_cast<QVBoxLayout*>(layout);
    auto* paper = new QGroupBox(QStringLiteral("Invoice Paper"), page);
    auto* pl = new QHBoxLayout(paper);
    pl->addWidget(named<QRadioButton>(QStringLiteral("optPlain"), paper));
    pl->addWidget(named<QRadioButton>(QStringLiteral("optReturn"), paper));
    pl->addStretch(1);
    outer->addWidget(paper);

    auto* colours = new QGroupBox(QStringLiteral("Colors and Font"), page);
    auto* grid = new QGridLayout(colours);
    auto* colour = named<QCheckBox>(QStringLiteral("ckColor"), colours);
    grid->addWidget(colour, 0, 0);
    grid->addWidget(label(element("Label3", 4), colours), 0, 1, 1, 3);
    int row = 1;
    for (auto [boxName, caption, change] : {std::tuple{"txtBorders", 8, 0}, std::tuple{"txtData", 9, 1}}) {
        QLineEdit* swatch = box(QString::fromLatin1(boxName), colours);
        swatch->setFixedWidth(BoxPixels(1200));
        grid->addWidget(label(element("Label3", caption), colours, swatch), row, 0);
        grid->addWidget(swatch, row, 1);
        grid->addWidget(button(element("cmdChange", change), colours), row, 2);
        ++row;
    }
    QLabel* font = label(QStringLiteral("lblFont"), colours);
    font->setFrameShape(QFrame::StyledPanel);
    font->setMinimumWidth(BoxPixels(2400));
    grid->addWidget(label(element("Label3", 11), colours, font), row, 0);
    grid->addWidget(font, row, 1);
    grid->addWidget(button(element("cmdChange", 2), colours), row, 2);
    grid->setColumnStretch(3, 1);
    outer->addWidget(colours);

    auto* copiesRow = new QHBoxLayout;
    QComboBox* copies = editableList(QStringLiteral("cboCopies"), page);
    copies->setFixedWidth(BoxPixels(900));
    copiesRow->addWidget(label(element("Label3", 5), page, copies));
    copiesRow->addWidget(copies);
    copiesRow->addStretch(1);
    outer->addLayout(copiesRow);
    outer->addStretch(1);
    return page;
}

QWidget* taxationPage(QWidget* parent) {
    QLayout* layout = nullptr;
    QWidget* page = padded(parent, layout);
    auto* outer = static_cast<QVBoxLayout*>(layout);
    auto* rates = new QGridLayout;
    QComboBox* heading1 = editableList(QStringLiteral("cboTaxHeading1"), page);
    QComboBox* rate1 = editableList(QStringLiteral("cboRate1"), page);
    QComboBox* heading2 = editableList(QStringLiteral("cboTaxHeading2"), page);
    QComboBox* rate2 = editableList(QStringLiteral("cboRate2"), page);
    rates->addWidget(label(element("Label3", 12), page, heading1), 0, 0);
    rates->addWidget(label(element("Label3", 13), page, rate1), 0, 1);
    rates->addWidget(heading1, 1, 0);
    rates->addWidget(rate1, 1, 1);
    rates->addWidget(named<QCheckBox>(QStringLiteral("ckApply1stTax"), page), 1, 2);
    rates->addWidget(heading2, 2, 0);
    rates->addWidget(rate2, 2, 1);
    rates->addWidget(named<QCheckBox>(QStringLiteral("ckApply2ndTax"), page), 2, 2);
    for (QComboBox* heading : {heading1, heading2})
        heading->setMinimumWidth(BoxPixels(2000));
    heading1->setAccessibleName(QStringLiteral("Primary Tax Heading"));
    rate1->setAccessibleName(QStringLiteral("Primary Tax Rate"));
    heading2->setAccessibleName(QStringLiteral("Secondary Tax Heading"));
    rate2->setAccessibleName(QStringLiteral("Secondary Tax Rate"));
    rates->setColumnStretch(3, 1);
    outer->addLayout(rates);

    auto* what = new QHBoxLayout;
    for (const char* n : {"ckSalesItems", "ckServices", "ckLabor", "ckCustom"})
        what->addWidget(named<QCheckBox>(QString::fromLatin1(n), page));
    what->addStretch(1);
    outer->addLayout(what);

    auto* graduated = new QHBoxLayout;
    graduated->addWidget(named<QCheckBox>(QStringLiteral("ckApplyGraduated"), page));
    graduated->addWidget(label(element("Label3", 7), page));
    graduated->addStretch(1);
    graduated->addWidget(button(element("cmdGraduatedTax", 0), page));
    outer->addLayout(graduated);

    auto* fra = named<QGroupBox>(QStringLiteral("fraGraduated"), page);
    auto* fg = new QGridLayout(fra);
    QLineEdit* limit = box(element("txtGradulated", 0), fra);
    QLineEdit* surcharge = box(element("txtGradulated", 1), fra);
    limit->setFixedWidth(BoxPixels(1600));
    surcharge->setFixedWidth(BoxPixels(1600));
    fg->addWidget(label(element("lblGraduated", 0), fra, limit), 0, 0);
    fg->addWidget(limit, 0, 1);
    fg->addWidget(label(element("lblGraduated", 1), fra), 1, 0);
    fg->addWidget(label(element("lblGraduated", 2), fra), 2, 0);
    fg->addWidget(label(element("lblGraduated", 3), fra, surcharge), 3, 0);
    fg->addWidget(surcharge, 3, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(button(element("cmdGraduatedTax", 1), fra));
    buttons->addWidget(button(element("cmdGraduatedTax", 2), fra));
    buttons->addStretch(1);
    fg->addLayout(buttons, 4, 0, 1, 3);
    fg->setColumnStretch(2, 1);
    outer->addWidget(fra);
    outer->addStretch(1);
    return page;
}

QWidget* phonePage(QWidget* parent) {
    QLayout* layout = nullptr;
    QWidget* page = padded(parent, layout);
    auto* outer = static_cast<QVBoxLayout*>(layout);
    auto* row = new QHBoxLayout;
    QLineEdit* port = box(QStringLiteral("txtModemPort"), page);
    port->setFixedWidth(BoxPixels(700));
    row->addWidget(label(element("Label3", 6), page, port));
    row->addWidget(port);
    row->addStretch(1);
    outer->addLayout(row);
    outer->addWidget(named<QCheckBox>(QStringLiteral("ckPhone"), page));
    outer->addWidget(named<QCheckBox>(QStringLiteral("ckCallerID"), page));
    outer->addWidget(wrapped(QStringLiteral("lblCallid"), page));
    outer->addStretch(1);
    return page;
}

QWidget* assistancePage(QWidget* parent) {
    QLayout* layout = nullptr;
    QWidget* page = padded(parent, layout);
    layout->addWidget(named<QCheckBox>(QStringLiteral("ckPrompts"), page));
    layout->addWidget(named<QCheckBox>(QStringLiteral("ckAlarms"), page));
    static_cast<QVBoxLayout*>(layout)->addStretch(1);
    return page;
}

} // namespace

QWidget* OperationsPage(QWidget* parent) {
    QLayout* layout = nullptr;
    QWidget* page = padded(parent, layout);
    auto* outer = static_cast<QVBoxLayout*>(layout);
    QTabWidget* strip = TabStrip(QStringLiteral("SSTab1"), page);
    strip->addTab(printingPage(strip), QString());
    strip->addTab(taxationPage(strip), QString());
    strip->addTab(phonePage(strip), QString());
    strip->addTab(assistancePage(strip), QString());
    outer->addWidget(strip, 1);
    auto* step = new QHBoxLayout;
    step->addStretch(1);
    step->addWidget(StepImage(3, page));
    outer->addLayout(step);
    return page;
}

} // namespace ostrel::ui::setupview
