#include "rules/crowded_tag.h"

namespace firecheck {

namespace {

class TagScan {
public:
    explicit TagScan(const QString& xml) : m_xml(xml) {}

    std::optional<int> crowdedTag() {
        while (m_at < m_xml.size()) {
            if (m_xml[m_at] == '<')
                beginMarkup();
            else
                takeCharacter(m_xml[m_at++]);
            if (m_attributes > kMostAttributes || m_declared > kMostAttributes)
                return m_tag;
        }
        return std::nullopt;
    }

private:
    /// Also within quotes, where only an entity's value may have a "<".
    void beginMarkup() {
        for (const auto& [start, end] : {std::pair("<!--", "-->"), {"<![CDATA[", "]]>"}, {"<?", "?>"}})
            if (isNext(start))
                return skipPast(start, end);
        m_tag = m_at;
        m_isTag = true;
        m_isDeclaration = isNext("<!");
        m_quote = QChar();
        m_attributes = 0;
        ++m_at;
    }

    void takeCharacter(QChar character) {
        if (!m_isTag)
            return;
        if (m_isDeclaration) {
            // Values of entities may hold attributes, and what is declared as an attribute has a value.
            m_declared += character == '=' || character == m_quote;
        } else if (m_quote.isNull()) {
            m_attributes += character == '=';
        }
        if (!m_quote.isNull())
            m_quote = character == m_quote ? QChar() : m_quote;
        else if (character == '"' || character == '\'')
            m_quote = character;
        else if (character == '>')
            m_isTag = false;
    }

    bool isNext(const char* start) const {
        return QStringView(m_xml).mid(m_at).startsWith(QLatin1String(start));
    }

    void skipPast(const char* start, const char* end) {
        const auto found = m_xml.indexOf(QLatin1String(end), m_at + int(qstrlen(start)));
        m_at = int(found < 0 ? m_xml.size() : found) + int(qstrlen(end));
    }

    const QString& m_xml;
    int m_at = 0;
    int m_tag = 0;
    bool m_isTag = false;
    bool m_isDeclaration = false;
    QChar m_quote; ///< null outside quotes
    int m_attributes = 0;
    int m_declared = 0;
};

} // namespace

std::optional<int> crowdedTag(const QString& xml) {
    return TagScan(xml).crowdedTag();
}

} // namespace firecheck
