#include "ScriptedDialogs.h"
#include "UiEvents.h"
#include "binder/Binder.h"
#include "binder/ClickableImage.h"
#include "platform/QtColour.h"

#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTextEdit>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;

namespace {

class BinderPushPull : public ::testing::Test {
protected:
    test::ScriptedDialogs dialogs;
    QWidget window;
    Binder binder{dialogs, &window};

    template <typename W> W* make(const QString& name) {
        auto* w = new W(&window);
        w->setObjectName(name);
        return w;
    }
};

} // namespace

TEST_F(BinderPushPull, CommandButtonShowsCaptionEnabledVisibleAndTooltip) {
    CommandButton cmd;
    cmd.name = "cmdGoto";
    cmd.caption = "&Goto";
    cmd.toolTip = "Goto Selected Routine";
    auto* w = make<QPushButton>("cmdGoto");
    binder.bind(w, cmd);
    EXPECT_EQ(QStringLiteral("&Goto"), w->text());
    EXPECT_EQ(QStringLiteral("Goto Selected Routine"), w->toolTip());
    EXPECT_EQ(QStringLiteral("Goto"), w->accessibleName());
    EXPECT_TRUE(w->isEnabled());
    EXPECT_FALSE(w->isHidden());

    cmd.enabled = false;
    cmd.visible = false;
    cmd.caption = "Wait";
    binder.sync();
    EXPECT_FALSE(w->isEnabled());
    EXPECT_TRUE(w->isHidden());
    EXPECT_EQ(QStringLiteral("Wait"), w->accessibleName());
}

TEST_F(BinderPushPull, ModelWithoutNameTakesTheWidgetsName) {
    CommandButton cmd;
    auto* w = make<QPushButton>("cmdService(2)");
    binder.bind(w, cmd);
    EXPECT_EQ(QStringLiteral("cmdService(2)"), cmd.name);
    EXPECT_TRUE(binder.unboundControls().isEmpty());
}

TEST_F(BinderPushPull, WidgetNamedOtherwiseThanItsModelIsReported) {
    CommandButton cmd;
    cmd.name = "cmdService(2)";
    binder.bind(make<QPushButton>("cmdService(3)"), cmd);
    ASSERT_EQ(1, binder.unboundControls().size());
    EXPECT_TRUE(binder.unboundControls()[0].startsWith(QStringLiteral("cmdService(2)")));
}

TEST_F(BinderPushPull, TextBoxPushesTextLimitAndLockAndPullsWhatIsTyped) {
    TextBox txt;
    txt.name = "txtCustomer(0)";
    txt.text = "555";
    txt.maxLength = 5;
    auto* w = make<QLineEdit>("txtCustomer(0)");
    binder.bind(w, txt);
    EXPECT_EQ(QStringLiteral("555"), w->text());
    EXPECT_EQ(5, w->maxLength());

    w->setCursorPosition(3);
    test::typeText(w, "-12");
    EXPECT_EQ(QStringLiteral("555-1"), w->text()); // the limit holds
    EXPECT_EQ(QStringLiteral("555-1"), txt.text);
    EXPECT_EQ(5, txt.selStart);

    txt.locked = true;
    txt.text = "";
    binder.sync();
    EXPECT_TRUE(w->isReadOnly());
    EXPECT_EQ(QString(), w->text());
}

TEST_F(BinderPushPull, TextBoxSelectionMovesOnlyWhenTheProgramMovesIt) {
    TextBox txt;
    txt.text = "$12.50";
    auto* w = make<QLineEdit>("txtCharge");
    binder.bind(w, txt);
    w->setCursorPosition(2);
    EXPECT_EQ(2, txt.selStart);
    binder.sync();
    EXPECT_EQ(2, w->cursorPosition()); // an unrelated push leaves the caret alone

    txt.selStart = 0;
    txt.selLength = int(txt.text.size());
    binder.sync();
    EXPECT_EQ(QStringLiteral("$12.50"), w->selectedText());
}

