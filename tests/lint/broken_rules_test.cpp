#include "lint_text.h"

#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include <set>

// Breaks the names and values of the shipped rule file, one at a time.

namespace {

const std::string kFileName = SOURCE_DIRECTORY "/data/FireStandardCheck.xml";

struct Rule {
    QString text;
    QString name;
    QMap<QString, QString> attributes;
    QStringList children;
};

QStringList captures(const QString& pattern, const QString& text) {
    QStringList list;
    for (auto matches = QRegularExpression(pattern).globalMatch(text); matches.hasNext();)
        list += matches.next().captured(1);
    return list;
}

std::vector<Rule> shippedRules() {
    QFile file(QString::fromStdString(kFileName));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    static const QRegularExpression ruleElement(R"(<([A-Z][a-z]+_\w+)([^>]*)>.*?</\1>)",
                                                QRegularExpression::DotMatchesEverythingOption);
    std::vector<Rule> rules;
    for (auto matches = ruleElement.globalMatch(text); matches.hasNext();) {
        const auto match = matches.next();
        Rule rule{match.captured(0), match.captured(1), {}, captures(R"(</(\w+)>)", match.captured(0))};
        rule.children.removeAll(rule.name);
        for (const QString& name : captures(R"((\w+)=")", match.captured(2)))
            rule.attributes[name] = captures("\\s" + name + "=\"([^\"]*)\"", match.captured(2)).first();
        rules.push_back(rule);
    }
    return rules;
}

bool isFound(const QString& ruleText) {
    return !lintText("<R><G>" + ruleText.toStdString() + "</G></R>").empty();
}

/// A letter dropped at the start, in the middle and at the end, and the case changed of one letter and of
/// all.
std::set<QString> broken(const QString& text) {
    std::set<QString> variants;
    for (const int place : {0, text.size() / 2, text.size() - 1})
        variants.insert(QString(text).remove(place, 1));
    QString swapped = text;
    for (QChar& letter : swapped)
        letter = letter.isUpper() ? letter.toLower() : letter.toUpper();
    variants.insert(swapped);
    variants.insert(swapped.left(1) + text.mid(1));
    variants.erase(text);
    return variants;
}

/// Any name does where the evaluator does not ask for it.
bool nameMatters(const Rule& rule) {
    return rule.attributes["Type"] != "distant" ||
           (rule.attributes["ReferenceElementType"] == "NUX_ELEMENT_TYPE_OPENHOUSE" &&
            rule.attributes["ElementType"] != "NUX_EDO_TYPE_FIREEXTINGUISHERBOX");
}

/// Another number is another requirement and no mistake; none at all, or none that a distance can miss, is.
bool valueMatters(const QString& attribute, const QString& value) {
    if (attribute == "DistantValue")
        return value.isEmpty() || value == "0";
    return attribute != "Standard" && attribute != "PropertyType";
}

TEST(ShippedRuleFile, IsClean) {
    for (const LintFinding& finding : lintRuleFile(kFileName))
        ADD_FAILURE() << finding.place.line << ":" << finding.place.column << " " << finding.message;
}

TEST(ShippedRuleFile, BrokenNamesAreFoundWhereTheyMatter) {
    const std::vector<Rule> rules = shippedRules();
    EXPECT_GE(rules.size(), 57u);
    for (const Rule& rule : rules) {
        EXPECT_FALSE(isFound(rule.text)) << rule.text.toStdString();
        for (const QString& name : broken(rule.name)) {
            const QString text = QString(rule.text).replace(QRegularExpression(rule.name + "\\b"), name);
            EXPECT_EQ(isFound(text), nameMatters(rule)) << text.toStdString();
        }
        for (const QString& child : rule.children)
            for (const QString& name : broken(child)) {
                const QRegularExpression tag("(</?)" + child + ">");
                EXPECT_TRUE(isFound(QString(rule.text).replace(tag, "\\1" + name + ">")))
                    << name.toStdString();
            }
    }
}

TEST(ShippedRuleFile, BrokenAttributesAreFoundWhereTheyMatter) {
    for (const Rule& rule : shippedRules()) {
        for (auto attribute = rule.attributes.begin(); attribute != rule.attributes.end(); ++attribute) {
            const QString whole = attribute.key() + "=\"" + attribute.value() + "\"";
            const int place =
                rule.text.indexOf(QRegularExpression("\\s" + QRegularExpression::escape(whole))) + 1;
            const auto with = [&](const QString& name, const QString& value) {
                return QString(rule.text).replace(place, whole.size(), name + "=\"" + value + "\"");
            };
            for (const QString& name : broken(attribute.key()))
                EXPECT_TRUE(isFound(with(name, attribute.value()))) << with(name, {}).toStdString();
            for (const QString& value : broken(attribute.value()))
                EXPECT_EQ(isFound(with(attribute.key(), value)), valueMatters(attribute.key(), value))
                    << with(attribute.key(), value).toStdString();
        }
    }
}

} // namespace
