#include "report/judgement_text.h"

#include "evaluators/rule_catalogue.h"
#include "text/words.h"

#include <QStringList>

namespace firecheck {

using firestandard::NotJudged;

namespace {

/// Of violations that name no element. Those of gates are about one that the drawing does not have.
QString withoutElementText(const JudgedRule& judged) {
    const firestandard::RuleRow* row = firestandard::findRule(judged.rule.name, judged.rule.type);
    return row && row->test == firestandard::RuleTest::DoorToDoor
               ? Words::tr("a gate that is not in the drawing offends")
               : Words::tr("the site as a whole offends");
}

QString offendersText(const JudgedRule& judged) {
    if (judged.offending > 0)
        return judged.offending == 1 ? Words::tr("1 offends")
                                     : Words::tr("%n offend", "", static_cast<int>(judged.offending));
    if (judged.violations > 0)
        return withoutElementText(judged);
    return judged.canOffend ? Words::tr("none offends") : Words::tr("none can offend as the rule is written");
}

/// Why elements were not judged: "on the ground".
QString reasonText(NotJudged why) {
    switch (why) {
    case NotJudged::NoOutline:
        return Words::tr("without an outline");
    case NotJudged::OutlineCrossesItself:
        return Words::tr("with an outline that crosses itself");
    case NotJudged::NoCentreLine:
        return Words::tr("since a centre line cannot be joined");
    case NotJudged::OnTheGround:
        return Words::tr("on the ground");
    case NotJudged::NoRooms:
        return Words::tr("without rooms");
    case NotJudged::NoNeighbour:
        return Words::tr("without a neighbour that has one door");
    case NotJudged::NothingToCompare:
        return Words::tr("nothing to compare with");
    case NotJudged::NeverMeasured:
        return Words::tr("never measured against elements of the other type");
    case NotJudged::OtherUse:
        return Words::tr("of another use");
    case NotJudged::DidNotOpen:
        return Words::tr("with a door that does not open");
    case NotJudged::NoBoxMeasurable:
        return Words::tr("to which no box has a measurable distance");
    case NotJudged::RuleEndedBefore:
        return Words::tr("after the end of the rule");
    }
    return {};
}

/// The note says it already where a rule ended early.
bool isInNote(NotJudged why) {
    return why == NotJudged::NoBoxMeasurable || why == NotJudged::RuleEndedBefore;
}

/// Why elements were not judged; with their numbers where there are several reasons.
QString reasonsText(const JudgedRule& judged) {
    QStringList reasons;
    for (const auto& [why, count] : judged.unjudged)
        if (!isInNote(why))
            reasons << (judged.unjudged.size() > 1
                            ? Words::tr("%1 %2", "count, why not judged").arg(placed(count), reasonText(why))
                            : reasonText(why));
    return reasons.join(Words::tr(", "));
}

QString nothingJudgedText(const JudgedRule& judged) {
    if (judged.found == 0)
        return Words::tr("nothing to judge");
    const QString reasons = reasonsText(judged);
    return reasons.isEmpty()
               ? Words::tr("nothing to judge: %1 found").arg(placed(judged.found))
               : Words::tr("nothing to judge: %1 found, %2", "count, why").arg(placed(judged.found), reasons);
}

QString judgedText(const JudgedRule& judged) {
    QStringList parts{
        Words::tr("%1 found, %2", "count, outcome").arg(placed(judged.found), offendersText(judged))};
    if (judged.neverMeasuredPairs > 0)
        parts << Words::tr("%1 pairs never measured").arg(placed(judged.neverMeasuredPairs));
    std::size_t unjudged = 0;
    for (const auto& entry : judged.unjudged)
        unjudged += entry.second;
    const QString reasons = reasonsText(judged);
    if (unjudged > 0)
        parts << (reasons.isEmpty()
                      ? Words::tr("%1 not judged", "count").arg(placed(unjudged))
                      : Words::tr("%1 not judged: %2", "count, why").arg(placed(unjudged), reasons));
    return parts.join(Words::tr(", "));
}

QString verdictText(const JudgedRule& judged) {
    switch (judged.verdict) {
    case JudgedRule::Verdict::NoEvaluator:
        return Words::tr("no evaluator knows this rule");
    case JudgedRule::Verdict::NothingToJudge:
        return nothingJudgedText(judged);
    case JudgedRule::Verdict::Judged:
        break;
    }
    if (judged.rule.type == QLatin1String("without"))
        return judged.violations > 0 ? Words::tr("looked for, missing") : Words::tr("looked for, present");
    return judgedText(judged);
}

} // namespace

std::string judgementText(const JudgedRule& judged) {
    const QString verdict = verdictText(judged);
    return judged.note.empty() ? filled(verdict)
                               : filled(Words::tr("%1 (%2)", "outcome, note"), verdict, judged.note);
}

} // namespace firecheck
