#pragma once

#include "platform/PageSurface.h"
#include "platform/PrintDialogs.h"

#include <QMap>
#include <QMarginsF>
#include <QVector>

#include <deque>
#include <memory>
#include <vector>

namespace ostrel::test {

// One thing a document asked the printer to do, in twips of the sheet.
struct PageOp {
    enum class Kind { Begin, Text, Line, Box, Picture, NewPage, EndDoc };
    Kind kind = Kind::Text;
    int page = 1;
    double x = 0, y = 0;   // text: left and top; line: start; picture: top left
    double x2 = 0, y2 = 0; // line: end; picture: width and height
    QString text;          // text, or the picture's file
    PrintFont font;
    Colour colour = 0;
    double lineWidth = 0;
    int colorMode = 0;   // Begin: as the job was set up
    int orientation = 0; // Begin
    int paperSize = 0;   // Begin
};

// A printer that records every operation and measures with plain, predictable metrics: every
// character is half the font's size wide (10 points: 100 twips) and a line is 1.15 times the size
// high (10 points: 230 twips), as Arial's lines are.
class RecordingPageSurface : public PageSurface {
public:
    static double charWidth(double fontSize) { return fontSize * 10; }
    static double lineHeight(double fontSize) { return fontSize * 23; }

    QVector<PageOp> ops;
    // What PictureSize answers for a file; a file not named here is no picture.
    QMap<QString, QSizeF> pictures;
    // Makes the n-th drawing operation (from 1) fail as a printer error.
    int failAtOperation = 0;
    // A printer's unprintable strips along the edges of the sheet, in twips; none by default, as
    // on a PDF.
    QMarginsF hardwareMargins;

    QRectF PrintableArea() const override;

    std::optional<QSizeF> PictureSize(const QString& picture) override;

    QVector<PageOp> texts() const { return of(PageOp::Kind::Text); }
    QVector<PageOp> of(PageOp::Kind kind) const;
    QStringList printedTexts() const;
    // The first text op with this text; fails the test when there is none.
    PageOp text(const QString& text) const;
    bool printed(const QString& text) const;
    int pagesEnded() const { return static_cast<int>(of(PageOp::Kind::NewPage).size()); }
    int documentsEnded() const { return static_cast<int>(of(PageOp::Kind::EndDoc).size()); }

protected:
    QSizeF measure(const PrintFont& font, const QString& line) override;
    void drawText(const TextRun& run) override;
    void drawLine(double x1, double y1, double x2, double y2, bool box, Colour colour,
                  double widthTwips) override;
    void drawPicture(const QString& picture, double x, double y, double width, double height) override;
    void beginDocument() override;
    void newPage() override;
    void endDocument() override;

private:
    void record(PageOp op);
    int m_drawn = 0;
};

// The print dialog of the tests: each call takes the next scripted answer (a printer when none is
// left) and hands out a fresh recording printer for the job.
class RecordingPrintDialogs : public PrintDialogs {
public:
    enum class Answer { Print, Cancel, NoPrinter };

    RecordingPrintDialogs& answer(Answer a) {
        m_answers.push_back(a);
        return *this;
    }
    // The next jobs' printers have these unprintable strips.
    RecordingPrintDialogs& hardwareMargins(const QMarginsF& margins) {
        m_margins = margins;
        return *this;
    }
    // The next job's printer fails at its n-th drawing operation.
    RecordingPrintDialogs& failNextJobAt(int operation) {
        m_failAt.push_back(operation);
        return *this;
    }

    PageSurface& ShowPrinterDialog() override;

    int shown() const { return m_shown; }
    // Every printer handed out, in order.
    const std::vector<std::unique_ptr<RecordingPageSurface>>& jobs() const { return m_jobs; }
    RecordingPageSurface& lastJob() const { return *m_jobs.back(); }

private:
    std::deque<Answer> m_answers;
    std::deque<int> m_failAt;
    QMarginsF m_margins;
    std::vector<std::unique_ptr<RecordingPageSurface>> m_jobs;
    int m_shown = 0;
};

} // namespace ostrel::test
