#include "Cp1252.h"

#include <array>
#include <cstring>

namespace ostrel::cp1252 {
namespace {

constexpr std::array<char16_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

} // namespace

QString decode(QByteArrayView bytes) {
    // Outside 0x80 to 0x9F the code page is Latin-1, which Qt converts many bytes at a time.
    const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
    const qsizetype size = bytes.size();
    bool latin1 = true;
    qsizetype i = 0;
    // Eight bytes at a time while all are plain ASCII, the usual text.
    for (; i + 8 <= size; i += 8) {
        quint64 word;
        std::memcpy(&word, data + i, sizeof word);
        if (word & 0x8080808080808080ULL) break;
    }
    for (; i < size && latin1; ++i)
        latin1 = data[i] < 0x80 || data[i] >= 0xA0;
    if (latin1) return QString::fromLatin1(bytes);
    QString out(bytes.size(), Qt::Uninitialized);
    QChar* dst = out.data();
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const auto b = static_cast<unsigned char>(bytes[i]);
        dst[i] = (b >= 0x80 && b < 0xA0) ? QChar(kHighControls[b - 0x80]) : QChar(b);
    }
    return out;
}

char encodeChar(QChar c) {
    const char16_t u = c.unicode();
    if (u < 0x80 || (u >= 0xA0 && u <= 0xFF)) return static_cast<char>(u);
    for (std::size_t i = 0; i < kHighControls.size(); ++i)
        if (kHighControls[i] == u) return static_cast<char>(0x80 + i);
    return '?';
}

QByteArray encode(QStringView text) {
    QByteArray out(text.size(), Qt::Uninitialized);
    for (qsizetype i = 0; i < text.size(); ++i) out[i] = encodeChar(text[i]);
    return out;
}

} // namespace ostrel::cp1252
