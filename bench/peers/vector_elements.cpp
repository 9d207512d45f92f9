// Loops for sums, differences and scalings of vectors.
#include "elementwise.h"
#include "peers.h"

namespace zelmbench {

void addVectorElementPeers(std::vector<Peer> &peers) {
    addElementLoops<Sum, false, "vv", "vc", "vav", "vac", "vava">(peers);
    addElementLoops<Difference, false, "vv", "vc", "vav", "vac", "vava", "vva">(peers);
    addElementLoops<FromConstant, false, "cv", "cva">(peers);
    addElementLoops<Scaling, false, "vc", "vac">(peers);
    addElementLoops<Saxpy, false, "vv", "vav", "vava", "vva">(peers);
    addElementLoops<Combination, false, "vv", "vav", "vava">(peers);
}

} // namespace zelmbench
