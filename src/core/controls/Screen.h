#pragma once

#include <QString>

#include <functional>

namespace ostrel {

// A screen's own state: caption and whether it is shown. Screens are created once and shown and
// hidden, never destroyed; a view follows the state through the observer.
class Screen {
public:
    explicit Screen(QString formName) : m_formName(std::move(formName)) {}
    virtual ~Screen() = default;
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    const QString& formName() const { return m_formName; }
    bool isVisible() const { return m_visible; }

    // Shows the screen and makes it the active one, which runs its activation.
    void Show();
    void Hide();

    // Runs once, when start-up brings the screen into memory.
    virtual void Load() {}
    // Runs each time the screen becomes the active one.
    virtual void Form_Activate() {}
    // Runs as the program ends, before the screen is hidden for the last time.
    virtual void Form_Unload() {}

    QString caption;

    // Told after each change of visibility (the view shows or hides its window).
    std::function<void(Screen&)> visibilityChanged;
    // Told after each activation has run, which may have changed the caption.
    std::function<void(Screen&)> activated;

private:
    void setVisible(bool v);
    QString m_formName;
    bool m_visible = false;
};

} // namespace ostrel
