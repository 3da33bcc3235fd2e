#pragma once

#include "store/Record.h"

#include <QString>
#include <QStringView>

namespace ostrel {

// One customer of /CustomerData.txt: 328 bytes at fixed offsets. Text fields read as stored, blank
// padding included (the screens trim); every byte no setter touches keeps the value it was read with.
class CustomerRecord {
public:
    static constexpr int kLength = 328;

    struct Field {
        int offset;
        int width;
    };
    static constexpr Field kAccountNumber{0, 20};
    static constexpr Field kBusinessName{20, 45};
    static constexpr Field kAddress1{65, 35};
    static constexpr Field kAddress2{100, 25};
    static constexpr Field kCity{125, 25};
    static constexpr Field kServiceCity{150, 20};
    static constexpr Field kState{170, 2};
    static constexpr Field kPostalCode{172, 10};
    static constexpr Field kAddress4{182, 25};
    static constexpr Field kTelephone{207, 13};
    static constexpr Field kCellPhone{220, 13};
    static constexpr Field kEmail{233, 30};
    static constexpr Field kTitle{263, 10};
    static constexpr Field kFirstName{273, 15};
    static constexpr Field kMiddleInitial{288, 1};
    static constexpr Field kLastName{289, 25};
    static constexpr Field kAccountType{314, 10};
    static constexpr int kCustomerReservedOffset = 324;
    static constexpr int kAssignedPointOfServiceOffset = 326;

    // A record never read: every byte 0, as the program's buffer starts.
    CustomerRecord() : m_record(kLength) {}
    // Takes a record read from the file; throws StoreError when it is not 328 bytes long.
    explicit CustomerRecord(Record record);

    QString AccountNumber() const { return text(kAccountNumber); }
    void SetAccountNumber(QStringView v) { setText(kAccountNumber, v); }
    QString BusinessName() const { return text(kBusinessName); }
    void SetBusinessName(QStringView v) { setText(kBusinessName, v); }
    QString Address1() const { return text(kAddress1); }
    void SetAddress1(QStringView v) { setText(kAddress1, v); }
    QString Address2() const { return text(kAddress2); }
    void SetAddress2(QStringView v) { setText(kAddress2, v); }
    QString City() const { return text(kCity); }
    void SetCity(QStringView v) { setText(kCity, v); }
    QString ServiceCity() const { return text(kServiceCity); }
    void SetServiceCity(QStringView v) { setText(kServiceCity, v); }
    QString State() const { return text(kState); }
    void SetState(QStringView v) { setText(kState, v); }
    QString PostalCode() const { return text(kPostalCode); }
    void SetPostalCode(QStringView v) { setText(kPostalCode, v); }
    QString Address4() const { return text(kAddress4); }
    void SetAddress4(QStringView v) { setText(kAddress4, v); }
    QString Telephone() const { return text(kTelephone); }
    void SetTelephone(QStringView v) { setText(kTelephone, v); }
    QString CellPhone() const { return text(kCellPhone); }
    void SetCellPhone(QStringView v) { setText(kCellPhone, v); }
    QString Email() const { return text(kEmail); }
    void SetEmail(QStringView v) { setText(kEmail, v); }
    QString Title() const { return text(kTitle); }
    void SetTitle(QStringView v) { setText(kTitle, v); }
    QString FirstName() const { return text(kFirstName); }
    void SetFirstName(QStringView v) { setText(kFirstName, v); }
    QString MiddleInitial() const { return text(kMiddleInitial); }
    void SetMiddleInitial(QStringView v) { setText(kMiddleInitial, v); }
    QString LastName() const { return text(kLastName); }
    void SetLastName(QStringView v) { setText(kLastName, v); }
    QString AccountType() const { return text(kAccountType); }
    void SetAccountType(QStringView v) { setText(kAccountType, v); }

    qint16 CustomerReserved() const { return m_record.int16(kCustomerReservedOffset); }
    void SetCustomerReserved(qint16 v) { m_record.setInt16(kCustomerReservedOffset, v); }
    qint16 AssignedPointOfService() const { return m_record.int16(kAssignedPointOfServiceOffset); }
    void SetAssignedPointOfService(qint16 v) { m_record.setInt16(kAssignedPointOfServiceOffset, v); }

    // The trimmed type reads "Business"; anything else is shown as a person.
    bool IsBusiness() const;

    // What an Add leaves in the buffer: the person, address, telephone and account fields blank, the
    // type "Business", CustomerReserved 0. ServiceCity, PostalCode and AssignedPointOfService keep
    // what the last read left.
    void ClearForNewAccount();

    const Record& record() const { return m_record; }
    Record& record() { return m_record; }
    const QByteArray& bytes() const { return m_record.bytes(); }

    bool operator==(const CustomerRecord& o) const { return m_record == o.m_record; }

private:
    QString text(Field f) const { return m_record.text(f.offset, f.width); }
    void setText(Field f, QStringView v) { m_record.setText(f.offset, f.width, v); }

    Record m_record;
};

} // namespace ostrel
