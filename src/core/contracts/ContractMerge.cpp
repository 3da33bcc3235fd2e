#include "ContractMerge.h"

#include "RtfText.h"

namespace ostrel {

namespace {

const char* const kWords[kContractFields] = {
    "CONTRACTORNAME", "UNDERSIGNEDCUSTOMER", "CREATIONDATE", "TERMS",   "COMMENCING",       "TERMINATIONS",
    "FREQUENCY",      "COST",                "RENEWS",       "CONTRACTORADDRESS", "CUSTOMERADDRESS",
};

} // namespace

QString placeholderWord(ContractField field) {
    return QString::fromLatin1(kWords[static_cast<int>(field)]);
}

std::optional<QDate> TerminationDate(const QDate& commencing, int durationIndex) {
    switch (durationIndex) {
    case 0:
        return commencing.addMonths(1);
    case 1:
        return commencing.addMonths(3);
    case 2:
        return commencing.addMonths(6);
    case 3:
        return commencing.addYears(1);
    default:
        return std::nullopt;
    }
}

MergeResult MergeContract(const QString& templateSource, const ContractValues& values) {
    MergeResult r;
    QString doc = templateSource;
    // The marker is matched, case and all, as the template spells it.
    if (const qsizetype at = doc.indexOf(kServicesMarker); at >= 0) {
        doc.replace(at, kServicesMarker.size(), rtf::escape(values.serviceLine));
        r.serviceLinePlaced = true;
    }
    for (const auto& [field, value] : values.fields) {
        const QString word = placeholderWord(field);
        const QString replacement = rtf::escape(value);
        qsizetype at = doc.indexOf(word);
        if (at < 0) continue;
        if (replacement.contains(word)) {
            r.ok = false;
            r.unplaced = field;
            r.unplacedValue = value;
            return r;
        }
        // Each pass starts from the top again. The document grows by a fixed amount per match and
        // no replacement holds the word, so the matches run out; the bound is a second safeguard
        // against a word formed anew where a value meets the text beside it.
        qsizetype passes = 0;
        const qsizetype bound = doc.size() + 1;
        while (at >= 0) {
            if (++passes > bound) {
                r.ok = false;
                r.unplaced = field;
                r.unplacedValue = value;
                return r;
            }
            doc.replace(at, word.size(), replacement);
            at = doc.indexOf(word);
        }
    }
    r.source = doc;
    return r;
}

} // namespace ostrel
