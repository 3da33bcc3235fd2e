#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

namespace ostrel {

// Trims blanks only, as the legacy trim does: NULs of a field never written, tabs and line ends stay.
QString vbTrim(const QString& s);
QString vbLTrim(const QString& s);
QString vbRTrim(const QString& s);

// The number-to-text form that puts one blank before a positive number (" 1", "-1").
QString vbStr(qint64 n);

// A date as text in messages, grids and captions: the short form of the United States, "11/22/2026".
QString vbDate(const QDate& date);

// Sorts in the order of a compare without regard to case (QString::compare, Qt::CaseInsensitive).
void SortIgnoringCase(QStringList& names);

} // namespace ostrel
