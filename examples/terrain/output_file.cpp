#include "output_file.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace terrain {

OutputFile::OutputFile(const std::string &name) : name_(name) {
    std::error_code ignored;
    const std::filesystem::file_status status = std::filesystem::status(name, ignored);
    if (std::filesystem::is_directory(status)) {
        throw OutputError(name, "expected the name of a file, found a directory");
    }
    if (std::filesystem::is_regular_file(status) || !std::filesystem::exists(status)) {
        temporary_ = name + "." + std::to_string(getpid()) + ".tmp";
        stream_ = std::fopen(temporary_.c_str(), "wbx");
    } else {
        stream_ = std::fopen(name.c_str(), "wb"); // a device or pipe must not be replaced
    }
    if (stream_ == nullptr) {
        fail("written");
    }
}

OutputFile::~OutputFile() {
    if (stream_ != nullptr) {
        std::fclose(stream_);
    }
    if (!isPublished_ && !temporary_.empty()) {
        std::remove(temporary_.c_str());
    }
}

void OutputFile::close() {
    const bool isComplete = std::ferror(stream_) == 0;
    const bool isClosed = std::fclose(stream_) == 0;
    stream_ = nullptr;
    if (!isComplete || !isClosed) {
        fail("written");
    }
}

void OutputFile::publish() {
    if (!temporary_.empty() && std::rename(temporary_.c_str(), name_.c_str()) != 0) {
        fail("given its name");
    }
    isPublished_ = true;
}

void OutputFile::fail(const char *action) const {
    throw OutputError(name_, std::string("expected a place where a file can be ") + action + ": " +
                                 std::strerror(errno));
}

} // namespace terrain
