#include "RecordingPageSurface.h"

#include <gtest/gtest.h>

namespace ostrel::test {

std::optional<QSizeF> RecordingPageSurface::PictureSize(const QString& picture) {
    if (!pictures.contains(picture)) return std::nullopt;
    return pictures.value(picture);
}

QVector<PageOp> RecordingPageSurface::of(PageOp::Kind kind) const {
    QVector<PageOp> out;
    for (const PageOp& op : ops)
        if (op.kind == kind) out.push_back(op);
    return out;
}

QStringList RecordingPageSurface::printedTexts() const {
    QStringList out;
    for (const PageOp& op : texts())
        out << op.text;
    return out;
}

PageOp RecordingPageSurface::text(const QString& text) const {
    for (const PageOp& op : ops)
        if (op.kind == PageOp::Kind::Text && op.text == text) return op;
    ADD_FAILURE() << "nothing printed reads \"" << text.toStdString()
                  << "\"; printed: " << printedTexts().join(QStringLiteral(" | ")).toStdString();
    return {};
}

bool RecordingPageSurface::printed(const QString& text) const {
    return printedTexts().contains(text);
}

QRectF RecordingPageSurface::PrintableArea() const {
    return QRectF(0, 0, sheetWidth(), sheetHeight()).marginsRemoved(hardwareMargins);
}

QSizeF RecordingPageSurface::measure(const PrintFont& font, const QString& line) {
    return {charWidth(font.size) * line.size(), lineHeight(font.size)};
}

void RecordingPageSurface::record(PageOp op) {
    op.page = Page();
    if (op.kind != PageOp::Kind::Begin && op.kind != PageOp::Kind::EndDoc && ++m_drawn == failAtOperation)
        throw PrintError(PrintError::kPrinterError, QStringLiteral("Printer error"));
    ops.push_back(std::move(op));
}

void RecordingPageSurface::drawText(const TextRun& run) {
    PageOp op;
    op.kind = PageOp::Kind::Text;
    op.x = run.x;
    op.y = run.y;
    op.text = run.text;
    op.font = run.font;
    op.colour = run.colour;
    record(op);
}

void RecordingPageSurface::drawLine(double x1, double y1, double x2, double y2, bool box, Colour colour,
                                    double widthTwips) {
    PageOp op;
    op.kind = box ? PageOp::Kind::Box : PageOp::Kind::Line;
    op.x = x1;
    op.y = y1;
    op.x2 = x2;
    op.y2 = y2;
    op.colour = colour;
    op.lineWidth = widthTwips;
    record(op);
}

void RecordingPageSurface::drawPicture(const QString& picture, double x, double y, double width,
                                       double height) {
    PageOp op;
    op.kind = PageOp::Kind::Picture;
    op.text = picture;
    op.x = x;
    op.y = y;
    op.x2 = width;
    op.y2 = height;
    record(op);
}

void RecordingPageSurface::beginDocument() {
    PageOp op;
    op.kind = PageOp::Kind::Begin;
    op.colorMode = ColorMode;
    op.orientation = Orientation;
    op.paperSize = PaperSize;
    record(op);
}

void RecordingPageSurface::newPage() {
    PageOp op;
    op.kind = PageOp::Kind::NewPage;
    record(op);
}

void RecordingPageSurface::endDocument() {
    PageOp op;
    op.kind = PageOp::Kind::EndDoc;
    record(op);
}

PageSurface& RecordingPrintDialogs::ShowPrinterDialog() {
    ++m_shown;
    const Answer a = m_answers.empty() ? Answer::Print : m_answers.front();
    if (!m_answers.empty()) m_answers.pop_front();
    if (a == Answer::Cancel) throw PrintError(PrintError::kCancelled, QStringLiteral("Cancel was selected"));
    if (a == Answer::NoPrinter) throw PrintError(PrintError::kPrinterError, QStringLiteral("No printer"));
    auto job = std::make_unique<RecordingPageSurface>();
    job->hardwareMargins = m_margins;
    if (!m_failAt.empty()) {
        job->failAtOperation = m_failAt.front();
        m_failAt.pop_front();
    }
    m_jobs.push_back(std::move(job));
    return *m_jobs.back();
}

} // namespace ostrel::test
