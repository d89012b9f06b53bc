#include "drawing/dxf/write_dxf.h"
#include "explain/measure_text.h"
#include "report/ReportWriter.h"
#include "report/drawn_measures.h"
#include "report/plan/plan_svg.h"
#include "text/words.h"

#include <QString>

#include <algorithm>
#include <map>

namespace firecheck {

namespace {

/// Colours of rules by their place in the counts, as the page has them on white.
constexpr int kRuleColours[] = {0xC62828, 0x1565C0, 0x2E7D32, 0x7B1FA2, 0xA85F00,
                                0x00747F, 0xC2185B, 0x5D4037, 0x3949AB, 0x4F7A1F};
constexpr int kAcceptedColour = 0x808080;
const std::string kCountsLayer = "FC-00-Counts";

/// The part of a rule's name that tells it from others, as in a list of layers.
QString shortName(const QString& ruleName) {
    return ruleName.section('_', 1).isEmpty() ? ruleName : ruleName.section('_', 1);
}

class FindingsDrawing {
public:
    explicit FindingsDrawing(const SiteReport& report)
        : m_report(report), m_ruleIndices(ruleIndices(report)),
          m_scale(1.0 / report.drawingUnit.millimetres) {
        for (const PlanShape& shape : report.plan) {
            m_box.add(shape.box);
            m_shapes[shape.handle] = &shape;
        }
        if (!(m_box.low.x <= m_box.high.x))
            m_box.add({0.0, 0.0});
        const double size = std::max(m_box.high.x - m_box.low.x, m_box.high.y - m_box.low.y);
        m_textHeight = std::clamp(size / 110.0, 300.0, 5000.0);
    }

    DxfDrawing drawing() {
        m_drawing.units = m_report.drawingUnit.code;
        for (std::size_t rule = 0; rule < m_report.counts.size(); ++rule) {
            m_drawing.layers[layerOf(rule)].colour = colourOf(rule);
            m_headings.push_back(m_report.counts[rule].ruleName.toStdString());
        }
        for (std::size_t i = m_report.findings.size(); i-- > 0;) {
            const QString& description = m_report.record(m_report.findings[i]).ruleDescription;
            if (!description.isEmpty())
                m_headings[m_ruleIndices[i]] = description.toStdString();
        }
        for (std::size_t i = 0; i < m_report.findings.size(); ++i)
            drawFinding(i);
        for (const auto& [handle, numbers] : m_numbers)
            drawNumbers(*m_shapes.at(handle), numbers);
        drawList();
        return std::move(m_drawing);
    }

private:
    static int colourOf(std::size_t rule) { return kRuleColours[rule % std::size(kRuleColours)]; }

    std::string layerOf(std::size_t rule) const {
        return layerName("FC-" + QString::number(rule + 1).rightJustified(2, '0').toStdString() + "-" +
                         shortName(m_report.counts[rule].ruleName).toStdString());
    }

    DxfPoint placed(const hrx::CVec2<double>& millimetres) const {
        return {millimetres.x * m_scale, millimetres.y * m_scale};
    }
    DxfPoint placed(const PlanPoint& metres) const {
        return placed(hrx::CVec2<double>{metres.x / kMetresPerMillimetre, metres.y / kMetresPerMillimetre});
    }

    DxfEntity& add(const std::string& layer, bool isAccepted) {
        m_drawing.entities.emplace_back();
        m_drawing.entities.back().layer = layer;
        if (isAccepted)
            m_drawing.entities.back().colour = kAcceptedColour;
        return m_drawing.entities.back();
    }

    void addText(const std::string& layer, const DxfPoint& at, double size, const std::string& text,
                 bool isCentred, bool isAccepted = false) {
        add(layer, isAccepted).shape = DxfText{at, m_textHeight * size * m_scale, 0.0, text, isCentred};
    }

    void drawFinding(std::size_t index) {
        const Finding& finding = m_report.findings[index];
        const std::string layer = layerOf(m_ruleIndices[index]);
        const bool isAccepted = finding.acceptedBecause.has_value();
        const NuxStandardCheckRule& record = m_report.record(finding);
        const auto shape = m_shapes.find(record.handle);
        if (shape != m_shapes.end()) {
            for (const PlanPath& path : shape->second->paths)
                drawPath(path, layer, isAccepted);
            m_numbers[record.handle].push_back(index);
        }
        for (const Measure* const measure : drawnMeasures(record, finding))
            drawMeasure(*measure, layer, isAccepted);
    }

    void drawPath(const PlanPath& path, const std::string& layer, bool isAccepted) {
        if (path.edges.empty())
            return;
        DxfPolyline polyline;
        polyline.isClosed = path.isClosed;
        for (const hrx::Edge2d& edge : path.edges)
            polyline.vertices.push_back({placed(edge.start), edge.bulge});
        if (!path.isClosed)
            polyline.vertices.push_back({placed(path.edges.back().end), 0.0});
        add(layer, isAccepted).shape = std::move(polyline);
    }

