#include "RecordFormats.h"

#include "accounts/ContractInfoRecord.h"
#include "accounts/CustomerRecord.h"
#include "accounts/CycleInfoRecord.h"
#include "catalogue/CustomItemRecord.h"
#include "catalogue/InventoriedItemRecord.h"
#include "catalogue/ServiceRecord.h"
#include "store/DiskRoutines.h"

#include <QFile>

namespace ostrel {

namespace {

using Kind = RecordField::Kind;

RecordField text(int offset, int width, const char* label) { return {offset, width, Kind::Text, label}; }

template <size_t N> QVector<RecordField> reserved(const std::array<ReservedField, N>& layout) {
    QVector<RecordField> out;
    for (const ReservedField& f : layout) {
        const Kind k = f.kind == ReservedField::Kind::Text       ? Kind::Text
                       : f.kind == ReservedField::Kind::Currency ? Kind::Currency
                       : f.kind == ReservedField::Kind::Date     ? Kind::Date
                                                                  : Kind::Int16;
        out.append({f.offset, f.width, k, k == Kind::Date ? "date field" : k == Kind::Text ? "text field" : "number field"});
    }
    return out;
}

QVector<RecordFormat> build() {
    using C = CustomerRecord;
    QVector<RecordFormat> f;
    f.append({QStringLiteral("/CustomerData.txt"), C::kLength,
              {text(C::kAccountNumber.offset, C::kAccountNumber.width, "account number"),
               text(C::kBusinessName.offset, C::kBusinessName.width, "business name"),
               text(C::kAddress1.offset, C::kAddress1.width, "address"),
               text(C::kAddress2.offset, C::kAddress2.width, "second address line"),
               text(C::kCity.offset, C::kCity.width, "city"),
               text(C::kServiceCity.offset, C::kServiceCity.width, "service city"),
               text(C::kState.offset, C::kState.width, "state"),
               text(C::kPostalCode.offset, C::kPostalCode.width, "postal code"),
               text(C::kAddress4.offset, C::kAddress4.width, "fourth address line"),
               text(C::kTelephone.offset, C::kTelephone.width, "telephone"),
               text(C::kCellPhone.offset, C::kCellPhone.width, "cell phone"),
               text(C::kEmail.offset, C::kEmail.width, "e-mail"),
               text(C::kTitle.offset, C::kTitle.width, "title"),
               text(C::kFirstName.offset, C::kFirstName.width, "first name"),
               text(C::kMiddleInitial.offset, C::kMiddleInitial.width, "middle initial"),
               text(C::kLastName.offset, C::kLastName.width, "last name"),
               text(C::kAccountType.offset, C::kAccountType.width, "account type")}});
    f.append({QStringLiteral("/ContractInfo.txt"), ContractInfoRecord::kLength, reserved(ContractInfoRecord::kLayout)});
    f.append({QStringLiteral("/CycleInfo.txt"), CycleInfoRecord::kLength, reserved(CycleInfoRecord::kLayout)});
    using S = ServiceRecord;
    f.append({S::kFileName, S::kLength,
              {text(S::kDescriptionOffset, S::kDescriptionWidth, "description"),
               text(S::kChargeOffset, S::kChargeWidth, "charge"),
               // A time position past the list shows as no time; the screen copes with any value.
               {S::kTimeIndexOffset, 2, Kind::Int16, "time"}}});
    using I = InventoriedItemRecord;
    f.append({I::kFileName, I::kLength,
              {text(I::kDescriptionOffset, I::kDescriptionWidth, "description"),
               text(I::kCategoryOffset, I::kCategoryWidth, "category"),
               {I::kUnitCostOffset, 8, Kind::Currency, "unit cost"},
               {I::kSellPriceOffset, 8, Kind::Currency, "price"},
               {I::kOnHandOffset, 2, Kind::Int16, "quantity on hand"},
               {I::kDiscountPriceOffset, 8, Kind::Currency, "discount price"},
               {I::kDiscountQuantityOffset, 4, Kind::Int32, "discount quantity"},
               {I::kReorderAmountOffset, 2, Kind::Int16, "reorder amount"},
               {I::kReorderAtOffset, 2, Kind::Int16, "reorder point"}}});
    using U = CustomItemRecord;
    f.append({U::kFileName, U::kLength,
              {text(U::kDescriptionOffset, U::kDescriptionWidth, "description"),
               {U::kSellPriceOffset, 8, Kind::Currency, "price"},
               {U::kDiscountPriceOffset, 8, Kind::Currency, "discount price"},
               {U::kDiscountQuantityOffset, 4, Kind::Int32, "discount quantity"}}});
    // Files of the invoice and sales routines: judged by their length.
    f.append({QStringLiteral("/SoldItems.txt"), 90, {}});
    f.append({QStringLiteral("/AssociateJournal.txt"), 115, {}});
    f.append({QStringLiteral("/OAPaymentRecords.txt"), 155, {}});
    f.append({QStringLiteral("/TaxRecords.txt"), 75, {}});
    return f;
}

} // namespace

const QVector<RecordFormat>& KnownRecordFormats() {
    static const QVector<RecordFormat> formats = build();
    return formats;
}

const RecordFormat* RecordFormatFor(const QString& name) {
    QString n = name;
    n.replace(u'\\', u'/');
    for (const RecordFormat& f : KnownRecordFormats())
        if (f.name.compare(n, Qt::CaseInsensitive) == 0) return &f;
    return nullptr;
}

bool CheckRecordFileOnRead(DiskRoutines& disk, const QString& name) {
    const RecordFormat* format = RecordFormatFor(name);
    if (!format) return true;
    const DataRoot::Entry e = disk.root().resolve(name);
    if (e.isDirectory()) {
        disk.ReportDamage(name, QStringLiteral("a folder stands where this file belongs."));
        return false;
    }
    if (!e.isFile()) return true;
    QByteArray bytes;
    {
        QFile f(e.path);
        if (!f.open(QIODevice::ReadOnly)) {
            disk.ReportDamage(name, QStringLiteral("it cannot be read: ") + f.errorString() + u'.');
            return false;
        }
        bytes = f.readAll();
    }
    const RecordFileVerdict verdict = JudgeRecordFile(*format, bytes);
    if (!verdict.damaged()) return true;
    disk.ReportDamage(name, DescribeDamage(verdict));
    return false;
}

} // namespace ostrel
