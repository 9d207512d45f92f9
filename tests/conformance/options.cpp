#include "options.h"

#include <charconv>
#include <cstdlib>
#include <functional>
#include <map>
#include <stdexcept>
#include <system_error>

namespace zelmtest {
namespace {

// In decimal, or in hexadecimal behind 0x.
std::uint64_t number(const std::string &name, const std::string &text) {
    const bool isHex = text.starts_with("0x") || text.starts_with("0X");
    const char *const end = text.data() + text.size();
    std::uint64_t value = 0;
    const auto [stop, error] = std::from_chars(text.data() + (isHex ? 2 : 0), end, value, isHex ? 16 : 10);
    if (error == std::errc::result_out_of_range)
        throw std::invalid_argument(name + " wants a number below 2^64, not " + text);
    if (error != std::errc{} || stop != end)
        throw std::invalid_argument(name + " wants a number of 0 or more, not '" + text + "'");
    return value;
}

} // namespace

Options &options() {
    static Options instance;
    return instance;
}

void parseOptions(int argc, char **argv) {
    Options &o = options();
    const std::map<std::string, std::function<void(const std::string &)>> known = {
        {"--seed", [&](const std::string &v) { o.seed = number("--seed", v); }},
        {"--cases", [&](const std::string &v) { o.cases = number("--cases", v); }},
        {"--case", [&](const std::string &v) { o.onlyCase = number("--case", v); }},
        {"--also", [&](const std::string &v) { o.also.push_back(v); }},
        {"--function", [&](const std::string &v) { o.function = v; }},
        {"--digest", [&](const std::string &v) { o.digest = v; }},
        {"--summary", [&](const std::string &v) { o.summary = v; }},
    };
    if (const char *seed = std::getenv("ZELM_SEED"))
        o.seed = number("ZELM_SEED", seed);
    if (const char *cases = std::getenv("ZELM_CASES"))
        o.cases = number("ZELM_CASES", cases);

    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        const std::size_t equals = argument.find('=');
        const auto option = known.find(argument.substr(0, equals));
        if (option == known.end())
            throw std::invalid_argument(
                "unknown option " + argument +
                "; known: --seed --cases --case --also --function --digest --summary, each with a value");
        if (equals != std::string::npos)
            option->second(argument.substr(equals + 1));
        else if (i + 1 < argc)
            option->second(argv[++i]);
        else
            throw std::invalid_argument(argument + " wants a value");
    }
}

} // namespace zelmtest
