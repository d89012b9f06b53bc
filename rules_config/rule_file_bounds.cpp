#include "rules_config/rule_file_bounds.h"

#include <QBuffer>
#include <QXmlSimpleReader>

#include <algorithm>
#include <cstddef>
#include <cstring>

// Qt advises against this reader, but it is the one that builds the document: both see the same nesting, also
// where entities contribute to it and where the text is not quite well-formed.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

namespace firestandard {

namespace {

constexpr int kDeepestNesting = 256;
constexpr int kMostEntities = 256;
constexpr int kMostGroups = 4096;       // of element declarations: each may lie within the one before
constexpr int kLongestExpansion = 4096; // of one entity, at which the reader itself gives up

/// Reports an error to the reader, which then stops, as soon as a bound is exceeded.
class BoundsHandler : public QXmlDefaultHandler {
public:
    explicit BoundsHandler(const QByteArray& ruleFile)
        : m_references(ruleFile.count('&') + ruleFile.count('%')), m_groups(ruleFile.count('(')) {}

    bool isWithinBounds() const { return m_isWithinBounds; }

    bool startDTD(const QString&, const QString&, const QString&) override {
        return require(m_groups <= kMostGroups);
    }

    bool internalEntityDecl(const QString& name, const QString& value) override {
        // The reader bounds what elements expand to, but not what the document type does.
        if (name.startsWith('%') && (value.contains('&') || value.contains('%')))
            return require(false);
        m_longestExpansion =
            std::max<qint64>(m_longestExpansion, value.contains('&') ? kLongestExpansion : value.size());
        return require(++m_entities <= kMostEntities &&
                       m_references * m_longestExpansion <= kLargestRuleFile);
    }

    bool startElement(const QString&, const QString&, const QString&, const QXmlAttributes&) override {
        return require(++m_depth <= kDeepestNesting);
    }

    bool endElement(const QString&, const QString&, const QString&) override {
        --m_depth;
        return true;
    }

private:
    bool require(bool holds) {
        m_isWithinBounds &= holds;
        return holds;
    }

    qint64 m_references;
    int m_groups;
    qint64 m_longestExpansion = 0;
    int m_entities = 0;
    int m_depth = 0;
    bool m_isWithinBounds = true;
};

/// Whether a glance over the bytes will do: UTF-8 without a document type, where nothing can expand, and tags
/// that nest within the bound. False whenever anything is out of the ordinary; the parser then decides.
class PlainScan {
public:
    explicit PlainScan(const QByteArray& text) : m_text(text) {}

    bool isWithinBounds() {
        for (const char wideMark : {'\0', '\xFE', '\xFF'})
            if (placeOf(wideMark))
                return false;
        while (skipTo('<'))
            if (!skipMarkup())
                return false;
        return true;
    }

private:
    bool isNext(const char* start) const {
        return qstrncmp(m_text.constData() + m_at, start, qstrlen(start)) == 0;
    }

    bool skipTo(char wanted) {
        const char* found = placeOf(wanted);
        if (found)
            m_at = static_cast<int>(found - m_text.constData());
        return found;
    }

    /// Of the next such byte; null when there is none.
    const char* placeOf(char wanted) const {
        return static_cast<const char*>(
            std::memchr(m_text.constData() + m_at, wanted, static_cast<std::size_t>(m_text.size() - m_at)));
    }

    bool skipMarkup() {
        if (isNext("<!--"))
            return skipPast("<!--", "-->");
        if (isNext("<![CDATA["))
            return skipPast("<![CDATA[", "]]>");
        if (isNext("<?"))
            return skipInstruction();
        return !isNext("<!") && skipTag();
    }

    /// What is part of the start is not part of the end.
    bool skipPast(const char* start, const char* end) {
        const int found = m_text.indexOf(end, m_at + static_cast<int>(qstrlen(start)));
        m_at = found + static_cast<int>(qstrlen(end));
        return found >= 0;
    }

    bool skipInstruction() {
        const int start = m_at;
        if (!skipPast("<?", "?>"))
            return false;
        const QByteArray instruction = m_text.mid(start, m_at - start).toUpper();
        return !instruction.contains("ENCODING") || instruction.contains("\"UTF-8\"");
    }

    bool skipTag() {
        const bool isEnd = isNext("</");
        for (++m_at; m_at < m_text.size(); ++m_at) {
            const char c = m_text[m_at];
            if (c == '"' || c == '\'') {
                ++m_at;
                if (!skipTo(c))
                    return false;
            } else if (c == '<') {
                return false;
            } else if (c == '>') {
                const bool isWhole = m_text[m_at - 1] == '/';
                m_depth += isEnd ? -1 : isWhole ? 0 : 1;
                return m_depth >= 0 && m_depth < kDeepestNesting;
            }
        }
        return false;
    }

    const QByteArray& m_text;
    int m_at = 0;
    int m_depth = 0;
};

} // namespace

bool isWithinBounds(const QByteArray& ruleFile) {
    if (PlainScan(ruleFile).isWithinBounds())
        return true;
    QBuffer buffer;
    buffer.setData(ruleFile);
    buffer.open(QIODevice::ReadOnly);
    QXmlInputSource source(&buffer);
    BoundsHandler handler(ruleFile);
    QXmlSimpleReader reader;
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), true);
    reader.setContentHandler(&handler);
    reader.setDeclHandler(&handler);
    reader.setLexicalHandler(&handler);
    reader.setErrorHandler(&handler);
    reader.parse(source);
    return handler.isWithinBounds();
}

} // namespace firestandard

QT_WARNING_POP
