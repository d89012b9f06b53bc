#include "report/plan/plan_svg.h"

#include "explain/measure_text.h"
#include "report/assets.h"
#include "report/escape.h"
#include "report/plan/plan_kind_name.h"
#include "report/plan/plan_labels.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace firecheck {

namespace {

constexpr std::size_t kColours = 10;
constexpr int kLongestLabel = 26;
constexpr int kLevelWithoutScripts = 1;
constexpr int kFirstLevelOfMinor = 2;

QString drawnPair(const DrawnPoint& point) {
    return drawnNumber(point.x) + " " + drawnNumber(point.y);
}

/// With y downwards a counter-clockwise arc sweeps the other way.
QString edgeCommand(const hrx::Edge2d& edge, const PlanFrame& frame) {
    const QString end = drawnPair(frame.drawn(edge.end));
    if (!edge.isArc())
        return "L" + end;
    const QString radius = drawnNumber(edge.radius() * kMetresPerMillimetre);
    const char* largeArc = std::abs(edge.bulge) > 1.0 ? " 1 " : " 0 ";
    return "A" + radius + " " + radius + " 0" + largeArc + (edge.bulge > 0.0 ? "0 " : "1 ") + end;
}

QString pathData(const PlanShape& shape, const PlanFrame& frame) {
    QString data;
    for (const PlanPath& path : shape.paths) {
        data += "M" + drawnPair(frame.drawn(path.edges.front().start));
        for (const hrx::Edge2d& edge : path.edges)
            data += edgeCommand(edge, frame);
        data += path.isClosed ? "Z" : "";
    }
    return data;
}

/// Elements that there are many of, known by their handles.
bool isMinor(PlanKind kind) {
    return kind == PlanKind::Model || kind == PlanKind::Other;
}

bool isRoad(PlanKind kind) {
    return kind == PlanKind::Road || kind == PlanKind::FireRoad;
}

QString numbersText(const std::vector<std::size_t>& numbers) {
    constexpr std::size_t mostShown = 4;
    QStringList shown;
    for (std::size_t i = 0; i < numbers.size() && i < mostShown; ++i)
        shown << QString::number(numbers[i]);
    return shown.join(QStringLiteral("·")) + (numbers.size() > mostShown ? QStringLiteral("…") : QString());
}

/// Draws the plan of one site.
class PlanDrawing {
public:
    /// With `hasList` elements that offend link to their findings.
    PlanDrawing(const SiteReport& report, PlanIds ids, bool hasList)
        : m_report(report), m_ids(std::move(ids)), m_hasList(hasList), m_frame(report.plan),
          m_ruleIndices(ruleIndices(report)) {
        for (const firestandard::UnjudgedElement& element : report.unjudged)
            m_unjudged.insert(element.handle);
        for (std::size_t i = 0; i < report.findings.size(); ++i) {
            const long long handle = report.record(report.findings[i]).handle;
            if (handle != 0)
                m_numbersByHandle[handle].push_back(i + 1);
        }
    }

    QString svg(const QString& attributes, const QString& head) const {
        if (m_frame.isEmpty())
            return {};
        const QString title = QStringLiteral("Plan of ") +
                              escaped(m_report.siteName.empty() ? m_report.fileName : m_report.siteName);
        return "<svg" + attributes + " viewBox=\"0 0 " + drawnNumber(m_frame.width()) + " " +
               drawnNumber(m_frame.height()) + "\" font-size=\"" +
               drawnNumber(labelHeight(m_frame.width(), kLevelWithoutScripts)) +
               "\" role=\"group\" aria-label=\"" + title + "\">\n" + head + elements() + measures() +
               labels() + scaleBar() + "</svg>\n";
    }

private:
    QString colourOf(std::size_t number) const { return colourClass(m_ruleIndices[number - 1]); }

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

