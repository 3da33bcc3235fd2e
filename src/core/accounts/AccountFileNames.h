#pragma once

#include <QString>

namespace ostrel {

// Data names built from an account number. The account is trimmed and must name one file or folder:
// an account holding a separator, "." or ".." is refused with a StoreError that names it, never
// mended into some other name.
// False for an account number that cannot name a file or folder ("12/34", ".."): such a customer
// simply has none of the files named after the account.
bool AccountNamesAFile(const QString& account);
QString ActiveAccountFileName(const QString& account);   // "/OIActiveAccounts/<acct>.txt"
QString AuxFolderName(const QString& account);           // "/AuxFiles/<acct>"
QString AuxSubfolderName(const QString& account, int k); // "/AuxFiles/<acct>/AuxFile<k>"
QString AuxDataFileName(const QString& account, int k);  // "/AuxFiles/<acct>/AuxFile<k>/Data.txt"

} // namespace ostrel
