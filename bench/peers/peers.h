// What each file of peers adds.
#pragma once

#include "problem.h"

#include <vector>

namespace zelmbench {

void addElementwisePeers(std::vector<Peer> &peers);

} // namespace zelmbench
