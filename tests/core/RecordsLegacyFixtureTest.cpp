// The records screens over the legacy shop's images and journal: what each row shows is what the
// files hold, read here byte by byte without the program's readers.
#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "invoicing/frmReprint.h"
#include "printing/frmSales.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"
#include "store/Money.h"

#include <QDir>
#include <QFile>
#include <QStringDecoder>

#include <gtest/gtest.h>

#include <cstring>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;

namespace {

struct LegacyRecords : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
    frmReprint& reprint = session.AddScreen(ScreenId::frmReprint, std::make_unique<frmReprint>(session));
    frmSales& sales = session.AddScreen(ScreenId::frmSales, std::make_unique<frmSales>(session));

    void SetUp() override {
        OSTREL_REQUIRE_LEGACY_FIXTURE();
        t.copyTree(ostrel::test::legacyFixture());
        session.RegisterScreen(ScreenId::frmStartup, session.startup());
        fake.clock.set(QDate(2026, 11, 22), QTime(9, 0));
        session.settings.program.optBusinessType0 = false; // the shop sells by associate
        session.LoadServiceAreas();
    }

    static QString cp1252(const QByteArray& bytes) { return QStringDecoder("windows-1252").decode(bytes); }

    // One 115-byte journal record, taken apart by its offsets.
    struct Sale {
        QString transaction, account, associate;
        QDate date;
        qint64 subTotal, tax, discount, gross;
    };
    static QVector<Sale> journal() {
        QFile f(ostrel::test::legacyFixture() + "/AssociateJournal.txt");
        EXPECT_TRUE(f.open(QIODevice::ReadOnly));
        const QByteArray b = f.readAll();
        QVector<Sale> out;
        for (qsizetype at = 0; at + 115 <= b.size(); at += 115) {
            const char* r = b.constData() + at;
            Sale s;
            s.transaction = cp1252(QByteArray(r, 30)).trimmed();
            s.account = cp1252(QByteArray(r + 30, 20)).trimmed();
            double days = 0;
            std::memcpy(&days, r + 50, 8);
            s.date = QDate(1899, 12, 30).addDays(static_cast<qint64>(days));
            s.associate = cp1252(QByteArray(r + 58, 25)).trimmed();
            qint64 money[4];
            std::memcpy(money, r + 83, 32);
            s.subTotal = money[0];
            s.tax = money[1];
            s.discount = money[2];
            s.gross = money[3];
            out.push_back(s);
        }
        return out;
    }
    static QString money(qint64 tenThousandths) { return FormatMoney(Money::fromTenThousandths(tenThousandths)); }
};

} // namespace

TEST_F(LegacyRecords, TheReprintListShowsTheFirstFiveLinesOfEveryImage) {
    session.ShowScreen(ScreenId::frmReprint);
    const QDir folder(ostrel::test::legacyFixture() + "/CompletedInvoices");
    const QStringList files = folder.entryList({"*.txt"}, QDir::Files);
    ASSERT_EQ(reprint.fgReceivables.Rows(), files.size() + 1);
    EXPECT_TRUE(reprint.damagedImages().isEmpty());
    int checked = 0;
    for (const QString& name : files) {
        QFile f(folder.filePath(name));
        ASSERT_TRUE(f.open(QIODevice::ReadOnly));
        QStringList lines;
        for (int i = 0; i < 5; ++i) lines << cp1252(f.readLine()).trimmed();
        int row = -1;
        for (int r = 1; r < reprint.fgReceivables.Rows(); ++r)
            if (reprint.fgReceivables.TextMatrix(r, frmReprint::kInvoiceNumber) == lines[0]) row = r;
        ASSERT_GE(row, 1) << name.toStdString();
        for (int c = 0; c < 5; ++c) EXPECT_EQ(reprint.fgReceivables.TextMatrix(row, c), lines[c]) << name.toStdString();
        const QDate date = QDate::fromString(lines[3], "M/d/yyyy");
        ASSERT_TRUE(date.isValid()) << lines[3].toStdString();
        EXPECT_EQ(reprint.fgReceivables.TextMatrix(row, frmReprint::kSortKey),
                  QString::number(date.year()) + QString::number(date.dayOfYear() + 100));
        ++checked;
    }
    EXPECT_EQ(checked, 60);
}

TEST_F(LegacyRecords, TheSalesOfOneAssociateInAPeriodAreTheJournalsRecordsOfBoth) {
    session.ShowScreen(ScreenId::frmSales);
    sales.DTPicker1[0].value = QDate(2026, 3, 1);
    sales.DTPicker1_Change(0);
    sales.DTPicker1[1].value = QDate(2026, 6, 30);
    sales.DTPicker1_Change(1);
    sales.cboAssociates.SetListIndex(static_cast<int>(sales.cboAssociates.items.indexOf("Crew Two")));
    sales.cmdSales_Click(frmSales::kLoadGrid);

    QVector<Sale> expected;
    qint64 gross = 0, tax = 0;
    for (const Sale& s : journal())
        if (s.associate == "Crew Two" && s.date >= QDate(2026, 3, 1) && s.date <= QDate(2026, 6, 30)) {
            expected.push_back(s);
            gross += s.gross - s.discount;
            tax += s.tax;
        }
    ASSERT_EQ(expected.size(), 6); // 20260003, 06, 27, 48, 59 and 60, in the order of the file
    ASSERT_EQ(sales.fgSales.Rows(), expected.size() + 1);
    for (int i = 0; i < expected.size(); ++i) {
        const Sale& s = expected[i];
        const int r = i + 1;
        EXPECT_EQ(sales.fgSales.TextMatrix(r, frmSales::kTransaction), s.transaction);
        EXPECT_EQ(sales.fgSales.TextMatrix(r, frmSales::kDate), s.date.toString("M/d/yyyy"));
        EXPECT_EQ(sales.fgSales.TextMatrix(r, frmSales::kAccount), s.account);
        EXPECT_EQ(sales.fgSales.TextMatrix(r, frmSales::kSubTotal), money(s.subTotal));
        EXPECT_EQ(sales.fgSales.TextMatrix(r, frmSales::kTax), money(s.tax));
        EXPECT_EQ(sales.fgSales.TextMatrix(r, frmSales::kNet), money(s.gross - s.discount));
    }
    EXPECT_EQ(sales.lblTotal[2].caption, money(tax));
    EXPECT_EQ(sales.lblTotal[3].caption, money(gross));
}

TEST_F(LegacyRecords, EternityWithTheFirstEntryShowsEveryRecordOfTheJournal) {
    session.ShowScreen(ScreenId::frmSales);
    sales.cboAssociates.SetListIndex(0);
    sales.cmdIncome_Click(frmSales::kEternity);
    const QVector<Sale> all = journal();
    ASSERT_EQ(all.size(), 60);
    ASSERT_EQ(sales.fgSales.Rows(), 61);
    qint64 sub = 0;
    for (int i = 0; i < all.size(); ++i) {
        EXPECT_EQ(sales.fgSales.TextMatrix(i + 1, frmSales::kAccount), all[i].account);
        sub += all[i].subTotal;
    }
    EXPECT_EQ(sales.lblTotal[0].caption, money(sub));
}
