#pragma once

#include <QByteArray>
#include <QString>

namespace ostrel::test {

// The bytes of a file of the data tree the program is installed with ("GenericContract.rtf").
QByteArray shippedDataFile(const QString& name);

} // namespace ostrel::test
