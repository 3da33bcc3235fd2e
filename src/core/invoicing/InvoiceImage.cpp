#include "InvoiceImage.h"

#include "store/DiskRoutines.h"
#include "store/Money.h"
#include "store/StoreError.h"
#include "util/VbText.h"
#include "store/LocaleText.h"

namespace ostrel {

namespace {

QString zeroIfEmpty(const QString& amount) {
    return amount.isEmpty() ? FormatMoney(Money()) : amount;
}

} // namespace

QString InvoiceImage::fileName(const QString& invoiceNo) {
    // A typed invoice number names a file: it must not reach into another folder.
    if (invoiceNo.contains(u'/') || invoiceNo.contains(u'\\') || invoiceNo == u".." || invoiceNo == u".")
        throw StoreError(QStringLiteral("/CompletedInvoices/") + invoiceNo + QStringLiteral(".txt"),
                         QStringLiteral("An invoice number cannot hold a folder separator."));
    return QStringLiteral("/CompletedInvoices/") + invoiceNo + QStringLiteral(".txt");
}

QDate InvoiceImage::parseDate(const QString& dateText) {
    const QString t = dateText.trimmed();
    QDate d = ParseShortDate(t);
    if (!d.isValid()) d = QDate::fromString(t, u"yyyy-M-d");
    return d;
}

InvoiceImage MakeInvoiceImage(const PostedInvoice& in) {
    InvoiceImage image;
    image.invoiceNo = vbTrim(in.invoiceNo);
    image.accountNo = vbTrim(in.accountNo);
    image.customerName = vbTrim(in.customer[0]);
    image.dateText = in.dateText;
    image.grandTotalText = in.grandTotal;
    for (int i = 0; i < 6; ++i) {
        image.billTo[i] = vbTrim(in.customer[i]);
        image.shipTo[i] = image.billTo[i];
    }
    image.shipVia = QStringLiteral("None");
    image.shipDate = image.dateText;
    image.invoiceNoAgain = image.invoiceNo;
    image.accountNoAgain = image.accountNo;
    image.reference = vbTrim(in.reference);
    image.attention = vbTrim(in.attention);
    image.lines = in.lines;
    image.lineCount = in.lines.size();
    const QString zero = FormatMoney(Money());
    image.totals = {zeroIfEmpty(in.total), zeroIfEmpty(in.tax),  zeroIfEmpty(in.tax2), zeroIfEmpty(in.grandTotal),
                    zero,                  zeroIfEmpty(in.misc), zero};
    return image;
}

namespace {

TextWriter invoiceImageStatements(const InvoiceImage& image) {
    TextWriter w;
    w.print(image.invoiceNo);
    w.print(image.accountNo);
    w.print(image.customerName);
    w.print(image.dateText);
    w.print(image.grandTotalText);
    for (const QString& s : image.billTo) w.writeString(s);
    for (const QString& s : image.shipTo) w.writeString(s);
    w.print(image.shipVia);
    w.print(image.shipDate);
    w.print(image.invoiceNoAgain);
    w.print(image.accountNoAgain);
    w.print(image.reference);
    w.print(image.attention);
    w.print(QString::number(image.lines.size()));
    for (const InvoiceImage::BodyLine& line : image.lines)
        for (const QString& cell : line) w.print(cell);
    const auto& t = image.totals;
    w.write({t[0], t[1], t[2], t[3], t[4], t[5], t[6]});
    return w;
}

} // namespace

QByteArray FormatInvoiceImage(const InvoiceImage& image) {
    return invoiceImageStatements(image).bytes();
}

void WriteInvoiceImage(DiskRoutines& disk, const InvoiceImage& image) {
    const QString name = InvoiceImage::fileName(image.invoiceNo);
    disk.CloseAllFiles();
    // An image of the same number is replaced without a word; the new file takes the old one's
    // place in one step, so a crash never leaves the number without an image.
    disk.OpenForOutput(name) = invoiceImageStatements(image);
    disk.CloseAllFiles();
}

InvoiceImage ReadInvoiceImageHead(TextReader& reader) {
    InvoiceImage image;
    image.invoiceNo = reader.readLine();
    image.accountNo = reader.readLine();
    image.customerName = reader.readLine();
    image.dateText = reader.readLine();
    image.grandTotalText = reader.readLine();
    return image;
}

InvoiceImage ReadInvoiceImage(TextReader& reader) {
    InvoiceImage image = ReadInvoiceImageHead(reader);
    for (QString& s : image.billTo) s = reader.readString();
    for (QString& s : image.shipTo) s = reader.readString();
    image.shipVia = reader.readString();
    image.shipDate = reader.readString();
    image.invoiceNoAgain = reader.readString();
    image.accountNoAgain = reader.readString();
    image.reference = reader.readString();
    image.attention = reader.readString();
    image.lineCount = reader.readInteger();
    for (qint64 i = 0; i < image.lineCount; ++i) {
        InvoiceImage::BodyLine line;
        for (QString& cell : line) cell = reader.readLine();
        image.lines.append(line);
    }
    for (QString& s : image.totals) s = reader.readString();
    return image;
}

InvoiceImage ReadInvoiceImage(DiskRoutines& disk, const QString& invoiceNo) {
    TextReader reader = disk.ReadTextFile(InvoiceImage::fileName(invoiceNo));
    return ReadInvoiceImage(reader);
}

} // namespace ostrel
