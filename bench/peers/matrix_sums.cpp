// Loops for sums and scalings of matrices.
#include "elementwise.h"
#include "peers.h"

namespace zelmbench {

void addMatrixSumPeers(std::vector<Peer> &peers) {
    addElementLoops<Sum, true, "mm", "mmT", "mTm", "mTmT", "mam", "mamT", "mama", "mamaT", "maTm", "maTmT",
                    "maTma", "maTmaT">(peers);
    addElementLoops<Scaling, true, "mc", "mTc", "mac", "maTc">(peers);
}

} // namespace zelmbench
