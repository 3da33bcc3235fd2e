#include "AccountFileNames.h"

#include "store/DataRoot.h"
#include "store/StoreError.h"
#include "util/VbText.h"

namespace ostrel {

namespace {

// The folder and the account's own part; "" stands for no account, which names the folder itself as
// the legacy paths do.
QString joined(const QString& folder, const QString& account, const QString& suffix) {
    const QString name = folder + u'/' + account + suffix;
    const QStringList parts = DataRoot::parts(name); // refuses ".." and NUL itself
    if (account.isEmpty()) return name;
    if (parts.size() != 2 || parts[1] != account + suffix)
        throw StoreError(name,
                         QStringLiteral("The account number \"%1\" cannot name a file or folder: it holds "
                                        "a separator or is only dots. Change the account number.")
                             .arg(account));
    return name;
}

} // namespace

bool AccountNamesAFile(const QString& account) {
    try {
        AuxFolderName(account);
        return true;
    } catch (const StoreError&) {
        return false;
    }
}

QString ActiveAccountFileName(const QString& account) {
    return joined(QStringLiteral("/OIActiveAccounts"), vbTrim(account), QStringLiteral(".txt"));
}

QString AuxFolderName(const QString& account) {
    return joined(QStringLiteral("/AuxFiles"), vbTrim(account), QString());
}

QString AuxSubfolderName(const QString& account, int k) {
    return AuxFolderName(account) + QStringLiteral("/AuxFile%1").arg(k);
}

QString AuxDataFileName(const QString& account, int k) {
    return AuxSubfolderName(account, k) + QStringLiteral("/Data.txt");
}

} // namespace ostrel
