#include "RtfText.h"

#include "store/Cp1252.h"

#include <QStringList>

#include <vector>

namespace ostrel::rtf {

namespace {

bool isLetter(QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}
bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

// One control word of the source: "\word-12 " at [begin, end), the delimiting blank included.
struct ControlWord {
    qsizetype begin = 0;
    qsizetype end = 0;
    QString word;
    bool hasParam = false;
    int param = 0;
};

// Reads the control word that starts at `i` (a backslash followed by a letter).
ControlWord readControlWord(const QString& s, qsizetype i) {
    ControlWord w;
    w.begin = i;
    qsizetype j = i + 1;
    while (j < s.size() && isLetter(s[j]))
        w.word += s[j++];
    qsizetype p = j;
    if (p < s.size() && s[p] == u'-') ++p;
    if (p < s.size() && isDigit(s[p])) {
        while (p < s.size() && isDigit(s[p]))
            ++p;
        w.hasParam = true;
        w.param = s.mid(j, p - j).toInt();
        j = p;
    }
    if (j < s.size() && s[j] == u' ') ++j;
    w.end = j;
    return w;
}

// Destinations whose text is no part of the body.
bool isSkippedDestination(const QString& word) {
    static const QStringList skipped = {
        QStringLiteral("fonttbl"),  QStringLiteral("colortbl"), QStringLiteral("stylesheet"),
        QStringLiteral("info"),     QStringLiteral("pict"),     QStringLiteral("header"),
        QStringLiteral("footer"),   QStringLiteral("headerl"),  QStringLiteral("headerr"),
        QStringLiteral("headerf"),  QStringLiteral("footerl"),  QStringLiteral("footerr"),
        QStringLiteral("footerf"),  QStringLiteral("footnote"), QStringLiteral("fldinst"),
        QStringLiteral("object"),   QStringLiteral("listtable"), QStringLiteral("listoverridetable"),
        QStringLiteral("rsidtbl"),  QStringLiteral("generator"), QStringLiteral("xmlnstbl"),
        QStringLiteral("themedata"), QStringLiteral("latentstyles"), QStringLiteral("datastore"),
        QStringLiteral("filetbl"),  QStringLiteral("revtbl"),   QStringLiteral("bkmkstart"),
        QStringLiteral("bkmkend"),
    };
    return skipped.contains(word);
}

struct CharFormat {
    bool bold = false;
    bool italic = false;
    bool underline = false;
    double points = 12;
    bool operator==(const CharFormat&) const = default;
};

struct ParaFormat {
    Paragraph::Align align = Paragraph::Align::Left;
    int left = 0;
    int right = 0;
    int first = 0;
};

struct GroupState {
    CharFormat chars;
    ParaFormat para;
    int unicodeSkip = 1;
    bool skip = false;
};

class Reader {
public:
    explicit Reader(const QString& source) : m_s(source) {}

    QVector<Paragraph> read() {
        m_stack.push_back(GroupState{});
        qsizetype i = 0;
        bool groupStart = false;
        while (i < m_s.size()) {
            const QChar c = m_s[i];
            if (c == u'{') {
                m_stack.push_back(m_stack.back());
                groupStart = true;
                ++i;
                continue;
            }
            if (c == u'}') {
                if (m_stack.size() > 1) m_stack.pop_back();
                groupStart = false;
                ++i;
                continue;
            }
            if (c == u'\\' && i + 1 < m_s.size()) {
                const QChar n = m_s[i + 1];
                if (isLetter(n)) {
                    const ControlWord w = readControlWord(m_s, i);
                    if (groupStart && isSkippedDestination(w.word)) state().skip = true;
                    controlWord(w);
                    i = w.end;
                } else {
                    i = controlSymbol(i);
                }
                groupStart = false;
                continue;
            }
            groupStart = false;
            if (c != u'\r' && c != u'\n') text(c);
            ++i;
        }
        if (!m_paragraph.runs.isEmpty()) endParagraph();
        return m_out;
    }

private:
    GroupState& state() { return m_stack.back(); }

