// A file that appears under its name only when it is complete.
#pragma once

#include <cstdio>
#include <stdexcept>
#include <string>

namespace terrain {

class OutputError : public std::runtime_error {
public:
    OutputError(const std::string &file, const std::string &text) : std::runtime_error(file + ": " + text) {}
};

// Written beside its place under a temporary name; publish() gives it its own. Without that, the destructor
// removes it. A device or a pipe is written directly.
class OutputFile {
public:
    // Throws OutputError, as all members do when the file system refuses.
    explicit OutputFile(const std::string &name);
    ~OutputFile();
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;

    const std::string &name() const { return name_; }
    std::FILE *stream() { return stream_; }

    // Everything is on the way to the disk and no write has failed.
    void close();
    void publish();

private:
    [[noreturn]] void fail(const char *action) const;

    std::string name_;
    std::string temporary_; // empty for a device or a pipe
    std::FILE *stream_ = nullptr;
    bool isPublished_ = false;
};

} // namespace terrain
