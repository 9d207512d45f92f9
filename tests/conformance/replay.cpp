#include "replay.h"

#include <bit>
#include <cinttypes>
#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <map>

namespace zelmtest {
namespace {

using zelmref::Kind;
using zelmref::Part;

std::string print(const char *format, ...) {
    char text[256];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    return text;
}

// A number as a C literal, or empty for a NaN, which has none.
std::string literal(std::uint64_t bits, bool is64) {
    const double number = is64 ? std::bit_cast<double>(bits)
                               : static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(bits)));
    if (std::isnan(number))
        return {};
    const char *suffix = is64 ? "" : "f";
    if (std::isinf(number))
        return number < 0 ? "-INFINITY" : "INFINITY";
    return print("%a%s", number, suffix);
}

class Writer {
public:
    Writer(const Case &theCase, const Arena &arena)
        : case_(theCase), arena_(arena), is64_(theCase.target->cell.type == zelmref::Type::Float64),
          element_(is64_ ? "double" : "float") {}

    std::string program(zelmref::Address differing) {
        std::string arguments;
        std::string before;
        for (const zelmref::CArgument &argument : case_.target->arguments) {
            if (!arguments.empty())
                arguments += ",\n        ";
            arguments += "/* " + argument.name + " */ " + value(argument, before);
        }
        for (const Placement &o : case_.operands)
            writeElements(o, before);
        for (std::size_t p = 0; p < case_.target->signature.size(); ++p)
            if (case_.target->signature[p].kind == Kind::PivotIndex)
                writePivots(case_.target->signature[p], case_.call.passed[p], before);

        std::string text = print("/* %s, seed %" PRIu64 ", case %" PRIu64 " */\n",
                                 case_.target->function->name, case_.seed, case_.number);
        text += "#include <math.h>\n#include <stdint.h>\n#include <stdio.h>\n#include <string.h>\n"
                "#include \"zelm.h\"\n\n";
        for (const Window &w : case_.windows) {
            const std::string slab = print("slab%u", static_cast<unsigned>(w.slab));
            if (arguments.find(slab) != std::string::npos || before.find(slab) != std::string::npos)
                text +=
                    print("static _Alignas(64) unsigned char %s[%zu];\n", slab.c_str(), w.end - origin(w));
        }
        text += "\nint main(void)\n{\n" + before;
        const std::string call = std::string(case_.target->function->name) + "(\n        " + arguments + ")";
        text += case_.target->function->isVoid
                    ? "    " + call + ";\n"
                    : "    ZelmStatus status = " + call + ";\n    printf(\"%d\\n\", (int)status);\n";
        if (differing)
            text += "    printf(\"%a\\n\", (double)*(" + element_ + " *)(" + place(differing) + "));\n";
        text += "    return 0;\n}\n";
        return text;
    }

private:
    // A slab of the program begins at a multiple of 64, like the arena's, so that alignments are the same.
    static std::size_t origin(const Window &w) { return w.begin / 64 * 64; }

    std::string place(std::uintptr_t address) const {
        std::size_t slab, offset;
        if (arena_.locate(address, slab, offset))
            for (const Window &w : case_.windows)
                if (w.slab == slab)
                    return print("slab%u + 0x%zx", static_cast<unsigned>(slab), offset - origin(w));
        return print("(unsigned char *)0x%" PRIxPTR, address);
    }

    std::string word(std::int32_t value) const {
        return value < 0 ? print("-0x%" PRIx64, -static_cast<std::int64_t>(value))
                         : print("0x%" PRIx32, static_cast<std::uint32_t>(value));
    }

