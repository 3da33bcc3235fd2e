#include "QtSerialPort.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSerialPort>
#include <QSerialPortInfo>
#include <QThread>

#include <algorithm>

namespace ostrel::ui {

namespace {

// The longest the program goes without running its events while it waits for a port.
constexpr int kSliceMs = 10;
// How long a write may take to leave for the device before it is left to the event loop.
constexpr int kWriteMs = 200;

// "ttyS10" after "ttyS2": runs of digits compare by their value.
bool naturalLess(const QString& a, const QString& b) {
    qsizetype i = 0, j = 0;
    while (i < a.size() && j < b.size()) {
        if (a[i].isDigit() && b[j].isDigit()) {
            qsizetype ei = i, ej = j;
            while (ei < a.size() && a[ei].isDigit())
                ++ei;
            while (ej < b.size() && b[ej].isDigit())
                ++ej;
            const qulonglong na = a.mid(i, ei - i).toULongLong();
            const qulonglong nb = b.mid(j, ej - j).toULongLong();
            if (na != nb) return na < nb;
            i = ei;
            j = ej;
            continue;
        }
        if (a[i] != b[j]) return a[i] < b[j];
        ++i;
        ++j;
    }
    return a.size() - i < b.size() - j;
}

} // namespace

QtSerialPort::QtSerialPort(const QStringList& extraDevices, bool includeSystemDevices) {
    QStringList devices = includeSystemDevices ? SystemDevices() : QStringList();
    devices += extraDevices;
    devices.removeDuplicates();
    SortDevices(devices);
    m_devices = std::make_shared<const QStringList>(devices);
    m_port = std::make_unique<QSerialPort>();
}

QtSerialPort::QtSerialPort(std::shared_ptr<const QStringList> devices)
    : m_devices(std::move(devices)), m_port(std::make_unique<QSerialPort>()) {}

QtSerialPort::~QtSerialPort() {
    close();
}

QStringList QtSerialPort::SystemDevices() {
    QStringList out;
    const auto ports = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo& info : ports)
        out << info.systemLocation();
    return out;
}

void QtSerialPort::SortDevices(QStringList& devices) {
    std::stable_sort(devices.begin(), devices.end(), naturalLess);
}

std::unique_ptr<SerialPort> QtSerialPort::newChannel() {
    return std::unique_ptr<SerialPort>(new QtSerialPort(m_devices));
}

bool QtSerialPort::open(int number) {
    close();
    m_number = number;
    if (number < 1 || number > m_devices->size()) return false;
    m_port->setPortName(m_devices->at(number - 1));
    m_port->setBaudRate(QSerialPort::Baud9600);
    m_port->setDataBits(QSerialPort::Data8);
    m_port->setParity(QSerialPort::NoParity);
    m_port->setStopBits(QSerialPort::OneStop);
    m_port->setFlowControl(QSerialPort::NoFlowControl);
    return m_port->open(QIODevice::ReadWrite);
}

void QtSerialPort::close() {
    if (m_port->isOpen()) m_port->close();
}

bool QtSerialPort::isOpen() const {
    return m_port->isOpen();
}

bool QtSerialPort::write(const QByteArray& data) {
    if (!m_port->isOpen()) return false;
    if (m_port->write(data) != data.size()) return false;
    // Commands go out at once, as the program does not wait for the event loop to send them.
    m_port->flush();
    if (m_port->bytesToWrite() > 0) m_port->waitForBytesWritten(kWriteMs);
    return true;
}

// Takes what the device holds into the channel without waiting.
void QtSerialPort::pullInput() {
    if (m_port->isOpen()) m_port->waitForReadyRead(0);
}

int QtSerialPort::bytesWaiting() {
    if (!m_port->isOpen()) return 0;
    pullInput();
    return static_cast<int>(m_port->bytesAvailable());
}

void QtSerialPort::clearInput() {
    if (!m_port->isOpen()) return;
    pullInput();
    m_port->clear(QSerialPort::Input);
    m_port->readAll();
}

QByteArray QtSerialPort::readAll() {
    if (!m_port->isOpen()) return {};
    pullInput();
    return m_port->readAll();
}

int QtSerialPort::wait(int ms) {
    QElapsedTimer timer;
    timer.start();
    for (;;) {
        // The window stays alive: a click on Disconnect is handled here, and may close this port.
        if (QCoreApplication::instance()) QCoreApplication::processEvents(QEventLoop::AllEvents);
        if (bytesWaiting() > 0) break;
        const qint64 left = ms - timer.elapsed();
        if (left <= 0) break;
        const int slice = static_cast<int>(std::min<qint64>(left, kSliceMs));
        if (m_port->isOpen())
            m_port->waitForReadyRead(slice);
        else
            QThread::msleep(static_cast<unsigned long>(slice));
    }
    return static_cast<int>(timer.elapsed());
}

} // namespace ostrel::ui
