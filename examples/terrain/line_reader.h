// Reads a text file line by line and knows the number of the line.
#pragma once

#include <cstddef>
#include <fstream>
#include <string>

namespace terrain {

class LineReader {
public:
    // Throws InputError if the file can't be opened or is no file.
    explicit LineReader(const std::string &file);

    // The next line without its end. False at the end of the file. Throws InputError if reading fails or a
    // line is longer than `limit`, so that a file without lines doesn't fill the memory.
    bool next(std::string &line, std::size_t limit);

    // How many words the file can hold at most, by its size.
    std::size_t mostWords() const;

    // The number of the line that next() gave last; behind the last line, the number that one more would
    // have.
    std::size_t number() const { return number_; }

private:
    std::string file_;
    std::ifstream stream_;
    std::size_t number_ = 0;
};

} // namespace terrain