    qsizetype controlSymbol(qsizetype i) {
        const QChar n = m_s[i + 1];
        switch (n.unicode()) {
        case '\\':
        case '{':
        case '}':
            text(n);
            return i + 2;
        case '~':
            text(QChar(0xA0));
            return i + 2;
        case '_':
            text(u'-');
            return i + 2;
        case '*':
            state().skip = true;
            return i + 2;
        case '\'': {
            bool ok = false;
            const int byte = m_s.mid(i + 2, 2).toInt(&ok, 16);
            if (ok) {
                const char b = static_cast<char>(byte);
                text(cp1252::decode(QByteArrayView(&b, 1)).at(0));
            }
            return i + 4;
        }
        case '\r':
        case '\n':
            if (!state().skip) endParagraph();
            return i + 2;
        default:
            return i + 2; // optional hyphen and the like
        }
    }

    void controlWord(const ControlWord& w) {
        GroupState& st = state();
        const QString& k = w.word;
        const bool on = !w.hasParam || w.param != 0;
        if (k == u"par" || k == u"sect") {
            if (!st.skip) endParagraph();
        } else if (k == u"pard") {
            st.para = ParaFormat{};
        } else if (k == u"plain") {
            st.chars = CharFormat{};
        } else if (k == u"b") {
            st.chars.bold = on;
        } else if (k == u"i") {
            st.chars.italic = on;
        } else if (k == u"ul") {
            st.chars.underline = on;
        } else if (k == u"ulnone") {
            st.chars.underline = false;
        } else if (k == u"fs" && w.hasParam) {
            st.chars.points = w.param / 2.0;
        } else if (k == u"ql") {
            st.para.align = Paragraph::Align::Left;
        } else if (k == u"qc") {
            st.para.align = Paragraph::Align::Center;
        } else if (k == u"qr") {
            st.para.align = Paragraph::Align::Right;
        } else if (k == u"qj") {
            st.para.align = Paragraph::Align::Justify;
        } else if (k == u"li") {
            st.para.left = w.param;
        } else if (k == u"ri") {
            st.para.right = w.param;
        } else if (k == u"fi") {
            st.para.first = w.param;
        } else if (k == u"line") {
            text(u'\n');
        } else if (k == u"tab") {
            text(u'\t');
        } else if (k == u"uc") {
            st.unicodeSkip = w.param;
        } else if (k == u"u" && w.hasParam) {
            text(QChar(static_cast<char16_t>(w.param < 0 ? w.param + 65536 : w.param)));
            m_fallbackLeft = st.unicodeSkip;
        } else if (k == u"emdash") {
            text(QChar(0x2014));
        } else if (k == u"endash") {
            text(QChar(0x2013));
        } else if (k == u"bullet") {
            text(QChar(0x2022));
        } else if (k == u"lquote") {
            text(QChar(0x2018));
        } else if (k == u"rquote") {
            text(QChar(0x2019));
        } else if (k == u"ldblquote") {
            text(QChar(0x201C));
        } else if (k == u"rdblquote") {
            text(QChar(0x201D));
        }
    }

    void text(QChar c) {
        if (state().skip) return;
        if (m_fallbackLeft > 0) {
            // The stand-in a \u word carries for readers without Unicode.
            --m_fallbackLeft;
            return;
        }
        const CharFormat& f = state().chars;
        if (m_paragraph.runs.isEmpty()) applyParagraph();
        if (!m_paragraph.runs.isEmpty() && m_lastFormat == f) {
            m_paragraph.runs.back().text += c;
            return;
        }
        m_paragraph.runs.push_back(Run{QString(c), f.bold, f.italic, f.underline, f.points});
        m_lastFormat = f;
    }

    void applyParagraph() {
        const ParaFormat& p = state().para;
        m_paragraph.align = p.align;
        m_paragraph.leftIndent = p.left;
        m_paragraph.rightIndent = p.right;
        m_paragraph.firstIndent = p.first;
    }

    void endParagraph() {
        if (m_paragraph.runs.isEmpty()) applyParagraph();
        m_out.push_back(m_paragraph);
        m_paragraph = Paragraph{};
        m_fallbackLeft = 0;
    }

