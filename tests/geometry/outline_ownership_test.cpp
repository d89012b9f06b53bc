#include "geometry/CPlaneCurve3d.h"
#include "geometry/GBodyBuilder.h"
#include "measure.h"

#include <gtest/gtest.h>

using namespace outlines;
using hrx::CPolygon;

namespace {

const Outline kYard = {rectangle(4000, 2000)};

Body bodyOf(CPolygon* outline) {
    return std::make_unique<hrx::CExtrudedBody>(hrx::CCoord3<double>(), 1.0, outline, true);
}

} // namespace

// What these catch shows under AddressSanitizer and LeakSanitizer: an outline freed twice, too early or
// never.

TEST(OutlineOwnership, anOutlineIsFreedByItsCreatorOrWithItsBody) {
    polygon(kYard)->Free();
    bodyOf(polygon(kYard)).release()->Free();
    for (const bool freed : {true, false}) {
        CPolygon* const outline = polygon(kYard);
        const Body body = bodyOf(outline);
        if (freed)
            outline->Free();
        EXPECT_EQ(measured(*body, *raised(kYard)), 0.0);
    }
}

TEST(OutlineOwnership, bodiesAndTheHostShareAnOutlineUntilTheLastIsGone) {
    CPolygon* const outline = polygon(kYard);
    Body first = bodyOf(outline);
    const Body second = bodyOf(outline);
    first.reset();
    outline->Free();
    EXPECT_EQ(second->GetExtents().high.x, 2000.0);

    const hrx::PolygonRef kept(polygon(kYard));
    bodyOf(kept.get())->isStrictlyValid();
    kept->Free();
    const hrx::PolygonRef copy = kept;
    EXPECT_EQ(copy->GetLoop(0)->ClockSign(), 1);
}

TEST(OutlineOwnership, sectionsAreSharedLikeOutlinesAlsoWhenNoTubeComesOfThem) {
    hrx::GBodyBuilder builder(true, true);
    const hrx::CPlaneCurve3d path({0, 0, 0}, {0, 2000, 0}, {1000, 1000, 0});
    CPolygon* const section = polygon({circle(100)});
    const Body tube(builder.SweepBody(section, path));
    section->Free();
    ASSERT_TRUE(tube);
    EXPECT_NEAR(tube->GetExtents().high.x, 1100.0, 1e-9);

    CPolygon* const tooThick = polygon({circle(1001)});
    EXPECT_EQ(builder.SweepBody(tooThick, path), nullptr);
    tooThick->Free();
}
