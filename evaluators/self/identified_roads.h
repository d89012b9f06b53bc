#pragma once

#include <vector>

class NUXRoadObject;
class UdDbBlock;

/// The roads of the model space that carry a road's type identifier, in its order.
std::vector<const NUXRoadObject*> identifiedRoads(const UdDbBlock& modelSpace);
