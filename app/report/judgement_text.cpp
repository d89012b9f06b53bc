#include "report/judgement_text.h"

#include "evaluators/rule_catalogue.h"

namespace firecheck {

using firestandard::NotJudged;

namespace {

/// Of violations that name no element. Those of gates are about one that the drawing does not have.
std::string withoutElementText(const JudgedRule& judged) {
    const firestandard::RuleRow* row = firestandard::findRule(judged.rule.name, judged.rule.type);
    return row && row->test == firestandard::RuleTest::DoorToDoor
               ? "a gate that is not in the drawing offends"
               : "the site as a whole offends";
}

std::string offendersText(const JudgedRule& judged) {
    if (judged.offending > 0)
        return std::to_string(judged.offending) + (judged.offending == 1 ? " offends" : " offend");
    if (judged.violations > 0)
        return withoutElementText(judged);
    return judged.canOffend ? "none offends" : "none can offend as the rule is written";
}

/// Why elements were not judged: "on the ground".
const char* reasonText(NotJudged why) {
    switch (why) {
    case NotJudged::NoOutline:
        return "without an outline";
    case NotJudged::OutlineCrossesItself:
        return "with an outline that crosses itself";
    case NotJudged::NoCentreLine:
        return "since a centre line cannot be joined";
    case NotJudged::OnTheGround:
        return "on the ground";
    case NotJudged::NoRooms:
        return "without rooms";
    case NotJudged::NoNeighbour:
        return "without a neighbour that has one door";
    case NotJudged::NothingToCompare:
        return "nothing to compare with";
    case NotJudged::NeverMeasured:
        return "never measured against elements of the other type";
    case NotJudged::OtherUse:
        return "of another use";
    case NotJudged::DidNotOpen:
        return "with a door that does not open";
    case NotJudged::NoBoxMeasurable:
        return "to which no box has a measurable distance";
    case NotJudged::RuleEndedBefore:
        return "after the end of the rule";
    }
    return "";
}

/// The note says it already where a rule ended early.
bool isInNote(NotJudged why) {
    return why == NotJudged::NoBoxMeasurable || why == NotJudged::RuleEndedBefore;
}

/// Why elements were not judged; with their numbers where there are several reasons.
std::string reasonsText(const JudgedRule& judged) {
    std::string text;
    for (const auto& [why, count] : judged.unjudged) {
        if (isInNote(why))
            continue;
        const std::string number = judged.unjudged.size() > 1 ? std::to_string(count) + " " : "";
        text += (text.empty() ? "" : ", ") + number + reasonText(why);
    }
    return text;
}

std::string nothingJudgedText(const JudgedRule& judged) {
    if (judged.found == 0)
        return "nothing to judge";
    const std::string reasons = reasonsText(judged);
    return "nothing to judge: " + std::to_string(judged.found) + " found" +
           (reasons.empty() ? "" : ", " + reasons);
}

std::string judgedText(const JudgedRule& judged) {
    const std::string text = std::to_string(judged.found) + " found, " + offendersText(judged) +
                             (judged.neverMeasuredPairs > 0
                                  ? ", " + std::to_string(judged.neverMeasuredPairs) + " pairs never measured"
                                  : "");
    std::size_t unjudged = 0;
    for (const auto& entry : judged.unjudged)
        unjudged += entry.second;
    if (unjudged == 0)
        return text;
    const std::string reasons = reasonsText(judged);
    return text + ", " + std::to_string(unjudged) + " not judged" + (reasons.empty() ? "" : ": " + reasons);
}

std::string verdictText(const JudgedRule& judged) {
    switch (judged.verdict) {
    case JudgedRule::Verdict::NoEvaluator:
        return "no evaluator knows this rule";
    case JudgedRule::Verdict::NothingToJudge:
        return nothingJudgedText(judged);
    case JudgedRule::Verdict::Judged:
        break;
    }
    if (judged.rule.type == QLatin1String("without"))
        return judged.violations > 0 ? "looked for, missing" : "looked for, present";
    return judgedText(judged);
}

} // namespace

std::string judgementText(const JudgedRule& judged) {
    return verdictText(judged) + (judged.note.empty() ? "" : " (" + judged.note + ")");
}

} // namespace firecheck
