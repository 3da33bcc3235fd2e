#include "PageSurface.h"

#include <QRegularExpression>

#include <algorithm>

namespace ostrel {

namespace {

QStringList splitLines(const QString& text) {
    static const QRegularExpression lineEnd(QStringLiteral("\r\n|\r|\n"));
    return text.split(lineEnd);
}

} // namespace

void PageSurface::SetScaleMode(int mode) {
    m_scaleMode = mode;
    if (mode == kTwips) {
        m_scaleWidth.reset();
        m_scaleHeight.reset();
    }
}

double PageSurface::ScaleWidth() const {
    return m_scaleWidth.value_or(PrintableArea().width());
}
double PageSurface::ScaleHeight() const {
    return m_scaleHeight.value_or(PrintableArea().height());
}

void PageSurface::SetScaleWidth(double width) {
    if (width == 0) throw PrintError(PrintError::kPrinterError, QStringLiteral("A page width of 0"));
    m_scaleWidth = width;
    m_scaleMode = 0;
}

void PageSurface::SetScaleHeight(double height) {
    if (height == 0) throw PrintError(PrintError::kPrinterError, QStringLiteral("A page height of 0"));
    m_scaleHeight = height;
    m_scaleMode = 0;
}

double PageSurface::TextWidth(const QString& text) {
    const PrintFont f = Font();
    double widest = 0;
    for (const QString& line : splitLines(text))
        widest = std::max(widest, measure(f, line).width());
    return widest / xFactor();
}

double PageSurface::TextHeight(const QString& text) {
    const double line = measure(Font(), QString()).height();
    return line * splitLines(text).size() / yFactor();
}

void PageSurface::ensureDocument() {
    if (m_documentOpen) return;
    beginDocument();
    m_documentOpen = true;
}

void PageSurface::printLines(const QString& text, bool stayOnLine) {
    ensureDocument();
    const PrintFont f = Font();
    const double lineHeight = measure(f, QString()).height() / yFactor();
    const QStringList lines = splitLines(text);
    // Further lines of a text that holds line ends start where the text started.
    const double startX = CurrentX;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString& line = lines[i];
        if (!line.isEmpty()) drawText({sheetX(CurrentX), sheetY(CurrentY), line, f, ForeColor});
        const bool last = i == lines.size() - 1;
        if (last && stayOnLine) {
            CurrentX += measure(f, line).width() / xFactor();
        } else {
            CurrentX = last ? 0 : startX;
            CurrentY += lineHeight;
        }
    }
}

void PageSurface::Print(const QString& text) {
    printLines(text, false);
}

void PageSurface::PrintContinue(const QString& text) {
    printLines(text, true);
}

void PageSurface::Line(double x1, double y1, double x2, double y2, bool box) {
    ensureDocument();
    drawLine(sheetX(x1), sheetY(y1), sheetX(x2), sheetY(y2), box, ForeColor,
             std::max(1, DrawWidth) * kTwipsPerDot);
    CurrentX = x2;
    CurrentY = y2;
}

void PageSurface::PaintPicture(const QString& picture, double x, double y, double width, double height) {
    ensureDocument();
    drawPicture(picture, sheetX(x), sheetY(y), width * xFactor(), height * yFactor());
}

void PageSurface::NewPage() {
    ensureDocument();
    newPage();
    ++m_page;
    CurrentX = 0;
    CurrentY = 0;
}

void PageSurface::EndDoc() {
    if (!m_documentOpen) return;
    m_documentOpen = false;
    const auto reset = [this] {
        m_page = 1;
        CurrentX = 0;
        CurrentY = 0;
    };
    try {
        endDocument();
    } catch (...) {
        reset();
        throw;
    }
    reset();
}

} // namespace ostrel
