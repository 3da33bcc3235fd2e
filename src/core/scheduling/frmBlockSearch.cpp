#include "frmBlock.h"

#include "DayScheduleStore.h"
#include "shell/Session.h"
#include "store/DiskRoutines.h"
#include "util/VbText.h"

namespace ostrel {

namespace {

bool isReason(const QString& line) {
    return line == QLatin1String("Vacation") || line == QLatin1String("Holiday") ||
           line == QLatin1String("Personal Day") || line == QLatin1String("Sick Day");
}

} // namespace

void frmBlock::cmdClearGrid_Click() {
    fgBlocked.SetRows(1);
    fgBlocked.SetRows(2);
    fgBlocked.row = 1;
}

void frmBlock::cmdSearch_Click() {
    cmdClearGrid_Click();
    int row = 1;
    const int count = m_session.pointOfServiceNames.UpperBound();
    DiskRoutines& disk = m_session.disk;
    m_session.Guarded([&] {
        for (int n = 1; n <= count; ++n) {
            for (QDate date = DTStart.value; date <= DTEnd.value; date = date.addDays(1)) {
                const QString name = daySchedulePath(date.year(), n, date.dayOfYear());
                if (!disk.FileExists(name)) continue;
                // A reserved day is known by its first line alone.
                const QString first = disk.ReadTextFile(name).readString();
                if (!isReason(first)) continue;
                fgBlocked.SetTextMatrix(row, 0, m_session.pointOfServiceNames[n]);
                fgBlocked.SetTextMatrix(row, 1, vbDate(date));
                fgBlocked.SetTextMatrix(row, 2, first);
                fgBlocked.SetRows(fgBlocked.Rows() + 1);
                ++row;
            }
        }
    });
    disk.CloseAllFiles();
    fgBlocked.row = row;
}

void frmBlock::cmdHideGrid_Click() { fraBlockedDays.visible = false; }

void frmBlock::mnuBlocked_Click() {
    if (fraBlockedDays.visible) {
        fraBlockedDays.visible = false;
        return;
    }
    fraBlockedDays.visible = true;
    cmdClearGrid_Click();
}

void frmBlock::resetSearchDates() {
    const QDate today = m_session.today();
    DTStart.value = today;
    DTEnd.value = today.addMonths(1);
}

void frmBlock::invalidSearchDates() {
    m_session.Beep();
    m_session.platform.dialogs.MsgBox(QStringLiteral("Your Calendar Selection is Invalid"));
    resetSearchDates();
}

void frmBlock::DTStart_CloseUp() {
    if (DTStart.value < m_session.today()) invalidSearchDates();
}

void frmBlock::DTEnd_CloseUp() {
    if (DTEnd.value < DTStart.value) invalidSearchDates();
}

} // namespace ostrel
