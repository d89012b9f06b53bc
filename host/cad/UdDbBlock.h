#pragma once

#include "cad/UdDbObjContainer.h"

/// A named container of a document; the model space is one.
class UdDbBlock : public UdDbObjContainer {};
