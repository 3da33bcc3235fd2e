#include "Cp1252.h"

#include <array>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace ostrel::cp1252 {
namespace {

constexpr std::array<char16_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

// Widens bytes to UTF-16 while they are plain ASCII; returns how many it did. 16 at a time where
// the processor has SSE2, which every x86-64 has.
qsizetype widenAscii(const unsigned char* from, qsizetype size, char16_t* to) {
    qsizetype i = 0;
#ifdef __SSE2__
    const __m128i zero = _mm_setzero_si128();
    for (; i + 16 <= size; i += 16) {
        const __m128i chunk = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from + i));
        if (_mm_movemask_epi8(chunk) != 0) break;
        _mm_storeu_si128(reinterpret_cast<__m128i*>(to + i), _mm_unpacklo_epi8(chunk, zero));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(to + i + 8), _mm_unpackhi_epi8(chunk, zero));
    }
    if (i + 8 <= size) {
        const __m128i chunk = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(from + i));
        if (_mm_movemask_epi8(chunk) == 0) {
            _mm_storeu_si128(reinterpret_cast<__m128i*>(to + i), _mm_unpacklo_epi8(chunk, zero));
            i += 8;
        }
    }
#endif
    for (; i < size && from[i] < 0x80; ++i)
        to[i] = from[i];
    return i;
}

} // namespace

QString decode(QByteArrayView bytes) {
    // One pass for the usual plain ASCII text; past the first byte of the high half, Latin-1 but
    // for 0x80 to 0x9F.
    const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
    const qsizetype size = bytes.size();
    QString out(size, Qt::Uninitialized);
    char16_t* dst = reinterpret_cast<char16_t*>(out.data());
    for (qsizetype k = widenAscii(data, size, dst); k < size; ++k) {
        const unsigned char b = data[k];
        dst[k] = (b >= 0x80 && b < 0xA0) ? kHighControls[b - 0x80] : char16_t(b);
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