    QString element(const PlanShape& shape) const {
        const auto numbers = m_numbersByHandle.find(shape.handle);
        const bool offends = numbers != m_numbersByHandle.end();
        QString classes = QStringLiteral("element ") + planKindName(shape.kind);
        if (m_unjudged.count(shape.handle) != 0)
            classes += " unjudged";
        if (offends)
            classes += " offends " + colourOf(numbers->second.front());
        const QString handle = QString::number(shape.handle);
        const QString drawing = "<g class=\"" + classes + "\" id=\"" + m_ids.element(shape.handle) +
                                "\" data-handle=\"" + handle + "\"><title>" + escaped(shape.title) +
                                (m_unjudged.count(shape.handle) != 0 ? ", not judged" : "") +
                                "</title><path d=\"" + pathData(shape, m_frame) + "\"/></g>";
        if (!offends || !m_hasList)
            return drawing + "\n";
        return "<a href=\"#" + m_ids.finding(numbers->second.front()) + "\" aria-label=\"" +
               escaped(shape.title) + ", violation " + numbersText(numbers->second) + "\">" + drawing +
               "</a>\n";
    }

    /// Of a box that is too far only the nearest counts; of other distances each one does.
    template <class Visit> void everyMeasure(Visit visit) const {
        for (std::size_t i = 0; i < m_report.findings.size(); ++i) {
            const Finding& finding = m_report.findings[i];
            const bool nearestOnly = m_report.record(finding).type == QLatin1String("position");
            for (const Measure& measure : finding.measures) {
                if (measure.points)
                    visit(i + 1, measure);
                if (nearestOnly)
                    break;
            }
        }
    }

    QString measures() const {
        QString text = "<g class=\"measures\">\n";
        everyMeasure([&](std::size_t number, const Measure& measure) {
            const DrawnPoint from = m_frame.drawn(measure.points->onElement);
            const DrawnPoint to = m_frame.drawn(measure.points->onOther);
            text += "<path class=\"measure " + colourOf(number) + "\" data-finding=\"" +
                    QString::number(number) + "\" d=\"M" + drawnPair(from) + "L" + drawnPair(to) + "\"/>\n";
        });
        return text + "</g>\n";
    }

    QString labels() const {
        std::vector<PlanLabel> labels = pins();
        appendMeasureTexts(labels);
        appendNames(labels);
        placeLabels(labels, m_frame.width(), m_frame.height());
        QString text = "<g class=\"labels\">\n";
        for (const PlanLabel& label : labels)
            text += labelText(label);
        return text + "</g>\n";
    }

    PlanLabel labelAt(const PlanShape& shape) const {
        const DrawnPoint low = m_frame.drawn(hrx::CVec2<double>(shape.box.low.x, shape.box.high.y));
        const DrawnPoint high = m_frame.drawn(hrx::CVec2<double>(shape.box.high.x, shape.box.low.y));
        PlanLabel label;
        label.middle = {0.5 * (low.x + high.x), 0.5 * (low.y + high.y)};
        label.halfWidth = 0.5 * (high.x - low.x);
        label.halfHeight = 0.5 * (high.y - low.y);
        return label;
    }

    /// The numbers of the findings, on the elements that offend.
    std::vector<PlanLabel> pins() const {
        std::vector<PlanLabel> result;
        for (const PlanShape& shape : m_report.plan) {
            const auto numbers = m_numbersByHandle.find(shape.handle);
            if (numbers == m_numbersByHandle.end())
                continue;
            PlanLabel pin = labelAt(shape);
            pin.text = numbersText(numbers->second);
            pin.classes = "pin " + colourOf(numbers->second.front());
            result.push_back(pin);
        }
        return result;
    }

    void appendMeasureTexts(std::vector<PlanLabel>& labels) const {
        everyMeasure([&](std::size_t number, const Measure& measure) {
            const DrawnPoint from = m_frame.drawn(measure.points->onElement);
            const DrawnPoint to = m_frame.drawn(measure.points->onOther);
            PlanLabel label;
            label.text = QString::fromStdString(firestandard::valueText(measure));
            label.classes = "value " + colourOf(number);
            label.middle = {0.5 * (from.x + to.x), 0.5 * (from.y + to.y)};
            label.halfWidth = 0.5 * std::abs(from.x - to.x);
            label.halfHeight = 0.5 * std::abs(from.y - to.y);
            labels.push_back(label);
        });
    }

