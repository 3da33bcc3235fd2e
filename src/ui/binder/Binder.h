#pragma once

#include "ControlBinding.h"
#include "controls/Controls.h"
#include "controls/PickerControls.h"
#include "platform/ControlRegistry.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

class QAbstractButton;
class QAbstractSlider;
class QAction;
class QCalendarWidget;
class QDateEdit;
class QSpinBox;
class QCheckBox;
class QComboBox;
class QFrame;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QRadioButton;
class QTableView;
class QTableWidget;
class QTextEdit;
class QWidget;

namespace ostrel {
class Dialogs;
}

namespace ostrel::ui {

// Joins a screen's control models to the widgets of its view, by name: the widget of control
// "cmdService(2)" has that objectName. After every event the binder forwards, it pushes the state
// of every model of every live binder into the widgets; before it calls a handler it has pulled the
// user's edits (text typed, list choice, box ticked, grid cell) into the models.
//
//   binder.bindAll(frm.controls);                                  // every registered control
//   binder.onClick(frm.cmdGoto, [&] { frm.cmdGoto_Click(); });
//   binder.onDoubleClick(frm.optMainMenuSub, [&](int i) { frm.optMainMenuSub_DblClick(i); });
//   binder.onKeyPress(frm.txtCustomer, [&](int i, int& key) { frm.txtCustomer_KeyPress(i, key); });
//   EXPECT_TRUE(binder.unboundControls().isEmpty());               // in the view's test
//
// A StoreError out of a handler stops that event only: its message is shown in a box titled
// "Data File Problem" and the program goes on. Events that arise while the binder pushes (a focus
// moved, a window shown) run after the push, from the event loop.
class Binder : public QObject {
    Q_OBJECT
public:
    Binder(Dialogs& dialogs, QWidget* root);
    ~Binder() override;
    Binder(const Binder&) = delete;
    Binder& operator=(const Binder&) = delete;

    QWidget* root() const { return m_root; }

    // A widget and its model, paired by hand. An unnamed model takes the widget's objectName and an
    // unnamed widget the model's name.
    void bind(QAbstractButton* widget, CommandButton& model);
    void bind(QLineEdit* widget, TextBox& model);
    void bind(QTextEdit* widget, TextBox& model);
    void bind(QPlainTextEdit* widget, TextBox& model);
    void bind(QLabel* widget, Label& model);
    void bind(QCheckBox* widget, CheckBox& model);
    void bind(QRadioButton* widget, OptionButton& model);
    void bind(QGroupBox* widget, Frame& model);
    void bind(QFrame* widget, Frame& model);
    void bind(QLabel* widget, Image& model); // a ClickableImage or any label
    void bind(QAction* action, MenuItem& model);
    void bind(QListWidget* widget, ListControl& model);
    void bind(QComboBox* widget, ListControl& model);
    void bind(QTableWidget* widget, Grid& model);
    void bind(QTableView* widget, Grid& model); // through a model that asks for the cells shown
    void bind(QDateEdit* widget, DatePicker& model);
    void bind(QCalendarWidget* widget, DatePicker& model);
    void bind(QAbstractSlider* widget, UpDown& model);
    void bind(QSpinBox* widget, UpDown& model);
    // The screen's own window: caption is its title, visible shows and hides it.
    void bindWindow(QWidget* window, Frame& form);

    // The widget (or action) under the root named as the model. False, and the name noted in
    // unboundControls(), when there is none or it is of the wrong kind.
    template <typename T> bool bind(T& model) { return bindEntry(ControlRegistry::Entry{&model}); }
    template <typename T> void bind(ControlArray<T>& models) {
        for (auto& [index, model] : models)
            bind(model);
    }
    void bindAll(const ControlRegistry& controls);
    // Names of the controls given to a bind by name that found no widget of their kind, and of
    // controls that were given handlers but never bound.
    QStringList unboundControls() const { return m_unbound; }

    QObject* objectFor(const Control& model) const;
    QWidget* widgetFor(const Control& model) const;

