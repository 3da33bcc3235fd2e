#pragma once

#include <QString>
#include <QStringView>

namespace ostrel {

// Tests on a fixed text field straight from a record's bytes, for the scans over the whole customer
// file: no string is made for a record that does not match.
class FieldScan {
public:
    // The field, blanks trimmed on both sides, equals `text` exactly.
    static bool trimmedEquals(const char* field, int width, QStringView text);

    // The field decoded with its blanks trimmed on both sides.
    static QString trimmedText(const char* field, int width);

    // Upper case as the field comparison sees it (one character for one, so "ß" stays).
    static QString upper(QStringView text);

    // The field, blanks trimmed and upper-cased, contains `upperNeedle` (already upper case).
    bool trimmedUpperContains(const char* field, int width, QStringView upperNeedle);

private:
    QString m_scratch;
};

} // namespace ostrel
