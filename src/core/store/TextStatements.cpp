#include "TextStatements.h"

#include "Cp1252.h"
#include "StoreError.h"
#include "LocaleText.h"

#include <cmath>
#include <cstdio>
#include <cstring>

namespace ostrel {

namespace {
bool isLineEnd(char c) { return c == '\r' || c == '\n'; }
bool isBlank(char c) { return c == ' ' || c == '\t'; }
} // namespace

QByteArray TextWriter::formatNumber(double d) {
    if (d == 0) return "0";
    if (std::isnan(d) || std::isinf(d)) return "0";
    if (d == std::trunc(d) && std::fabs(d) < 1e15) return QByteArray::number(static_cast<qint64>(d));
    // Shortest text of up to 15 significant digits that reads back as the same number,
    // with no leading zero before the decimal mark.
    char buf[40];
    for (int precision = 1; precision <= 15; ++precision) {
        std::snprintf(buf, sizeof buf, "%.*g", precision, d);
        if (std::strtod(buf, nullptr) == d) break;
    }
    QByteArray s(buf);
    if (s.startsWith("0.")) s.remove(0, 1);
    else if (s.startsWith("-0.")) s.remove(1, 1);
    // Exponent form as "1E+20".
    const qsizetype e = s.indexOf('e');
    if (e >= 0) {
        QByteArray mant = s.left(e), exp = s.mid(e + 1);
        const bool neg = exp.startsWith('-');
        if (exp.startsWith('+') || neg) exp.remove(0, 1);
        while (exp.size() > 2 && exp.startsWith('0')) exp.remove(0, 1);
        s = mant + (neg ? "E-" : "E+") + exp;
    }
    return s;
}

QByteArray TextWriter::formatField(const StatementValue& v) {
    struct Visitor {
        QByteArray operator()(const QString& s) const { return '"' + cp1252::encode(s) + '"'; }
        QByteArray operator()(qint64 n) const { return QByteArray::number(n); }
        QByteArray operator()(double d) const { return formatNumber(d); }
        QByteArray operator()(bool b) const { return b ? "#TRUE#" : "#FALSE#"; }
        QByteArray operator()(const QDate& d) const { return '#' + d.toString(u"yyyy-MM-dd").toLatin1() + '#'; }
        QByteArray operator()(const QTime& t) const { return '#' + t.toString(u"hh:mm:ss").toLatin1() + '#'; }
        QByteArray operator()(const QDateTime& dt) const {
            return '#' + dt.toString(u"yyyy-MM-dd hh:mm:ss").toLatin1() + '#';
        }
        QByteArray operator()(NullValue) const { return "#NULL#"; }
        QByteArray operator()(EmptyValue) const { return {}; }
    };
    return std::visit(Visitor{}, v);
}

TextWriter& TextWriter::write(std::initializer_list<StatementValue> fields) {
    bool first = true;
    for (const auto& f : fields) {
        if (!first) m_bytes += ',';
        first = false;
        m_bytes += formatField(f);
    }
    m_bytes += "\r\n";
    return *this;
}

TextWriter& TextWriter::print(const QString& text) {
    m_bytes += cp1252::encode(text);
    m_bytes += "\r\n";
    return *this;
}

QString TextField::toString() const { return cp1252::decode(raw); }

double TextField::toNumber() const {
    if (!quoted) {
        if (raw == "#TRUE#") return -1;
        if (raw == "#FALSE#") return 0;
    }
    const QByteArray t = raw.trimmed();
    // Whole numbers, the most common field, without the general conversion (exact to 15 digits).
    const bool minus = t.startsWith('-');
    if (const qsizetype digits = t.size() - (minus ? 1 : 0); digits > 0 && digits <= 15) {
        qint64 n = 0;
        qsizetype i = minus ? 1 : 0;
        for (; i < t.size() && t[i] >= '0' && t[i] <= '9'; ++i)
            n = n * 10 + (t[i] - '0');
        if (i == t.size() && !(minus && n == 0)) return minus ? -static_cast<double>(n) : static_cast<double>(n);
    }
    bool ok = false;
    const double d = t.toDouble(&ok);
    if (ok) return d;
    // The longest leading part that is a number, as a loose conversion would take it.
    char* end = nullptr;
    const double lead = std::strtod(t.constData(), &end);
    return end == t.constData() ? 0.0 : lead;
}

std::optional<qint64> TextField::toIntegerIn(qint64 low, qint64 high) const {
    const double d = std::nearbyint(toNumber());
    // Compared as doubles first: a cast of a value out of range is undefined.
    if (!std::isfinite(d) || d < -9223372036854775808.0 || d >= 9223372036854775808.0) return std::nullopt;
    const qint64 n = static_cast<qint64>(d);
    if (n < low || n > high) return std::nullopt;
    return n;
}

bool TextField::toBoolean() const {
    if (!quoted && raw == "#TRUE#") return true;
    if (!quoted && raw == "#FALSE#") return false;
    const QByteArray t = raw.trimmed().toUpper();
    if (t == "TRUE") return true;
    if (t == "FALSE") return false;
    return toNumber() != 0;
}

QDate TextField::toDate() const {
    QByteArray t = raw.trimmed();
    if (t.startsWith('#') && t.endsWith('#') && t.size() >= 2) t = t.mid(1, t.size() - 2);
    // The form the program writes, read by hand: the format parser costs more than the rest of a
    // slip's read. Anything else, or no valid day, goes through the parser as before.
    if (t.size() >= 10 && t[4] == '-' && t[7] == '-') {
        int y = 0, m = 0, day = 0;
        bool digits = true;
        for (int i : {0, 1, 2, 3, 5, 6, 8, 9}) {
            const char c = t[i];
            if (c < '0' || c > '9') {
                digits = false;
                break;
            }
            int& part = i < 4 ? y : i < 7 ? m : day;
            part = part * 10 + (c - '0');
        }
        if (digits && y >= 1) {
            const QDate quick(y, m, day);
            if (quick.isValid()) return quick;
        }
    }
    const QString s = QString::fromLatin1(t.left(10));
    QDate d = QDate::fromString(s, u"yyyy-MM-dd");
    if (!d.isValid()) d = ParseShortDate(QString::fromLatin1(t));
    return d;
}

void TextReader::throwPastEnd() const {
    throw StoreError(m_file, QStringLiteral("The file ends before all of its data could be read."));
}

void TextReader::skipDelimiter() {
    if (m_pos >= m_bytes.size()) return;
    const char c = m_bytes.at(m_pos);
    if (c == ',') {
        ++m_pos;
    } else if (c == '\r') {
        ++m_pos;
        if (m_pos < m_bytes.size() && m_bytes.at(m_pos) == '\n') ++m_pos;
    } else if (c == '\n') {
        ++m_pos;
    }
}

qint64 TextReader::readInteger(qint64 low, qint64 high) { return integerIn(readField(), low, high); }

qint64 TextReader::readIntegerLine(qint64 low, qint64 high) {
    TextField f;
    f.raw = cp1252::encode(readLine());
    return integerIn(f, low, high);
}

qint64 TextReader::integerIn(const TextField& f, qint64 low, qint64 high) const {
    if (const std::optional<qint64> n = f.toIntegerIn(low, high)) return *n;
    throw StoreError(m_file, QStringLiteral("The file holds \"%1\" where a whole number from %2 to %3 belongs.")
                                 .arg(f.toString())
                                 .arg(low)
                                 .arg(high));
}

TextReader::FieldSpan TextReader::scanField() {
    if (atEnd()) throwPastEnd();
    const char* const data = m_bytes.constData();
    const qsizetype size = m_bytes.size();
    while (m_pos < size && isBlank(data[m_pos])) ++m_pos;
    // Up to the next comma or line end: a field runs to its delimiter, whatever it holds.
    const auto toDelimiter = [&](qsizetype from) {
        while (from < size && data[from] != ',' && !isLineEnd(data[from])) ++from;
        return from;
    };
    FieldSpan f;
    if (m_pos < size && data[m_pos] == '"') {
        f.quoted = true;
        f.start = ++m_pos;
        const void* close = std::memchr(data + m_pos, '"', static_cast<size_t>(size - m_pos));
        m_pos = close ? static_cast<const char*>(close) - data : size;
        f.length = m_pos - f.start;
        if (m_pos < size) ++m_pos; // closing quote
        else f.unterminated = true;
        // Whatever stands between the closing quote and the next delimiter is passed over.
        m_pos = toDelimiter(m_pos);
    } else {
        f.start = m_pos;
        m_pos = toDelimiter(m_pos);
        f.length = m_pos - f.start;
    }
    skipDelimiter();
    return f;
}

TextField TextReader::readField() {
    const FieldSpan span = scanField();
    TextField f;
    f.raw = m_bytes.mid(span.start, span.length);
    f.quoted = span.quoted;
    f.unterminated = span.unterminated;
    return f;
}

QString TextReader::readString() {
    // The text straight from the file's bytes: most fields of most files are read this way.
    const FieldSpan span = scanField();
    return cp1252::decode(QByteArrayView(m_bytes).sliced(span.start, span.length));
}

QString TextReader::readLine() {
    if (atEnd()) throwPastEnd();
    const qsizetype start = m_pos;
    while (m_pos < m_bytes.size() && !isLineEnd(m_bytes.at(m_pos))) ++m_pos;
    const QString line = cp1252::decode(QByteArrayView(m_bytes).sliced(start, m_pos - start));
    if (m_pos < m_bytes.size() && m_bytes.at(m_pos) == '\r') ++m_pos;
    if (m_pos < m_bytes.size() && m_bytes.at(m_pos) == '\n') ++m_pos;
    return line;
}

} // namespace ostrel
