#include "Mnemonic.h"

namespace ostrel::ui {

QString StripMnemonic(const QString& caption) {
    QString out;
    out.reserve(caption.size());
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == u'&' && i + 1 < caption.size()) ++i;
        out += caption[i];
    }
    return out;
}

} // namespace ostrel::ui