TEST_F(BinderPushPull, BoxGetsItsAccessibleNameFromItsBuddyLabel) {
    TextBox txt;
    auto* label = make<QLabel>("lblPhone");
    label->setText("&Telephone");
    auto* w = make<QLineEdit>("txtCustomer(6)");
    label->setBuddy(w);
    binder.bind(w, txt);
    EXPECT_EQ(QStringLiteral("Telephone"), w->accessibleName());
}

TEST_F(BinderPushPull, MultiLineBoxKeepsCrLfInTheModelAndLfInTheWidget) {
    TextBox txt;
    txt.text = "line one\r\nline two";
    auto* w = make<QPlainTextEdit>("txtComments");
    binder.bind(w, txt);
    EXPECT_EQ(QStringLiteral("line one\nline two"), w->toPlainText());
    w->moveCursor(QTextCursor::End);
    w->insertPlainText("\nthree");
    EXPECT_EQ(QStringLiteral("line one\r\nline two\r\nthree"), txt.text);
    EXPECT_EQ(int(txt.text.size()), txt.selStart);
}

TEST_F(BinderPushPull, RichTextEditHoldsPlainTextAndCutsAtTheLimit) {
    TextBox txt;
    txt.maxLength = 6;
    auto* w = make<QTextEdit>("txtTerms");
    binder.bind(w, txt);
    EXPECT_FALSE(w->acceptRichText());
    w->insertPlainText("<b>bold</b>");
    EXPECT_EQ(QStringLiteral("<b>bol"), txt.text);
    EXPECT_EQ(QStringLiteral("<b>bol"), w->toPlainText());
}

TEST_F(BinderPushPull, LabelShowsItsCaptionAsPlainText) {
    Label lbl;
    lbl.caption = "<b>Acct</b> & Co";
    auto* w = make<QLabel>("lblAccount");
    binder.bind(w, lbl);
    EXPECT_EQ(Qt::PlainText, w->textFormat());
    EXPECT_EQ(QStringLiteral("<b>Acct</b> & Co"), w->text());
}

TEST_F(BinderPushPull, CheckBoxPushesItsValueAndPullsTheUsersTick) {
    CheckBox ck;
    ck.caption = "Alarms";
    ck.value = 1;
    auto* w = make<QCheckBox>("ckAlarms");
    binder.bind(w, ck);
    EXPECT_EQ(Qt::Checked, w->checkState());
    w->click();
    EXPECT_EQ(0, ck.value);
    ck.value = 2;
    binder.sync();
    EXPECT_EQ(Qt::PartiallyChecked, w->checkState());
}

TEST_F(BinderPushPull, OptionButtonsStayExclusiveAndCanAllBeCleared) {
    ControlArray<OptionButton> opt;
    auto* a = make<QRadioButton>("optRoutine(0)");
    auto* b = make<QRadioButton>("optRoutine(1)");
    binder.bind(a, opt[0]);
    binder.bind(b, opt[1]);

    opt[0].value = true;
    binder.sync();
    EXPECT_TRUE(a->isChecked());

    b->click(); // the user chooses the other
    EXPECT_TRUE(opt[1].value);
    EXPECT_FALSE(opt[0].value);

    opt[0].value = true; // the program chooses one without clearing the other
    binder.sync();
    EXPECT_TRUE(a->isChecked());
    EXPECT_FALSE(b->isChecked());
    EXPECT_FALSE(opt[1].value);

    opt[0].value = false;
    binder.sync();
    EXPECT_FALSE(a->isChecked());
    EXPECT_FALSE(b->isChecked());
}

TEST_F(BinderPushPull, OptionButtonInAnExclusiveGroupCanBeCleared) {
    OptionButton x, y;
    auto* a = make<QRadioButton>("optPlain");
    auto* b = make<QRadioButton>("optReturn");
    QButtonGroup group;
    group.addButton(a);
    group.addButton(b);
    binder.bind(a, x);
    binder.bind(b, y);
    x.value = true;
    binder.sync();
    x.value = false;
    binder.sync();
    EXPECT_FALSE(a->isChecked());
    EXPECT_TRUE(group.exclusive());
}

