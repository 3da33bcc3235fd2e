// The modem code against a fake modem on a pseudo-terminal pair made by socat, through the real
// QSerialPort side.
#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "platform/QtSerialPort.h"
#include "shell/Session.h"
#include "telephony/LoadPhoneSettings.h"
#include "telephony/ModemProbe.h"
#include "telephony/frmDialer.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include <atomic>
#include <fcntl.h>
#include <mutex>
#include <poll.h>
#include <thread>
#include <unistd.h>

using namespace ostrel;
using namespace ostrel::ui;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;

namespace {

// One serial line: socat joins the device the program opens to the end the fake device holds,
// which a thread of its own serves.
class FakeLine {
public:
    enum class Kind { Modem, EchoOneByte, Silent };

    FakeLine(const QString& device, Kind kind) : m_device(device), m_kind(kind) {}
    ~FakeLine() { stop(); }
    FakeLine(const FakeLine&) = delete;
    FakeLine& operator=(const FakeLine&) = delete;

    bool answersDial = true;

    // False, with the reason in error(), when socat did not make the pair.
    bool start() {
        const QString peer = m_device + QStringLiteral(".peer");
        m_socat.setProcessChannelMode(QProcess::MergedChannels);
        m_socat.start(QStringLiteral("socat"), {QStringLiteral("pty,raw,echo=0,link=") + m_device,
                                                QStringLiteral("pty,raw,echo=0,link=") + peer});
        const QDeadlineTimer deadline(5000);
        while (!(QFileInfo::exists(m_device) && QFileInfo::exists(peer)) && !deadline.hasExpired())
            QThread::msleep(10);
        if (!QFileInfo::exists(peer)) {
            m_error =
                QStringLiteral("socat made no pseudo-terminal: ") + QString::fromLocal8Bit(m_socat.readAll());
            return false;
        }
        m_fd = ::open(QFile::encodeName(peer).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK);
        if (m_fd < 0) {
            m_error = QStringLiteral("cannot open ") + peer;
            return false;
        }
        m_thread = std::thread([this] { serve(); });
        return true;
    }

    void stop() {
        m_stop = true;
        if (m_thread.joinable()) m_thread.join();
        if (m_fd >= 0) ::close(m_fd);
        m_fd = -1;
        if (m_socat.state() != QProcess::NotRunning) {
            m_socat.terminate();
            if (!m_socat.waitForFinished(2000)) m_socat.kill();
            m_socat.waitForFinished(2000);
        }
    }

    QList<QByteArray> received() const {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_received;
    }

    // Lets the program's events run until the line has received `count` commands.
    bool waitForCommands(int count, int ms = 3000) const {
        const QDeadlineTimer deadline(ms);
        while (received().size() < count && !deadline.hasExpired()) {
            QCoreApplication::processEvents();
            QThread::msleep(5);
        }
        return received().size() >= count;
    }

    const QString& device() const { return m_device; }
    const QString& error() const { return m_error; }

private:
    void serve() {
        QByteArray command;
        while (!m_stop) {
            pollfd p{m_fd, POLLIN, 0};
            if (::poll(&p, 1, 20) <= 0 || !(p.revents & POLLIN)) continue;
            char buf[256];
            const ssize_t n = ::read(m_fd, buf, sizeof buf);
            for (ssize_t i = 0; i < n; ++i) {
                command += buf[i];
                if (buf[i] != '\r') continue;
                answer(command);
                command.clear();
            }
        }
    }

    void answer(const QByteArray& command) {
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            m_received.append(command);
        }
        QByteArray reply;
        switch (m_kind) {
        case Kind::Modem:
            if (command.startsWith("ATDT")) {
                if (!answersDial) return;
                QThread::msleep(300); // the time a dial takes
            }
            reply = "\r\nOK\r\n";
            break;
        case Kind::EchoOneByte:
            reply = command.left(1);
            break;
        case Kind::Silent:
            return;
        }
        [[maybe_unused]] const ssize_t written =
            ::write(m_fd, reply.constData(), static_cast<size_t>(reply.size()));
    }

