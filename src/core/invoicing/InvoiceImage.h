#pragma once

#include "store/TextStatements.h"

#include <QDate>
#include <QString>
#include <QVector>

#include <array>

namespace ostrel {

class DiskRoutines;

// The copy of a posted invoice kept as /CompletedInvoices/<invoice number>.txt, field by field as
// the file holds it. Posting writes it once; the records screen lists it, shows it and prints it
// again from it.
struct InvoiceImage {
    static constexpr int kBodyColumns = 6;   // quantity, description, date, price, total, apply tax
    static constexpr int kTotalFields = 7;
    using BodyLine = std::array<QString, kBodyColumns>;

    // The five whole lines at the top: what the list of completed invoices shows.
    QString invoiceNo;      // 1
    QString accountNo;      // 2
    QString customerName;   // 3
    QString dateText;       // 4, the short date text
    QString grandTotalText; // 5

    std::array<QString, 6> billTo; // 6-11
    std::array<QString, 6> shipTo; // 12-17
    QString shipVia;               // 18
    QString shipDate;              // 19
    QString invoiceNoAgain;        // 20
    QString accountNoAgain;        // 21
    QString reference;             // 22
    QString attention;             // 23
    qint64 lineCount = 0;          // 24, as read; the writer writes the number of body lines
    QVector<BodyLine> lines;       // 25 on, six lines each

    // The last statement: sub-total, tax, second tax, grand total, shipping, handling, discount.
    std::array<QString, kTotalFields> totals;

    static QString fileName(const QString& invoiceNo); // "/CompletedInvoices/<number>.txt"

    // Line 4 as a date: the short date text ("2/15/2026") or the ISO form; invalid for anything else.
    static QDate parseDate(const QString& dateText);
};

// What posting knows of the invoice on the screen, before it becomes an image. The address block is
// lblCustomer(6) to lblCustomer(11); amounts are the texts of the total boxes as they stand.
struct PostedInvoice {
    QString invoiceNo;
    QString accountNo;
    std::array<QString, 6> customer;
    QString dateText; // today in the locale's short date text
    QString reference;
    QString attention; // txtShipto(6)
    QVector<InvoiceImage::BodyLine> lines;
    QString total, tax, tax2, grandTotal, misc;
};

// The image posting writes: texts trimmed, the address twice, "None" as the ship-via word, today as
// the ship date, number and account twice, and in the last statement each empty amount made a
// formatted zero (line 5 keeps the grand total as it stood).
InvoiceImage MakeInvoiceImage(const PostedInvoice& invoice);

// The bytes of the file, each field as it stands: lines 1-5, 18-24 and the body unquoted, the
// address blocks quoted, the amounts as one statement of seven quoted fields.
QByteArray FormatInvoiceImage(const InvoiceImage& image);

// Deletes any earlier image of that number and writes this one.
void WriteInvoiceImage(DiskRoutines& disk, const InvoiceImage& image);

// The reader. Lines 1-5 are whole lines; lines 6-24 are read field by field, so a comma in one of the
// unquoted values there splits it and every field behind it moves one place on (the body and totals
// included). The body lines are whole lines again. Throws StoreError, naming the file, when the file
// ends before all it announces is read.
InvoiceImage ReadInvoiceImage(TextReader& reader);
InvoiceImage ReadInvoiceImage(DiskRoutines& disk, const QString& invoiceNo);

// Only lines 1-5, for a list of many images.
InvoiceImage ReadInvoiceImageHead(TextReader& reader);

} // namespace ostrel