    void drawMeasure(const Measure& measure, const std::string& layer, bool isAccepted) {
        const DxfPoint from = placed(measure.points->onElement);
        const DxfPoint to = placed(measure.points->onOther);
        add(layer, isAccepted).shape = DxfLine{from, to};
        const std::string text = filled(Words::tr("%1 (%2)", "measured value, limit"),
                                        firestandard::valueText(measure), firestandard::limitText(measure));
        const DxfPoint middle{(from.x + to.x) * 0.5, (from.y + to.y) * 0.5 + m_textHeight * m_scale};
        addText(layer, middle, 0.7, text, true, isAccepted);
    }

    /// The numbers of an element's findings, side by side in its middle, each on the layer of its rule.
    void drawNumbers(const PlanShape& shape, const std::vector<std::size_t>& findings) {
        DxfPoint at = placed((shape.box.low + shape.box.high) * 0.5);
        const double step = 2.2 * m_textHeight * m_scale;
        at.x -= step * 0.5 * double(findings.size() - 1);
        for (const std::size_t index : findings) {
            const std::string layer = layerOf(m_ruleIndices[index]);
            const bool isAccepted = m_report.findings[index].acceptedBecause.has_value();
            add(layer, isAccepted).shape = DxfArc{at, m_textHeight * m_scale, true, 0.0, 0.0};
            addText(layer, at, 1.0, std::to_string(index + 1), true, isAccepted);
            at.x += step;
        }
    }

    /// Beside the site: the counts, and below them the sentences.
    void drawList() {
        const double line = 1.8 * m_textHeight;
        hrx::CVec2<double> at{m_box.high.x + 4.0 * m_textHeight, m_box.high.y - m_textHeight};
        const auto write = [&](const std::string& layer, double indent, double size, const std::string& text,
                               bool isAccepted) {
            addText(layer, placed(hrx::CVec2<double>{at.x + indent * m_textHeight, at.y}), size, text, false,
                    isAccepted);
        };
        const auto count = int(m_report.violationCount());
        const std::string& name = m_report.siteName.empty() ? m_report.fileName : m_report.siteName;
        write(kCountsLayer, 0.0, 1.3,
              filled(count == 1 ? Words::tr("%1: 1 violation") : Words::tr("%1: %n violations", "", count),
                     name),
              false);
        at.y -= line;
        for (std::size_t rule = 0; rule < m_report.counts.size(); ++rule) {
            at.y -= line;
            write(layerOf(rule), 0.0, 1.0, std::to_string(m_report.counts[rule].violations), false);
            write(layerOf(rule), 4.0, 1.0, m_headings[rule], false);
        }
        at.y -= line;
        for (std::size_t i = 0; i < m_report.findings.size(); ++i) {
            at.y -= line;
            const Finding& finding = m_report.findings[i];
            const std::string layer = layerOf(m_ruleIndices[i]);
            const bool isAccepted = finding.acceptedBecause.has_value();
            std::string text = finding.sentence;
            if (isAccepted)
                text = filled(Words::tr("%1 (accepted: %2)"), text, *finding.acceptedBecause);
            write(layer, 0.0, 1.0, std::to_string(i + 1), isAccepted);
            write(layer, 4.0, 1.0, withEntity(text, m_report.record(finding).handle), isAccepted);
        }
    }

    /// Handles are decimal in sentences and hexadecimal in drawings.
    static std::string withEntity(const std::string& text, long long handle) {
        if (handle <= 0)
            return text;
        return filled(Words::tr("%1 [handle %2]"), text, QString::number(handle, 16).toUpper());
    }

    const SiteReport& m_report;
    const std::vector<std::size_t> m_ruleIndices;
    const double m_scale;      ///< from mm to the unit of the drawing
    double m_textHeight = 0.0; ///< mm
    hrx::CBox2d m_box;
    std::map<long long, const PlanShape*> m_shapes;
    std::map<long long, std::vector<std::size_t>> m_numbers; ///< of findings, by handle
    std::vector<std::string> m_headings;                     ///< of the rules, as people call them
    DxfDrawing m_drawing;
};

class DxfReportWriter : public ReportWriter {
public:
    using ReportWriter::ReportWriter;

    void add(const SiteReport& report) override { write(writeDxf(FindingsDrawing(report).drawing())); }
};

} // namespace

std::unique_ptr<ReportWriter> dxfReportWriter(ReportWriter::Sink sink) {
    return std::make_unique<DxfReportWriter>(std::move(sink));
}

} // namespace firecheck
