#include "report/plan/plan_svg.h"

#include "explain/Words.h"
#include "explain/measure_text.h"
#include "report/assets.h"
#include "report/drawn_measures.h"
#include "report/escape.h"
#include "report/plan/element_spot.h"
#include "report/plan/plan_ghosts.h"
#include "report/plan/plan_kinds.h"
#include "report/plan/plan_labels.h"
#include "report/plan/plan_path.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace firecheck {

using firestandard::PlanPoint;
using firestandard::Words;

namespace {

constexpr std::size_t kColours = 10;
constexpr std::size_t kPatterns = 8;
constexpr int kLongestLabel = 26;
constexpr int kFirstLevelOfMinor = 2;
constexpr double kFarShare = 0.3; ///< of the plan's diagonal; longer lines step back

/// The texts and pins of the plan, by the first and the last level at which they stand.
using LabelGroups = std::map<std::pair<int, int>, QString>;

/// The arrow that points where a move goes, of eight.
QString directionSign(const PlanPoint& move) {
    static const QString kSigns = QStringLiteral("→↗↑↖←↙↓↘");
    constexpr int count = 8;
    const int eighths = int(std::lround(std::atan2(move.y, move.x) * count / (2.0 * M_PI)));
    return kSigns.mid((eighths + count) % count, 1);
}

/// Draws the plan of one site.
class PlanDrawing {
public:
    /// With `hasList` pins link to their findings.
    PlanDrawing(const SiteReport& report, const std::vector<MergedFinding>& merged, PlanIds ids, bool hasList)
        : m_report(report), m_merged(merged), m_ids(std::move(ids)), m_hasList(hasList),
          m_frame(report.plan) {
        for (const firestandard::UnjudgedElement& element : report.unjudged)
            m_unjudged.insert(element.handle);
        for (std::size_t i = 0; i < merged.size(); ++i) {
            const long long handle = report.record(finding(i)).handle;
            if (handle != 0)
                m_findingsByHandle[handle].push_back(i);
        }
        if (!m_frame.isEmpty())
            m_pins = placePins(pinnedElements(), merged, m_frame.width());
    }

    QString svg(const QString& attributes, const QString& head) const {
        if (m_frame.isEmpty())
            return {};
        const QString name = escaped(m_report.siteName.empty() ? m_report.fileName : m_report.siteName);
        return "<svg" + attributes + " viewBox=\"0 0 " + drawnNumber(m_frame.width()) + " " +
               drawnNumber(m_frame.height()) + "\" font-size=\"" +
               drawnNumber(labelHeight(m_frame.width(), kLevelWithoutScripts)) +
               "\" role=\"group\" aria-label=\"" + Words::tr("Plan of %1").arg(name) + "\">\n" + head +
               "<g class=\"ground\">\n" + elements() + ghosts() + measures() + "</g>\n" + labels() +
               scaleBar() + north() + "</svg>\n";
    }

    std::vector<PlanPin> takePins() { return std::move(m_pins); }

private:
    const Finding& finding(std::size_t merged) const {
        return m_report.findings[m_merged[merged].numbers.front() - 1];
    }
    QString numberOf(std::size_t merged) const { return QString::number(m_merged[merged].numbers.front()); }
    QString coloursOf(std::size_t merged) const { return colourClasses(m_merged[merged].rules.front()); }
    bool isAccepted(std::size_t merged) const { return finding(merged).acceptedBecause.has_value(); }
    bool isNumbered(long long handle) const { return m_findingsByHandle.count(handle) != 0; }

    QString elements() const {
        std::vector<const PlanShape*> shapes;
        for (const PlanShape& shape : m_report.plan)
            shapes.push_back(&shape);
        std::stable_sort(shapes.begin(), shapes.end(),
                         [](const PlanShape* a, const PlanShape* b) { return a->kind < b->kind; });
        QString text = "<g class=\"elements\">\n";
        for (const PlanShape* shape : shapes)
            text += element(*shape);
        return text + "</g>\n";
    }

    /// The colour is that of the first finding that nobody has accepted.
    QString element(const PlanShape& shape) const {
        QString classes = QStringLiteral("element ") + kindClass(shape.kind);
        QString title = escaped(shape.title);
        if (m_unjudged.count(shape.handle) != 0) {
            classes += " unjudged";
            title = Words::tr("%1, not judged", "an element").arg(title);
        }
        const auto findings = m_findingsByHandle.find(shape.handle);
        if (findings != m_findingsByHandle.end()) {
            const auto open = std::find_if(findings->second.begin(), findings->second.end(),
                                           [this](std::size_t merged) { return !isAccepted(merged); });
            classes += open == findings->second.end() ? " excused" : " offends " + coloursOf(*open);
        }
        return "<path class=\"" + classes + "\" id=\"" + m_ids.element(shape.handle) + "\" d=\"" +
               pathData(shape, m_frame) + "\"><title>" + title + "</title></path>\n";
    }

