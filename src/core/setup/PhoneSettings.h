#pragma once

#include <QString>

namespace ostrel {

class DiskRoutines;

// What the program keeps of the modem: "/Phone.txt" holds whether a telephone is daisy-chained
// and the COM port number, one statement each; "/CallID.txt" holds whether caller ID is used.
struct PhoneSettings {
    qint16 ModemPort = 0;
    bool PhoneChained = false;
    bool CallerIdOn = false;
};

inline const QString kPhoneFile = QStringLiteral("/Phone.txt");
inline const QString kCallIdFile = QStringLiteral("/CallID.txt");

// The file part of the start-up load, run after the modem probe has set ModemPort. A missing
// "/Phone.txt" clears PhoneChained; an existing one sets PhoneChained and then ModemPort, so the
// stored port replaces the one found. "/CallID.txt", when present, sets CallerIdOn.
void LoadPhoneFiles(DiskRoutines& disk, PhoneSettings& phone);

// The file part of the save. A ticked ckPhone makes PhoneChained true; an unticked one leaves it as
// it is. Both files are replaced; CallerIdOn is written as read (or false), whatever the caller ID box
// shows.
void SavePhoneFiles(DiskRoutines& disk, PhoneSettings& phone, bool ckPhoneTicked);

} // namespace ostrel
