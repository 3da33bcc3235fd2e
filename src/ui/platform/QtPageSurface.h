#pragma once

#include "platform/PageSurface.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>

#include <map>
#include <memory>
#include <tuple>

class QPrinter;

namespace ostrel::ui {

// The printer object on a QPrinter: Letter, the whole sheet addressable, 1440 dots to the inch so
// a device unit is a twip. On a printer positions start at the corner of what it can print; a PDF
// can print the whole sheet. Text is measured with the printer's own font metrics, so what
// TextWidth says is what lands on the page.
class QtPageSurface : public PageSurface {
public:
    static constexpr int kTwipsPerInch = 1440;
    // A picture's own size is that of a screen at 96 dots to the inch.
    static constexpr double kTwipsPerPicturePixel = 15;

    // Puts the printer into the state the page model needs; the printer's choice of device and
    // copies stays.
    static void PrepareLetterPrinter(QPrinter& printer);
    // The font a PrintFont names; "Arial" resolves through fontconfig to a metric twin.
    static QFont toQFont(const PrintFont& font);
    // The family a font name stands for: the name itself, or for a misspelling that documents
    // print with ("Ariel") the face it means.
    static QString fontFamily(const QString& name);

    // The printer stays the caller's and must outlive the surface.
    explicit QtPageSurface(QPrinter& printer);
    ~QtPageSurface() override;
    QtPageSurface(const QtPageSurface&) = delete;
    QtPageSurface& operator=(const QtPageSurface&) = delete;

    QPrinter& printer() { return m_printer; }

    std::optional<QSizeF> PictureSize(const QString& picture) override;
    QRectF PrintableArea() const override;

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
    struct Metrics {
        QFont font;
        QFontMetricsF metrics;
    };
    const Metrics& metricsOf(const PrintFont& font);
    // Device units per twip: 1 unless the printer insists on its own resolution.
    double unit() const;
    void applyPageSettings();

    QPrinter& m_printer;
    QPainter m_painter;
    std::map<std::tuple<QString, double, bool, bool, bool>, Metrics> m_metrics;
};

} // namespace ostrel::ui