    template <class Visit> void everyMeasure(Visit visit) const {
        for (std::size_t i = 0; i < m_merged.size(); ++i)
            for (const Measure* const measure : drawnMeasures(m_report.record(finding(i)), finding(i)))
                visit(i, *measure, m_frame.drawn(measure->points->onElement),
                      m_frame.drawn(measure->points->onOther));
    }

    bool isFar(const DrawnPoint& from, const DrawnPoint& to) const {
        return std::hypot(from.x - to.x, from.y - to.y) >
               kFarShare * std::hypot(m_frame.width(), m_frame.height());
    }

    QString measures() const {
        QString text = "<g class=\"measures\">\n";
        everyMeasure([&](std::size_t i, const Measure&, const DrawnPoint& from, const DrawnPoint& to) {
            text += "<path class=\"measure " + coloursOf(i) + (isFar(from, to) ? " far" : "") +
                    (isAccepted(i) ? " excused" : "") + "\" data-finding=\"" + numberOf(i) + "\" d=\"M" +
                    drawnPair(from) + "L" + drawnPair(to) + "\"/>\n";
        });
        return text + "</g>\n";
    }

    /// What stands for a finding in the plan, and the number by which scripts find it.
    QString marked(const QString& classes, std::size_t merged) const {
        return " class=\"" + classes + " " + coloursOf(merged) + (isAccepted(merged) ? " excused" : "") +
               "\" data-finding=\"" + numberOf(merged) + "\"";
    }

    const Suggestion* suggestion(std::size_t merged) const {
        return suggestionFor(m_report, m_merged[merged].numbers.front() - 1);
    }

    QString ghosts() const {
        if (!m_report.suggestions)
            return {};
        QString text = "<g class=\"ghosts\">\n";
        for (std::size_t i = 0; i < m_merged.size(); ++i)
            if (const Suggestion* change = suggestion(i); change && !change->steps.empty())
                text += "<g" + marked("ghost", i) + ">\n" + planGhosts(*change, m_frame) + "</g>\n";
        return text + "</g>\n";
    }

    QString labels() const {
        std::vector<PlanLabel> labels;
        appendMeasureTexts(labels);
        appendMoveTexts(labels);
        appendNames(labels);
        placeLabels(labels, pinRooms(m_pins, m_merged, m_frame.width()), m_frame.width(), m_frame.height());
        LabelGroups groups;
        for (const PlanLabel& label : labels)
            if (label.level >= 0)
                groups[{label.level, kLabelLevels - 1}] += labelText(label);
        for (const PlanPin& pin : m_pins)
            groups[{pin.firstLevel, pin.lastLevel}] += pin.isCluster ? cluster(pin) : pinRow(pin);
        QString text = "<g class=\"labels\">\n";
        for (const auto& [levels, content] : groups)
            text += "<g class=\"l" + QString::number(levels.first) + " u" + QString::number(levels.second) +
                    "\">\n" + content + "</g>\n";
        return text + "</g>\n";
    }

    PlanLabel labelAt(const PlanShape& shape) const {
        const ElementSpot spot = elementSpot(shape);
        PlanLabel label;
        label.middle = m_frame.drawn(spot.point);
        label.halfWidth = spot.halfWidth * kMetresPerMillimetre;
        label.halfHeight = spot.halfHeight * kMetresPerMillimetre;
        return label;
    }

    std::vector<PinnedElement> pinnedElements() const {
        std::vector<PinnedElement> elements;
        for (const PlanShape& shape : m_report.plan) {
            const auto findings = m_findingsByHandle.find(shape.handle);
            if (findings != m_findingsByHandle.end())
                elements.push_back({m_frame.drawn(elementSpot(shape).point), findings->second});
        }
        return elements;
    }

    QString pinRow(const PlanPin& row) const {
        double width = -kPinGap;
        for (const std::size_t merged : row.findings)
            width += pinWidth(pinText(m_merged[merged])) + kPinGap;
        double left = -0.5 * width;
        QString text;
        for (const std::size_t merged : row.findings) {
            const QString number = pinText(m_merged[merged]);
            const QString attributes = " class=\"pin " + coloursOf(merged) +
                                       (isAccepted(merged) ? " excused" : "") + "\" data-finding=\"" +
                                       numberOf(merged) + "\"";
            const QString name = Words::tr("Violation %1").arg(numbersText(m_merged[merged].numbers));
            text += badge(row, attributes, name, number, left);
            left += pinWidth(number) + kPinGap;
        }
        return text;
    }

