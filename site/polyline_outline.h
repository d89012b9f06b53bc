#pragma once

#include "site/outline_ptr.h"

class UdDbPolyLine;

/// The outline of a polyline without its repeated points; null when no point remains.
OutlinePtr buildPolylinePolygon(const UdDbPolyLine& polyline);
