#pragma once

#include "site/element_body.h"
#include "site/outline_ptr.h"

class UdRxObject;

/// The footprint of a yard mesh or of a 3-D model object; an object that is both has the model's. Any other
/// object leaves `outline` as it is.
void buildYardOr3dsPolygon(const UdRxObject* object, OutlinePtr& outline);

/// That footprint raised from z = 0 to 1.0. Without a footprint fit for measuring `body` stays as it is.
void buildYardOr3dsBody(const UdRxObject* object, BodyPtr& body);
