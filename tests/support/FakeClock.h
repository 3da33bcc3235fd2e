#pragma once

#include "platform/Clock.h"

namespace ostrel::test {

// A clock that stands where a test puts it.
class FakeClock : public Clock {
public:
    explicit FakeClock(QDateTime now = QDateTime(QDate(2026, 11, 22), QTime(9, 0))) : m_now(std::move(now)) {}

    QDateTime now() const override { return m_now; }
    void set(const QDateTime& now) { m_now = now; }
    void set(const QDate& date, const QTime& time) { m_now = QDateTime(date, time); }
    void setDate(const QDate& date) { m_now = QDateTime(date, m_now.time()); }
    void setTime(const QTime& time) { m_now = QDateTime(m_now.date(), time); }
    void advanceSeconds(qint64 seconds) { m_now = m_now.addSecs(seconds); }

private:
    QDateTime m_now;
};

} // namespace ostrel::test
