#include "grid_header.h"

#include "input_error.h"
#include "memory_needed.h"
#include "text.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <limits>
#include <new>

namespace terrain {

namespace {

constexpr const char *knownKeys =
    "ncols, nrows, xllcorner or xllcenter, yllcorner or yllcenter, cellsize or dx and dy, NODATA_value";

std::string lowered(std::string_view word) {
    std::string text(word);
    for (char &letter : text) {
        letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    }
    return text;
}

} // namespace

bool GridHeader::isKey(std::string_view word) {
    return !word.empty() && !number(word) && word[0] != '-' && word[0] != '+' && word[0] != '.' &&
           !std::isdigit(static_cast<unsigned char>(word[0]));
}

std::optional<GridHeader::Field> &GridHeader::field(std::string_view key, std::size_t line) {
    const std::string name = lowered(key);
    if (name == "ncols") {
        return columns_;
    }
    if (name == "nrows") {
        return rows_;
    }
    if (name == "xllcorner" || name == "xllcenter") {
        westIsCentre_ = name == "xllcenter";
        return west_;
    }
    if (name == "yllcorner" || name == "yllcenter") {
        southIsCentre_ = name == "yllcenter";
        return south_;
    }
    if (name == "cellsize" || name == "dx") {
        return cellWidth_;
    }
    if (name == "dy") {
        return cellHeight_;
    }
    if (name == "nodata_value") {
        return noData_;
    }
    throw InputError(file_, line,
                     std::string("expected ") + knownKeys + " or a row of numbers, found " + shown(key));
}

void GridHeader::take(std::string_view text, std::size_t line) {
    std::string_view previous;
    for (std::string_view key = nextWord(text); !key.empty(); key = nextWord(text)) {
        if (!previous.empty() && !isKey(key)) {
            throw InputError(file_, line,
                             "expected a key behind " + lowered(previous) + " and its value, found " +
                                 shown(key));
        }
        std::optional<Field> &target = field(key, line);
        // cellsize stands for dx and dy; some programs write both behind it.
        const bool isBoth = lowered(key) == "cellsize";
        if (target || (isBoth && cellHeight_)) {
            throw InputError(file_, line,
                             "expected " + lowered(key) + " once, it stands in line " +
                                 std::to_string((target ? target : cellHeight_)->line) + " already");
        }
        target = valueOf(key, nextWord(text), line);
        if (isBoth) {
            std::string_view rest = text;
            const std::string_view second = nextWord(rest);
            const bool hasSecond = !second.empty() && !isKey(second);
            cellHeight_ = hasSecond ? valueOf(key, second, line) : target;
            text = hasSecond ? rest : text;
        }
        previous = key;
    }
}

GridHeader::Field GridHeader::valueOf(std::string_view key, std::string_view word, std::size_t line) const {
    const std::string name = lowered(key);
    const std::optional<double> value = number(word);
    if (name == "ncols" || name == "nrows") {
        const bool isWhole = !word.empty() && word.find_first_not_of("0123456789") == std::string_view::npos;
        // A whole number that is too long for any type is a size beyond memory, not a wrong number.
        const double size = value ? *value : std::numeric_limits<double>::infinity();
        if (!isWhole || size < 1) {
            throw InputError(file_, line,
                             "expected a positive whole number behind " + name + ", found " + shown(word));
        }
        return {size, line};
    }
    const bool positive = name == "cellsize" || name == "dx" || name == "dy";
    const bool allowNan = name == "nodata_value";
    // The squares of cells beyond these, and what is divided by them, would leave the range of floats.
    constexpr double smallest = 1e-9;
    constexpr double largest = 1e9;
    if (!value || std::isinf(*value) || (std::isnan(*value) && !allowNan) ||
        (positive && !(*value >= smallest && *value <= largest))) {
        throw InputError(file_, line,
                         std::string("expected a ") +
                             (positive ? "positive number from 1e-9 to 1e9" : "number") + " behind " + name +
                             ", found " + shown(word));
    }
    return {*value, line};
}

void GridHeader::failForMemory() const {
    constexpr double gibi = 1024.0 * 1024.0 * 1024.0;
    char text[160];
    std::snprintf(
        text, sizeof text,
        "expected a grid that fits into %.3g GiB of memory, %.15g rows of %.15g cells need %.3g GiB",
        memoryAvailable() / gibi, rows_->value, columns_->value,
        memoryNeeded(rows_->value, columns_->value) / gibi);
    throw InputError(file_, std::max(rows_->line, columns_->line), text);
}

Grid GridHeader::grid(std::size_t line, std::size_t mostValues) const {
    const auto require = [&](const std::optional<Field> &wanted, const char *name) {
        if (!wanted) {
            throw InputError(file_, line,
                             std::string("expected ") + name + " in the header before this line");
        }
    };
    require(columns_, "ncols");
    require(rows_, "nrows");
    require(west_, "xllcorner or xllcenter");
    require(south_, "yllcorner or yllcenter");
    require(cellWidth_, cellHeight_ ? "dx" : "cellsize");
    require(cellHeight_, "dy");
    // Asked before anything is allocated: a system may promise memory that it doesn't have.
    if (memoryNeeded(rows_->value, columns_->value) > memoryAvailable()) {
        failForMemory();
    }

    constexpr double defaultNoData = -9999;
    Grid grid;
    grid.columns = static_cast<std::size_t>(columns_->value);
    grid.rows = static_cast<std::size_t>(rows_->value);
    grid.cellWidth = cellWidth_->value;
    grid.cellHeight = cellHeight_->value;
    grid.west = west_->value - (westIsCentre_ ? grid.cellWidth / 2 : 0);
    grid.south = south_->value - (southIsCentre_ ? grid.cellHeight / 2 : 0);
    grid.noData = noData_ ? noData_->value : defaultNoData;
    try {
        grid.elevation.reserve(std::min(grid.rows * grid.columns, mostValues));
    } catch (const std::bad_alloc &) {
        failForMemory();
    }
    return grid;
}

std::size_t GridHeader::noDataLine(std::size_t firstRow) const {
    return noData_ ? noData_->line : firstRow;
}

} // namespace terrain
