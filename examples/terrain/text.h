// The words and numbers of a line of text.
#pragma once

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace terrain {

// Takes the first word off `rest`, an empty one at the end of the line.
inline std::string_view nextWord(std::string_view &rest) {
    constexpr std::string_view blanks = " \t\r\v\f";
    const auto begin = rest.find_first_not_of(blanks);
    if (begin == std::string_view::npos) {
        rest = {};
        return {};
    }
    const auto end = std::min(rest.find_first_of(blanks, begin), rest.size());
    const std::string_view word = rest.substr(begin, end - begin);
    rest.remove_prefix(end);
    return word;
}

// The number that a whole word is, whatever the locale; "nan" and "inf" are numbers here.
inline std::optional<double> number(std::string_view word) {
    if (word.size() > 1 && word[0] == '+' && word[1] != '-') {
        word.remove_prefix(1);
    }
    double value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (error != std::errc() || end != word.data() + word.size()) {
        return std::nullopt;
    }
    return value;
}

// Appends the shortest text that reads back as the same number, whatever the locale.
template <class T>
void appendNumber(std::string &text, T value) {
    char digits[64];
    text.append(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
}

// A word as a message may show it: short, and safe for a terminal.
inline std::string shown(std::string_view word) {
    constexpr std::size_t longest = 24;
    std::string text = "'";
    for (const char letter : word.substr(0, longest)) {
        text += letter >= ' ' && letter <= '~' ? letter : '?';
    }
    return text + (word.size() > longest ? "...'" : "'");
}

} // namespace terrain
