#include "platform/QtDialogs.h"
#include "UiEvents.h"
#include "platform/AppInfo.h"
#include "platform/DesktopBrowser.h"

#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

using namespace ostrel;
using namespace ostrel::ui;

namespace {

// Acts on the modal dialog once it is up, as a person at the screen would.
void whenModalShows(std::function<void(QWidget*)> act) {
    auto* timer = new QTimer;
    QObject::connect(timer, &QTimer::timeout, [timer, act] {
        if (QWidget* w = QApplication::activeModalWidget()) {
            timer->stop();
            timer->deleteLater();
            act(w);
        }
    });
    timer->start(5);
}

} // namespace

TEST(QtDialogs, BoxWithoutTitleCarriesTheProgramTitleAndAnOkButton) {
    AppInfo app("/opt/shop/OstrelAppointmentScheduler");
    QtDialogs dialogs(app);
    QString title, text;
    QMessageBox::StandardButtons buttons;
    whenModalShows([&](QWidget* w) {
        auto* box = qobject_cast<QMessageBox*>(w);
        ASSERT_NE(nullptr, box);
        title = box->windowTitle();
        text = box->text();
        buttons = box->standardButtons();
        box->button(QMessageBox::Ok)->click();
    });
    EXPECT_EQ(vbOK, dialogs.MsgBox(
                        "OstrelAppointmentScheduler is already Running!\r\nLook for it on the Task Bar"));
    EXPECT_EQ(QStringLiteral("OstrelAppointmentScheduler"), title);
    EXPECT_EQ(QStringLiteral("OstrelAppointmentScheduler is already Running!\nLook for it on the Task Bar"),
              text);
    EXPECT_EQ(QMessageBox::StandardButtons(QMessageBox::Ok), buttons);
}

TEST(QtDialogs, TitleFollowsTheProgramTitleWhenItChanges) {
    AppInfo app("/opt/shop/OstrelAppointmentScheduler");
    QtDialogs dialogs(app);
    app.setTitle("Bob's Repair");
    EXPECT_EQ(QStringLiteral("Bob's Repair"), dialogs.programTitle());
}

TEST(QtDialogs, YesNoQuestionAnswersTheButtonPressed) {
    AppInfo app("/opt/shop/OstrelAppointmentScheduler");
    QtDialogs dialogs(app);
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QString title;
    whenModalShows([&](QWidget* w) {
        auto* box = qobject_cast<QMessageBox*>(w);
        icon = box->icon();
        title = box->windowTitle();
        box->button(QMessageBox::No)->click();
    });
    EXPECT_EQ(vbNo,
              dialogs.MsgBox("This will Delete your Company Logo", vbYesNo + vbQuestion, "Delete Logo"));
    EXPECT_EQ(QMessageBox::Question, icon);
    EXPECT_EQ(QStringLiteral("Delete Logo"), title);
}

TEST(QtDialogs, BoxOffersTheLegacyButtonSetsWithTheirDefault) {
    struct Case {
        int style;
        QMessageBox::StandardButtons buttons;
        QMessageBox::StandardButton defaultButton;
        QMessageBox::Icon icon;
    };
    const Case cases[] = {
        {vbOKCancel, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok, QMessageBox::NoIcon},
        {vbAbortRetryIgnore + vbCritical, QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore,
         QMessageBox::Abort, QMessageBox::Critical},
        {vbYesNoCancel + vbDefaultButton3 + vbExclamation,
         QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel, QMessageBox::Warning},
        {vbYesNo + vbDefaultButton2, QMessageBox::Yes | QMessageBox::No, QMessageBox::No,
         QMessageBox::NoIcon},
        {vbRetryCancel + vbInformation, QMessageBox::Retry | QMessageBox::Cancel, QMessageBox::Retry,
         QMessageBox::Information},
    };
    for (const Case& c : cases) {
        QMessageBox box;
        QtDialogs::prepare(box, MsgBoxRequest{"Prompt", c.style, "Title"});
        EXPECT_EQ(c.buttons, box.standardButtons()) << c.style;
        EXPECT_EQ(box.button(c.defaultButton), box.defaultButton()) << c.style;
        EXPECT_EQ(c.icon, box.icon()) << c.style;
        EXPECT_EQ(Qt::PlainText, box.textFormat());
    }
}

TEST(QtDialogs, EscapeAnswersCancelWhereThereIsOne) {
    QMessageBox box;
    QtDialogs::prepare(box, MsgBoxRequest{"Prompt", vbYesNoCancel, "Title"});
    EXPECT_EQ(box.button(QMessageBox::Cancel), box.escapeButton());
}

TEST(QtDialogs, ButtonsMapBothWays) {
    for (MsgBoxResult r : {vbOK, vbCancel, vbAbort, vbRetry, vbIgnore, vbYes, vbNo})
        EXPECT_EQ(r, QtDialogs::fromStandardButton(QtDialogs::toStandardButton(r)));
}

TEST(QtDialogs, InputBoxGivesTheTypedTextOrNothingOnCancel) {
    AppInfo app("/opt/shop/OstrelAppointmentScheduler");
    QtDialogs dialogs(app);
    QString title, label;
    whenModalShows([&](QWidget* w) {
        auto* d = qobject_cast<QInputDialog*>(w);
        ASSERT_NE(nullptr, d);
        title = d->windowTitle();
        label = d->labelText();
        EXPECT_EQ(QStringLiteral("1"), d->textValue());
        d->setTextValue("3");
        d->accept();
    });
    EXPECT_EQ(QStringLiteral("3"),
              dialogs.InputBox("How many copies?", QString(), "1").value_or("cancelled"));
    EXPECT_EQ(QStringLiteral("OstrelAppointmentScheduler"), title);
    EXPECT_EQ(QStringLiteral("How many copies?"), label);

    whenModalShows([](QWidget* w) { qobject_cast<QDialog*>(w)->reject(); });
    EXPECT_FALSE(dialogs.InputBox("How many copies?", "Print").has_value());
}

TEST(DesktopBrowser, RefusesSomethingThatIsNoLink) {
    DesktopBrowser browser;
    EXPECT_FALSE(browser.Open(QString()));
}
