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
    "ncols, nrows, xllcorner or xllcenter, yllcorner or yllcenter, cellsize, NODATA_value";

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
    if (name == "cellsize") {
        return cellSize_;
    }
    if (name == "nodata_value") {
        return noData_;
    }
    throw InputError(file_, line,
                     std::string("expected ") + knownKeys + " or a row of numbers, found " + shown(key));
}

void GridHeader::take(std::string_view text, std::size_t line) {
    const std::string_view key = nextWord(text);
    std::optional<Field> &target = field(key, line);
    if (target) {
        throw InputError(file_, line,
                         "expected " + lowered(key) + " once, it stands in line " +
                             std::to_string(target->line) + " already");
    }
    const std::string_view word = nextWord(text);
    const std::optional<double> value = number(word);
    const bool isSize = &target == &columns_ || &target == &rows_;
    if (isSize) {
        const bool isWhole = !word.empty() && word.find_first_not_of("0123456789") == std::string_view::npos;
        // A whole number that is too long for any type is a size beyond memory, not a wrong number.
        const double size = value ? *value : std::numeric_limits<double>::infinity();
        if (!isWhole || size < 1) {
            throw InputError(file_, line,
                             "expected a positive whole number behind " + lowered(key) + ", found " +
                                 shown(word));
        }
        target = Field{size, line};
    } else {
        const bool positive = &target == &cellSize_;
        const bool allowNan = &target == &noData_;
        if (!value || std::isinf(*value) || (std::isnan(*value) && !allowNan) ||
            (positive && !(*value > 0))) {
            throw InputError(file_, line,
                             std::string("expected a ") + (positive ? "positive " : "") + "number behind " +
                                 lowered(key) + ", found " + shown(word));
        }
        target = Field{*value, line};
    }
    if (const std::string_view extra = nextWord(text); !extra.empty()) {
        throw InputError(file_, line,
                         "expected nothing behind " + lowered(key) + " and its value, found " + shown(extra));
    }
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

Grid GridHeader::grid(std::size_t line) const {
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
    require(cellSize_, "cellsize");
    // Asked before anything is allocated: a system may promise memory that it doesn't have.
    if (memoryNeeded(rows_->value, columns_->value) > memoryAvailable()) {
        failForMemory();
    }

    constexpr double defaultNoData = -9999;
    Grid grid;
    grid.columns = static_cast<std::size_t>(columns_->value);
    grid.rows = static_cast<std::size_t>(rows_->value);
    grid.cellSize = cellSize_->value;
    grid.west = west_->value - (westIsCentre_ ? grid.cellSize / 2 : 0);
    grid.south = south_->value - (southIsCentre_ ? grid.cellSize / 2 : 0);
    grid.noData = noData_ ? noData_->value : defaultNoData;
    try {
        grid.elevation.reserve(grid.rows * grid.columns);
    } catch (const std::bad_alloc &) {
        failForMemory();
    }
    return grid;
}

std::size_t GridHeader::noDataLine(std::size_t firstRow) const {
    return noData_ ? noData_->line : firstRow;
}

} // namespace terrain