    std::string value(const zelmref::CArgument &argument, std::string &before) {
        const zelmref::Parameter &parameter = case_.target->signature[argument.parameter];
        const zelmref::Passed &passed = case_.call.passed[argument.parameter];
        switch (argument.part) {
        case Part::Base:
            return passed.base ? "(void *)(" + place(passed.base) + ")" : "0";
        case Part::Table:
            return passed.base ? table(argument, passed, before) : "0";
        case Part::Shift:
            return word(passed.shift);
        case Part::ObjStride:
            return word(passed.objStride);
        case Part::RowStride:
            return word(passed.rowStride);
        case Part::ElemStride:
            return word(passed.elemStride);
        case Part::Value:
            break;
        }
        if (parameter.kind == Kind::Dimension || parameter.kind == Kind::Count)
            return print("%" PRIu32, passed.size);
        if (parameter.kind != Kind::Constant)
            return passed.base ? "(void *)(" + place(passed.base) + ")" : "0";
        if (const std::string number = literal(passed.bits, is64_); !number.empty())
            return number;
        before += print("    %s val; uint%d_t bits = 0x%" PRIx64 "u; memcpy(&val, &bits, sizeof val);\n",
                        element_.c_str(), is64_ ? 64 : 32, passed.bits);
        return "val";
    }

    std::string table(const zelmref::CArgument &argument, const zelmref::Passed &passed,
                      std::string &before) {
        const Placement *placement = nullptr;
        for (const Placement &o : case_.operands)
            if (o.parameter == argument.parameter)
                placement = &o;
        before += "    uintptr_t " + argument.name + "[] = {";
        const auto shift = static_cast<std::uintptr_t>(static_cast<std::intptr_t>(passed.shift));
        for (std::size_t e = 0; e < placement->entries.size(); ++e) {
            const auto entry = zelmref::readWord<std::uintptr_t>(passed.base + e * sizeof(void *));
            before += e % 4 == 0 ? "\n        " : " ";
            before += !entry ? "0" : "(uintptr_t)(" + place(entry + shift) + ")";
            if (entry && shift)
                before += " - (uintptr_t)(intptr_t)" + word(passed.shift);
            before += ",";
        }
        before += placement->entries.empty() ? "0};\n" : "};\n";
        return "(void *)" + argument.name;
    }

    void writeElements(const Placement &o, std::string &before) const {
        for (std::uint32_t k = 0; k < o.objects; ++k)
            for (std::uint32_t i = 0; i < o.rows; ++i)
                for (std::uint32_t j = 0; j < o.columns; ++j) {
                    const std::uintptr_t address =
                        reinterpret_cast<std::uintptr_t>(arena_.slab(o.slab)) +
                        static_cast<std::uintptr_t>(static_cast<std::intptr_t>(o.origin + o.offset(k, i, j)));
                    std::size_t slab, offset;
                    if (!arena_.locate(address, slab, offset) || offset >= Arena::slabSize)
                        continue; // an element that is never read
                    const std::uint64_t bits = is64_ ? zelmref::readWord<std::uint64_t>(address)
                                                     : zelmref::readWord<std::uint32_t>(address);
                    const std::string number = literal(bits, is64_);
                    if (number.empty())
                        before += print("    *(uint%d_t *)(%s) = 0x%" PRIx64 "u; /* %s[%u](%u, %u) */\n",
                                        is64_ ? 64 : 32, place(address).c_str(), bits,
                                        case_.target->signature[o.parameter].name.c_str(), k, i, j);
                    else
                        before += print("    *(%s *)(%s) = %s; /* %s[%u](%u, %u) */\n", element_.c_str(),
                                        place(address).c_str(), number.c_str(),
                                        case_.target->signature[o.parameter].name.c_str(), k, i, j);
                }
    }

    void writePivots(const zelmref::Parameter &parameter, const zelmref::Passed &passed,
                     std::string &before) const {
        if (!passed.base)
            return;
        const std::uint32_t entries = case_.call.dimension("n") * (parameter.array ? case_.call.count() : 1);
        for (std::uint32_t e = 0; e < entries; ++e) {
            const std::uintptr_t address = passed.base + 4 * std::uintptr_t{e};
            before += print("    *(uint32_t *)(%s) = 0x%" PRIx32 "u; /* pivotIndex[%u] */\n",
                            place(address).c_str(), zelmref::readWord<std::uint32_t>(address), e);
        }
    }

    const Case &case_;
    const Arena &arena_;
    bool is64_;
    std::string element_;
};

} // namespace

std::string replayProgram(const Case &theCase, const Arena &arena, zelmref::Address differing) {
    return Writer(theCase, arena).program(differing);
}

} // namespace zelmtest
