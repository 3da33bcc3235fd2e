#include "frmSetup.h"

#include "SetupSettings.h"
#include "shell/Session.h"

namespace ostrel {

namespace {

// A stored check box value as the box can show it: 1 ticked, 2 grayed, anything else clear, as
// the readers of the option treat it.
int boxValue(int stored) {
    return stored == 1 || stored == 2 ? stored : 0;
}

void showText(ComboBox& box, const QString& text) {
    box.listIndex = static_cast<int>(box.items.indexOf(text));
    box.text = text;
}

} // namespace

void frmSetup::fillFromSettings() {
    const SetupSettings& s = m_session.settings;
    const ProgramSettings& p = s.program;

    BusinessBoxes boxes;
    for (int i = 0; i < BusinessData::kCount; ++i)
        boxes[i] = txtBusiness[i].text;
    FillBusinessBoxes(s.business, boxes);
    for (int i = 0; i < BusinessData::kCount; ++i)
        txtBusiness[i].text = boxes[i];

    ckSalesItems.value = boxValue(p.ckSalesItems);
    ckServices.value = boxValue(p.ckServices);
    ckLabor.value = boxValue(p.ckLabor);
    ckShipping.value = boxValue(p.ckShipping);
    ckMisc.value = boxValue(p.ckMisc);
    optPlain.value = p.optPlain;
    optReturn.value = p.optReturn;
    ckApply2ndTax.value = p.ckApply2ndTax != 0 ? 1 : 0;
    ckManualInvoiceNo.value = boxValue(p.ckManualInvoiceNo);
    ckApplyGraduated.value = boxValue(p.ckApplyGraduated);
    for (int i = 0; i < 2; ++i)
        txtGradulated[i].text = p.txtGradulated[i];
    optMF.value = p.optMF();
    optMS.value = p.optMS();
    optSF.value = p.optSF();
    optSS.value = p.optSS();
    ckPrompts.value = p.prompts() ? 1 : 0;
    ckAlarms.value = p.alarms() ? 1 : 0;
    optBusinessType[0].value = p.optBusinessType(0);
    optBusinessType[1].value = p.optBusinessType(1);
    ckEstimate.value = p.printEstimate() ? 1 : 0;
    ckReturnParts.value = p.printReturnParts() ? 1 : 0;
    ckTerms.value = p.printTerms() ? 1 : 0;
    showBusinessStyle();
    txtReturnParts.text = s.txtReturnParts;

    showLogo();
    Image3.Width = s.logoSize.width;
    Image3.Height = s.logoSize.height;
    updateLogoSizeLabels();
    cmdLogo[1].enabled = false;

    applyAddressStyle(s.cmdAddressCaption);

    txtBorders.BackColor = static_cast<Colour>(s.colors.txtBorders) & 0xFFFFFFu;
    txtData.BackColor = static_cast<Colour>(s.colors.txtData) & 0xFFFFFFu;
    lblFont.caption = s.colors.lblFont;
    ckColor.value = boxValue(s.colors.ckColor);
    showText(cboCopies, s.colors.cboCopies);

    showText(cboTaxHeading1, s.tax.cboTaxHeading1);
    showText(cboTaxHeading2, s.tax.cboTaxHeading2);
    showText(cboRate1, s.tax.cboRate1);
    showText(cboRate2, s.tax.cboRate2);
    ckApply1stTax.value = boxValue(s.tax.ckApply1stTax);

    // The probe's port shows even when the phone file names another. Whatever the caller ID file
    // says, the box is ticked and its note shown, with or without a modem.
    txtModemPort.text = QString::number(m_session.modem.foundPort);
    ckPhone.value = s.phone.PhoneChained ? 1 : 0;
    ckCallerID.value = 1;
    lblCallid.visible = true;
    SSTab1.TabEnabled[kPhoneAndModem] = m_session.modem.detected;
}

void frmSetup::storeOptions() {
    SetupSettings& s = m_session.settings;
    ProgramSettings& p = s.program;
    p.ckSalesItems = static_cast<qint16>(ckSalesItems.value);
    p.ckServices = static_cast<qint16>(ckServices.value);
    p.ckLabor = static_cast<qint16>(ckLabor.value);
    p.ckShipping = static_cast<qint16>(ckShipping.value);
    p.ckMisc = static_cast<qint16>(ckMisc.value);
    p.optPlain = optPlain.value;
    p.optReturn = optReturn.value;
    p.ckApply2ndTax = static_cast<qint16>(ckApply2ndTax.value);
    p.ckManualInvoiceNo = static_cast<qint16>(ckManualInvoiceNo.value);
    p.ckApplyGraduated = static_cast<qint16>(ckApplyGraduated.value);
    for (int i = 0; i < 2; ++i)
        p.txtGradulated[i] = txtGradulated[i].text;
    // With no day option ticked (an unknown code was loaded) the code stays as it was.
    if (optMF.value) p.WorkWeekCode = 5;
    if (optMS.value) p.WorkWeekCode = 61;
    if (optSF.value) p.WorkWeekCode = 62;
    if (optSS.value) p.WorkWeekCode = 7;
    p.ckPrompts = static_cast<qint16>(ckPrompts.value);
    p.ckAlarms = static_cast<qint16>(ckAlarms.value);
    p.optBusinessType0 = optBusinessType[0].value;
    p.ckEstimate = static_cast<quint8>(ckEstimate.value);
    p.ckReturnParts = static_cast<quint8>(ckReturnParts.value);
    p.ckTerms = static_cast<quint8>(ckTerms.value);
    s.txtReturnParts = txtReturnParts.text;

    s.tax.cboTaxHeading1 = cboTaxHeading1.text;
    s.tax.cboTaxHeading2 = cboTaxHeading2.text;
    s.tax.cboRate1 = cboRate1.text;
    s.tax.cboRate2 = cboRate2.text;
    s.tax.ckApply1stTax = static_cast<qint16>(ckApply1stTax.value);

    // The screen shows a stored number as a 24-bit colour; a system colour number (negative) is kept
    // exactly unless the owner picked another colour.
    const auto keepUnlessPicked = [](qint32& stored, Colour shown) {
        if (shown != (static_cast<Colour>(stored) & 0xFFFFFFu)) stored = static_cast<qint32>(shown & 0xFFFFFFu);
    };
    keepUnlessPicked(s.colors.txtBorders, txtBorders.BackColor);
    keepUnlessPicked(s.colors.txtData, txtData.BackColor);
    s.colors.lblFont = lblFont.caption;
    s.colors.ckColor = ckColor.value;
    s.colors.cboCopies = cboCopies.text;

    s.logoSize.width = Image3.Width;
    s.logoSize.height = Image3.Height;
}

} // namespace ostrel