    const QString& m_s;
    std::vector<GroupState> m_stack;
    QVector<Paragraph> m_out;
    Paragraph m_paragraph;
    CharFormat m_lastFormat;
    int m_fallbackLeft = 0;
};

int twipsToPixels(int twips) {
    return twips / 15; // 96 dots to the inch on screen
}

} // namespace

QString escape(const QString& text) {
    QString out;
    out.reserve(text.size() + 8);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        switch (c.unicode()) {
        case '\\':
            out += QStringLiteral("\\\\");
            break;
        case '{':
            out += QStringLiteral("\\{");
            break;
        case '}':
            out += QStringLiteral("\\}");
            break;
        case '\r':
            if (i + 1 < text.size() && text[i + 1] == u'\n') ++i;
            out += QStringLiteral("\\par ");
            break;
        case '\n':
            out += QStringLiteral("\\par ");
            break;
        case '\t':
            out += QStringLiteral("\\tab ");
            break;
        default:
            if (c.unicode() < 0x80) {
                out += c;
            } else if (const char b = cp1252::encodeChar(c);
                       cp1252::decode(QByteArrayView(&b, 1)).at(0) == c) {
                out += QStringLiteral("\\'%1").arg(static_cast<uchar>(b), 2, 16, QLatin1Char('0'));
            } else {
                out += QStringLiteral("\\u%1?").arg(static_cast<qint16>(c.unicode()));
            }
        }
    }
    return out;
}

QString setParagraphMargins(const QString& source, int leftTwips, int rightTwips) {
    const QString margins = QStringLiteral("\\li%1\\ri%2 ").arg(leftTwips).arg(rightTwips);
    QString out;
    out.reserve(source.size() + 256);
    bool sawPard = false;
    qsizetype i = 0;
    while (i < source.size()) {
        const QChar c = source[i];
        if (c == u'\\' && i + 1 < source.size()) {
            if (isLetter(source[i + 1])) {
                const ControlWord w = readControlWord(source, i);
                if ((w.word == u"li" || w.word == u"ri") && w.hasParam) {
                    // Dropped: every paragraph takes the same margins.
                } else if (w.word == u"pard") {
                    sawPard = true;
                    out += QStringLiteral("\\pard") + margins;
                } else {
                    out += source.mid(i, w.end - i);
                }
                i = w.end;
                continue;
            }
            const qsizetype len = source[i + 1] == u'\'' ? 4 : 2;
            out += source.mid(i, len);
            i += len;
            continue;
        }
        out += c;
        ++i;
    }
    if (!sawPard) {
        // A document without paragraph resets: the margins go before its first text.
        const qsizetype at = out.startsWith(QStringLiteral("{\\rtf")) ? readControlWord(out, 1).end : 0;
        out.insert(at, margins);
    }
    return out;
}

QString Paragraph::text() const {
    QString t;
    for (const Run& r : runs)
        t += r.text;
    return t;
}

QVector<Paragraph> parse(const QString& source) {
    return Reader(source).read();
}

QString toPlainText(const QString& source) {
    QString out;
    for (const Paragraph& p : parse(source))
        out += p.text() + u'\n';
    return out;
}

QString toHtml(const QString& source) {
    QString html = QStringLiteral("<html><body>");
    for (const Paragraph& p : parse(source)) {
        const char* align = p.align == Paragraph::Align::Center  ? "center"
                            : p.align == Paragraph::Align::Right ? "right"
                            : p.align == Paragraph::Align::Justify ? "justify"
                                                                   : "left";
        html += QStringLiteral("<p style=\"margin-top:0px; margin-bottom:0px; margin-left:%1px; "
                               "margin-right:%2px; text-indent:%3px; text-align:%4\">")
                    .arg(twipsToPixels(p.leftIndent))
                    .arg(twipsToPixels(p.rightIndent))
                    .arg(twipsToPixels(p.firstIndent))
                    .arg(QLatin1String(align));
        if (p.text().isEmpty()) html += QStringLiteral("&nbsp;");
        for (const Run& r : p.runs) {
            QString style = QStringLiteral("font-size:%1pt;").arg(r.points);
            if (r.bold) style += QStringLiteral(" font-weight:bold;");
            if (r.italic) style += QStringLiteral(" font-style:italic;");
            if (r.underline) style += QStringLiteral(" text-decoration:underline;");
            QString t = r.text.toHtmlEscaped();
            t.replace(u'\n', QStringLiteral("<br/>"));
            t.replace(u'\t', QStringLiteral("&emsp;"));
            html += QStringLiteral("<span style=\"%1\">%2</span>").arg(style, t);
        }
        html += QStringLiteral("</p>");
    }
    html += QStringLiteral("</body></html>");
    return html;
}

} // namespace ostrel::rtf
