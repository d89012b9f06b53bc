#pragma once

#include "report/SiteReport.h"

#include <QString>

namespace firecheck {

/// A place in the drawing of a plan: metres from its upper left corner, y downwards.
struct DrawnPoint {
    double x = 0.0;
    double y = 0.0;
};

/// Maps the site to its drawing, which leaves a margin all around and a strip for the scale bar below.
class PlanFrame {
public:
    explicit PlanFrame(const std::vector<PlanShape>& shapes);

    bool isEmpty() const { return !(m_box.low.x <= m_box.high.x); }
    double width() const { return m_width; }
    double height() const { return m_height; }
    double margin() const { return m_margin; }

    DrawnPoint drawn(const hrx::CVec2<double>& point) const;
    DrawnPoint drawn(const PlanPoint& metres) const;

private:
    hrx::CBox2d m_box;
    double m_margin = 0.0;
    double m_width = 0.0;
    double m_height = 0.0;
};

/// A number of a drawing, to the millimetre and without idle zeros.
QString drawnNumber(double metres);

} // namespace firecheck