    QString m_device;
    Kind m_kind;
    QProcess m_socat;
    int m_fd = -1;
    std::thread m_thread;
    std::atomic<bool> m_stop{false};
    mutable std::mutex m_mutex;
    QList<QByteArray> m_received;
    QString m_error;
};

struct ModemEndToEnd : ::testing::Test {
    void SetUp() override {
        if (QStandardPaths::findExecutable(QStringLiteral("socat")).isEmpty())
            GTEST_SKIP()
                << "socat is not installed: the end-to-end modem test needs it for its pseudo-terminals";
        ASSERT_TRUE(dir.isValid());
    }

    // Lines named so that they sort in the order given, each under a name no other run uses.
    FakeLine& addLine(FakeLine::Kind kind) {
        const QString name = QStringLiteral("%1/ttyOstrel%2x%3")
                                 .arg(dir.path())
                                 .arg(QCoreApplication::applicationPid())
                                 .arg(lines.size() + 1);
        lines.push_back(std::make_unique<FakeLine>(name, kind));
        return *lines.back();
    }
    bool startLines() {
        for (auto& l : lines) {
            if (!l->start()) {
                ADD_FAILURE() << l->error().toStdString();
                return false;
            }
        }
        return true;
    }
    QStringList devices() const {
        QStringList out;
        for (const auto& l : lines)
            out << l->device();
        return out;
    }

    QTemporaryDir dir;
    std::vector<std::unique_ptr<FakeLine>> lines;
    TestDataRoot t;
    FakePlatform fake{t.path()};
    Session session{t.path(), fake};
};

} // namespace

TEST_F(ModemEndToEnd, TheProbeFindsTheModemAfterASilentLineAndAnEchoingOne) {
    addLine(FakeLine::Kind::Silent);
    addLine(FakeLine::Kind::EchoOneByte);
    FakeLine& modem = addLine(FakeLine::Kind::Modem);
    ASSERT_TRUE(startLines());
    QtSerialPort port(devices(), false);
    ASSERT_EQ(port.devices(), devices());

    const PhoneControls c = LoadPhoneSettings(session, port);
    EXPECT_TRUE(session.modem.detected);
    EXPECT_EQ(session.modem.foundPort, 3);
    EXPECT_EQ(session.modem.statusText, "Your Modem Comm Port Is 3.");
    EXPECT_EQ(c.txtModemPort, "3");
    EXPECT_TRUE(port.isOpen());
    ASSERT_TRUE(modem.waitForCommands(2));
    EXPECT_EQ(modem.received(), QList<QByteArray>({"AT\r", "AT#CID=1\r"}));
    EXPECT_EQ(lines[0]->received(), QList<QByteArray>({"AT\r"}));
    EXPECT_EQ(lines[1]->received(), QList<QByteArray>({"AT\r"}));
    fake.dialogs.verify();
}

TEST_F(ModemEndToEnd, WithoutAModemTheProbeSaysSo) {
    addLine(FakeLine::Kind::EchoOneByte);
    addLine(FakeLine::Kind::Silent);
    ASSERT_TRUE(startLines());
    QtSerialPort port(devices(), false);
    const PhoneControls c = LoadPhoneSettings(session, port);
    EXPECT_FALSE(session.modem.detected);
    EXPECT_EQ(session.modem.statusText, "Modem Not Detected Or In Use.");
    EXPECT_FALSE(c.phoneTabEnabled);
    EXPECT_FALSE(port.isOpen());
    ASSERT_TRUE(lines[0]->waitForCommands(1));
    EXPECT_EQ(lines[0]->received(), QList<QByteArray>({"AT\r"}));
}

