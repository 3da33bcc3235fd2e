#pragma once

#include "controls/Controls.h"
#include "controls/PickerControls.h"

#include <QString>
#include <QStringList>

#include <variant>
#include <vector>

namespace ostrel {

// The controls of one screen by name. A screen registers each control model once, which also names
// it ("cmdService(2)" for member 2 of cmdService); its view binds the whole list to widgets of the
// same names, and a test can check that none is left without a widget.
class ControlRegistry {
public:
    using Entry = std::variant<Label*, CommandButton*, TextBox*, CheckBox*, OptionButton*, Frame*, Image*,
                               MenuItem*, ListControl*, Grid*, DatePicker*, UpDown*>;

    template <typename T> T& add(const QString& name, T& control) {
        control.name = name;
        m_entries.push_back(Entry{&control});
        return control;
    }
    // Every member the array holds now, named base(index).
    template <typename T> ControlArray<T>& add(const QString& baseName, ControlArray<T>& controls) {
        for (auto& [index, control] : controls)
            add(ElementName(baseName, index), control);
        return controls;
    }

    const std::vector<Entry>& entries() const { return m_entries; }
    QStringList names() const;
    // The control of that name, or null.
    Control* find(const QString& name) const;

    // "cmdService(2)".
    static QString ElementName(const QString& baseName, int index);

private:
    std::vector<Entry> m_entries;
};

// The base of any registered control.
Control& AsControl(const ControlRegistry::Entry& entry);

} // namespace ostrel
