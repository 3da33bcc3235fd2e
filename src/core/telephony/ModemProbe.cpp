#include "ModemProbe.h"

#include "platform/SerialPort.h"

#include <memory>
#include <vector>

namespace ostrel {

QByteArray HayesCommand(const QString& command) {
    return command.toLatin1() + '\r';
}

int ProbeModem(SerialPort& port) {
    struct Try {
        int number;
        std::unique_ptr<SerialPort> channel;
    };
    std::vector<Try> tries;
    for (int i = 1; i <= kModemPorts; ++i) {
        auto channel = port.newChannel();
        // A port that will not open, or takes no command, simply gives no answer.
        if (!channel->open(i)) continue;
        if (!channel->write(HayesCommand(QStringLiteral("AT")))) {
            channel->close();
            continue;
        }
        tries.push_back({i, std::move(channel)});
    }
    int found = 0;
    if (!tries.empty()) {
        port.wait(kProbeWaitMs);
        for (Try& t : tries) {
            if (t.channel->bytesWaiting() >= kModemAnswerBytes) {
                found = t.number;
                break;
            }
        }
    }
    for (Try& t : tries)
        t.channel->close();
    return found;
}

void RequestCallerId(SerialPort& port, int modemPort) {
    if (!port.isOpen() && !port.open(modemPort)) return;
    port.clearInput();
    port.write(HayesCommand(QStringLiteral("AT#CID=1")));
}

QString ModemPortMessage(int modemPort) {
    return QStringLiteral("Your Modem Comm Port Is ") + QString::number(modemPort) + u'.';
}

QString ModemPortCaption(int modemPort) {
    return QStringLiteral("COM Port # ") + QString::number(modemPort);
}

} // namespace ostrel
