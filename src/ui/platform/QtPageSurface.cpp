#include "QtPageSurface.h"

#include "QtColour.h"

#include <QImage>
#include <QImageReader>
#include <QPageLayout>
#include <QPageSize>
#include <QPrinter>

namespace ostrel::ui {

namespace {

PrintError printerError(const char* what) {
    return PrintError(PrintError::kPrinterError, QString::fromLatin1(what));
}

} // namespace

void QtPageSurface::PrepareLetterPrinter(QPrinter& printer) {
    printer.setResolution(kTwipsPerInch);
    printer.setFullPage(true);
    printer.setPageSize(QPageSize(QPageSize::Letter));
    printer.setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Point);
}

QString QtPageSurface::fontFamily(const QString& name) {
    // Names documents spell in their own way, and the face each means.
    static const struct {
        const char* spelled;
        const char* face;
    } kAliases[] = {{"Ariel", "Arial"}};
    for (const auto& a : kAliases)
        if (name.compare(QLatin1String(a.spelled), Qt::CaseInsensitive) == 0) return QString::fromLatin1(a.face);
    return name;
}

QFont QtPageSurface::toQFont(const PrintFont& font) {
    QFont f(fontFamily(font.name));
    f.setPointSizeF(font.size > 0 ? font.size : 10);
    f.setBold(font.bold);
    f.setUnderline(font.underline);
    f.setItalic(font.italic);
    // Widths must add up character by character, as the layouts that right-align figures assume.
    f.setKerning(false);
    f.setHintingPreference(QFont::PreferNoHinting);
    f.setStyleStrategy(QFont::PreferOutline);
    return f;
}

QtPageSurface::QtPageSurface(QPrinter& printer) : m_printer(printer) {
    PrepareLetterPrinter(m_printer);
}

QtPageSurface::~QtPageSurface() {
    // A job that failed half-way is left to the printer system as it stands.
    if (m_painter.isActive()) m_painter.end();
}

double QtPageSurface::unit() const {
    return m_printer.resolution() / double(kTwipsPerInch);
}

const QtPageSurface::Metrics& QtPageSurface::metricsOf(const PrintFont& font) {
    const auto key = std::make_tuple(font.name, font.size, font.bold, font.underline, font.italic);
    auto it = m_metrics.find(key);
    if (it == m_metrics.end()) {
        const QFont f = toQFont(font);
        it = m_metrics.emplace(key, Metrics{f, QFontMetricsF(f, &m_printer)}).first;
    }
    return it->second;
}

QSizeF QtPageSurface::measure(const PrintFont& font, const QString& line) {
    const QFontMetricsF& fm = metricsOf(font).metrics;
    const double u = unit();
    return {line.isEmpty() ? 0.0 : fm.horizontalAdvance(line) / u, fm.lineSpacing() / u};
}

std::optional<QSizeF> QtPageSurface::PictureSize(const QString& picture) {
    QImageReader reader(picture);
    const QSize px = reader.size();
    if (!px.isValid() || px.isEmpty()) return std::nullopt;
    return QSizeF(px.width() * kTwipsPerPicturePixel, px.height() * kTwipsPerPicturePixel);
}

QRectF QtPageSurface::PrintableArea() const {
    const QRectF sheet(0, 0, sheetWidth(), sheetHeight());
    // A file is drawn whole, whatever margins the printer's set-up carried.
    if (m_printer.outputFormat() != QPrinter::NativeFormat) return sheet;
    // The printer's own unprintable strips, for the orientation the job prints in.
    QPageLayout layout = m_printer.pageLayout();
    layout.setOrientation(Orientation == kLandscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    layout.setUnits(QPageLayout::Point);
    const QMarginsF m = layout.minimumMargins() * 20.0; // 20 twips to the point
    const QRectF area = sheet.marginsRemoved(m);
    return area.isValid() ? area : sheet;
}

void QtPageSurface::applyPageSettings() {
    m_printer.setPageSize(QPageSize(QPageSize::Letter));
    m_printer.setPageOrientation(Orientation == kLandscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    m_printer.setColorMode(ColorMode == kColour ? QPrinter::Color : QPrinter::GrayScale);
}

void QtPageSurface::beginDocument() {
    applyPageSettings();
    if (!m_painter.begin(&m_printer)) throw printerError("The printer could not start the document");
    m_painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                             QPainter::SmoothPixmapTransform);
}

void QtPageSurface::drawText(const TextRun& run) {
    const Metrics& m = metricsOf(run.font);
    const double u = unit();
    m_painter.setFont(m.font);
    m_painter.setPen(toQColor(run.colour));
    // The position is the top of the text's line; Qt draws on the baseline.
    m_painter.drawText(QPointF(run.x * u, run.y * u + m.metrics.ascent()), run.text);
}

void QtPageSurface::drawLine(double x1, double y1, double x2, double y2, bool box, Colour colour,
                             double widthTwips) {
    const double u = unit();
    QPen pen(toQColor(colour), widthTwips * u, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
    m_painter.setPen(pen);
    m_painter.setBrush(Qt::NoBrush);
    const QPointF a(x1 * u, y1 * u);
    const QPointF b(x2 * u, y2 * u);
    if (box)
        m_painter.drawRect(QRectF(a, b).normalized());
    else
        m_painter.drawLine(a, b);
}

void QtPageSurface::drawPicture(const QString& picture, double x, double y, double width, double height) {
    const QImage image(picture);
    // A picture that can no longer be read leaves its place empty rather than spoil the document.
    if (image.isNull()) return;
    const double u = unit();
    m_painter.drawImage(QRectF(x * u, y * u, width * u, height * u), image);
}

void QtPageSurface::newPage() {
    // Only the orientation may change between pages; the rest is fixed once the job runs.
    m_printer.setPageOrientation(Orientation == kLandscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    if (!m_printer.newPage()) throw printerError("The printer could not start a new page");
}

void QtPageSurface::endDocument() {
    const bool ended = m_painter.end();
    if (!ended || m_printer.printerState() == QPrinter::Error)
        throw printerError("The printer could not finish the document");
}

} // namespace ostrel::ui
