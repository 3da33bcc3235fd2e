#include "CommonDialogFilter.h"

#include <QRegularExpression>

namespace ostrel {

QStringList NameFiltersFromCommonDialog(const QString& filter) {
    static const QRegularExpression separators(QStringLiteral("[;\\s]+"));
    QStringList out;
    const QStringList parts = filter.split(u'|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString patterns = parts[i + 1];
        patterns.remove(u'(').remove(u')');
        QStringList globs;
        for (const QString& p : patterns.split(separators, Qt::SkipEmptyParts))
            globs << (p == QLatin1String("*.*") ? QStringLiteral("*") : p);
        if (globs.isEmpty()) continue;
        QString description = parts[i].trimmed();
        if (description.isEmpty()) description = globs.join(u' ');
        out << description + QStringLiteral(" (") + globs.join(u' ') + u')';
    }
    return out;
}

} // namespace ostrel