TEST_F(ModemEndToEnd, ADialGetsTheModemsOkAndTheTalkButtonHangsUp) {
    FakeLine& modem = addLine(FakeLine::Kind::Modem);
    ASSERT_TRUE(startLines());
    QtSerialPort port(devices(), false);
    LoadPhoneSettings(session, port);
    ASSERT_TRUE(modem.waitForCommands(2));
    frmDialer& dialer = session.AddScreen(ScreenId::frmDialer, std::make_unique<frmDialer>(session, port));

    dialer.DialFor(QStringLiteral("Jane Roe"), QStringLiteral("555-0100"));
    dialer.cmdNewDial_Click();
    EXPECT_EQ(dialer.lblStatus.caption, "Pickup Receiver - Then Click Hangup");
    EXPECT_TRUE(dialer.ModemReply.contains("OK"));
    ASSERT_TRUE(modem.waitForCommands(3));
    EXPECT_EQ(modem.received().value(2), QByteArray("ATDT555-0100;\r"));

    dialer.cmdCancel_Click();
    ASSERT_TRUE(modem.waitForCommands(4));
    EXPECT_EQ(modem.received().value(3), QByteArray("ATH\r"));
    EXPECT_FALSE(port.isOpen());
    EXPECT_FALSE(dialer.isVisible());

    // The next call opens the port again.
    dialer.DialFor(QStringLiteral("Jane Roe"), QStringLiteral("555-0100"));
    EXPECT_TRUE(port.isOpen());
    dialer.cmdNewDial_Click();
    EXPECT_EQ(dialer.lblStatus.caption, "Pickup Receiver - Then Click Hangup");
}

TEST_F(ModemEndToEnd, AModemThatNeverAnswersTheDialTimesOut) {
    FakeLine& modem = addLine(FakeLine::Kind::Modem);
    modem.answersDial = false;
    ASSERT_TRUE(startLines());
    QtSerialPort port(devices(), false);
    LoadPhoneSettings(session, port);
    ASSERT_TRUE(modem.waitForCommands(2));
    frmDialer& dialer = session.AddScreen(ScreenId::frmDialer, std::make_unique<frmDialer>(session, port));
    dialer.dialTimeLimitMs = 600;

    dialer.DialFor(QStringLiteral("Jane Roe"), QStringLiteral("555-0100"));
    dialer.cmdNewDial_Click();
    EXPECT_EQ(dialer.lblStatus.caption, "No Reply from the Modem - Dialing Timed Out");
    EXPECT_TRUE(dialer.cmdNewDial.enabled);
    ASSERT_TRUE(modem.waitForCommands(4));
    EXPECT_EQ(modem.received().value(2), QByteArray("ATDT555-0100;\r"));
    EXPECT_EQ(modem.received().value(3), QByteArray("ATH\r"));
}

TEST(QtSerialPortOrder, DevicesSortWithTheirNumbersCountedAsNumbers) {
    QStringList devices = {QStringLiteral("/dev/ttyUSB0"), QStringLiteral("/dev/ttyS10"),
                           QStringLiteral("/dev/ttyS2"), QStringLiteral("/dev/ttyACM0"),
                           QStringLiteral("/dev/ttyS0")};
    QtSerialPort::SortDevices(devices);
    EXPECT_EQ(devices, QStringList({QStringLiteral("/dev/ttyACM0"), QStringLiteral("/dev/ttyS0"),
                                    QStringLiteral("/dev/ttyS2"), QStringLiteral("/dev/ttyS10"),
                                    QStringLiteral("/dev/ttyUSB0")}));
}

TEST(QtSerialPortOrder, APortNumberBeyondTheDevicesDoesNotOpen) {
    QtSerialPort port(QStringList(), false);
    EXPECT_FALSE(port.open(1));
    EXPECT_FALSE(port.isOpen());
    EXPECT_EQ(port.bytesWaiting(), 0);
    EXPECT_FALSE(port.write("AT\r"));
}
