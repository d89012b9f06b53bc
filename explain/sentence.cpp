#include "explain/sentence.h"

#include "evaluators/rule_catalogue.h"
#include "explain/Words.h"
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
QString listed(const QStringList& named, std::size_t total) {
    QStringList parts = named;
    const int others = static_cast<int>(total) - static_cast<int>(named.size());
    if (others > 0)
        parts << (others == 1 ? Words::tr("1 other") : Words::tr("%n others", "", others));
    const QString last = parts.takeLast();
    return parts.isEmpty()
               ? last
               : Words::tr("%1 and %2", "end of a list").arg(parts.join(Words::tr(", ", "in a list")), last);
}

QString relatedList(const Subject& subject) {
    const auto& handles = subject.record.relatedHandles;
    QStringList named;
    for (std::size_t i = 0; i < handles.size() && i < kMostNamed; ++i)
        named << QString::fromStdString(elementPhrase(subject.report, handles[i]));
    return named.isEmpty() ? QString() : listed(named, handles.size());
}

QString distancePhrase(const Subject& subject, const Measure& measure) {
    const auto other = QString::fromStdString(elementPhrase(subject.report, measure.other));
    if (!measure.points)
        return Words::tr("counts as touching %1 without being measured").arg(other);
    if (measure.value <= 0.0)
        return Words::tr("touches or overlaps %1").arg(other);
    const bool isRoad = subject.record.elementType == QLatin1String("NUX_EDO_TYPE_ROAD");
    return (isRoad ? Words::tr("lies %1 from %2") : Words::tr("stands %1 from %2"))
        .arg(placed(valueText(measure)), other);
}

std::string distanceSentence(const Subject& subject) {
    QStringList named;
    for (std::size_t i = 0; i < subject.measures.size() && i < kMostNamed; ++i)
        named << distancePhrase(subject, subject.measures[i]);
    return filled(Words::tr("%1 %2; the rule asks for %3", "element, distances, limits"), subject.element(),
                  listed(named, subject.measures.size()), limitText(subject.measures.front()));
}

std::string boxSentence(const Subject& subject) {
    Measure limit;
    limit.maximum = subject.fixedLimit() * kMetresPerMillimetre;
    const std::string reach = limitText(limit);
    if (subject.measures.empty())
        return filled(
            Words::tr("%1 has no extinguisher box, nor has the site any; the rule asks for one %2 away "
                      "that does not touch it"),
            subject.element(), reach);
    const Measure& nearest = subject.measures.front();
    const std::string box = elementPhrase(subject.report, nearest.other);
    if (!nearest.points)
        return filled(
            Words::tr("%1 counts as touched by %2 without being measured; the rule asks for one %3 away "
                      "that does not touch it"),
            subject.element(), box, reach);
    if (nearest.value <= 0.0)
        return filled(Words::tr("%1 is touched by %2; the rule asks for one %3 away that does not touch it"),
                      subject.element(), box, reach);
    return filled(
        Words::tr("%1 stands %2 from the nearest box, %3; the rule asks for one %4 away that does not "
                  "touch it"),
        subject.element(), valueText(nearest), box, reach);
}

std::string floorAreaSentence(const Subject& subject) {
    const Measure& area = subject.measures.front();
    return filled(Words::tr("%1 has a floor of %2; the rule asks for %3"), subject.element(), valueText(area),
                  limitText(area));
}

std::string roomAreaSentence(const Subject& subject) {
    const Measure& area = subject.measures.front();
    return filled(Words::tr("%1 has a room of %2; the rule asks for %3"), subject.element(), valueText(area),
                  limitText(area));
}

std::string widthSentence(const Subject& subject) {
    const Measure& width = subject.measures.front();
    return filled(Words::tr("%1 is %2 wide; the rule asks for %3"), subject.element(), valueText(width),
                  limitText(width));
}

std::string stairsSentence(const Subject& subject) {
    return filled(
        Words::tr("%1 has no stair at each end; the rule asks for both where a house has %2 or more "
                  "floors, or more than %3 m² a floor"),
        subject.element(), numberWord(static_cast<int>(subject.fixedLimit(1))),
        QString::number(subject.fixedLimit()));
}

std::string loopSentence(const Subject&) {
    return filled(Words::tr("the fire roads of the site form no loop"));
}

std::string oneGateSentence(const Subject& subject) {
    return filled(Words::tr("%1 is the only one, and the roads of the site form no closed loop"),
                  relatedList(subject));
}

std::string gatesSentence(const Subject& subject) {
    return filled(
        Words::tr("%1 and %2 lie on one side of the site: in one wall, or in two that meet at more than "
                  "a right angle"),
        subject.element(), relatedList(subject));
}

std::string headroomSentence(const Subject& subject) {
    Measure height;
    height.value = subject.fixedLimit() * kMetresPerMillimetre;
    return filled(Words::tr("%1 reaches into the %2 above %3 that the rule asks to keep clear"),
                  relatedList(subject), valueText(height), subject.element());
}

std::string cableSentence(const Subject& subject) {
    return filled(Words::tr("%1 runs above %2"), subject.element(), relatedList(subject));
}

std::string absenceSentence(const Subject& subject) {
    const QString& object = subject.record.objName;
    return filled(Words::tr("the site has no %1"), object.isEmpty() ? subject.record.elementType : object);
}

/// For rules that this program has no words for.
std::string plainSentence(const Subject& subject) {
    const QString& said = subject.record.ruleDescription;
    const QString& what = said.isEmpty() ? subject.record.name : said;
    const QString element = subject.record.handle == 0 ? Words::tr("the site") : placed(subject.element());
    const QString related = relatedList(subject);
    return related.isEmpty() ? filled(Words::tr("%1: %2", "element, what is wrong"), element, what)
                             : filled(Words::tr("%1: %2 (%3)", "element, what is wrong, related elements"),
                                      element, what, related);
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
    const QString noun = label.noun.empty() ? Words::tr("element") : placed(label.noun);
    const bool saysMore = !label.name.empty() && placed(label.name).toLower() != noun;
    return saysMore ? filled(Words::tr("%1 %2 \"%3\"", "noun, handle, name"), noun, label.handle, label.name)
                    : filled(Words::tr("%1 %2", "noun, handle"), noun, label.handle);
}

std::string elementPhrase(const CheckReport& report, long long handle) {
    if (handle == 0)
        return filled(Words::tr("an element that the drawing does not have"));
    const ElementLabel* element = report.element(handle);
    return element ? labelPhrase(*element) : filled(Words::tr("element %1"), handle);
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
