#pragma once

#include "store/Money.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>
#include <vector>

namespace ostrel {

class DiskRoutines;

// The three status words of a slip.
namespace slipstatus {
inline const QString Unscheduled = QStringLiteral("Unscheduled");
inline const QString Scheduled = QStringLiteral("Scheduled");
inline const QString Invoiced = QStringLiteral("Invoiced");
} // namespace slipstatus

// What a slip stores when the comment box was left empty.
inline const QString kNoCustomerInstructions = QStringLiteral("No Customer Instructions");

// "2 - 319-4": the Point of Service number with all its digits, " - ", the SlipId.
QString SlipName(int pointOfService, const QString& slipId);
// The data names of a slip's three files.
QString appointmentFileName(const QString& slipName); // "/Appointments/<SlipName>.txt"
QString servicesFileName(const QString& slipName);    // "/Services/<SlipName>.txt"
QString soldItemsFileName(const QString& slipName);   // "/SoldItems/<SlipName>.txt"

// One appointment's slip file, statement by statement.
struct AppointmentSlip {
    QString Status;
    QDate SlipDate;
    QString SlipName;
    qint16 SlipPointOfService = 0;
    qint16 Slots = 0;
    qint16 SlipStartRow = 0; // 0 while unscheduled
    // Account number, name, street, second address line, city, state, postal code, telephone (an
    // invoiced slip holds them one place earlier: see the invoice's rewrite).
    std::array<QString, 8> Customer;
    QString SlipComment;

    bool operator==(const AppointmentSlip&) const = default;
};

// The SlipNames of the slip files in /Appointments ("2 - 319-4" for "2 - 319-4.txt"), in the order
// of their names without regard to case. The list screens read the slips in this order.
QStringList ListSlipFiles(DiskRoutines& disk);

// The slip as the lists read it: the comment by the field read, so it stops at its first comma or
// line end. A slip with too few statements throws StoreError naming the file.
AppointmentSlip ReadSlipHeader(DiskRoutines& disk, const QString& slipName);
// The slip as a single slip's screens read it: the comment is its whole first line.
AppointmentSlip ReadSlip(DiskRoutines& disk, const QString& slipName);
// The slip file as bytes, for the readers above and the rewrite's tests.
QByteArray SlipFileBytes(const AppointmentSlip& slip);
// Writes /Appointments/<SlipName>.txt whole, replacing any slip of that name in one step. An empty
// comment is stored as "No Customer Instructions".
void WriteSlip(DiskRoutines& disk, const AppointmentSlip& slip);

// The invoice's rewrite of a posted job's slip, as "/Appointments/<slipName>.txt" replaced in one
// step: `slip` holds the fields in their invoiced places, and its comment is written as it stands,
// an empty one included.
void RewriteInvoicedSlip(DiskRoutines& disk, const QString& slipName, const AppointmentSlip& slip);
// One line of a slip's Services file.
struct SlipService {
    QString name;
    Money cost;
    qint16 slots = 0;
    bool operator==(const SlipService&) const = default;
};
// Written only by callers that have at least one service; replaces the file in one step.
void WriteServicesFile(DiskRoutines& disk, const QString& slipName, const std::vector<SlipService>& services);
// An absent file is no services. A file cut short throws StoreError naming it.
std::vector<SlipService> ReadServicesFile(DiskRoutines& disk, const QString& slipName);
// Services added on the work order screen, appended to the slip's Services file: the name, the
// price as an Integer where the cost stands (so the price is whole), then the slot count written
// as a Currency. A reader takes them back as cost and slots.
void AppendServicesFile(DiskRoutines& disk, const QString& slipName, const std::vector<SlipService>& added);

// One sold item of a slip: three lines as they were printed (quantity, description, unit cost).
struct SlipSoldItem {
    QString quantity;
    QString description;
    QString unitCost;
    bool operator==(const SlipSoldItem&) const = default;
};
void WriteSoldItemsFile(DiskRoutines& disk, const QString& slipName, const std::vector<SlipSoldItem>& items);
// An absent file is no items. A file cut short throws StoreError naming it.
std::vector<SlipSoldItem> ReadSoldItemsFile(DiskRoutines& disk, const QString& slipName);
bool SoldItemsFileExists(DiskRoutines& disk, const QString& slipName);

// The hand-over to invoicing: the old file is deleted first, then the SlipName is written.
void WriteFileToPrint(DiskRoutines& disk, const QString& slipName);
// The SlipName waiting for an invoice; nothing when there is no file.
std::optional<QString> ReadFileToPrint(DiskRoutines& disk);

// Deletes the slip's three files. `fileName` is the SlipName followed by ".txt".
void DeleteAppointment(DiskRoutines& disk, const QString& fileName);
// Deletes "/Appointmemts/<n>.txt", "/SoldItems/<n>.txt" and "/Services/<n>.txt": the first folder
// name is misspelled and the names are bare numbers, so this removes nothing a slip is stored as.
void DeleteSlipFilesByNumber(DiskRoutines& disk, int number);
// The same three paths for a whole SlipName (the work order purge): the slip file stays, its
// Services and SoldItems files go.
void DeleteSlipFilesByNumber(DiskRoutines& disk, const QString& slipName);

// The slip numbering: the day of year it was issued and the next running number.
struct SlipCounter {
    QString day;
    qint64 number = 1;
    // The SlipId in force: day, "-", number, formed by LoadWorkSlipCounter.
    QString SlipId;
};

// Forms a new SlipId for today and saves the counter. `assignmentCount` is the number of entries of
// the screen's Point of Service list, for the collision sweep.
void LoadWorkSlipCounter(DiskRoutines& disk, const QDate& today, int assignmentCount, SlipCounter& counter);
// Drops the file and its backup and writes `"<day>",<number>`.
void SaveSlipCounter(DiskRoutines& disk, const SlipCounter& counter);
// One more after a slip is written; the SlipId stays until the next LoadWorkSlipCounter.
void UpcountSlipCounter(DiskRoutines& disk, SlipCounter& counter);

} // namespace ostrel
