#include "Binder.h"

#include "CheckBoxBinding.h"
#include "ComboBoxBinding.h"
#include "DatePickerBinding.h"
#include "CommandButtonBinding.h"
#include "FrameBinding.h"
#include "GridBinding.h"
#include "GridViewBinding.h"
#include "ImageBinding.h"
#include "LabelBinding.h"
#include "LineEditBinding.h"
#include "ListBoxBinding.h"
#include "MenuItemBinding.h"
#include "MultiLineBinding.h"
#include "OptionButtonBinding.h"
#include "UpDownBinding.h"
#include "WindowBinding.h"
#include "platform/Dialogs.h"
#include "platform/StoreErrorBox.h"
#include "store/StoreError.h"

#include <QAbstractSlider>
#include <QAction>
#include <QCalendarWidget>
#include <QDateEdit>
#include <QSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTableWidget>
#include <QTextEdit>
#include <QTimer>

namespace ostrel::ui {

namespace {

// One program, one thread: the binders alive, and what the current push has left to do.
struct SyncState {
    QList<Binder*> binders;
    int depth = 0;
    int focusEvents = 0;
    QList<QPointer<QWidget>> shows;
    QPointer<QWidget> focus;
    std::function<bool()> alarmsOn;
};

SyncState& state() {
    static SyncState s;
    return s;
}

} // namespace

Binder::FocusEventScope::FocusEventScope() {
    ++state().focusEvents;
}
Binder::FocusEventScope::~FocusEventScope() {
    --state().focusEvents;
}

Binder::Binder(Dialogs& dialogs, QWidget* root) : m_dialogs(dialogs), m_root(root) {
    state().binders.append(this);
}

Binder::~Binder() {
    state().binders.removeAll(this);
    m_bindings.clear();
}

bool Binder::syncing() {
    return state().depth > 0;
}

void Binder::setAlarmSwitch(std::function<bool()> alarmsOn) {
    state().alarmsOn = std::move(alarmsOn);
}

void Binder::adopt(QObject* object, Control& model) {
    if (model.name.isEmpty()) model.name = object->objectName();
    if (object->objectName().isEmpty()) object->setObjectName(model.name);
    if (object->objectName() != model.name)
        reportUnbound(model.name + QStringLiteral(" (widget named ") + object->objectName() + u')');
}

template <typename B, typename W, typename M> void Binder::add(W* widget, M& model) {
    adopt(widget, model);
    // Binding a model again moves it to the new widget.
    std::erase_if(m_bindings, [&](const auto& b) { return &b->model() == &model; });
    m_bindings.push_back(std::make_unique<B>(*this, widget, model));
    pushNew(*m_bindings.back());
}

void Binder::bind(QAbstractButton* w, CommandButton& m) {
    add<CommandButtonBinding>(w, m);
}
void Binder::bind(QLineEdit* w, TextBox& m) {
    add<LineEditBinding>(w, m);
}
void Binder::bind(QTextEdit* w, TextBox& m) {
    add<MultiLineBinding, QWidget>(w, m);
}
void Binder::bind(QPlainTextEdit* w, TextBox& m) {
    add<MultiLineBinding, QWidget>(w, m);
}
void Binder::bind(QLabel* w, Label& m) {
    add<LabelBinding>(w, m);
}
void Binder::bind(QCheckBox* w, CheckBox& m) {
    add<CheckBoxBinding>(w, m);
}
void Binder::bind(QRadioButton* w, OptionButton& m) {
    add<OptionButtonBinding>(w, m);
}
void Binder::bind(QGroupBox* w, Frame& m) {
    add<FrameBinding, QWidget>(w, m);
}
void Binder::bind(QFrame* w, Frame& m) {
    add<FrameBinding, QWidget>(w, m);
}
void Binder::bind(QLabel* w, Image& m) {
    add<ImageBinding>(w, m);
}
void Binder::bind(QAction* a, MenuItem& m) {
    add<MenuItemBinding>(a, m);
}
void Binder::bind(QListWidget* w, ListControl& m) {
    add<ListBoxBinding>(w, m);
}
void Binder::bind(QComboBox* w, ListControl& m) {
    add<ComboBoxBinding>(w, m);
}
void Binder::bind(QTableWidget* w, Grid& m) {
    add<GridBinding>(w, m);
}
void Binder::bind(QTableView* w, Grid& m) {
    add<GridViewBinding>(w, m);
}

void Binder::bind(QDateEdit* w, DatePicker& m) {
    add<DatePickerBinding, QDateEdit>(w, m);
}
void Binder::bind(QCalendarWidget* w, DatePicker& m) {
    add<DatePickerBinding, QCalendarWidget>(w, m);
}
void Binder::bind(QAbstractSlider* w, UpDown& m) {
    add<UpDownBinding, QAbstractSlider>(w, m);
}
void Binder::bind(QSpinBox* w, UpDown& m) {
    add<UpDownBinding, QSpinBox>(w, m);
}

void Binder::bindWindow(QWidget* window, Frame& form) {
    std::erase_if(m_bindings, [&](const auto& b) { return &b->model() == &form; });
    // Screens are loaded hidden: a window not yet shown starts its form hidden, whatever the
    // model's default, and the program shows it by setting visible.
    if (window->isHidden()) form.visible = false;
    if (form.name.isEmpty()) form.name = window->objectName();
    m_bindings.push_back(std::make_unique<WindowBinding>(*this, window, form));
    m_form = &form;
    pushNew(*m_bindings.back());
}

void Binder::reportUnbound(const QString& name) {
    if (!m_unbound.contains(name)) m_unbound.append(name);
}

bool Binder::bindEntry(const ControlRegistry::Entry& entry) {
    Control& model = AsControl(entry);
    QObject* found = nullptr;
    if (m_root && !model.name.isEmpty()) {
        if (m_root->objectName() == model.name)
            found = m_root;
        else
            found = m_root->findChild<QObject*>(model.name);
    }
    bool bound = false;
    if (found) {
        bound = std::visit(
            [&](auto* m) -> bool {
                using M = std::remove_pointer_t<decltype(m)>;
                if constexpr (std::is_same_v<M, CommandButton>) {
                    auto* w = qobject_cast<QAbstractButton*>(found);
                    if (w && !qobject_cast<QCheckBox*>(found) && !qobject_cast<QRadioButton*>(found)) {
                        bind(w, *m);
                        return true;
                    }
                } else if constexpr (std::is_same_v<M, TextBox>) {
                    if (auto* w = qobject_cast<QLineEdit*>(found)) return bind(w, *m), true;
                    if (auto* w = qobject_cast<QTextEdit*>(found)) return bind(w, *m), true;
                    if (auto* w = qobject_cast<QPlainTextEdit*>(found)) return bind(w, *m), true;
                } else if constexpr (std::is_same_v<M, Label>) {
                    if (auto* w = qobject_cast<QLabel*>(found)) return bind(w, *m), true;
                } else if constexpr (std::is_same_v<M, CheckBox>) {
                    if (auto* w = qobject_cast<QCheckBox*>(found)) return bind(w, *m), true;
                } else if constexpr (std::is_same_v<M, OptionButton>) {
                    if (auto* w = qobject_cast<QRadioButton*>(found)) return bind(w, *m), true;
                } else if constexpr (std::is_same_v<M, Frame>) {
                    if (auto* w = qobject_cast<QGroupBox*>(found)) return bind(w, *m), true;
                    if (auto* w = qobject_cast<QFrame*>(found)) return bind(w, *m), true;
                } else if constexpr (std::is_same_v<M, Image>) {
                    if (auto* w = qobject_cast<QLabel*>(found)) return bind(w, *m), true;
                } else if constexpr (std::is_same_v<M, MenuItem>) {
                    if (auto* a = qobject_cast<QAction*>(found)) return bind(a, *m), true;
                    // A menu title ("mnuFiles") is the menu's own action.
                    if (auto* menu = qobject_cast<QMenu*>(found)) return bind(menu->menuAction(), *m), true;
                } else if constexpr (std::is_same_v<M, ListControl>) {
                    if (auto* w = qobject_cast<QListWidget*>(found)) return bind(w, *m), true;
                    if (auto* w = qobject_cast<QComboBox*>(found)) return bind(w, *m), true;
                } else if constexpr (std::is_same_v<M, Grid>) {
                    if (auto* w = qobject_cast<QTableWidget*>(found)) return bind(w, *m), true;
                    if (auto* w = qobject_cast<QTableView*>(found)) return bind(w, *m), true;
                } else if constexpr (std::is_same_v<M, DatePicker>) {
                    if (auto* w = qobject_cast<QDateEdit*>(found)) return bind(w, *m), true;
                    if (auto* w = qobject_cast<QCalendarWidget*>(found)) return bind(w, *m), true;
                } else if constexpr (std::is_same_v<M, UpDown>) {
                    if (auto* w = qobject_cast<QAbstractSlider*>(found)) return bind(w, *m), true;
                    if (auto* w = qobject_cast<QSpinBox*>(found)) return bind(w, *m), true;
                }
                return false;
            },
            entry);
    }
    if (!bound) reportUnbound(model.name.isEmpty() ? QStringLiteral("(unnamed control)") : model.name);
    return bound;
}

void Binder::bindAll(const ControlRegistry& controls) {
    for (const auto& entry : controls.entries())
        bindEntry(entry);
}

ControlBinding* Binder::bindingFor(const Control& model) {
    for (const auto& b : m_bindings)
        if (&b->model() == &model) return b.get();
    return nullptr;
}

QObject* Binder::objectFor(const Control& model) const {
    for (const auto& b : m_bindings)
        if (&b->model() == &model) return b->target();
    return nullptr;
}

QWidget* Binder::widgetFor(const Control& model) const {
    return qobject_cast<QWidget*>(objectFor(model));
}

ControlHandlers* Binder::handlersFor(Control& model) {
    if (ControlBinding* b = bindingFor(model)) return &b->handlers;
    reportUnbound(model.name.isEmpty() ? QStringLiteral("(unnamed control)") : model.name);
    return nullptr;
}

void Binder::onClick(Control& m, std::function<void()> h) {
    if (auto* x = handlersFor(m)) x->click = std::move(h);
}
void Binder::onDoubleClick(Control& m, std::function<void()> h) {
    if (auto* x = handlersFor(m)) x->doubleClick = std::move(h);
}
void Binder::onChange(Control& m, std::function<void()> h) {
    if (auto* x = handlersFor(m)) x->change = std::move(h);
}
void Binder::onGotFocus(Control& m, std::function<void()> h) {
    if (auto* x = handlersFor(m)) x->gotFocus = std::move(h);
}
void Binder::onLostFocus(Control& m, std::function<void()> h) {
    if (auto* x = handlersFor(m)) x->lostFocus = std::move(h);
}
void Binder::onKeyPress(Control& m, std::function<void(int&)> h) {
    if (auto* x = handlersFor(m)) x->keyPress = std::move(h);
}
void Binder::onKeyDown(Control& m, std::function<void(int&, int)> h) {
    if (auto* x = handlersFor(m)) x->keyDown = std::move(h);
}
void Binder::onKeyUp(Control& m, std::function<void(int&, int)> h) {
    if (auto* x = handlersFor(m)) x->keyUp = std::move(h);
}

void Binder::onCloseUp(Control& m, std::function<void()> h) {
    if (auto* x = handlersFor(m)) x->closeUp = std::move(h);
}

void Binder::run(const std::function<void()>& handler) {
    if (handler) {
        const bool alarms = state().alarmsOn && state().alarmsOn();
        try {
            handler();
        } catch (const StoreError& e) {
            ShowStoreError(m_dialogs, e, alarms);
        } catch (const std::exception& e) {
            // A fault of the program itself: say so and keep the data and the process.
            if (alarms) m_dialogs.Beep();
            m_dialogs.MsgBox(QString::fromLocal8Bit(e.what()), vbOKOnly + vbCritical,
                             QStringLiteral("Program Error"));
        }
    }
    syncAll();
}

void Binder::dispatch(const std::function<void()>& handler) {
    if (syncing()) {
        QTimer::singleShot(0, this, [this, handler] { run(handler); });
        return;
    }
    run(handler);
}

void Binder::pushAll(bool settle) {
    for (const auto& b : m_bindings) {
        if (settle)
            b->settle();
        else
            b->push();
    }
}

namespace {

void finishPush(SyncState& s) {
    const auto shows = s.shows;
    s.shows.clear();
    for (const QPointer<QWidget>& w : shows) {
        if (!w) continue;
        w->show();
        w->raise();
        w->activateWindow();
    }
    const QPointer<QWidget> focus = s.focus;
    s.focus.clear();
    if (!focus) return;
    if (s.focusEvents > 0)
        QTimer::singleShot(0, focus, [focus] { focus->setFocus(Qt::OtherFocusReason); });
    else
        focus->setFocus(Qt::OtherFocusReason);
}

} // namespace

void Binder::pushNew(ControlBinding& binding) {
    SyncState& s = state();
    ++s.depth;
    binding.push();
    binding.settle();
    if (s.depth == 1) finishPush(s);
    --s.depth;
}

void Binder::sync() {
    SyncState& s = state();
    ++s.depth;
    pushAll(false);
    pushAll(true);
    if (s.depth == 1) finishPush(s);
    --s.depth;
}

void Binder::syncAll() {
    SyncState& s = state();
    ++s.depth;
    const QList<Binder*> binders = s.binders;
    for (Binder* b : binders)
        b->pushAll(false);
    for (Binder* b : binders)
        b->pushAll(true);
    if (s.depth == 1) finishPush(s);
    --s.depth;
}

void Binder::requestFocus(QWidget* widget) {
    state().focus = widget;
}

void Binder::requestShow(QWidget* window) {
    if (!state().shows.contains(window)) state().shows.append(window);
}

QAbstractButton* Binder::defaultButton() const {
    for (const auto& b : m_bindings) {
        auto* c = qobject_cast<CommandButtonBinding*>(b.get());
        if (!c || !c->button().enabled || !c->button().visible) continue;
        // The model's mark, or the view's own setDefault on the push button.
        auto* p = qobject_cast<QPushButton*>(c->target());
        if (c->button().isDefault || (p && p->isDefault()))
            return qobject_cast<QAbstractButton*>(c->target());
    }
    return nullptr;
}

QAbstractButton* Binder::cancelButton() const {
    for (const auto& b : m_bindings) {
        auto* c = qobject_cast<CommandButtonBinding*>(b.get());
        if (c && c->button().isCancel && c->button().enabled && c->button().visible)
            return qobject_cast<QAbstractButton*>(c->target());
    }
    return nullptr;
}

} // namespace ostrel::ui