    // Event handlers. The array forms pass the member's index.
    void onClick(Control& model, std::function<void()> handler);
    void onDoubleClick(Control& model, std::function<void()> handler);
    void onChange(Control& model, std::function<void()> handler);
    void onGotFocus(Control& model, std::function<void()> handler);
    void onLostFocus(Control& model, std::function<void()> handler);
    void onKeyPress(Control& model, std::function<void(int& keyAscii)> handler);
    void onKeyDown(Control& model, std::function<void(int& keyCode, int shift)> handler);
    void onKeyUp(Control& model, std::function<void(int& keyCode, int shift)> handler);
    void onCloseUp(Control& model, std::function<void()> handler);

    template <typename T> void onClick(ControlArray<T>& models, std::function<void(int index)> handler) {
        for (auto& [i, m] : models)
            onClick(m, [handler, i = i] { handler(i); });
    }
    template <typename T>
    void onDoubleClick(ControlArray<T>& models, std::function<void(int index)> handler) {
        for (auto& [i, m] : models)
            onDoubleClick(m, [handler, i = i] { handler(i); });
    }
    template <typename T> void onChange(ControlArray<T>& models, std::function<void(int index)> handler) {
        for (auto& [i, m] : models)
            onChange(m, [handler, i = i] { handler(i); });
    }
    template <typename T> void onGotFocus(ControlArray<T>& models, std::function<void(int index)> handler) {
        for (auto& [i, m] : models)
            onGotFocus(m, [handler, i = i] { handler(i); });
    }
    template <typename T> void onLostFocus(ControlArray<T>& models, std::function<void(int index)> handler) {
        for (auto& [i, m] : models)
            onLostFocus(m, [handler, i = i] { handler(i); });
    }
    template <typename T>
    void onKeyPress(ControlArray<T>& models, std::function<void(int index, int& keyAscii)> handler) {
        for (auto& [i, m] : models)
            onKeyPress(m, [handler, i = i](int& key) { handler(i, key); });
    }
    template <typename T>
    void onKeyDown(ControlArray<T>& models, std::function<void(int index, int& keyCode, int shift)> handler) {
        for (auto& [i, m] : models)
            onKeyDown(m, [handler, i = i](int& key, int shift) { handler(i, key, shift); });
    }

    // Runs one event's handler: a StoreError becomes a box, then every binder pushes its models.
    void run(const std::function<void()>& handler);
    // As run, but after the current push when one is under way.
    void dispatch(const std::function<void()>& handler);
    // Pushes this binder's models into their widgets.
    void sync();
    // Pushes the models of every live binder: a handler may change another screen's controls.
    static void syncAll();
    static bool syncing();

    // Whether the bell rings before a box reports a failure (the alarm option). Off until set.
    static void setAlarmSwitch(std::function<bool()> alarmsOn);

    // The enabled, visible command buttons marked default (Enter) or cancel (Escape), if any.
    QAbstractButton* defaultButton() const;
    QAbstractButton* cancelButton() const;
    // The form bound by bindWindow, or null.
    Frame* form() const { return m_form; }

    // Called by the bindings.
    static void requestFocus(QWidget* widget);
    static void requestShow(QWidget* window);
    // While a focus event is handled, focus moves wait for the event loop: moving the focus from
    // inside a focus change would confuse the change under way.
    struct FocusEventScope {
        FocusEventScope();
        ~FocusEventScope();
    };

private:
    bool bindEntry(const ControlRegistry::Entry& entry);
    template <typename B, typename W, typename M> void add(W* widget, M& model);
    void adopt(QObject* object, Control& model);
    ControlBinding* bindingFor(const Control& model);
    ControlHandlers* handlersFor(Control& model);
    void pushAll(bool settle);
    void pushNew(ControlBinding& binding);
    void reportUnbound(const QString& name);

    Dialogs& m_dialogs;
    QPointer<QWidget> m_root;
    std::vector<std::unique_ptr<ControlBinding>> m_bindings;
    QStringList m_unbound;
    Frame* m_form = nullptr;
};

} // namespace ostrel::ui
