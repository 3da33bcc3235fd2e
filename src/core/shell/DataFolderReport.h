#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace ostrel {

class DataRoot;

// What a data folder holds, and which of its files are cut short or malformed, judged by the same
// rules the program reads them by. Reads only.
struct DataFolderReport {
    struct RecordFile {
        QString name;
        int recordLength = 0;
        bool present = false;
        qint64 bytes = 0;
        qint64 records = 0; // whole records
        int partialBytes = 0; // bytes of a last record that is not whole
    };
    QVector<RecordFile> recordFiles;
    int pointsOfServiceFolders = 0; // DaySchedules<n> folders of all years
    int dayFiles = 0;
    int slips = 0;
    int invoices = 0;
    int auxFolders = 0;
    QStringList problems; // what the program cannot read as it stands: it would report the file damaged
    QStringList notes;    // legal but worth knowing, such as a short last record the count includes

    QString toText() const;
};

DataFolderReport InspectDataFolder(const DataRoot& root);

} // namespace ostrel
