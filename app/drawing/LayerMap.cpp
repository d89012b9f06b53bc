#include "drawing/LayerMap.h"

#include <QString>

#include <algorithm>

namespace firecheck {

namespace {

const std::string kIgnore = "ignore";

/// Whether the text fits a pattern with * and ?; both are name keys.
bool fits(const QString& text, const QString& pattern) {
    int t = 0;
    int p = 0;
    int star = -1; // the last * and where the text stood then
    int mark = 0;
    while (t < text.size()) {
        if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == text[t]) && pattern[p] != '*') {
            ++t;
            ++p;
        } else if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            mark = t;
        } else if (star >= 0) {
            p = star + 1;
            t = ++mark;
        } else
            return false;
    }
    while (p < pattern.size() && pattern[p] == '*')
        ++p;
    return p == pattern.size();
}

/// The name within its own drawing: that of a drawing which was attached or bound stands before it.
QString ownName(const QString& name) {
    const int attached = name.lastIndexOf('|');
    const int bound = name.lastIndexOf('$');
    return name.mid(std::max(attached, bound) + 1);
}

const LayerRow* firstFitting(const std::vector<LayerRow>& rows, std::vector<std::string> LayerRow::*patterns,
                             const std::string& name) {
    const QString whole = QString::fromStdString(nameKey(name));
    for (const QString& candidate : {whole, ownName(whole)})
        for (const LayerRow& row : rows)
            for (const std::string& pattern : row.*patterns)
                if (fits(candidate, QString::fromStdString(nameKey(pattern))))
                    return &row;
    return nullptr;
}

} // namespace

std::string nameKey(const std::string& name) {
    return QString::fromStdString(name).trimmed().toUpper().replace('_', '-').replace(' ', '-').toStdString();
}

bool LayerRow::isIgnored() const {
    return values.at("class") == kIgnore;
}

const LayerRow* LayerMap::rowOfLayer(const std::string& name) const {
    return firstFitting(m_rows, &LayerRow::layers, name);
}

const LayerRow* LayerMap::rowOfBlock(const std::string& name) const {
    return firstFitting(m_rows, &LayerRow::blocks, name);
}

const Json* LayerMap::assumed(const std::string& className, const std::string& key) const {
    const auto values = m_assumed.find(className);
    if (values == m_assumed.end() || !values->is_object())
        return nullptr;
    const auto value = values->find(key);
    return value == values->end() ? nullptr : &*value;
}

std::vector<std::string> LayerMap::keysOfAttribute(const std::string& tag) const {
    const auto found = m_attributes.find(nameKey(tag));
    return found == m_attributes.end() ? std::vector<std::string>() : found->second;
}

std::string LayerMap::meaning(const std::string& word) const {
    const auto found = m_words.find(nameKey(word));
    return found == m_words.end() ? word : found->second;
}

} // namespace firecheck