    QString cluster(const PlanPin& pin) const {
        QStringList numbers;
        for (const std::size_t merged : pin.findings)
            numbers << numberOf(merged);
        const QString text = clusterText(pin, m_merged);
        const QString attributes =
            QStringLiteral(" class=\"pin cluster\" data-findings=\"") + numbers.join(' ') + "\"";
        const int count = static_cast<int>(pin.findings.size());
        return badge(pin, attributes, Words::tr("%n violations, from %1 on", "", count).arg(numbers.front()),
                     text, -0.5 * pinWidth(text));
    }

    QString badge(const PlanPin& pin, const QString& attributes, const QString& name, const QString& text,
                  double left) const {
        const double width = pinWidth(text);
        const QString content = "<rect x=\"" + inLabelHeights(left) + "\" y=\"" +
                                inLabelHeights(-0.5 * kPinHeight) + "\" width=\"" + inLabelHeights(width) +
                                "\" height=\"" + inLabelHeights(kPinHeight) + "\" rx=\"" +
                                inLabelHeights(0.5 * kPinHeight) + "\"/><text x=\"" +
                                inLabelHeights(left + 0.5 * width) + "\">" + text + "</text>";
        const QString place = placed(pin.spot);
        if (!m_hasList)
            return "<g" + attributes + place + ">" + content + "</g>\n";
        return "<a" + attributes + place + " href=\"#" +
               m_ids.finding(m_merged[pin.findings.front()].numbers.front()) + "\" aria-label=\"" + name +
               "\">" + content + "</a>\n";
    }

    static QString placed(const DrawnPoint& point) {
        return " transform=\"translate(" + drawnPair(point) + ")\"";
    }

    static QString inLabelHeights(double length) {
        return QString::number(std::round(length * 100.0) / 100.0) + "em";
    }

    void appendMeasureTexts(std::vector<PlanLabel>& labels) const {
        everyMeasure(
            [&](std::size_t i, const Measure& measure, const DrawnPoint& from, const DrawnPoint& to) {
                if (isFar(from, to))
                    return;
                PlanLabel label;
                label.text = QString::fromStdString(firestandard::valueText(measure));
                label.attributes = " class=\"value " + coloursOf(i) + (isAccepted(i) ? " excused" : "") +
                                   "\" data-finding=\"" + numberOf(i) + "\"";
                label.middle = {0.5 * (from.x + to.x), 0.5 * (from.y + to.y)};
                label.halfWidth = 0.5 * std::abs(from.x - to.x);
                label.halfHeight = 0.5 * std::abs(from.y - to.y);
                labels.push_back(label);
            });
    }

    /// How far an element would be moved, beside its arrow.
    void appendMoveTexts(std::vector<PlanLabel>& labels) const {
        for (std::size_t i = 0; i < m_merged.size(); ++i) {
            const Suggestion* change = suggestion(i);
            for (std::size_t step = 0; change && step < change->steps.size(); ++step) {
                const SuggestedStep& suggested = change->steps[step];
                const SuggestedObject& object = suggested.objects.front();
                if (!suggested.move || !object.from || !object.to)
                    continue;
                PlanLabel label;
                label.text =
                    directionSign(*suggested.move) + " " +
                    Words::tr("%1 m").arg(std::hypot(suggested.move->x, suggested.move->y), 0, 'f', 2);
                label.attributes = marked("value move", i);
                label.middle = m_frame.drawn(*object.to);
                labels.push_back(label);
            }
        }
    }

    /// Offending elements first, then the larger before the smaller.
    void appendNames(std::vector<PlanLabel>& labels) const {
        std::vector<const PlanShape*> shapes;
        for (const PlanShape& shape : m_report.plan)
            if (shape.kind != PlanKind::Wall || isNumbered(shape.handle))
                shapes.push_back(&shape);
        const auto rank = [&](const PlanShape* shape) {
            const hrx::CVec2<double> size = shape->box.high - shape->box.low;
            return std::make_pair(!isNumbered(shape->handle), -size.x * size.y);
        };
        std::stable_sort(shapes.begin(), shapes.end(),
                         [&](const PlanShape* a, const PlanShape* b) { return rank(a) < rank(b); });
        for (const PlanShape* shape : shapes) {
            PlanLabel label = labelAt(*shape);
            label.text = QString::fromStdString(shape->label);
            if (label.text.size() > kLongestLabel)
                label.text = label.text.left(kLongestLabel - 1).trimmed() + QStringLiteral("…");
            label.attributes = " class=\"name\"";
            label.mustFitElement = true;
            label.firstLevel = isMinor(shape->kind) ? kFirstLevelOfMinor : 0;
            label.firstLevelBeside = isRoad(shape->kind)         ? kLabelLevels
                                     : isNumbered(shape->handle) ? 0
                                                                 : std::max(label.firstLevel, 1);
            labels.push_back(label);
        }
    }

