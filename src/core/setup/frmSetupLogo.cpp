#include "frmSetup.h"

#include "SetupSettings.h"
#include "shell/Session.h"
#include "workorders/frmWorkOrders.h"

namespace ostrel {

void frmSetup::showLogo() {
    const CompanyLogo& logo = m_session.settings.logo;
    // A stored path names the company above the sample; a picture gone from its path shows nothing.
    if (!logo.path.isEmpty()) Label2[2].caption = txtBusiness[0].text;
    const QString picture = logo.pictureLoaded ? logo.path : QString();
    Image2.picture = picture;
    Image3.picture = picture;
}

void frmSetup::updateLogoSizeLabels() {
    // Twips for those who know the printer's unit, inches for everyone else.
    auto size = [](const char* what, float twips) {
        return QStringLiteral("%1 %2 (%3 in.)")
            .arg(QLatin1String(what))
            .arg(static_cast<double>(twips))
            .arg(static_cast<double>(twips) / 1440.0, 0, 'f', 2);
    };
    Label2[3].caption = size("Width", Image3.Width);
    Label2[4].caption = size("Height", Image3.Height);
}

void frmSetup::cmdLogo_Click(int index) {
    SetupSettings& s = m_session.settings;
    switch (index) {
    case 0: {
        const std::optional<QString> chosen =
            m_session.platform.dialogs.OpenFileName(OpenFileRequest{QString(), kLogoFilter, QString()});
        if (!chosen || chosen->isEmpty()) return;
        s.logo.path = *chosen;
        s.logo.pictureLoaded = true;
        Image2.picture = *chosen;
        Image3.picture = *chosen;
        cmdLogo[1].enabled = true;
        return;
    }
    case 1: {
        if (!s.logo.pictureLoaded) return;
        storeOptions();
        SaveCompanyLogo(m_session.disk, s.logo);
        SaveLogoSettings(m_session.disk, s.logoSize, true);
        m_session.platform.dialogs.MsgBox(QStringLiteral("Your Logo has been Stored"));
        LoadCompanyLogo(m_session.disk, s.logo);
        LoadLogoSettings(m_session.disk, s.logoSize, s.logo.pictureLoaded);
        showLogo();
        Image3.Width = s.logoSize.width;
        Image3.Height = s.logoSize.height;
        updateLogoSizeLabels();
        cmdLogo[1].enabled = false;
        return;
    }
    case 2: {
        const MsgBoxResult answer =
            m_session.platform.dialogs.MsgBox(QStringLiteral("This will Delete your Company Logo"),
                                              vbYesNo + vbQuestion, QStringLiteral("Delete Logo"));
        if (answer != vbYes) return;
        Image2.picture.clear();
        Image3.picture.clear();
        // The size file stays, so the next logo starts at the size this one had.
        DeleteCompanyLogo(m_session.disk, s.logo);
        Image2.Width = 1440;
        Image2.Height = 1440;
        cmdLogo[1].enabled = false;
        return;
    }
    case 5:
        // The sample is a work order, drawn as the work order screen draws one.
        if (auto* workOrders = m_session.ScreenAs<frmWorkOrders>(ScreenId::frmWorkOrders))
            workOrders->PrintSampleWorkOrder();
        else
            m_session.ShowScreen(ScreenId::frmWorkOrders); // says the screen is not there
        return;
    default:
        return;
    }
}

void frmSetup::stepLogoSize(float& value, bool up) {
    constexpr float kStep = 50;
    if (up)
        value = value >= LogoSettings::kMaximumSize ? LogoSettings::kMinimumSize : value + kStep;
    else
        value = value <= LogoSettings::kMinimumSize ? LogoSettings::kMaximumSize : value - kStep;
    updateLogoSizeLabels();
    storeOptions();
}

void frmSetup::UpDown1_UpClick() {
    stepLogoSize(Image3.Height, true);
}
void frmSetup::UpDown1_DownClick() {
    stepLogoSize(Image3.Height, false);
}
void frmSetup::UpDown2_UpClick() {
    stepLogoSize(Image3.Width, true);
}
void frmSetup::UpDown2_DownClick() {
    stepLogoSize(Image3.Width, false);
}

} // namespace ostrel
