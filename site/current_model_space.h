#pragma once

class UdDbBlock;

namespace firestandard {

/// Of the document that is current in the host; null when there is none or it has no model space.
UdDbBlock* currentModelSpace();

} // namespace firestandard
