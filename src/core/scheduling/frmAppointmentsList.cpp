#include "frmAppointments.h"

#include "AppointmentSlip.h"
#include "shell/Session.h"
#include "util/VbText.h"

#include <algorithm>

namespace ostrel {

namespace {

const QString kAppointmentsFolder = QStringLiteral("/Appointments");

bool listedBy(int routine, const AppointmentSlip& slip, const QDate& today) {
    switch (routine) {
    case frmAppointments::kSchedule:
        return slip.Status == slipstatus::Unscheduled;
    case frmAppointments::kReschedule:
        return slip.Status == slipstatus::Scheduled && slip.SlipDate >= today;
    case frmAppointments::kInvoice:
        return slip.SlipDate <= today && slip.Status != slipstatus::Unscheduled;
    default:
        return true;
    }
}

} // namespace

QStringList frmAppointments::listSlipFiles() {
    QStringList files;
    // One read of the folder gives each entry's kind, without a look-up per file.
    for (const DataRoot::ListedFile& f : m_session.root.files(kAppointmentsFolder))
        if (f.name.endsWith(QLatin1String(".txt"), Qt::CaseInsensitive)) files.append(f.name);
    SortIgnoringCase(files);
    return files;
}

void frmAppointments::LoadAppointments(int routine) {
    for (auto& [i, label] : lblRoutine)
        label.visible = false;
    for (int i = kCmdSchedule; i <= kCmdDelete; ++i)
        cmdAppointments[i].enabled = false;
    emptySlipGrid();
    m_slipFiles.clear();
    m_statuses.clear();
    m_comments.clear();

    QStringList files = listSlipFiles();
    if (files.isEmpty()) {
        m_session.Beep();
        if (m_session.settings.program.prompts())
            m_session.platform.dialogs.MsgBox(QStringLiteral("No Appointments were Found"));
        return;
    }
    if (files.size() > kMaxSlipFiles) {
        // The legacy table could not count past 254; the slips beyond it stay on disk, unlisted.
        m_session.Beep();
        m_session.platform.dialogs.MsgBox(
            QStringLiteral("The folder %1 holds %2 appointment slips, more than the %3 this screen can list.\n"
                           "Only the first %3 are listed. Invoice or delete older appointments to reach the rest.")
                .arg(m_session.root.path(kAppointmentsFolder))
                .arg(files.size())
                .arg(kMaxSlipFiles),
            vbOKOnly + vbExclamation, QStringLiteral("Too Many Appointments"));
        files = files.mid(0, kMaxSlipFiles);
    }
    m_slipFiles = files;

    lblRoutine[routine].visible = true;
    if (routine == kSchedule || routine == kReschedule) fraCalendar.visible = true;

    fgAppointments.SetRows(2);
    int r = 1;
    const QDate today = m_session.today();
    // Entry 0 stands for no file, so that file k and comment k share their number.
    m_statuses.append(QString());
    m_comments.append(QString());
    for (int k = 1; k <= m_slipFiles.size(); ++k) {
        const QString slipName = m_slipFiles[k - 1].chopped(4);
        const AppointmentSlip slip = ReadSlipHeader(m_session.disk, slipName);
        m_statuses.append(slip.Status);
        m_comments.append(QString());
        if (!listedBy(routine, slip, today)) continue;
        fgAppointments.SetTextMatrix(r, kStatusColumn, slip.Status);
        fgAppointments.SetTextMatrix(r, kDateColumn, vbDate(slip.SlipDate));
        fgAppointments.SetTextMatrix(r, kSlipNameColumn, slip.SlipName);
        m_pointOfService = slip.SlipPointOfService;
        m_slots = slip.Slots;
        m_startRow = slip.SlipStartRow;
        // Every listed slip overwrites the table, so it ends with the last one's fields.
        m_customerTable = slip.Customer;
        fgAppointments.SetTextMatrix(r, kCustomerColumn, slip.Customer[1]);
        m_comments[k] = slip.SlipComment;
        fgAppointments.SetRows(fgAppointments.Rows() + 1);
        ++r;
    }
    if (r > 1) {
        fgAppointments.SetRows(fgAppointments.Rows() - 1);
    } else {
        m_session.platform.dialogs.MsgBox(QStringLiteral("No Appointments meeting this Criteria were Found"));
    }
}

} // namespace ostrel
