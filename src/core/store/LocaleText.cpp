#include "LocaleText.h"

namespace ostrel {

QString ShortDateText(const QDate& date) {
    return date.toString(QStringLiteral("M/d/yyyy"));
}

} // namespace ostrel