    static QString labelText(const PlanLabel& label) {
        const DrawnPoint anchor = labelAnchor(label);
        const double drop = labelDrop(label.place);
        QString attributes = label.attributes;
        if (label.place == PlanLabel::Place::Right)
            attributes = beside(attributes, "right", 0.3);
        if (label.place == PlanLabel::Place::Left)
            attributes = beside(attributes, "left", -0.3);
        if (drop != 0.0)
            attributes += " dy=\"" + inLabelHeights(drop) + "\"";
        return "<text" + attributes + placed(anchor) + ">" + escaped(label.text) + "</text>\n";
    }

    static QString beside(QString attributes, const QString& side, double shift) {
        attributes.insert(attributes.indexOf('"') + 1, side + " ");
        return attributes + " dx=\"" + inLabelHeights(shift) + "\"";
    }

    /// A round length of about a fifth of the plan.
    QString scaleBar() const {
        const double wanted = m_frame.width() / 5.0;
        const double power = std::pow(10.0, std::floor(std::log10(wanted)));
        const double length = power * (wanted >= 5.0 * power ? 5.0 : wanted >= 2.0 * power ? 2.0 : 1.0);
        const double y = m_frame.height() - m_frame.margin();
        const double tick = m_frame.margin() / 3.0;
        const double x = m_frame.margin();
        return "<g class=\"scale\"><path d=\"M" + drawnPair({x, y - tick}) + "V" + drawnNumber(y) + "H" +
               drawnNumber(x + length) + "V" + drawnNumber(y - tick) +
               "\"/><text class=\"right\" dx=\".3em\" x=\"" + drawnNumber(x + length) + "\" y=\"" +
               drawnNumber(y) + "\">" + Words::tr("%1 m").arg(QString::number(length)) + "</text></g>\n";
    }

    /// In the strip of the scale bar.
    QString north() const {
        const double half = m_frame.margin() * 0.75;
        const double x = m_frame.width() - m_frame.margin() - half;
        const double y = m_frame.height() - m_frame.margin() - 0.5 * half;
        return "<g class=\"north\"><path d=\"M" + drawnPair({x, y - half}) + "L" +
               drawnPair({x + 0.5 * half, y + half}) + "L" + drawnPair({x, y + 0.6 * half}) + "L" +
               drawnPair({x - 0.5 * half, y + half}) + "Z\"/><text class=\"left\" dx=\"-.3em\" x=\"" +
               drawnNumber(x - 0.5 * half) + "\" y=\"" + drawnNumber(y) + "\">" +
               Words::tr("N", "north, by the arrow of a plan") + "</text></g>\n";
    }

    const SiteReport& m_report;
    const std::vector<MergedFinding>& m_merged;
    const PlanIds m_ids;
    const bool m_hasList;
    const PlanFrame m_frame;
    std::map<long long, std::vector<std::size_t>> m_findingsByHandle;
    std::set<long long> m_unjudged;
    std::vector<PlanPin> m_pins;
};

} // namespace

QString colourClasses(std::size_t ruleIndex) {
    const std::size_t pattern = ruleIndex / kColours % kPatterns;
    return "c" + QString::number(ruleIndex % kColours) +
           (pattern == 0 ? QString() : " k" + QString::number(pattern));
}

DrawnPlan drawPlan(const SiteReport& report, const std::vector<MergedFinding>& merged, const PlanIds& ids) {
    const QString attributes = " class=\"plan\" data-label-pixels=\"" + drawnNumber(kLabelPixels) +
                               "\" data-narrowest=\"" + drawnNumber(kNarrowestPlan) + "\" data-levels=\"" +
                               QString::number(kLabelLevels) + "\"";
    PlanDrawing drawing(report, merged, ids, true);
    const QString svg = drawing.svg(attributes, {});
    return {svg, drawing.takePins()};
}

QString planSvgFile(const SiteReport& report) {
    const std::vector<MergedFinding> merged = mergedFindings(report);
    const QString style = "<style>\n" + asset("plan.css") + "</style>\n";
    return PlanDrawing(report, merged, {}, false)
        .svg(" class=\"plan\" xmlns=\"http://www.w3.org/2000/svg\"", style);
}

} // namespace firecheck
