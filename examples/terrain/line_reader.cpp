#include "line_reader.h"

#include "input_error.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <system_error>

namespace terrain {

LineReader::LineReader(const std::string &file) : file_(file) {
    std::error_code ignored;
    if (std::filesystem::is_directory(file, ignored)) {
        throw InputError(file, "expected an Esri ASCII grid, found a directory");
    }
    errno = 0;
    stream_.open(file, std::ios::binary);
    if (!stream_) {
        throw InputError(file, std::string("expected a file that can be read: ") + std::strerror(errno));
    }
}

std::size_t LineReader::mostWords() const {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(file_, error);
    // A pipe or a device has no size.
    return error ? SIZE_MAX : static_cast<std::size_t>(std::min<std::uintmax_t>(size / 2 + 1, SIZE_MAX));
}

bool LineReader::next(std::string &line, std::size_t limit) {
    line.clear();
    ++number_;
    using Traits = std::char_traits<char>;
    std::streambuf &buffer = *stream_.rdbuf();
    for (;;) {
        Traits::int_type letter;
        try {
            letter = buffer.sbumpc();
        } catch (const std::ios::failure &) {
            throw InputError(file_, number_, "expected more of the file, reading it failed");
        }
        if (Traits::eq_int_type(letter, Traits::eof())) {
            return !line.empty();
        }
        if (letter == '\n') {
            return true;
        }
        if (line.size() == limit) {
            throw InputError(file_, number_,
                             "expected the line to end within " + std::to_string(limit) + " characters");
        }
        line += Traits::to_char_type(letter);
    }
}

} // namespace terrain
