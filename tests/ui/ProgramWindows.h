#pragma once

// The whole program on a data folder, driven through its real windows as a person drives them.
#include "FakeClock.h"
#include "TestDataRoot.h"
#include "UiEvents.h"
#include "app/Application.h"

#include <QAbstractButton>
#include <QPushButton>
#include <QApplication>
#include <QCloseEvent>
#include <QMessageBox>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTimer>

#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <memory>

namespace ostrel::test {

// Answers each box the program puts up as a hurried person would: with its default button, unless
// the test named another answer for a box whose text starts so. Keeps what the boxes said.
class BoxAnswerer {
public:
    BoxAnswerer() {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box) return;
            said << box->text();
            for (const auto& [start, button] : m_answers)
                if (box->text().startsWith(start)) {
                    box->button(button)->click();
                    return;
                }
            if (QAbstractButton* b = box->defaultButton()) b->click();
            else box->done(0);
        });
        m_timer.start(10);
    }
    void answer(const QString& start, QMessageBox::StandardButton button) { m_answers.emplace_back(start, button); }
    QStringList said;

private:
    QTimer m_timer;
    std::vector<std::pair<QString, QMessageBox::StandardButton>> m_answers;
};

// Every print job into a PDF file of its own, job-1.pdf on, as a person choosing "Print to File".
class PdfJobs {
public:
    ui::QtPrintDialogs::Chooser chooser() {
        return [this](QPrinter& printer) {
            files << m_dir.filePath(QStringLiteral("job-%1.pdf").arg(files.size() + 1));
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(files.back());
            return true;
        };
    }
    QStringList files;

private:
    QTemporaryDir m_dir;
};

// The whole program on a data folder, with its real platform, as the executable starts it.
struct ProgramWindows : ::testing::Test {
    TestDataRoot t;
    BoxAnswerer boxes;
    // What stands in for the desktop's clock and print dialog when a test puts them in `options`
    // before start(); they outlive the program.
    FakeClock clock;
    PdfJobs printed;
    ui::ApplicationOptions options;
    std::unique_ptr<ui::Application> app;

    void start() {
        // The executable lives in its data folder under the program's name.
        t.writeBytes("/OstrelAppointmentScheduler", QByteArray("\x7f" "ELF"));
        app = std::make_unique<ui::Application>(AppInfo(t.path() + QStringLiteral("/OstrelAppointmentScheduler")),
                                                options);
        ASSERT_TRUE(app->start());
        test::settle();
    }
    static QWidget* window(const QString& formName) {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == formName) return w;
        ADD_FAILURE() << "no window " << formName.toStdString();
        return nullptr;
    }
    static bool shown(const QString& formName) {
        QWidget* w = window(formName);
        return w && w->isVisible();
    }
    template <typename W> static W* child(const QString& formName, const QString& name) {
        QWidget* w = window(formName);
        W* c = w ? w->findChild<W*>(name) : nullptr;
        EXPECT_NE(c, nullptr) << name.toStdString();
        return c;
    }
    // The frame's close button, as the window manager delivers it.
    static void closeByFrame(QWidget* w) {
        QCloseEvent e;
        QSpontaneKeyEvent::setSpontaneous(&e);
        QCoreApplication::instance()->notify(w, &e);
        test::settle();
    }
};

} // namespace ostrel::test