    /// Offending elements first, then the larger before the smaller.
    void appendNames(std::vector<PlanLabel>& labels) const {
        std::vector<const PlanShape*> shapes;
        for (const PlanShape& shape : m_report.plan)
            if (shape.kind != PlanKind::Wall || m_numbersByHandle.count(shape.handle) != 0)
                shapes.push_back(&shape);
        const auto rank = [&](const PlanShape* shape) {
            const hrx::CVec2<double> size = shape->box.high - shape->box.low;
            return std::make_pair(m_numbersByHandle.count(shape->handle) == 0, -size.x * size.y);
        };
        std::stable_sort(shapes.begin(), shapes.end(),
                         [&](const PlanShape* a, const PlanShape* b) { return rank(a) < rank(b); });
        for (const PlanShape* shape : shapes) {
            PlanLabel label = labelAt(*shape);
            label.text = QString::fromStdString(shape->label);
            if (label.text.size() > kLongestLabel)
                label.text = label.text.left(kLongestLabel - 1).trimmed() + QStringLiteral("…");
            label.classes = "name";
            label.mustFitElement = true;
            label.firstLevel = isMinor(shape->kind) ? kFirstLevelOfMinor : 0;
            const bool offends = m_numbersByHandle.count(shape->handle) != 0;
            label.firstLevelBeside = isRoad(shape->kind) ? kLabelLevels
                                     : offends           ? 0
                                                         : std::max(label.firstLevel, 1);
            labels.push_back(label);
        }
    }

    static QString labelText(const PlanLabel& label) {
        if (label.level < 0)
            return {};
        static const std::map<PlanLabel::Place, QString> placeClasses = {{PlanLabel::Place::Centre, "centre"},
                                                                         {PlanLabel::Place::Above, "above"},
                                                                         {PlanLabel::Place::Below, "below"},
                                                                         {PlanLabel::Place::Right, "right"},
                                                                         {PlanLabel::Place::Left, "left"}};
        const DrawnPoint anchor = labelAnchor(label);
        return "<text class=\"" + label.classes + " " + placeClasses.at(label.place) + " l" +
               QString::number(label.level) + "\" x=\"" + drawnNumber(anchor.x) + "\" y=\"" +
               drawnNumber(anchor.y) + "\">" + escaped(label.text) + "</text>\n";
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
               drawnNumber(x + length) + "V" + drawnNumber(y - tick) + "\"/><text class=\"right\" x=\"" +
               drawnNumber(x + length) + "\" y=\"" + drawnNumber(y) + "\">" + QString::number(length) +
               " m</text></g>\n";
    }

    const SiteReport& m_report;
    const PlanIds m_ids;
    const bool m_hasList;
    const PlanFrame m_frame;
    const std::vector<std::size_t> m_ruleIndices;
    std::map<long long, std::vector<std::size_t>> m_numbersByHandle;
    std::set<long long> m_unjudged;
};

} // namespace

QString colourClass(std::size_t ruleIndex) {
    return "c" + QString::number(ruleIndex % kColours);
}

std::vector<std::size_t> ruleIndices(const SiteReport& report) {
    std::vector<std::size_t> indices;
    std::size_t index = 0;
    for (const Finding& finding : report.findings) {
        while (report.counts[index].ruleName != report.record(finding).name)
            ++index;
        indices.push_back(index);
    }
    return indices;
}

QString planSvg(const SiteReport& report, const PlanIds& ids) {
    const QString labelling = " data-label-pixels=\"" + drawnNumber(kLabelPixels) + "\" data-narrowest=\"" +
                              drawnNumber(kNarrowestPlan) + "\" data-levels=\"" +
                              QString::number(kLabelLevels) + "\"";
    return PlanDrawing(report, ids, true).svg(" class=\"plan\"" + labelling, {});
}

QString planSvgFile(const SiteReport& report) {
    const QString style = "<style>\n" + asset("plan.css") + "</style>\n";
    return PlanDrawing(report, {}, false).svg(" class=\"plan\" xmlns=\"http://www.w3.org/2000/svg\"", style);
}

} // namespace firecheck
