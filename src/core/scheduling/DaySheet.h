#pragma once

#include "controls/Controls.h"
#include "printing/PrintFailure.h"

#include <QString>

namespace ostrel {

class PrinterRoutines;
struct SetupSettings;

inline const QString kDaySheetQuestion = QStringLiteral("Did the Schedule Print Correctly?");
inline const QString kDaySheetQuestionTitle = QStringLiteral("Confirm Print");
// The face the day sheet names; the printing layer resolves it to the same face as Arial.
inline const QString kDaySheetFont = QStringLiteral("Ariel");

// What the printed day sheet shows besides the owner's letterhead: the date and Point of Service
// as the screen shows them, and the day grid (column 0 the time, 1 the account, 2 the service).
struct DaySheetContent {
    QString date;
    QString pointOfService;
    const Grid* schedule = nullptr;
};

// The heading: title, date, Point of Service, the owner's name and address on the right, the
// column headings and a rule. Positions in inches from the sheet's left; the job is set up.
void PrintDaySheetHeading(PrinterRoutines& printer, const DaySheetContent& content, const SetupSettings& settings);
// The 48 rows: the time ending at 1.4 inches, the account where it changes from the row above,
// the service; a rule after every fourth row and a second one after the noon row.
void PrintDaySheetBody(PrinterRoutines& printer, const DaySheetContent& content);

// The print dialog and the job's set-up once, then the sheet, drawn and sent again after each No
// until the user answers Yes. A cancelled dialog or a printer failure is reported as the reports
// report it, and ends the routine.
PrintResult PrintDaySheet(PrinterRoutines& printer, const DaySheetContent& content, const SetupSettings& settings);

} // namespace ostrel
