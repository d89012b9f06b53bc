#include "drawing/dxf/colour_index.h"

#include <initializer_list>

namespace firecheck {

namespace {

/// Of the index, and what it looks like.
struct IndexedColour {
    int index;
    int rgb;
};
constexpr IndexedColour kIndexed[] = {{1, 0xFF0000},   {2, 0xFFFF00},   {3, 0x00FF00},   {4, 0x00FFFF},
                                      {5, 0x0000FF},   {6, 0xFF00FF},   {7, 0x000000},   {8, 0x808080},
                                      {9, 0xC0C0C0},   {30, 0xFF7F00},  {34, 0x993C00},  {36, 0x7F3F00},
                                      {94, 0x1F7F1F},  {96, 0x3F7F00},  {134, 0x007F7F}, {150, 0x007FFF},
                                      {174, 0x1F1F99}, {200, 0x7F00FF}, {220, 0xFF00BF}, {254, 0xD6D6D6}};

int squareDistance(int a, int b) {
    int sum = 0;
    for (const int shift : {0, 8, 16}) {
        const int difference = ((a >> shift) & 0xFF) - ((b >> shift) & 0xFF);
        sum += difference * difference;
    }
    return sum;
}

} // namespace

int nearestColourIndex(int rgb) {
    const IndexedColour* nearest = &kIndexed[0];
    for (const IndexedColour& candidate : kIndexed)
        if (squareDistance(candidate.rgb, rgb) < squareDistance(nearest->rgb, rgb))
            nearest = &candidate;
    return nearest->index;
}

} // namespace firecheck
