#include "rules_config/rule_file_bounds.h"

#include "rules_config/reader_bounds.h"

#include <cstddef>
#include <cstring>

namespace firestandard {

namespace {

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
                return m_depth >= 0 && m_depth < reader_bounds::kDeepestNesting;
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
    return PlainScan(ruleFile).isWithinBounds() || readerStaysWithinBounds(ruleFile);
}

} // namespace firestandard
