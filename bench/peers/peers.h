// What each file of peers adds.
#pragma once

#include "problem.h"

#include <vector>

namespace zelmbench {

void addDecompositionPeers(std::vector<Peer> &peers);
void addEigenProductPeers(std::vector<Peer> &peers);
void addEigenVectorPeers(std::vector<Peer> &peers);
void addCglmPeers(std::vector<Peer> &peers);
void addGlmPeers(std::vector<Peer> &peers);
void addInversePeers(std::vector<Peer> &peers);
void addMatrixDifferencePeers(std::vector<Peer> &peers);
void addMatrixProductPeers(std::vector<Peer> &peers);
void addMatrixSumPeers(std::vector<Peer> &peers);
void addMovementPeers(std::vector<Peer> &peers);
void addSolutionPeers(std::vector<Peer> &peers);
void addVectorElementPeers(std::vector<Peer> &peers);
void addVectorProductPeers(std::vector<Peer> &peers);
void addVectorPeers(std::vector<Peer> &peers);

} // namespace zelmbench
