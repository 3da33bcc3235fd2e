#include "ControlRegistry.h"

namespace ostrel {

Control& AsControl(const ControlRegistry::Entry& entry) {
    return std::visit([](auto* control) -> Control& { return *control; }, entry);
}

QStringList ControlRegistry::names() const {
    QStringList out;
    for (const Entry& e : m_entries)
        out << AsControl(e).name;
    return out;
}

Control* ControlRegistry::find(const QString& name) const {
    for (const Entry& e : m_entries) {
        Control& c = AsControl(e);
        if (c.name == name) return &c;
    }
    return nullptr;
}

QString ControlRegistry::ElementName(const QString& baseName, int index) {
    return baseName + u'(' + QString::number(index) + u')';
}

} // namespace ostrel
