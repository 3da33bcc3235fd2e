#pragma once

#include "CustomerBuffers.h"

#include <QDate>
#include <QString>
#include <QVector>

#include <functional>

namespace ostrel {

class DiskRoutines;
class RandomFile;

// A message for the user: an OK box with this text and title.
using CustomerMessage = std::function<void(const QString& prompt, const QString& title)>;

// One row of the criteria search: the name shown, the trimmed telephone, the record number.
struct CustomerSearchHit {
    QString name;
    QString telephone;
    int recordNumber = 0;
};

// One customer for the account screen's two lists.
struct AccountListEntry {
    QString listName; // AccountListName
    QString city;     // trimmed City
    int recordNumber = 0;
};

// The customer file and its two companions, read and written through the session's buffers.
// Records are numbered from 1; the customer file is the master and the companions follow it record
// for record. Every routine that opens a file closes all files before it returns, except
// ReadCustomer and WriteCustomer, which work on the channel OpenCustomerFile opened.
class CustomerStore {
public:
    static const QString kCustomerFile;
    static const QString kContractFile;
    static const QString kCycleFile;
    static constexpr int kMostCustomers = 32767;

    // The optSearch order; SearchCustomers takes the index.
    enum SearchField {
        ByBusinessName = 0,
        ByAddress1 = 1,
        ByAddress2 = 2,
        ByCity = 3,
        ByState = 4,
        ByAddress4 = 5,
        ByTelephone = 6,
        ByLastName = 7,
        ByAccountNumber = 8,
    };

    CustomerStore(DiskRoutines& disk, CustomerBuffers& buffers) : m_disk(disk), m_buffers(buffers) {}

    CustomerBuffers& buffers() { return m_buffers; }
    DiskRoutines& disk() { return m_disk; }

    // FileRecordCount("\CustomerData.txt", 328): 0 when there is no file.
    int CustomerCount();

    RandomFile& OpenCustomerFile();
    // The customer buffer from or to record r of the file open on the primary channel.
    void ReadCustomer(int r);
    void WriteCustomer(int r);

    // Open, read or write record r on the secondary channel, close all files.
    void ReadContract(int r);
    void WriteContract(int r);
    void ReadCycle(int r);
    void WriteCycle(int r);

    // The defaults of both companion buffers; the contract's weekday and dates are today's.
    void ResetCompanionBuffers(QDate today);

    // Writes the companion file anew with `count` copies of its buffer (the defaults after
    // ResetCompanionBuffers). Without a customer file nothing is written and the user is told.
    void RebuildContractFile(int count, const CustomerMessage& message);
    void RebuildCycleFile(int count, const CustomerMessage& message);
    // What the account screen does on activation: rebuild whichever companion is missing, when the
    // customer file is there.
    void RebuildMissingCompanions(int count, const CustomerMessage& message);

    // Open, write the customer buffer at r, close; then the two companions at r; then their buffers
    // back to the defaults. Not atomic: each file is written by itself.
    void SaveCustomerAt(int r, QDate today);
    // Open, read record r into the customer buffer, close; then the two companions at r.
    void LoadCustomerAt(int r);

    // True when a record other than `current` holds exactly `account` as its trimmed account number
    // (case counts). Records are read in order and the scan stops at the first equal one; the
    // customer buffer is left holding the last record read.
    bool FindAccountElsewhere(const QString& account, int current);

    // Every record whose chosen field, trimmed and upper-cased, contains `text` trimmed and
    // upper-cased; with listAll every record. Hits in file order; `found` is their number. The
    // customer buffer is left holding the last record.
    QVector<CustomerSearchHit> SearchCustomers(int field, const QString& text, bool listAll, int& found);

    // Every customer in file order for the name and city lists; the buffer holds the last record.
    QVector<AccountListEntry> ReadAccountList();

    // Removes record r from all three files, in this order: the scratch file "\CUSTOMER.TMP" cleared,
    // the customer's open-account file and its backup deleted, the customer file compacted through the
    // scratch file and renamed into place, then the cycle and the contract files each through
    // "\Temp.txt". The customer's AuxFiles folder stays. Returns the screen's new count: one less,
    // but a count of 1 stays 1.
    int DeleteCustomer(int r, const QString& accountBoxText, int customerCount);

private:
    void rebuildCompanion(const QString& name, int recordLength, const Record& defaults, int count,
                          const QString& fileWord, const CustomerMessage& message);
    void compact(const QString& scratch, const QString& target, int recordLength, int skip, bool secondary);
    void writeWhole(const QString& name, int recordLength, const QByteArray& bytes);

    DiskRoutines& m_disk;
    CustomerBuffers& m_buffers;
};

} // namespace ostrel
