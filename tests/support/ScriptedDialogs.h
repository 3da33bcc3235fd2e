#pragma once

#include "platform/Dialogs.h"

#include <QString>
#include <QVector>

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>

namespace ostrel::test {

// Dialogs for tests: records every box, answers from a script, and fails the test for a box nobody
// expected or an expected box that never came.
//
//   dialogs.expect("Account not Entered", "Telephone Number will be used as Acct No.", vbOK);
//   frm.cmdNav_Click(2);
//   dialogs.verify();
//
// or, for a box whose answer does not matter, check it after the action:
//
//   frm.cmdNav_Click(2);
//   EXPECT_BOX(dialogs, "Account not Entered", "Telephone Number will be used as Acct No.");
//
// A box shown with no expectation queued gets its default button (Enter) and waits to be checked
// by EXPECT_BOX; verify() and the destructor fail for every such box still unchecked. An empty
// expected title stands for the program's title, as in MsgBox.
class ScriptedDialogs : public Dialogs {
public:
    struct Box {
        QString prompt;
        QString title; // as shown: the program's title when the caller gave none
        int style = vbOKOnly;
        MsgBoxResult answer = vbOK;
    };

    explicit ScriptedDialogs(QString programTitle = QStringLiteral("OstrelAppointmentScheduler"));
    ~ScriptedDialogs() override;

    QString programTitle() const override { return m_programTitle; }
    void setProgramTitle(const QString& title) { m_programTitle = title; }

    // The next box must carry this title and prompt; the user answers with `answer`.
    ScriptedDialogs& expect(const QString& title, const QString& prompt, MsgBoxResult answer = vbOK);
    // The same, and the box must also have exactly this style (buttons + icon + default).
    ScriptedDialogs& expect(const QString& title, const QString& prompt, int style, MsgBoxResult answer);

    // The oldest box shown without an expectation and not yet checked, compared with these texts.
    ::testing::AssertionResult takeBox(const QString& title, const QString& prompt);
    ::testing::AssertionResult takeBox(const QString& title, const QString& prompt, int style);

    // Every box shown without an expectation and not yet checked, oldest first; they count as checked.
    QVector<Box> takeAllBoxes() {
        QVector<Box> out(m_unchecked.begin(), m_unchecked.end());
        m_unchecked.clear();
        return out;
    }

    // Fails for each scripted box or dialog answer not used and each box not checked; then clears
    // them so the destructor does not report them again.
    void verify();

    // Answers for the common dialogs, used in order. An empty optional is the user's Cancel.
    void answerOpenFile(std::optional<QString> path) { m_fileAnswers.push_back(std::move(path)); }
    void answerColour(std::optional<Colour> colour) { m_colourAnswers.push_back(colour); }
    void answerFont(std::optional<FontChoice> font) { m_fontAnswers.push_back(std::move(font)); }
    void answerInput(std::optional<QString> text) { m_inputAnswers.push_back(std::move(text)); }

    // What was shown, in order.
    const QVector<Box>& boxes() const { return m_boxes; }
    int beeps() const { return m_beeps; }
    const QVector<OpenFileRequest>& openFileRequests() const { return m_fileRequests; }
    const QVector<Colour>& colourRequests() const { return m_colourRequests; }
    const QVector<FontChoice>& fontRequests() const { return m_fontRequests; }
    struct InputRequest {
        QString prompt;
        QString title;
        QString defaultText;
    };
    const QVector<InputRequest>& inputRequests() const { return m_inputRequests; }

    static QString describe(const Box& box);

    // Runs as each box comes up, before it is answered: a test looks at what stands at that moment.
    std::function<void(const Box&)> whenShown;

protected:
    MsgBoxResult showMsgBox(const MsgBoxRequest& request) override;
    void beep() override { ++m_beeps; }
    std::optional<QString> openFileName(const OpenFileRequest& request) override;
    std::optional<Colour> chooseColour(Colour initial, const QString& title) override;
    std::optional<FontChoice> chooseFont(const FontChoice& initial, const QString& title) override;
    std::optional<QString> inputBox(const QString& prompt, const QString& title,
                                    const QString& defaultText) override;

private:
    struct Expectation {
        QString title;
        QString prompt;
        std::optional<int> style;
        MsgBoxResult answer;
    };
    QString resolved(const QString& title) const { return title.isEmpty() ? m_programTitle : title; }

    QString m_programTitle;
    std::deque<Expectation> m_expected;
    std::deque<Box> m_unchecked;
    QVector<Box> m_boxes;
    int m_beeps = 0;
    std::deque<std::optional<QString>> m_fileAnswers;
    std::deque<std::optional<Colour>> m_colourAnswers;
    std::deque<std::optional<FontChoice>> m_fontAnswers;
    std::deque<std::optional<QString>> m_inputAnswers;
    QVector<OpenFileRequest> m_fileRequests;
    QVector<Colour> m_colourRequests;
    QVector<FontChoice> m_fontRequests;
    QVector<InputRequest> m_inputRequests;
};

} // namespace ostrel::test

// Checks the oldest unchecked box (one shown without an expectation) against a title and prompt.
#define EXPECT_BOX(dialogs, title, prompt) EXPECT_TRUE((dialogs).takeBox((title), (prompt)))
