#pragma once

#include <QString>
#include <QVector>

namespace ostrel::rtf {

// The contract is kept as rich-text source and changed at that level, so the formatting of the
// template survives every merge. These are the few operations the merge and the screen need.

// Plain text as source: "\", "{" and "}" escaped, line ends as paragraph ends, characters beyond
// ASCII as code page escapes (or Unicode escapes where the code page has none).
QString escape(const QString& text);

// Gives every paragraph the same left indent and right margin: set after each \pard, and any
// other indent or right margin of the body dropped.
QString setParagraphMargins(const QString& source, int leftTwips, int rightTwips);

// A piece of text in one character format.
struct Run {
    QString text;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    double points = 12;
};

struct Paragraph {
    enum class Align { Left, Center, Right, Justify };
    QVector<Run> runs;
    Align align = Align::Left;
    int leftIndent = 0;  // twips
    int rightIndent = 0; // twips
    int firstIndent = 0; // twips
    QString text() const;
};

// The body of a document, paragraph by paragraph; tables of fonts, colours and styles and other
// destinations are skipped. Unknown control words are ignored, as readers of the format must.
QVector<Paragraph> parse(const QString& source);
// The text a reader sees, paragraphs ended by line ends.
QString toPlainText(const QString& source);
// The document as HTML for a text view: paragraphs with alignment and margins, bold, italic,
// underline and sizes.
QString toHtml(const QString& source);

} // namespace ostrel::rtf
