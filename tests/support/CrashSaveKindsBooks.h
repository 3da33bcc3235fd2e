#pragma once

// The saves of the appointment, invoice, contract, terms and blocking routines for the crash
// harness (the rest are in CrashSaveKinds.cpp).
#include "CrashHarness.h"

namespace ostrel::crash {

SaveKind InvoicePostingKind();
SaveKind ServicesAddedKind();
SaveKind ContractAndTermsKind();
SaveKind BlockedDaysKind();

} // namespace ostrel::crash
