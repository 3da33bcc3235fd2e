#pragma once

#include <QString>

namespace ostrel {

// The addresses behind the supplies-ordering menu come from the build's configuration.
struct SupplierLinks {
    QString checksEnvelopes;
    QString depositSlips;
    QString plainPaper;
    QString perforatedPaper;
    QString proposalSets;
    QString mailingLabels;
    QString shippingLabels;

    static SupplierLinks configured();
};

} // namespace ostrel
