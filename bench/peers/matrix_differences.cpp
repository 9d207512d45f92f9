// Loops for differences of matrices.
#include "elementwise.h"
#include "peers.h"

namespace zelmbench {

void addMatrixDifferencePeers(std::vector<Peer> &peers) {
    addElementLoops<Difference, true, "mm", "mmT", "mTm", "mTmT", "mam", "mamT", "mama", "mamaT", "maTm",
                    "maTmT", "maTma", "maTmaT", "mma", "mmaT", "mTma", "mTmaT">(peers);
}

} // namespace zelmbench
