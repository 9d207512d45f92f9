#include "grid_reader.h"

#include "grid_header.h"
#include "input_error.h"
#include "line_reader.h"
#include "text.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace terrain {

namespace {

// Far longer than any line of a grid that fits into memory, and short of filling the memory with a file that
// has no lines at all.
constexpr std::size_t longestLine = std::size_t{64} << 20;
constexpr std::size_t longestValue = 64; // with its white space

// What is higher is no elevation in any unit, but the mark of a missing value that the header doesn't name.
constexpr double highest = 1e9;

// Header and rows are often written with different numbers of digits: -3.402823e+38 and
// -3.4028234663852886e+38.
bool isNoData(double value, double noData) {
    constexpr double digits = 1e-6;
    return value == noData ||
           (std::fabs(noData) > highest && std::fabs(value - noData) <= digits * std::fabs(noData));
}

void readRow(std::string_view text, std::size_t line, const std::string &file, Grid &grid) {
    const std::size_t row = grid.elevation.size() / grid.columns;
    const bool nanIsNoData = std::isnan(grid.noData);
    std::size_t found = 0;
    for (std::string_view word = nextWord(text); !word.empty(); word = nextWord(text), ++found) {
        if (found >= grid.columns) {
            continue; // only counted
        }
        const std::optional<double> value = number(word);
        const bool isAbsent = value && (std::isnan(*value) ? nanIsNoData : isNoData(*value, grid.noData));
        if (!isAbsent && !(value && std::fabs(*value) <= highest)) {
            throw InputError(file, line,
                             "expected a number from -1e9 to 1e9 or NODATA_value as value " +
                                 std::to_string(found + 1) + " of row " + std::to_string(row + 1) +
                                 ", found " + shown(word));
        }
        grid.elevation.push_back(isAbsent ? std::numeric_limits<double>::quiet_NaN() : *value);
    }
    if (found != grid.columns) {
        throw InputError(file, line,
                         "expected " + std::to_string(grid.columns) + " values in row " +
                             std::to_string(row + 1) + ", found " + std::to_string(found));
    }
}

void removeByteOrderMark(std::string &text, const std::string &file) {
    if (text.starts_with("\xef\xbb\xbf")) {
        text.erase(0, 3);
    }
    if (text.starts_with("\xff\xfe") || text.starts_with("\xfe\xff")) {
        throw InputError(file, 1, "expected a text in ASCII or UTF-8, found UTF-16");
    }
}

bool isBlank(std::string_view text) {
    return nextWord(text).empty();
}

} // namespace

Grid readGrid(const std::string &file, Progress &progress) {
    LineReader reader(file);
    GridHeader header(file);
    std::string text;
    bool more = reader.next(text, longestLine);
    if (!more) {
        throw InputError(file, 1, "expected the header of an Esri ASCII grid, the file is empty");
    }
    removeByteOrderMark(text, file);
    for (; more; more = reader.next(text, longestLine)) {
        std::string_view rest = text;
        const std::string_view word = nextWord(rest);
        if (word.empty()) {
            continue;
        }
        if (!GridHeader::isKey(word)) {
            break;
        }
        header.take(text, reader.number());
    }
    const std::size_t firstRow = reader.number();
    Grid grid = header.grid(firstRow, reader.mostWords());

    const std::size_t limit = std::max(longestLine, grid.columns * longestValue);
    for (std::size_t row = 0; row < grid.rows; ++row) {
        if (!more) {
            throw InputError(file, reader.number(),
                             "expected " + std::to_string(grid.rows) +
                                 " rows of values, the file ends behind " + std::to_string(row));
        }
        readRow(text, reader.number(), file, grid);
        progress.show("reading", row + 1, grid.rows);
        more = reader.next(text, limit);
    }
    for (; more; more = reader.next(text, limit)) {
        if (!isBlank(text)) {
            throw InputError(file, reader.number(),
                             "expected the end of the file behind " + std::to_string(grid.rows) +
                                 " rows of values");
        }
    }
    if (std::all_of(grid.elevation.begin(), grid.elevation.end(), [](double z) { return std::isnan(z); })) {
        throw InputError(file, header.noDataLine(firstRow),
                         "expected at least one cell with data, every value is NODATA_value");
    }
    return grid;
}

} // namespace terrain
