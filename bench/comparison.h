// One row, measured or counted: the library beside another build of it and beside all peers that do the same
// work.
#pragma once

#include "library.h"
#include "measure.h"
#include "problem.h"
#include "rows.h"

#include <map>
#include <string>
#include <vector>

namespace zelmbench {

inline constexpr const char *ownName = "zelm", *besideName = "beside";

// The peers of each exported function.
class PeerTable {
public:
    explicit PeerTable(const Library *peers); // none if null
    const std::vector<const Peer *> &of(const std::string &member) const;

private:
    std::map<std::string, std::vector<const Peer *>> peers_;
    std::vector<const Peer *> none_;
};

// Those who do the same work; `beside` may be null.
struct Field {
    const Library &library;
    const Library *beside;
    const PeerTable &peers;
};

struct Figures {
    std::vector<std::pair<std::string, double>> perObject; // nanoseconds or instructions, the library's first
    std::vector<std::string> wrong;                        // contenders that compute something else
};

Figures measureRow(const Row &row, const Field &field, const Effort &effort);

// Instructions: what one more object takes, or one more call of a single-object function.
Figures countRow(const Row &row, const Field &field);

} // namespace zelmbench
