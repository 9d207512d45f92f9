// What all tests of faults share: the functions in turn, calls with any stack, and how a failure is told.
#pragma once

#include "case.h"
#include "library.h"
#include "runner.h"

#include <cstdint>
#include <functional>
#include <string>

namespace zelmtest {

Arena &arena();

// Cases per function: `few`, or as many times more as ZELM_FAULTS says.
std::uint64_t casesPerFunction(std::uint64_t few);

// All functions that the model knows, with the exported function.
void forEachFunction(const std::function<void(const Target &target, AnyFunction function)> &body);

// Calls the function; on t7 with the stack at one of its four alignments, by the number of the case.
ZelmStatus callAsOldCallersDo(const Target &target, AnyFunction function, const std::vector<Value> &values,
                              std::uint64_t number);

// Tells of a case that failed, but of no more than a few of a test.
void tellFailure(const Case &failed, const std::string &what);

// Are all elements of all sources finite numbers?
bool hasFiniteSources(const Case &made);

} // namespace zelmtest