TEST_F(BinderPushPull, FrameCaptionIsTheGroupBoxTitle) {
    Frame fra;
    fra.caption = "Welcome to Norlavex's Ostrel App.exe";
    fra.visible = false;
    auto* g = make<QGroupBox>("fraWelcome");
    binder.bind(g, fra);
    EXPECT_EQ(fra.caption, g->title());
    EXPECT_TRUE(g->isHidden());
    Frame plain;
    auto* f = make<QFrame>("fraPlain");
    binder.bind(f, plain);
    plain.enabled = false;
    binder.sync();
    EXPECT_FALSE(f->isEnabled());
}

TEST_F(BinderPushPull, ImageShowsItsPictureAndNothingWhenEmpty) {
    QTemporaryDir dir;
    const QString file = dir.filePath("logo.png");
    QPixmap px(8, 6);
    px.fill(Qt::red);
    ASSERT_TRUE(px.save(file));
    Image img;
    img.picture = file;
    auto* w = make<ClickableImage>("Image1(1)");
    binder.bind(w, img);
    EXPECT_EQ(QSize(8, 6), w->pixmap().size());
    img.picture.clear();
    binder.sync();
    EXPECT_TRUE(w->pixmap().isNull());
}

TEST_F(BinderPushPull, MenuItemPushesCaptionStateAndCheckMark) {
    MenuItem mnu;
    mnu.caption = "Create/Modify";
    auto* a = new QAction(&window);
    a->setObjectName("mnuCreate");
    binder.bind(a, mnu);
    EXPECT_EQ(QStringLiteral("Create/Modify"), a->text());
    mnu.enabled = false;
    mnu.visible = false;
    mnu.checked = true;
    binder.sync();
    EXPECT_FALSE(a->isEnabled());
    EXPECT_FALSE(a->isVisible());
    EXPECT_TRUE(a->isChecked());
}

TEST_F(BinderPushPull, ListBoxPushesItemsAndSelectionAndPullsTheUsersChoice) {
    ListBox lst;
    lst.AddItem("Crew A");
    lst.AddItem("Crew B");
    lst.AddItem("Crew C");
    lst.SetListIndex(1);
    auto* w = make<QListWidget>("lstAssignments");
    binder.bind(w, lst);
    ASSERT_EQ(3, w->count());
    EXPECT_EQ(QStringLiteral("Crew C"), w->item(2)->text());
    EXPECT_EQ(1, w->currentRow());

    w->setCurrentRow(2);
    EXPECT_EQ(2, lst.listIndex);
    EXPECT_EQ(QStringLiteral("Crew C"), lst.text);

    lst.RemoveItem(2);
    binder.sync();
    EXPECT_EQ(2, w->count());
    EXPECT_EQ(-1, w->currentRow());
}

TEST_F(BinderPushPull, ComboBoxPushesItemsAndPullsChoiceAndTypedText) {
    ComboBox cbo;
    cbo.AddItem("All Assignments");
    cbo.AddItem("Crew A");
    auto* w = make<QComboBox>("cboAssociates");
    binder.bind(w, cbo);
    EXPECT_EQ(2, w->count());
    EXPECT_EQ(-1, w->currentIndex());
    cbo.SetListIndex(0);
    binder.sync();
    EXPECT_EQ(0, w->currentIndex());

    w->setCurrentIndex(1);
    Q_EMIT w->activated(1); // as a choice from the drop-down arrives
    EXPECT_EQ(1, cbo.listIndex);
    EXPECT_EQ(QStringLiteral("Crew A"), cbo.text);

    ComboBox typed;
    typed.AddItem("Portrait");
    auto* e = make<QComboBox>("cboOrientation");
    e->setEditable(true);
    binder.bind(e, typed);
    e->lineEdit()->setText(QString());
    test::typeText(e->lineEdit(), "Land");
    EXPECT_EQ(QStringLiteral("Land"), typed.text);
    EXPECT_EQ(-1, typed.listIndex);
}

