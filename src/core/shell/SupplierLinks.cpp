#include "SupplierLinks.h"

namespace ostrel {

SupplierLinks SupplierLinks::configured() {
    return SupplierLinks{
        QStringLiteral(OSTREL_URL_CHECKS_ENVELOPES), QStringLiteral(OSTREL_URL_DEPOSIT_SLIPS),
        QStringLiteral(OSTREL_URL_PLAIN_PAPER),      QStringLiteral(OSTREL_URL_PERFORATED_PAPER),
        QStringLiteral(OSTREL_URL_PROPOSAL_SETS),    QStringLiteral(OSTREL_URL_MAILING_LABELS),
        QStringLiteral(OSTREL_URL_SHIPPING_LABELS),
    };
}

} // namespace ostrel
