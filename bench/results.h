// What has been measured: a line for each row, and a file with all figures.
#pragma once

#include "comparison.h"

#include <fstream>
#include <string>

namespace zelmbench {

class Results {
public:
    // `json` may be empty; `unit` is what the figures count for each object.
    Results(const std::string &json, const std::string &unit, const std::string &target,
            const std::string &library, const std::string &beside, const std::string &peers);

    void add(const Row &row, const Figures &figures);
    // Whether every peer computed what the library computed.
    bool finish();

private:
    std::ofstream file_;
    std::size_t rows_ = 0, wrong_ = 0;
};

} // namespace zelmbench
