#include "sandbox.h"

#include "grid_reader.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace terraintest {

namespace {

std::filesystem::path freshFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "terrain-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("no folder " + pattern);
    }
    return pattern;
}

std::string contents(const std::filesystem::path &file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void redirect(int descriptor, const std::filesystem::path &file) {
    const int target = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (target < 0 || dup2(target, descriptor) < 0) {
        _exit(126);
    }
}

} // namespace

Sandbox::Sandbox() : folder_(freshFolder()), logs_(freshFolder()) {}

Sandbox::~Sandbox() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
    std::filesystem::remove_all(logs_, ignored);
}

void Sandbox::write(const std::string &name, const std::string &text) const {
    std::ofstream(path(name), std::ios::binary) << text;
}

std::string Sandbox::read(const std::string &name) const {
    return contents(path(name));
}

std::vector<std::string> Sandbox::files() const {
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(folder_)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

Outcome Sandbox::run(const std::vector<std::string> &arguments) const {
    const std::filesystem::path file = logs_ / "errors";
    const int errors = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    Outcome outcome = start(arguments, errors);
    close(errors);
    outcome.errors = contents(file);
    return outcome;
}

Outcome Sandbox::runOnTerminal(const std::vector<std::string> &arguments) const {
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (terminal < 0 || grantpt(terminal) != 0 || unlockpt(terminal) != 0) {
        throw std::runtime_error("no terminal");
    }
    const int errors = open(ptsname(terminal), O_WRONLY | O_NOCTTY | O_CLOEXEC);
    std::string shown;
    std::thread reader([&] {
        char buffer[4096];
        for (ssize_t count; (count = ::read(terminal, buffer, sizeof buffer)) > 0;) {
            shown.append(buffer, static_cast<std::size_t>(count));
        }
    });
    Outcome outcome = start(arguments, errors);
    close(errors); // the last one: the reader finds the end
    reader.join();
    close(terminal);
    outcome.errors = shown;
    return outcome;
}

Outcome Sandbox::start(const std::vector<std::string> &arguments, int errors) const {
    const std::filesystem::path output = logs_ / "output";
    std::vector<std::string> words = {TERRAIN_PROGRAM};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char *> argv;
    for (std::string &word : words) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);

    const pid_t child = fork();
    if (child < 0) {
        throw std::runtime_error("no process for the program");
    }
    if (child == 0) {
        redirect(STDOUT_FILENO, output);
        if (dup2(errors, STDERR_FILENO) >= 0 && chdir(folder_.c_str()) == 0) {
            execv(argv[0], argv.data());
        }
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    Outcome outcome;
    outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    outcome.output = contents(output);
    outcome.peakMebibytes = static_cast<double>(usage.ru_maxrss) / 1024;
    return outcome;
}

std::string gridText(std::size_t rows, std::size_t columns, double cellSize,
                     const std::function<double(double x, double y)> &height) {
    const auto text = [](double value) {
        char digits[32];
        return std::string(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
    };
    std::string grid = "ncols " + std::to_string(columns) + "\nnrows " + std::to_string(rows) +
                       "\nxllcorner 0\nyllcorner 0\ncellsize " + text(cellSize) + "\nNODATA_value -9999\n";
    for (std::size_t row = 0; row < rows; ++row) {
        for (std::size_t column = 0; column < columns; ++column) {
            const double z = height((static_cast<double>(column) + 0.5) * cellSize,
                                    (static_cast<double>(rows - row) - 0.5) * cellSize);
            grid += std::isnan(z) ? "-9999" : text(z);
            grid += column + 1 < columns ? ' ' : '\n';
        }
    }
    return grid;
}

terrain::Grid readGrid(const std::filesystem::path &file) {
    terrain::Progress progress(terrain::Progress::Show::OnTerminal);
    return terrain::readGrid(file.string(), progress);
}

} // namespace terraintest