TEST_F(BinderPushPull, GridShowsFixedRowAndColumnAsHeadingsAndCellsWithColours) {
    Grid fg;
    fg.SetRows(4);
    fg.SetCols(3);
    fg.SetTextMatrix(0, 1, "Name");
    fg.SetTextMatrix(0, 2, "Time");
    fg.SetTextMatrix(1, 0, "8:00");
    fg.SetTextMatrix(2, 1, "Smith");
    fg.SetCellBackColor(2, 1, rgbColour(255, 0, 0));
    fg.SetCellForeColor(2, 2, rgbColour(0, 0, 255));
    fg.colWidths = {1440, 2880, 720};
    auto* t = make<QTableWidget>("fgDaySchedule");
    binder.bind(t, fg);

    EXPECT_EQ(3, t->rowCount());
    EXPECT_EQ(2, t->columnCount());
    EXPECT_EQ(QStringLiteral("Name"), t->horizontalHeaderItem(0)->text());
    EXPECT_EQ(QStringLiteral("8:00"), t->verticalHeaderItem(0)->text());
    EXPECT_EQ(QStringLiteral("Smith"), t->item(1, 0)->text());
    EXPECT_EQ(QColor(255, 0, 0), t->item(1, 0)->background().color());
    EXPECT_EQ(QColor(0, 0, 255), t->item(1, 1)->foreground().color());
    EXPECT_EQ(2880 * t->logicalDpiX() / 1440, t->columnWidth(0));
    EXPECT_EQ(QAbstractItemView::NoEditTriggers, t->editTriggers());

    fg.SetCellBackColor(2, 1, kNoColour);
    fg.SetTextMatrix(2, 1, QString());
    binder.sync();
    EXPECT_FALSE(t->item(1, 0)->data(Qt::BackgroundRole).isValid());
    EXPECT_EQ(QString(), t->item(1, 0)->text());
}

TEST_F(BinderPushPull, GridPushesTheCurrentCellAndPullsTheUsersClick) {
    Grid fg;
    fg.SetRows(5);
    fg.SetCols(3);
    fg.row = 2;
    fg.col = 1;
    auto* t = make<QTableWidget>("fgSchedule");
    binder.bind(t, fg);
    EXPECT_EQ(1, t->currentRow());
    EXPECT_EQ(0, t->currentColumn());

    window.resize(400, 300);
    t->resize(400, 300);
    window.show();
    test::settle();
    const QRect cell = t->visualItemRect(t->item(3, 1));
    test::click(t->viewport(), cell.center());
    EXPECT_EQ(4, fg.row);
    EXPECT_EQ(2, fg.col);
}

TEST_F(BinderPushPull, GridWithoutFixedRowsMapsCellsOneToOne) {
    Grid fg;
    fg.fixedRows = 0;
    fg.fixedCols = 0;
    fg.SetRows(2);
    fg.SetCols(2);
    fg.SetTextMatrix(0, 0, "a");
    auto* t = make<QTableWidget>("fgPlain");
    binder.bind(t, fg);
    EXPECT_EQ(2, t->rowCount());
    EXPECT_FALSE(t->horizontalHeader()->isVisible() && !t->horizontalHeader()->isHidden());
    EXPECT_EQ(QStringLiteral("a"), t->item(0, 0)->text());
}

TEST_F(BinderPushPull, ExtraFixedRowsAreGrayCellsThatCannotBeChosen) {
    Grid fg;
    fg.fixedRows = 2;
    fg.SetRows(4);
    fg.SetCols(2);
    fg.SetTextMatrix(1, 1, "sub-heading");
    auto* t = make<QTableWidget>("fgInvoice");
    binder.bind(t, fg);
    EXPECT_EQ(3, t->rowCount());
    EXPECT_EQ(QStringLiteral("sub-heading"), t->item(0, 0)->text());
    EXPECT_FALSE(t->item(0, 0)->flags() & Qt::ItemIsSelectable);
    EXPECT_TRUE(t->item(1, 0)->flags() & Qt::ItemIsSelectable);
}

TEST(QtColour, RedIsTheLowByte) {
    EXPECT_EQ(QColor(0x11, 0x22, 0x33), ui::toQColor(0x332211u));
    EXPECT_EQ(0x332211u, ui::fromQColor(QColor(0x11, 0x22, 0x33)));
    EXPECT_FALSE(ui::toQColor(kNoColour).isValid());
    EXPECT_EQ(kNoColour, ui::fromQColor(QColor()));
}
