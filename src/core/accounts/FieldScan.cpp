#include "FieldScan.h"

#include "store/Cp1252.h"

#include <array>

namespace ostrel {

namespace {

struct Tables {
    std::array<QChar, 256> plain;
    std::array<QChar, 256> upper;
    Tables() {
        QByteArray all(256, '\0');
        for (int i = 0; i < 256; ++i)
            all[i] = static_cast<char>(i);
        const QString decoded = cp1252::decode(all);
        for (int i = 0; i < 256; ++i) {
            plain[i] = decoded.at(i);
            upper[i] = decoded.at(i).toUpper();
        }
    }
};

const Tables& tables() {
    static const Tables t;
    return t;
}

void trimBlanks(const char*& field, int& width) {
    while (width > 0 && field[width - 1] == ' ')
        --width;
    while (width > 0 && *field == ' ') {
        ++field;
        --width;
    }
}

} // namespace

bool FieldScan::trimmedEquals(const char* field, int width, QStringView text) {
    trimBlanks(field, width);
    if (width != text.size()) return false;
    const auto& plain = tables().plain;
    for (int i = 0; i < width; ++i)
        if (plain[static_cast<unsigned char>(field[i])] != text[i]) return false;
    return true;
}

QString FieldScan::trimmedText(const char* field, int width) {
    trimBlanks(field, width);
    QString out(width, Qt::Uninitialized);
    const auto& plain = tables().plain;
    for (int i = 0; i < width; ++i)
        out[i] = plain[static_cast<unsigned char>(field[i])];
    return out;
}

QString FieldScan::upper(QStringView text) {
    QString out(text.size(), Qt::Uninitialized);
    for (qsizetype i = 0; i < text.size(); ++i)
        out[i] = text[i].toUpper();
    return out;
}

bool FieldScan::trimmedUpperContains(const char* field, int width, QStringView upperNeedle) {
    trimBlanks(field, width);
    if (upperNeedle.size() > width) return false;
    m_scratch.resize(width);
    QChar* out = m_scratch.data();
    const auto& upperTable = tables().upper;
    for (int i = 0; i < width; ++i)
        out[i] = upperTable[static_cast<unsigned char>(field[i])];
    return QStringView(m_scratch.constData(), width).contains(upperNeedle);
}

} // namespace ostrel
