#include "suggest/action_text.h"

#include "explain/Finding.h"
#include "explain/Words.h"
#include "explain/measure_text.h"

#include <QString>

#include <cmath>

namespace firecheck {

using firestandard::kMetresPerMillimetre;
using firestandard::Measure;
using firestandard::Quantity;
using firestandard::Words;

namespace {

QString shown(const std::string& text) {
    return QString::fromStdString(text);
}

/// In metres: two decimals, and as many more as it takes to tell the value from others.
QString metresText(double millimetres) {
    constexpr int fewestDecimals = 2;
    constexpr int mostDecimals = 8;
    constexpr double noise = 1e-9;
    const double metres = millimetres * kMetresPerMillimetre;
    if (std::abs(metres) >= firestandard::kBeyondAnySite)
        return QString::number(metres, 'g');
    QString text;
    for (int decimals = fewestDecimals; decimals <= mostDecimals; ++decimals) {
        text = QString::number(metres, 'f', decimals);
        if (std::abs(text.toDouble() - metres) < noise)
            break;
    }
    return text;
}

/// Along an axis or at 45 degrees, which have a name; the length of the latter is followed by its parts.
QString namedMoveText(const QString& element, const PlanMove& move) {
    const QString length =
        QString::number(move.length() * kMetresPerMillimetre, 'f', 2) + QStringLiteral(" m");
    const QString part = lengthText(double(std::abs(move.dx)));
    if (move.dx == 0)
        return (move.dy > 0 ? Words::tr("Move %1 %2 north") : Words::tr("Move %1 %2 south"))
            .arg(element, length);
    if (move.dy == 0)
        return (move.dx > 0 ? Words::tr("Move %1 %2 east") : Words::tr("Move %1 %2 west"))
            .arg(element, length);
    if (move.dx > 0)
        return (move.dy > 0 ? Words::tr("Move %1 %2 north-east, %3 on each axis")
                            : Words::tr("Move %1 %2 south-east, %3 on each axis"))
            .arg(element, length, part);
    return (move.dy > 0 ? Words::tr("Move %1 %2 north-west, %3 on each axis")
                        : Words::tr("Move %1 %2 south-west, %3 on each axis"))
        .arg(element, length, part);
}

QString moveText(const QString& element, const PlanMove& move) {
    if (move.dx == 0 || move.dy == 0 || std::abs(move.dx) == std::abs(move.dy))
        return namedMoveText(element, move);
    const QString x = lengthText(double(std::abs(move.dx)));
    const QString y = lengthText(double(std::abs(move.dy)));
    if (move.dx > 0)
        return (move.dy > 0 ? Words::tr("Move %1 %2 east and %3 north")
                            : Words::tr("Move %1 %2 east and %3 south"))
            .arg(element, x, y);
    return (move.dy > 0 ? Words::tr("Move %1 %2 west and %3 north")
                        : Words::tr("Move %1 %2 west and %3 south"))
        .arg(element, x, y);
}

QString positionsText(const std::vector<double>& positions) {
    QStringList texts;
    for (const double position : positions)
        texts << metresText(position);
    return texts.join(QStringLiteral(", "));
}

QString coordinate(const Json& point, std::size_t axis) {
    return metresText(point[axis].get<double>());
}

QString addedBoxText(const Json& box) {
    const Json& at = box.at("position");
    return Words::tr("Add an extinguisher box at (%1, %2) m").arg(coordinate(at, 0), coordinate(at, 1));
}

QString addedText(const Change& change) {
    const Json& object = change.front().object;
    if (object.at("class") == "extinguisherBox")
        return addedBoxText(object);
    const Json& at = object.at("center");
    const QString className = shown(object.at("class").get<std::string>());
    const QString size = lengthText(object.at("length").get<double>());
    const QString depth = lengthText(object.at("depth").get<double>());
    const QString x = coordinate(at, 0);
    const QString y = coordinate(at, 1);
    return (change.size() == 1
                ? Words::tr("Add an object of class %1 and use \"%2\" at (%3, %4) m, %5 by %6")
                : Words::tr(
                      "Add an object of class %1 and use \"%2\" at (%3, %4) m, %5 by %6, with an extinguisher "
                      "box beside it"))
        .arg(className, useText(object.at("use")), x, y, size, depth);
}

QString turnText(const QString& element, double degrees) {
    return (degrees > 0.0 ? Words::tr("Turn %1 by %2° counter-clockwise")
                          : Words::tr("Turn %1 by %2° clockwise"))
        .arg(element, QString::number(std::abs(degrees)));
}

QString doneText(const TrialSite& site, const Proposal& proposal) {
    const Action& action = proposal.action;
    if (action.kind == Action::Kind::Add)
        return addedText(proposal.change);
    const QString element = shown(site.element(action.index).phrase);
    switch (action.kind) {
    case Action::Kind::Move:
        return moveText(element, action.move);
    case Action::Kind::Turn:
        return turnText(element, action.value);
    case Action::Kind::Widen:
        return Words::tr("Widen %1 to %2").arg(element, lengthText(action.value));
    case Action::Kind::Raise:
        return Words::tr("Raise %1 by %2").arg(element, lengthText(action.value));
    case Action::Kind::Bury:
        return Words::tr("Lay %1 in the ground, %2 deep").arg(element, lengthText(action.value));
    case Action::Kind::BothStairs:
        return Words::tr("Give %1 a stair at each end").arg(element);
    case Action::Kind::Floors:
        return Words::tr("Give %1 %2 floors instead of %3")
            .arg(element, QString::number(action.value), QString::number(action.before));
    case Action::Kind::Shorten:
        return Words::tr("Shorten %1 to %2 from %3")
            .arg(element, lengthText(action.value), lengthText(action.before));
    case Action::Kind::Partitions:
        return Words::tr("Set the partitions of %1 at %2 m along it")
            .arg(element, positionsText(action.positions));
    case Action::Kind::MakeFireRoad:
        return Words::tr("Make %1 a fire road").arg(element);
    case Action::Kind::Add:
        break;
    }
    return {};
}

/// The one nearest to its limit of those that the change is for; nothing where nothing is measured.
std::optional<std::pair<Offence, JudgedValue>> tellingValue(const Proposal& proposal,
                                                            const Targets& targets) {
    std::optional<std::pair<Offence, JudgedValue>> telling;
    for (Offence offence : targets) {
        offence.isTouched = false;
        const auto found = proposal.after.values.find(offence);
        if (found != proposal.after.values.end() &&
            (!telling || found->second.measurement.value < telling->second.measurement.value))
            telling = *found;
    }
    return telling;
}

QString valueText(const JudgedValue& judged) {
    Measure measure;
    const bool isArea = judged.measurement.quantity == Quantity::Area;
    measure.kind = isArea ? Measure::Kind::Area : Measure::Kind::Distance;
    const double unit = isArea ? 1.0 : kMetresPerMillimetre;
    measure.value = judged.measurement.value * unit;
    if (judged.measurement.minimum)
        measure.minimum = *judged.measurement.minimum * unit;
    if (judged.measurement.maximum)
        measure.maximum = *judged.measurement.maximum * unit;
    return shown(firestandard::valueText(measure));
}

} // namespace

const char* actionName(Action::Kind kind) {
    switch (kind) {
    case Action::Kind::Turn:
        return "turn";
    case Action::Kind::Widen:
        return "widen";
    case Action::Kind::Raise:
        return "raise";
    case Action::Kind::Bury:
        return "bury";
    case Action::Kind::BothStairs:
        return "stairs";
    case Action::Kind::Floors:
        return "floors";
    case Action::Kind::Shorten:
        return "shorten";
    case Action::Kind::Partitions:
        return "partitions";
    case Action::Kind::MakeFireRoad:
        return "fireRoad";
    case Action::Kind::Add:
        return "add";
    case Action::Kind::Move:
        break;
    }
    return "move";
}

QString lengthText(double millimetres) {
    return metresText(millimetres) + QStringLiteral(" m");
}

QString useText(const Json& use) {
    return shown(use.is_string() ? use.get<std::string>() : use.dump());
}

std::string proposalText(const TrialSite& site, const Proposal& proposal, const Targets& targets) {
    const QString done = doneText(site, proposal);
    const auto value = tellingValue(proposal, targets);
    const QString rule = site.judge().rule(value ? value->first : *targets.begin()).name;
    return (value ? Words::tr("%1: %2 then measures %3").arg(done, rule, valueText(value->second))
                  : Words::tr("%1: %2 is then kept").arg(done, rule))
        .toStdString();
}

} // namespace firecheck
