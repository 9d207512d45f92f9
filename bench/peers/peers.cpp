#include "peers.h"

namespace zelmbench {

extern "C" const std::vector<Peer> &zelmBenchPeers() {
    static const std::vector<Peer> all = [] {
        std::vector<Peer> peers;
        addDecompositionPeers(peers);
        addEigenProductPeers(peers);
        addEigenVectorPeers(peers);
        addCglmPeers(peers);
        addGlmPeers(peers);
        addInversePeers(peers);
        addMatrixDifferencePeers(peers);
        addMatrixProductPeers(peers);
        addMatrixSumPeers(peers);
        addMovementPeers(peers);
        addSolutionPeers(peers);
        addVectorElementPeers(peers);
        addVectorProductPeers(peers);
        addVectorPeers(peers);
        return peers;
    }();
    return all;
}

} // namespace zelmbench
