#pragma once

#include <QString>

#include <array>
#include <vector>

namespace ostrel {

class PrinterRoutines;

// One line of the work order's service list, as the screen's grid shows it.
struct WorkOrderService {
    QString name;
    QString time;  // "1:15"
    QString price; // in currency form, "$45.00"
};

// One row of the parts pick list.
struct PicklistLine {
    QString quantity;
    QString description;
};

// What the three documents print of one appointment.
struct WorkOrderContent {
    QString number;  // the SlipName, printed as the work order number
    QString date;    // the scheduled date as printed
    QString account; // the customer's account number
    // Name, street, second address line, city, state, postal code, each trimmed.
    std::array<QString, 6> customer;
    QString comment;
    std::vector<WorkOrderService> services;
    std::vector<PicklistLine> picklist;
};

// The fixed lower part of a work order. Only a Shop/Repair business prints it.
struct WorkOrderFixedPart {
    bool shopRepair = true;
    // The work order screen's return-parts tick as a check box holds it: 0 or 1 (2 grayed).
    int ckInstructions = 0;
    QString returnParts; // the Setup screen's return-parts text
    QString disclaimer;  // the one chosen, or empty for none
    QString terms;       // the one chosen, or empty for none
};

// The work order: page head (box, title, logo, letterhead, numbers, customer block, headings), the
// fixed lower part, the completion comments, then the services, on further pages with the whole
// head again when they run past the lower part. Ends the document. The job is set up already.
void PrintWorkOrder(PrinterRoutines& printer, const WorkOrderContent& content, const WorkOrderFixedPart& fixed);

// The summary the crew fills in by hand: times, odometer, anomalies, services not performed and
// who performed them. Ends the document. `today` is the date printed at its head.
void PrintSummaryReport(PrinterRoutines& printer, const WorkOrderContent& content, const QString& today);

// The parts to take along: the ruled frame, the numbers, the customer and comment, then one row per
// part, skipping rows whose quantity is "0". Ends the document.
void PrintPicklist(PrinterRoutines& printer, const WorkOrderContent& content);

} // namespace ostrel
