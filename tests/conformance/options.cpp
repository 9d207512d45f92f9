#include "options.h"

#include <cstdlib>
#include <functional>
#include <map>
#include <stdexcept>

namespace zelmtest {
namespace {

std::uint64_t number(const std::string &text) {
    std::size_t used = 0;
    const std::uint64_t value = std::stoull(text, &used, 0);
    if (used != text.size())
        throw std::invalid_argument("not a number: " + text);
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
        {"--seed", [&](const std::string &v) { o.seed = number(v); }},
        {"--cases", [&](const std::string &v) { o.cases = number(v); }},
        {"--case", [&](const std::string &v) { o.onlyCase = number(v); }},
        {"--function", [&](const std::string &v) { o.function = v; }},
        {"--digest", [&](const std::string &v) { o.digest = v; }},
        {"--summary", [&](const std::string &v) { o.summary = v; }},
    };
    if (const char *seed = std::getenv("ZELM_SEED"))
        o.seed = number(seed);
    if (const char *cases = std::getenv("ZELM_CASES"))
        o.cases = number(cases);

    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        const std::size_t equals = argument.find('=');
        const auto option = known.find(argument.substr(0, equals));
        if (option == known.end())
            throw std::invalid_argument(
                "unknown option " + argument +
                "; known: --seed --cases --case --function --digest --summary, each with a value");
        if (equals != std::string::npos)
            option->second(argument.substr(equals + 1));
        else if (i + 1 < argc)
            option->second(argv[++i]);
        else
            throw std::invalid_argument(argument + " wants a value");
    }
}

} // namespace zelmtest
