#pragma once

#include "controls/Controls.h"

#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <optional>
#include <stdexcept>

namespace ostrel {

// A failure of a print job, with the number the print routines tell apart: the dialog's Cancel
// has its own, anything else counts as a printer error.
class PrintError : public std::runtime_error {
public:
    static constexpr int kCancelled = 32755;
    static constexpr int kPrinterError = 482;
    static constexpr int kOverflow = 6;

    PrintError(int number, const QString& description)
        : std::runtime_error(description.toStdString()), m_number(number), m_description(description) {}

    int number() const { return m_number; }
    const QString& description() const { return m_description; }
    bool cancelled() const { return m_number == kCancelled; }

private:
    int m_number;
    QString m_description;
};

// The font the next text is printed in.
struct PrintFont {
    QString name;
    double size = 10;
    bool bold = false;
    bool underline = false;
    bool italic = false;
    bool operator==(const PrintFont&) const = default;
};

// The printer object: a page in twips (1440 to the inch) from the top left of the printable area,
// a current position, font and colour, and the drawing operations the documents use. This class
// keeps the state and the position rules; a device below it measures and draws. The device sees
// plain twips of the sheet: the printable area's offset and the scale that a set ScaleWidth
// implies are applied here.
class PageSurface {
public:
    static constexpr int kMonochrome = 1;
    static constexpr int kColour = 2;
    static constexpr int kLetter = 1;
    static constexpr int kPortrait = 1;
    static constexpr int kLandscape = 2;
    static constexpr int kTwips = 1;
    static constexpr double kLetterShortSide = 12240; // 8.5 in
    static constexpr double kLetterLongSide = 15840;  // 11 in
    // A line width is counted in printer dots; ours are those of a common 600 dpi printer.
    static constexpr double kTwipsPerDot = 1440.0 / 600.0;

    virtual ~PageSurface() = default;

    int ColorMode = kColour;
    int PaperSize = kLetter;
    int Orientation = kPortrait;
    QString FontName = QStringLiteral("Arial");
    double FontSize = 10;
    bool FontBold = false;
    bool FontUnderline = false;
    bool FontItalic = false;
    Colour ForeColor = 0; // 24 bits, red in the low byte
    double CurrentX = 0;
    double CurrentY = 0;
    int DrawWidth = 1;

    // Setting twips drops a scale that ScaleWidth or ScaleHeight set.
    int ScaleMode() const { return m_scaleMode; }
    void SetScaleMode(int mode);
    // The page in the current scale: the printable area's size in twips unless a document set its own.
    double ScaleWidth() const;
    double ScaleHeight() const;
    void SetScaleWidth(double width);
    void SetScaleHeight(double height);
    // The number of the page being drawn, from 1.
    int Page() const { return m_page; }

    PrintFont Font() const { return {FontName, FontSize, FontBold, FontUnderline, FontItalic}; }
    // The size of a text in the current font; a text of several lines is as wide as its widest.
    double TextWidth(const QString& text);
    double TextHeight(const QString& text);

    // Prints at the position, then moves to the start of the next line.
    void Print(const QString& text = QString());
    // Prints at the position and stays on the line, behind the text (the print ending in ";").
    void PrintContinue(const QString& text);
    // A line, or with `box` a rectangle, in the ForeColor; the position moves to its end.
    void Line(double x1, double y1, double x2, double y2, bool box = false);
    // A picture from a file, scaled into the rectangle.
    void PaintPicture(const QString& picture, double x, double y, double width, double height);
    // The picture's own size in twips, as a screen shows it unscaled; nothing for no picture.
    virtual std::optional<QSizeF> PictureSize(const QString& picture) = 0;
    void NewPage();
    // Ends the job and sends it. With nothing drawn since the last end there is no job to send.
    void EndDoc();
    bool documentOpen() const { return m_documentOpen; }

    // The part of the sheet the device prints on, in twips from the sheet's corner, for the current
    // orientation. A printer's hardware margins make it smaller than the sheet; a device that can
    // mark the whole sheet (a PDF) answers the sheet itself, so its positions are the sheet's.
    virtual QRectF PrintableArea() const { return {0, 0, sheetWidth(), sheetHeight()}; }

protected:
    // What the device is asked to do, always in twips of the sheet.
    struct TextRun {
        double x;
        double y; // top of the text's line
        QString text;
        PrintFont font;
        Colour colour;
    };
    virtual QSizeF measure(const PrintFont& font, const QString& line) = 0;
    virtual void drawText(const TextRun& run) = 0;
    virtual void drawLine(double x1, double y1, double x2, double y2, bool box, Colour colour,
                          double widthTwips) = 0;
    virtual void drawPicture(const QString& picture, double x, double y, double width, double height) = 0;
    // The first drawing of a job comes after this; the page's settings are final from here.
    virtual void beginDocument() = 0;
    virtual void newPage() = 0;
    virtual void endDocument() = 0;

    double sheetWidth() const { return Orientation == kLandscape ? kLetterLongSide : kLetterShortSide; }
    double sheetHeight() const { return Orientation == kLandscape ? kLetterShortSide : kLetterLongSide; }

private:
    double xFactor() const { return m_scaleWidth ? PrintableArea().width() / *m_scaleWidth : 1.0; }
    double yFactor() const { return m_scaleHeight ? PrintableArea().height() / *m_scaleHeight : 1.0; }
    // A position of the page in twips of the sheet.
    double sheetX(double x) const { return PrintableArea().left() + x * xFactor(); }
    double sheetY(double y) const { return PrintableArea().top() + y * yFactor(); }
    void ensureDocument();
    void printLines(const QString& text, bool stayOnLine);

    int m_scaleMode = kTwips;
    std::optional<double> m_scaleWidth;
    std::optional<double> m_scaleHeight;
    int m_page = 1;
    bool m_documentOpen = false;
};

} // namespace ostrel
