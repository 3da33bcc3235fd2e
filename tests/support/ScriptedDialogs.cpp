#include "ScriptedDialogs.h"

namespace ostrel::test {

namespace {

std::string text(const QString& s) {
    return s.toStdString();
}

QString quoted(const QString& s) {
    QString t = s;
    t.replace(QStringLiteral("\r"), QStringLiteral("\\r"))
        .replace(QStringLiteral("\n"), QStringLiteral("\\n"));
    return u'"' + t + u'"';
}

QString describeStyle(int style) {
    return QStringLiteral("[%1] (style %2)").arg(MsgBoxButtonsText(style)).arg(style);
}

// The next scripted answer. Built from the value itself: copying a whole optional of a Qt string
// trips g++ 12's uninitialized-use analysis.
template <typename T> std::optional<T> popFront(std::deque<std::optional<T>>& answers) {
    if (!answers.front()) {
        answers.pop_front();
        return std::nullopt;
    }
    T value = std::move(*answers.front());
    answers.pop_front();
    return value;
}

} // namespace

ScriptedDialogs::ScriptedDialogs(QString programTitle) : m_programTitle(std::move(programTitle)) {}

ScriptedDialogs::~ScriptedDialogs() {
    verify();
}

QString ScriptedDialogs::describe(const Box& box) {
    return QStringLiteral("title %1, prompt %2, buttons %3")
        .arg(quoted(box.title), quoted(box.prompt), describeStyle(box.style));
}

ScriptedDialogs& ScriptedDialogs::expect(const QString& title, const QString& prompt, MsgBoxResult answer) {
    m_expected.push_back(Expectation{title, prompt, std::nullopt, answer});
    return *this;
}

ScriptedDialogs& ScriptedDialogs::expect(const QString& title, const QString& prompt, int style,
                                         MsgBoxResult answer) {
    m_expected.push_back(Expectation{title, prompt, style, answer});
    return *this;
}

MsgBoxResult ScriptedDialogs::showMsgBox(const MsgBoxRequest& request) {
    Box box{request.prompt, request.title, request.style, MsgBoxDefaultAnswer(request.style)};
    if (whenShown) whenShown(box);
    if (m_expected.empty()) {
        // Nobody said what to press: Enter takes the default button, and the box awaits EXPECT_BOX.
        m_unchecked.push_back(box);
        m_boxes.push_back(box);
        return box.answer;
    }
    const Expectation e = m_expected.front();
    m_expected.pop_front();
    const bool sameText = resolved(e.title) == box.title && e.prompt == box.prompt;
    const bool sameStyle = !e.style || *e.style == box.style;
    if (!sameText || !sameStyle) {
        ADD_FAILURE() << "Message box not as expected.\n  shown:    " << text(describe(box))
                      << "\n  expected: title " << text(quoted(resolved(e.title))) << ", prompt "
                      << text(quoted(e.prompt))
                      << (e.style ? ", buttons " + text(describeStyle(*e.style)) : "");
    } else if (!MsgBoxButtons(box.style).contains(e.answer)) {
        ADD_FAILURE() << "The scripted answer " << text(MsgBoxResultText(e.answer))
                      << " is not a button of the box shown: " << text(describe(box));
    } else {
        box.answer = e.answer;
    }
    m_boxes.push_back(box);
    return box.answer;
}

::testing::AssertionResult ScriptedDialogs::takeBox(const QString& title, const QString& prompt) {
    if (m_unchecked.empty()) {
        return ::testing::AssertionFailure()
               << "No message box was shown (expected title " << text(quoted(resolved(title))) << ", prompt "
               << text(quoted(prompt)) << ")";
    }
    const Box box = m_unchecked.front();
    m_unchecked.pop_front();
    if (box.title == resolved(title) && box.prompt == prompt) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << "Message box not as expected.\n  shown:    " << text(describe(box)) << "\n  expected: title "
           << text(quoted(resolved(title))) << ", prompt " << text(quoted(prompt));
}

::testing::AssertionResult ScriptedDialogs::takeBox(const QString& title, const QString& prompt, int style) {
    if (m_unchecked.empty()) return takeBox(title, prompt);
    const int shownStyle = m_unchecked.front().style;
    ::testing::AssertionResult r = takeBox(title, prompt);
    if (!r) return r;
    if (shownStyle == style) return r;
    return ::testing::AssertionFailure()
           << "Message box " << text(quoted(prompt)) << " has buttons " << text(describeStyle(shownStyle))
           << ", expected " << text(describeStyle(style));
}

void ScriptedDialogs::verify() {
    for (const Expectation& e : m_expected) {
        ADD_FAILURE() << "Expected message box never shown: title " << text(quoted(resolved(e.title)))
                      << ", prompt " << text(quoted(e.prompt));
    }
    for (const Box& b : m_unchecked)
        ADD_FAILURE() << "Message box nobody expected: " << text(describe(b));
    if (!m_fileAnswers.empty())
        ADD_FAILURE() << m_fileAnswers.size() << " open-file answer(s) never asked for";
    if (!m_colourAnswers.empty())
        ADD_FAILURE() << m_colourAnswers.size() << " colour answer(s) never asked for";
    if (!m_fontAnswers.empty()) ADD_FAILURE() << m_fontAnswers.size() << " font answer(s) never asked for";
    if (!m_inputAnswers.empty()) ADD_FAILURE() << m_inputAnswers.size() << " input answer(s) never asked for";
    m_expected.clear();
    m_unchecked.clear();
    m_fileAnswers.clear();
    m_colourAnswers.clear();
    m_fontAnswers.clear();
    m_inputAnswers.clear();
}

std::optional<QString> ScriptedDialogs::openFileName(const OpenFileRequest& request) {
    m_fileRequests.push_back(request);
    if (m_fileAnswers.empty()) {
        ADD_FAILURE() << "Open-file dialog nobody expected (filter " << text(quoted(request.filter)) << ")";
        return std::nullopt;
    }
    return popFront(m_fileAnswers);
}

std::optional<Colour> ScriptedDialogs::chooseColour(Colour initial, const QString&) {
    m_colourRequests.push_back(initial);
    if (m_colourAnswers.empty()) {
        ADD_FAILURE() << "Colour dialog nobody expected";
        return std::nullopt;
    }
    return popFront(m_colourAnswers);
}

std::optional<FontChoice> ScriptedDialogs::chooseFont(const FontChoice& initial, const QString&) {
    m_fontRequests.push_back(initial);
    if (m_fontAnswers.empty()) {
        ADD_FAILURE() << "Font dialog nobody expected (initial font " << text(quoted(initial.name)) << ")";
        return std::nullopt;
    }
    return popFront(m_fontAnswers);
}

std::optional<QString> ScriptedDialogs::inputBox(const QString& prompt, const QString& title,
                                                 const QString& defaultText) {
    m_inputRequests.push_back(InputRequest{prompt, title, defaultText});
    if (m_inputAnswers.empty()) {
        ADD_FAILURE() << "Input box nobody expected: title " << text(quoted(title)) << ", prompt "
                      << text(quoted(prompt));
        return std::nullopt;
    }
    return popFront(m_inputAnswers);
}

} // namespace ostrel::test
