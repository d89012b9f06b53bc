#include "explain/sentence.h"

#include "evaluators/rule_catalogue.h"
#include "explain/measure_text.h"
#include "explain/number_word.h"

#include <QStringList>

namespace firestandard {

namespace {

constexpr std::size_t kMostNamed = 3; ///< elements that one sentence names before it counts the others

/// What a sentence is made of.
struct Subject {
    const CheckReport& report;
    const NuxStandardCheckRule& record;
    const std::vector<Measure>& measures;
    const RuleRow* row; ///< the catalogue's; null for a name that it does not have

    double fixedLimit(std::size_t index = 0) const { return row->fixedLimits[index]; }
    std::string element() const { return elementPhrase(report, record.handle); }
};

/// "a, b and 4 others"; `total` counts those named too.
std::string listed(const QStringList& named, std::size_t total) {
    QStringList parts = named;
    const std::size_t others = total - static_cast<std::size_t>(named.size());
    if (others > 0)
        parts << QString::number(others) + (others == 1 ? " other" : " others");
    const QString last = parts.takeLast();
    return (parts.isEmpty() ? last : parts.join(", ") + " and " + last).toStdString();
}

std::string relatedList(const Subject& subject) {
    const auto& handles = subject.record.relatedHandles;
    QStringList named;
    for (std::size_t i = 0; i < handles.size() && i < kMostNamed; ++i)
        named << QString::fromStdString(elementPhrase(subject.report, handles[i]));
    return named.isEmpty() ? std::string() : listed(named, handles.size());
}

std::string askedFor(const Measure& measure) {
    return "; the rule asks for " + limitText(measure);
}

std::string distancePhrase(const Subject& subject, const Measure& measure) {
    const std::string other = elementPhrase(subject.report, measure.other);
    if (!measure.points)
        return "counts as touching " + other + " without being measured";
    if (measure.value <= 0.0)
        return "touches or overlaps " + other;
    const bool isRoad = subject.record.elementType == QLatin1String("NUX_EDO_TYPE_ROAD");
    return (isRoad ? "lies " : "stands ") + valueText(measure) + " from " + other;
}

std::string distanceSentence(const Subject& subject) {
    QStringList named;
    for (std::size_t i = 0; i < subject.measures.size() && i < kMostNamed; ++i)
        named << QString::fromStdString(distancePhrase(subject, subject.measures[i]));
    return subject.element() + " " + listed(named, subject.measures.size()) +
           askedFor(subject.measures.front());
}

std::string boxSentence(const Subject& subject) {
    Measure limit;
    limit.maximum = subject.fixedLimit() * kMetresPerMillimetre;
    const std::string asked = "; the rule asks for one " + limitText(limit) + " away that does not touch it";
    if (subject.measures.empty())
        return subject.element() + " has no extinguisher box, nor has the site any" + asked;
    const Measure& nearest = subject.measures.front();
    const std::string box = elementPhrase(subject.report, nearest.other);
    if (!nearest.points)
        return subject.element() + " counts as touched by " + box + " without being measured" + asked;
    if (nearest.value <= 0.0)
        return subject.element() + " is touched by " + box + asked;
    return subject.element() + " stands " + valueText(nearest) + " from the nearest box, " + box + asked;
}

std::string floorAreaSentence(const Subject& subject) {
    const Measure& area = subject.measures.front();
    return subject.element() + " has a floor of " + valueText(area) + askedFor(area);
}

std::string roomAreaSentence(const Subject& subject) {
    const Measure& area = subject.measures.front();
    return subject.element() + " has a room of " + valueText(area) + askedFor(area);
}

std::string widthSentence(const Subject& subject) {
    const Measure& width = subject.measures.front();
    return subject.element() + " is " + valueText(width) + " wide" + askedFor(width);
}

std::string stairsSentence(const Subject& subject) {
    return subject.element() + " has no stair at each end; the rule asks for both where a house has " +
           numberWord(static_cast<int>(subject.fixedLimit(1))) + " or more floors, or more than " +
           QString::number(subject.fixedLimit()).toStdString() + " m² a floor";
}

std::string loopSentence(const Subject&) {
    return "the fire roads of the site form no loop";
}

std::string oneGateSentence(const Subject& subject) {
    return relatedList(subject) + " is the only one, and the roads of the site form no closed loop";
}

std::string gatesSentence(const Subject& subject) {
    return subject.element() + " and " + relatedList(subject) +
           " lie on one side of the site: in one wall, or in two that meet at more than a right angle";
}

std::string headroomSentence(const Subject& subject) {
    Measure height;
    height.value = subject.fixedLimit() * kMetresPerMillimetre;
    return relatedList(subject) + " reaches into the " + valueText(height) + " above " + subject.element() +
           " that the rule asks to keep clear";
}

std::string cableSentence(const Subject& subject) {
    return subject.element() + " runs above " + relatedList(subject);
}

std::string absenceSentence(const Subject& subject) {
    const QString& object = subject.record.objName;
    return "the site has no " + (object.isEmpty() ? subject.record.elementType : object).toStdString();
}

/// For rules that this program has no words for.
std::string plainSentence(const Subject& subject) {
    const QString& said = subject.record.ruleDescription;
    const std::string what = (said.isEmpty() ? subject.record.name : said).toStdString();
    const std::string element = subject.record.handle == 0 ? "the site" : subject.element();
    const std::string related = relatedList(subject);
    return element + ": " + what + (related.empty() ? "" : " (" + related + ")");
}

std::string measuredSentence(const Subject& subject) {
    switch (subject.row->test) {
    case RuleTest::PrefabHouseFloorArea:
        return floorAreaSentence(subject);
    case RuleTest::PrefabHouseRoomArea:
        return roomAreaSentence(subject);
    case RuleTest::RoadMinWidth:
        return widthSentence(subject);
    default:
        return plainSentence(subject);
    }
}

/// For rules that the catalogue knows.
std::string knownSentence(const Subject& subject) {
    switch (subject.row->test) {
    case RuleTest::FireExtinguisherBox:
        return boxSentence(subject);
    case RuleTest::OverheadCable:
        return cableSentence(subject);
    case RuleTest::PrefabHouseStairs:
        return stairsSentence(subject);
    case RuleTest::RoadLoop:
        return loopSentence(subject);
    case RuleTest::OneDoorToRoadLoop:
        return oneGateSentence(subject);
    case RuleTest::DoorToDoor:
        return gatesSentence(subject);
    case RuleTest::FireRoadHeadroom:
        return headroomSentence(subject);
    default:
        return subject.measures.empty() ? plainSentence(subject) : measuredSentence(subject);
    }
}

} // namespace

std::string labelPhrase(const ElementLabel& label) {
    const std::string noun = label.noun.empty() ? "element" : label.noun;
    const std::string phrase = noun + " " + std::to_string(label.handle);
    const bool saysMore =
        !label.name.empty() && QString::fromStdString(label.name).toLower().toStdString() != noun;
    return saysMore ? phrase + " \"" + label.name + "\"" : phrase;
}

std::string elementPhrase(const CheckReport& report, long long handle) {
    if (handle == 0)
        return "an element that the drawing does not have";
    const ElementLabel* element = report.element(handle);
    return element ? labelPhrase(*element) : "element " + std::to_string(handle);
}

std::string sentenceOf(const CheckReport& report, const NuxStandardCheckRule& record,
                       const std::vector<Measure>& measures) {
    const Subject subject{report, record, measures, findRule(record.name, record.type)};
    if (record.type == QLatin1String("without"))
        return absenceSentence(subject);
    if (record.type == QLatin1String("distant") && !measures.empty())
        return distanceSentence(subject);
    return subject.row ? knownSentence(subject) : plainSentence(subject);
}

} // namespace firestandard
