#include "report/plan/PlanFrame.h"

#include <algorithm>

namespace firecheck {

namespace {

constexpr double kMarginShare = 0.03;
constexpr double kLeastExtent = 1.0; // metres; a single point is drawn too

} // namespace

PlanFrame::PlanFrame(const std::vector<PlanShape>& shapes) {
    for (const PlanShape& shape : shapes)
        m_box.add(shape.box);
    if (isEmpty())
        return;
    const double across = (m_box.high.x - m_box.low.x) * kMetresPerMillimetre;
    const double along = (m_box.high.y - m_box.low.y) * kMetresPerMillimetre;
    m_margin = std::max({across, along, kLeastExtent}) * kMarginShare;
    m_width = across + 2.0 * m_margin;
    m_height = along + 3.0 * m_margin;
}

DrawnPoint PlanFrame::drawn(const hrx::CVec2<double>& point) const {
    return {(point.x - m_box.low.x) * kMetresPerMillimetre + m_margin,
            (m_box.high.y - point.y) * kMetresPerMillimetre + m_margin};
}

DrawnPoint PlanFrame::drawn(const PlanPoint& metres) const {
    return drawn(hrx::CVec2<double>(metres.x / kMetresPerMillimetre, metres.y / kMetresPerMillimetre));
}

QString drawnNumber(double metres) {
    QString text = QString::number(metres, 'f', 3);
    while (text.endsWith('0'))
        text.chop(1);
    if (text.endsWith('.'))
        text.chop(1);
    return text == "-0" ? QStringLiteral("0") : text;
}

} // namespace firecheck
