// The header of an Esri ASCII grid.
#pragma once

#include "grid.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace terrain {

class GridHeader {
public:
    explicit GridHeader(std::string file) : file_(std::move(file)) {}

    // Whether a line that starts with this word belongs to the header: the rows of values start with a
    // number.
    static bool isKey(std::string_view word);

    // Takes one line of the header; throws InputError for one that isn't made of keys and their values.
    void take(std::string_view text, std::size_t line);

    // The grid that the header describes, without its values. Throws InputError if a field is missing or the
    // grid can't be held in memory; `line` is where the rows of values should start, and the file holds at
    // most `mostValues` of them, whatever the header claims.
    Grid grid(std::size_t line, std::size_t mostValues) const;

    // The line of NODATA_value, or of the first row if the header leaves it out.
    std::size_t noDataLine(std::size_t firstRow) const;

private:
    struct Field {
        double value = 0;
        std::size_t line = 0;
    };
    std::optional<Field> &field(std::string_view key, std::size_t line);
    Field valueOf(std::string_view key, std::string_view word, std::size_t line) const;
    [[noreturn]] void failForMemory() const;

    std::string file_;
    std::optional<Field> columns_, rows_, west_, south_, cellWidth_, cellHeight_, noData_;
    bool westIsCentre_ = false;
    bool southIsCentre_ = false;
};

} // namespace terrain
