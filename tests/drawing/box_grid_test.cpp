#include "drawing/BoxGrid.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

using namespace firecheck;

namespace {

TEST(BoxGrid, FindsEveryBoxAroundAPoint) {
    std::mt19937 random(7);
    // Sizes and places from 1e-2 to 1e14, as wrong units make them.
    const auto size = [&random] {
        return std::pow(10.0, std::uniform_real_distribution<>(-2.0, 14.0)(random));
    };
    const auto place = [&] { return random() % 2 == 0 ? size() : -size(); };
    std::vector<hrx::CBox2d> boxes;
    BoxGrid grid(20000.0);
    for (std::size_t i = 0; i < 2000; ++i) {
        hrx::CBox2d box;
        const hrx::CVec2<double> corner{place(), place()};
        box.add(corner);
        box.add({corner.x + size(), corner.y + size()});
        grid.add(box, i);
        boxes.push_back(box);
    }
    for (int i = 0; i < 2000; ++i) {
        const hrx::CVec2<double> point{place(), place()};
        std::set<std::size_t> around;
        for (std::size_t k = 0; k < boxes.size(); ++k)
            if (boxes[k].low.x <= point.x && point.x <= boxes[k].high.x && boxes[k].low.y <= point.y &&
                point.y <= boxes[k].high.y)
                around.insert(k);
        grid.near(point, [&](std::size_t number) { around.erase(number); });
        EXPECT_TRUE(around.empty()) << point.x << " " << point.y;
    }
}

} // namespace
