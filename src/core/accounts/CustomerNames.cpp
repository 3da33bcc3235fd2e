#include "CustomerNames.h"

#include "CustomerRecord.h"
#include "util/VbText.h"

namespace ostrel {

QString ComposeName(const QString& title, const QString& first, const QString& initial, const QString& last) {
    QString name;
    if (const QString t = vbTrim(title); !t.isEmpty()) name += t + u' ';
    if (const QString f = vbTrim(first); !f.isEmpty()) name += f + u' ';
    if (const QString i = vbTrim(initial); !i.isEmpty()) name += i + QStringLiteral(". ");
    name += vbTrim(last);
    return name;
}

QString ComposeName(const CustomerRecord& c) {
    return ComposeName(c.Title(), c.FirstName(), c.MiddleInitial(), c.LastName());
}

QString AccountListName(const CustomerRecord& c) {
    if (c.IsBusiness()) return vbTrim(c.BusinessName());
    return vbTrim(c.LastName()) + QStringLiteral(", ") + vbTrim(c.FirstName()) + u' ' + c.MiddleInitial();
}

QString SearchResultName(const CustomerRecord& c) {
    return c.IsBusiness() ? vbTrim(c.BusinessName()) : ComposeName(c);
}

} // namespace ostrel
