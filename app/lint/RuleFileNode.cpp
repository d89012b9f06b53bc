#include "lint/RuleFileNode.h"

#include "rules/XmlPlaces.h"
#include "rules/decoded_xml.h"
#include "rules/rule_file.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace firecheck {

namespace {

constexpr int kLevelsBelowRoot = 3; // groups, rules, texts

class NodeReader {
public:
    explicit NodeReader(const std::string& fileName)
        : m_fileName(fileName), m_decoded(decodedXml(ruleFileContent(fileName))), m_places(m_decoded.text),
          m_reader(m_decoded.text) {
        m_reader.setNamespaceProcessing(false);
    }

    RuleFileNodes document() {
        while (next() != QXmlStreamReader::StartElement) {
        }
        RuleFileNode root = element(kLevelsBelowRoot);
        while (next() != QXmlStreamReader::EndDocument) {
        }
        return {std::move(root), wrongBytes()};
    }

private:
    std::optional<Place> wrongBytes() const {
        if (!m_decoded.hasWrongBytes)
            return std::nullopt;
        const auto index = m_decoded.text.indexOf(QChar(QChar::ReplacementCharacter));
        return m_places.placeAt(static_cast<int>(index < 0 ? m_decoded.text.size() : index));
    }

    QXmlStreamReader::TokenType next() {
        m_tokenStart = m_reader.characterOffset();
        const auto token = m_reader.readNext();
        if (token == QXmlStreamReader::Invalid)
            refuseIllFormed(m_fileName, m_reader);
        return token;
    }

    RuleFileNode nodeAtToken(RuleFileNode::Kind kind, const QString& name) const {
        return {kind, name.toStdString(), m_places.placeOfToken(m_tokenStart), {}, {}, {}};
    }

    RuleFileNode element(int levelsBelow) {
        RuleFileNode node = nodeAtToken(RuleFileNode::Kind::Element, m_reader.qualifiedName().toString());
        const auto places = m_places.attributePlaces(m_tokenStart, m_reader.characterOffset());
        for (const QXmlStreamAttribute& attribute : m_reader.attributes()) {
            // Attributes that the document type adds stand nowhere, behind those of the tag.
            const std::size_t index = node.attributes.size();
            node.attributes.push_back({attribute.qualifiedName().toString().toStdString(),
                                       attribute.value().toString().toStdString(),
                                       index < places.size() ? places[index] : node.place});
        }
        if (levelsBelow == 0)
            readText(node);
        else
            readChildren(node, levelsBelow - 1);
        return node;
    }

    void readChildren(RuleFileNode& node, int levelsBelow) {
        for (auto token = next(); token != QXmlStreamReader::EndElement; token = next()) {
            if (token == QXmlStreamReader::StartElement)
                node.children.push_back(element(levelsBelow));
            else if (token == QXmlStreamReader::Comment)
                node.children.push_back(nodeAtToken(RuleFileNode::Kind::Comment, {}));
            else if (token == QXmlStreamReader::ProcessingInstruction)
                node.children.push_back(nodeAtToken(RuleFileNode::Kind::Instruction,
                                                    m_reader.processingInstructionTarget().toString()));
            else if (m_reader.isCDATA() || !m_reader.isWhitespace())
                node.children.push_back(nodeAtToken(RuleFileNode::Kind::Text, {}));
        }
    }

    void readText(RuleFileNode& node) {
        for (int depth = 1; depth > 0;) {
            const auto token = next();
            if (token == QXmlStreamReader::Characters)
                node.text += m_reader.text().toString().toStdString();
            depth += token == QXmlStreamReader::StartElement ? 1
                     : token == QXmlStreamReader::EndElement ? -1
                                                             : 0;
        }
    }

    const std::string m_fileName;
    const DecodedXml m_decoded;
    const XmlPlaces m_places;
    QXmlStreamReader m_reader;
    qint64 m_tokenStart = 0;
};

} // namespace

const RuleFileAttribute* RuleFileNode::attribute(const std::string& wanted) const {
    const auto found = std::find_if(attributes.begin(), attributes.end(),
                                    [&](const RuleFileAttribute& a) { return a.name == wanted; });
    return found == attributes.end() ? nullptr : &*found;
}

std::string RuleFileNode::value(const std::string& wanted) const {
    const RuleFileAttribute* found = attribute(wanted);
    return found ? found->value : std::string();
}

RuleFileNodes readRuleFileNodes(const std::string& fileName) {
    return NodeReader(fileName).document();
}

} // namespace firecheck
