#pragma once

#include <QDate>
#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace ostrel {

// Where the service line goes in the template.
inline const QString kServicesMarker = QStringLiteral("(Insert Services and Prices Here)");
// What stands in the contract for an end date that a typed duration leaves open.
inline const QString kOpenTerminationDate = QStringLiteral("_____________________");

// The placeholder words, in the order the merge replaces them.
enum class ContractField {
    ContractorName,
    UndersignedCustomer,
    CreationDate,
    Terms,
    Commencing,
    Terminations,
    Frequency,
    Cost,
    Renews,
    ContractorAddress,
    CustomerAddress,
};
constexpr int kContractFields = 11;
QString placeholderWord(ContractField field); // "CONTRACTORNAME" ...

// The end of a contract that starts on `commencing` and runs for the duration at `durationIndex`
// of the duration list (0 one month, 1 a quarter, 2 two quarters, 3 a year). A month added to the
// 31st ends on the last day of a shorter month. Any other index, a typed duration, has no date.
std::optional<QDate> TerminationDate(const QDate& commencing, int durationIndex);

// The values of one merge, as plain text, by field.
struct ContractValues {
    QString serviceLine; // "<service> - <cost>"
    std::vector<std::pair<ContractField, QString>> fields;
};

struct MergeResult {
    QString source; // the merged document; only meaningful when ok
    bool ok = true;
    bool serviceLinePlaced = false;
    // When a value holds its own placeholder word it could never be placed: every replacement
    // would bring the word back. The merge stops there and names it.
    std::optional<ContractField> unplaced;
    QString unplacedValue;
};

// Merges at the level of the rich-text source, so the template's formatting stays: the service
// line replaces the first marker, then each placeholder is replaced wherever it occurs, one match
// at a time and the search starting again from the top after each, in the fields' order. So a
// value that holds a later field's word is replaced again when that field's turn comes.
MergeResult MergeContract(const QString& templateSource, const ContractValues& values);

} // namespace ostrel
