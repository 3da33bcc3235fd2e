// Numbers no number type can hold in the files of the appointment and invoice routines: the file
// is a bad file, named, and nothing is written over it.
#include "TestDataRoot.h"
#include "invoicing/InvoiceNumber.h"
#include "scheduling/AppointmentSlip.h"
#include "store/Money.h"
#include "store/StoreError.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {

const QList<QByteArray> kAbsurd = {"nan", "inf", "-inf", "1e300", "-1e300", "99999999999", "9223372036854775808"};

AppointmentSlip sampleSlip() {
    AppointmentSlip slip;
    slip.Status = slipstatus::Scheduled;
    slip.SlipDate = QDate(2026, 11, 20);
    slip.SlipName = QStringLiteral("1 - 324-3");
    slip.SlipPointOfService = 1;
    slip.Slots = 4;
    slip.SlipStartRow = 12;
    slip.Customer = {"2175550199", "Dana Whitfield", "88 Elm St", "", "Springfield", "IL", "62701", "217-555-0199"};
    slip.SlipComment = QStringLiteral("Side door");
    return slip;
}

} // namespace

TEST(AbsurdNumbersInBooks, ASlipWhoseTimeSlotsNoIntegerCanHoldIsABadFileNamedInTheMessage) {
    for (const QByteArray& field : kAbsurd) {
        TestDataRoot t;
        t.makeDir("/Appointments");
        WriteSlip(t.disk(), sampleSlip());
        const QString name = appointmentFileName("1 - 324-3");
        QByteArray bytes = t.readBytes(name);
        // The fifth statement is the number of time slots: 4.
        const qsizetype at = bytes.indexOf("\r\n1\r\n4\r\n");
        ASSERT_GE(at, 0) << bytes.constData();
        bytes.replace(at + 5, 1, field);
        t.writeBytes(name, bytes);
        try {
            ReadSlip(t.disk(), "1 - 324-3");
            ADD_FAILURE() << field.constData() << " was read as time slots";
        } catch (const StoreError& e) {
            EXPECT_EQ(e.file(), name);
        }
        EXPECT_EQ(t.readBytes(name), bytes);
    }
}

TEST(AbsurdNumbersInBooks, AServiceTimeOrCostNoNumberTypeCanHoldIsABadFile) {
    for (const QByteArray& field : kAbsurd) {
        TestDataRoot t;
        t.makeDir("/Services");
        const QString name = servicesFileName("1 - 324-3");
        t.writeBytes(name, "\"Tune Up\",45," + field + "\r\n");
        EXPECT_THROW(ReadServicesFile(t.disk(), "1 - 324-3"), StoreError) << field.constData();
        // A Currency holds 99999999999; the rest is no amount.
        if (field == "99999999999") continue;
        t.writeBytes(name, "\"Tune Up\"," + field + ",4\r\n");
        EXPECT_THROW(ReadServicesFile(t.disk(), "1 - 324-3"), StoreError) << field.constData();
    }
    TestDataRoot t;
    t.makeDir("/Services");
    t.writeBytes(servicesFileName("1 - 324-3"), "\"Tune Up\",45,4\r\n");
    const auto services = ReadServicesFile(t.disk(), "1 - 324-3");
    ASSERT_EQ(services.size(), 1u);
    EXPECT_EQ(services[0].slots, 4);
    EXPECT_EQ(services[0].cost, Money::fromWhole(45));
}

TEST(AbsurdNumbersInBooks, AnInvoiceNumberNoLongCanHoldIsABadFileAndIsNotWrittenOver) {
    for (const QByteArray& field : kAbsurd) {
        TestDataRoot t;
        const QByteArray bytes = field + "\r\n";
        t.writeBytes(kInvoiceNumberFile, bytes);
        try {
            LoadInvoiceNumber(t.disk(), QDate(2026, 11, 22));
            ADD_FAILURE() << field.constData() << " was read as an invoice number";
        } catch (const StoreError& e) {
            EXPECT_EQ(e.file(), kInvoiceNumberFile);
        }
        EXPECT_EQ(t.readBytes(kInvoiceNumberFile), bytes);
    }
    // The largest number a Long holds is still a number.
    TestDataRoot t;
    t.writeBytes(kInvoiceNumberFile, "2147483647\r\n");
    EXPECT_EQ(LoadInvoiceNumber(t.disk(), QDate(2026, 11, 22)), 2147483647);
}

TEST(AbsurdNumbersInBooks, AnAmountNoCountOfTenThousandthsCanHoldIsNothingNotAnUndefinedCast) {
    EXPECT_EQ(Money::fromDouble(1e300), Money());
    EXPECT_EQ(Money::fromDouble(-1e300), Money());
    EXPECT_EQ(Money::fromDouble(std::numeric_limits<double>::quiet_NaN()), Money());
    EXPECT_EQ(Money::fromDouble(std::numeric_limits<double>::infinity()), Money());
    EXPECT_EQ(Money::fromDouble(1e14), Money::fromWhole(100000000000000LL));
    EXPECT_EQ(Money::fromDouble(12.345), Money::fromTenThousandths(123450));
}
