#include "ShippedData.h"

#include <QFile>

#include <gtest/gtest.h>

namespace ostrel::test {

QByteArray shippedDataFile(const QString& name) {
    QFile f(QStringLiteral(OSTREL_SHIPPED_DATA) + u'/' + name);
    if (!f.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "the installed data tree has no " << name.toStdString();
        return {};
    }
    return f.readAll();
}

} // namespace ostrel::test
