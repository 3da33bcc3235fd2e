// Reports what a data folder holds and which of its files are cut short.
#include "shell/DataFolderReport.h"
#include "store/DataRoot.h"
#include "store/StoreError.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTextStream>

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    const QStringList args = app.arguments();
    if (args.size() != 2 || args[1] == QLatin1String("--help")) {
        err << "usage: ostrel-check DATA-FOLDER\n";
        return 2;
    }
    if (!QFileInfo(args[1]).isDir()) {
        err << "ostrel-check: " << args[1] << " is not a folder\n";
        return 2;
    }
    try {
        const ostrel::DataRoot root(args[1]);
        const ostrel::DataFolderReport report = ostrel::InspectDataFolder(root);
        out << "Data folder " << root.root() << "\n" << report.toText();
        return report.problems.isEmpty() ? 0 : 1;
    } catch (const ostrel::StoreError& e) {
        err << "ostrel-check: " << e.userMessage() << "\n";
        return 2;
    }
}
