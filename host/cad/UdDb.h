#pragma once

namespace UdDb {

enum OpenMode { kForRead = 0 };

} // namespace UdDb

namespace Udad {

enum Error {
    eOk = 0,
    eNotOpen,   ///< the object refused to open
    eNullId,    ///< the id names no object
    eNoExtents, ///< the object has no geometry
};

} // namespace Udad
