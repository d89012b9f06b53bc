#include "rules_config/rule_file_bounds.h"

#include <QBuffer>
#include <QXmlSimpleReader>

#include <algorithm>

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

} // namespace

bool isWithinBounds(const QByteArray& ruleFile) {
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
