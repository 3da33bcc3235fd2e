#pragma once

// Printed jobs read back with the poppler tools: the words of a PDF with their boxes in points
// (1 point is 20 twips), and pictures of its pages.
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QString>
#include <QStringList>
#include <QTextDocumentFragment>
#include <QVector>

#include <gtest/gtest.h>

namespace ostrel::test {

inline constexpr double kTolerancePoints = 0.5;

struct PdfWord {
    int page = 0;
    double xMin = 0, yMin = 0, xMax = 0, yMax = 0;
    QString text;
};

struct PdfPage {
    double width = 0;
    double height = 0;
};

struct PdfText {
    QVector<PdfPage> pages;
    QVector<PdfWord> words;

    // The first word with this text, from page `page` on (1-based); fails the test when absent.
    PdfWord word(const QString& text, int page = 1) const {
        for (const PdfWord& w : words)
            if (w.text == text && w.page >= page) return w;
        QStringList all;
        for (const PdfWord& w : words)
            all << w.text;
        ADD_FAILURE() << "no word \"" << text.toStdString()
                      << "\" in the PDF: " << all.join(u' ').toStdString();
        return {};
    }
    int count(const QString& text) const {
        int n = 0;
        for (const PdfWord& w : words)
            n += w.text == text;
        return n;
    }
};

inline bool havePoppler() {
    return !QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty();
}

inline PdfText readPdf(const QString& pdf) {
    PdfText out;
    const QString html = pdf + QStringLiteral(".html");
    QProcess::execute(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), pdf, html});
    QFile f(html);
    if (!f.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "pdftotext made nothing of " << pdf.toStdString();
        return out;
    }
    const QString text = QString::fromUtf8(f.readAll());
    static const QRegularExpression tag(QString::fromLatin1(
        R"re(<page width="([\d.]+)" height="([\d.]+)">|<word xMin="([\d.]+)" yMin="([\d.]+)" )re"
        R"re(xMax="([\d.]+)" yMax="([\d.]+)">([^<]*)</word>)re"));
    for (auto it = tag.globalMatch(text); it.hasNext();) {
        const auto m = it.next();
        if (!m.captured(1).isEmpty()) {
            out.pages.push_back({m.captured(1).toDouble(), m.captured(2).toDouble()});
            continue;
        }
        out.words.push_back({int(out.pages.size()), m.captured(3).toDouble(), m.captured(4).toDouble(),
                             m.captured(5).toDouble(), m.captured(6).toDouble(),
                             QTextDocumentFragment::fromHtml(m.captured(7)).toPlainText()});
    }
    return out;
}

// Pictures of the pages for a person to look at, when OSTREL_SCREENSHOTS names a folder.
inline void savePages(const QString& pdf, const QString& name) {
    const QString dir = qEnvironmentVariable("OSTREL_SCREENSHOTS");
    if (dir.isEmpty()) return;
    QDir().mkpath(dir);
    QFile::remove(dir + u'/' + name + QStringLiteral(".pdf"));
    QFile::copy(pdf, dir + u'/' + name + QStringLiteral(".pdf"));
    QProcess::execute(QStringLiteral("pdftoppm"), {QStringLiteral("-png"), QStringLiteral("-r"),
                                                   QStringLiteral("60"), pdf, dir + u'/' + name});
}

// A page rendered at 72 dots to the inch, so a pixel is a point.
inline QImage renderPage(const QString& pdf) {
    const QString base = pdf + QStringLiteral("-page");
    QProcess::execute(QStringLiteral("pdftoppm"),
                      {QStringLiteral("-png"), QStringLiteral("-r"), QStringLiteral("72"),
                       QStringLiteral("-singlefile"), pdf, base});
    return QImage(base + QStringLiteral(".png"));
}

#define EXPECT_AT(word, xTwips, yTwips)                                                                      \
    do {                                                                                                     \
        const PdfWord w_ = (word);                                                                           \
        EXPECT_NEAR(w_.xMin, (xTwips) / 20.0, kTolerancePoints) << w_.text.toStdString();                    \
        EXPECT_NEAR(w_.yMin, (yTwips) / 20.0, kTolerancePoints) << w_.text.toStdString();                    \
    } while (0)

} // namespace ostrel::test
