#pragma once

#include <limits>
#include <optional>

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QString>
#include <QTime>

#include <variant>

namespace ostrel {

// One value of a quoted write statement.
struct NullValue {};
struct EmptyValue {};
using StatementValue = std::variant<QString, qint64, double, bool, QDate, QTime, QDateTime, NullValue, EmptyValue>;

// Builds lines in the quoted write form: strings in double quotes (no escape), numbers bare,
// #TRUE#/#FALSE#, #yyyy-mm-dd#, #NULL#, an empty field for an empty value, comma-separated,
// each line ended by CR LF.
class TextWriter {
public:
    TextWriter& write(std::initializer_list<StatementValue> fields);
    TextWriter& writeString(const QString& s) { return write({s}); }
    TextWriter& writeNumber(qint64 n) { return write({n}); }
    // The print form: the text as it stands and a line end.
    TextWriter& print(const QString& text);

    const QByteArray& bytes() const { return m_bytes; }
    bool isEmpty() const { return m_bytes.isEmpty(); }

    static QByteArray formatField(const StatementValue& v);
    static QByteArray formatNumber(double d);

private:
    QByteArray m_bytes;
};

// One field as the field read met it.
struct TextField {
    QByteArray raw;   // without the quotes of a quoted field
    bool quoted = false;
    bool unterminated = false; // a quoted field the file ended inside

    QString toString() const;
    double toNumber() const;    // a number, #TRUE# (-1), #FALSE# (0); anything else 0
    // The number rounded half to even; std::nullopt when it is no finite number within [low, high].
    std::optional<qint64> toIntegerIn(qint64 low, qint64 high) const;
    bool toBoolean() const;     // #TRUE#, or a number other than 0
    QDate toDate() const;       // #yyyy-mm-dd#; invalid when the field holds no date
    bool isNull() const { return !quoted && raw == "#NULL#"; }
};

// Reads a text file by the field read and the whole-line read.
class TextReader {
public:
    TextReader() = default;
    TextReader(QByteArray bytes, QString fileName) : m_bytes(std::move(bytes)), m_file(std::move(fileName)) {}

    bool atEnd() const { return m_pos >= m_bytes.size(); }

    // One comma- or line-delimited field. Throws StoreError at the end of the file.
    TextField readField();
    QString readString();
    double readNumber() { return readField().toNumber(); }
    // A whole number (rounded half to even) that must lie within [low, high]: "nan", "inf", "1e300"
    // or a number out of range makes the file a bad file (StoreError naming it).
    qint64 readInteger(qint64 low = std::numeric_limits<qint64>::min(), qint64 high = std::numeric_limits<qint64>::max());
    // A whole line read as a whole number the same way.
    qint64 readIntegerLine(qint64 low = std::numeric_limits<qint64>::min(),
                           qint64 high = std::numeric_limits<qint64>::max());
    bool readBoolean() { return readField().toBoolean(); }
    QDate readDate() { return readField().toDate(); }

    // Up to the next line end, without it. Throws StoreError at the end of the file.
    QString readLine();

    const QString& fileName() const { return m_file; }
    const QByteArray& bytes() const { return m_bytes; }

private:
    struct FieldSpan {
        qsizetype start = 0;
        qsizetype length = 0;
        bool quoted = false;
        bool unterminated = false;
    };
    // Finds the next field and moves past its delimiter; the field's bytes stay where they are.
    FieldSpan scanField();
    void throwPastEnd() const;
    qint64 integerIn(const TextField& f, qint64 low, qint64 high) const;
    void skipDelimiter();

    QByteArray m_bytes;
    qsizetype m_pos = 0;
    QString m_file;
};

} // namespace ostrel
