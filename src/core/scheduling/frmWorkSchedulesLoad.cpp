#include "frmWorkSchedules.h"

#include "AppointmentSlip.h"
#include "DayScheduleStore.h"
#include "TimeGrid.h"
#include "shell/Session.h"
#include "store/StoreError.h"
#include "util/VbText.h"

namespace ostrel {

namespace {

// The screen counts its slip files in a byte.
constexpr int kMaxListedSlips = 255;

class PaintOverflow : public std::runtime_error {
public:
    PaintOverflow() : std::runtime_error("past the last row") {}
};

} // namespace

void frmWorkSchedules::ListSlipFilesOnce() {
    SlipFiles.clear();
    m_session.Guarded([&] { SlipFiles = ListSlipFiles(m_session.disk); });
    if (SlipFiles.size() > kMaxListedSlips) {
        m_session.ShowMessage(QStringLiteral("The folder \\Appointments holds %1 appointments. This screen lists "
                                             "%2 of them; the others are not shown here.")
                                  .arg(SlipFiles.size())
                                  .arg(kMaxListedSlips),
                              QStringLiteral("Too Many Appointments"));
        SlipFiles = SlipFiles.mid(0, kMaxListedSlips);
    }
}

bool frmWorkSchedules::readHeader(const QString& name, AppointmentSlip& slip, QStringList& unreadable) {
    try {
        slip = ReadSlipHeader(m_session.disk, name);
        return true;
    } catch (const StoreError&) {
        m_session.disk.CloseAllFiles();
        unreadable << name;
        return false;
    }
}

void frmWorkSchedules::reportUnreadable(const QStringList& names) {
    if (names.isEmpty()) return;
    m_session.ShowMessage(QStringLiteral("These appointment files in \\Appointments could not be read and were "
                                         "left out:") +
                              u'\n' + names.join(u'\n'),
                          QStringLiteral("Appointment Files Not Read"));
}

void frmWorkSchedules::LoadOverview() {
    fgOverview.SetRows(1);
    m_overviewDates.clear();
    QStringList unreadable;
    for (const QString& name : SlipFiles) {
        AppointmentSlip slip;
        if (!readHeader(name, slip, unreadable)) continue;
        if (slip.SlipDate < DTStart.value || slip.SlipDate > DTEnd.value) continue;
        const int r = fgOverview.Rows();
        fgOverview.SetRows(r + 1);
        fgOverview.SetTextMatrix(r, kScheduled, vbDate(slip.SlipDate));
        fgOverview.SetTextMatrix(r, kAccountNo, slip.Customer[0]);
        fgOverview.SetTextMatrix(r, kCustomer, slip.Customer[1]);
        fgOverview.SetTextMatrix(r, kServicePoint, vbTrim(lstAssociates.List(slip.SlipPointOfService - 1)));
        m_overviewDates.append(slip.SlipDate);
    }
    reportUnreadable(unreadable);
}

void frmWorkSchedules::LoadWorkorders() {
    lstWorkorders.Clear();
    const int chosen = lstAssociates.listIndex + 1;
    QStringList unreadable;
    for (const QString& name : SlipFiles) {
        AppointmentSlip slip;
        if (!readHeader(name, slip, unreadable)) continue;
        if (slip.SlipDate != DTPicker1.value || slip.SlipPointOfService != chosen) continue;
        lstWorkorders.AddItem(slip.SlipName);
        cmdWorkSchedules[kLoadDay].enabled = true;
        cmdWorkSchedules[kPrint].enabled = true;
    }
    reportUnreadable(unreadable);
}

void frmWorkSchedules::LoadDay() {
    fraOverview.visible = false;
    fgSchedule.visible = true;
    ClearSchedule();
    cmdWorkSchedules[kPrint].enabled = false;
    shpFound.visible = false;
    lblFound.visible = false;
    const int point = lstAssociates.listIndex + 1;
    if (point < 1) return;
    const QDate day = DTPicker1.value;
    m_session.Guarded([&] {
        const DaySchedule d = readDaySchedule(m_session.disk, day.year(), point, day.dayOfYear());
        for (int r = kFirstTimeSlot; r <= kLastTimeSlot; ++r)
            fgSchedule.SetTextMatrix(r, kService, d.slot(r));
    });
    // A first row left free stops here, whatever the later rows hold: the file's text stays.
    if (fgSchedule.TextMatrix(1, kService).isEmpty()) return;

    LoadWorkorders();
    if (lstWorkorders.ListCount() == 0) {
        ShowFound(false);
        return;
    }
    ClearSchedule();
    for (int i = 0; i < lstWorkorders.ListCount(); ++i) {
        const QString name = lstWorkorders.List(i);
        AppointmentSlip slip;
        bool read = false;
        m_session.Guarded([&] {
            slip = ReadSlip(m_session.disk, name);
            read = true;
        });
        if (!read) return;
        try {
            PaintSlip(slip);
        } catch (const PaintOverflow&) {
            m_session.ShowMessage(QStringLiteral("The services of the appointment ") + name +
                                      QStringLiteral(" (\\Appointments\\") + name +
                                      QStringLiteral(".txt) run past the last row of the day. The day is shown "
                                                     "only as far as it goes."),
                                  QStringLiteral("Appointment Too Long"));
            return;
        }
    }
    ShowFound(true);
}

void frmWorkSchedules::PaintSlip(const AppointmentSlip& slip) {
    auto set = [&](int row, int col, const QString& text) {
        if (row < kFirstTimeSlot || row > kLastTimeSlot) throw PaintOverflow();
        fgSchedule.SetTextMatrix(row, col, text);
    };
    int p = slip.SlipStartRow;
    set(p, kAccount, vbTrim(slip.Customer[1]));
    const std::vector<SlipService> services = ReadServicesFile(m_session.disk, slip.SlipName);
    const bool soldItems = SoldItemsFileExists(m_session.disk, slip.SlipName);
    for (const SlipService& s : services) {
        set(p, kService, s.name);
        if (s.slots == 1) continue;
        set(p + 1, kAccount, QStringLiteral("Tel.  ") + slip.Customer[7]);
        set(p + 1, kService, soldItems ? kSeeItemsRequired : kScheduledMarker);
        if (s.slots == 2) continue;
        for (int j = 2; j <= slip.Slots - 1; ++j)
            set(p + j, kService, kScheduledMarker);
        p += s.slots;
    }
}

} // namespace ostrel
