// What a case of the grid works on: the operands' memory, and the comparison of a call by views with the C
// call.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <span>
#include <string>
#include <vector>

#include "zelm.hpp"

extern "C" {
extern int lastCalled;
extern void *functions[];
}

namespace zelmtest {

extern const char *const names[];
extern const std::size_t nameCount, caseCount;
extern std::size_t casesRun, failures;

void allCases();

template <class T>
T *moved(T *pointer, std::ptrdiff_t bytes) {
    return reinterpret_cast<T *>(reinterpret_cast<char *>(pointer) + bytes);
}

/** Numbers from -1 to 1 that differ from call to call. */
template <class T>
T random(std::uint64_t &state) {
    state = state * 6364136223846793005u + 1442695040888963407u;
    return static_cast<T>(static_cast<double>(state >> 11) * 0x1p-52 - 1);
}

template <class T>
class Memory {
public:
    explicit Memory(std::uint64_t seed) {
        for (T &x : data_) {
            x = random<T>(seed);
        }
    }
    T *first() { return data_; }
    const T *rfirst() const { return data_; }
    T *const *table() const { return table_; }
    const T *const *rtable() const { return table_; }

    /** Entries of the table, a number of bytes apart. */
    void point(std::size_t entries, std::ptrdiff_t spacing) {
        for (std::size_t e = 0; e < entries; ++e) {
            table_[e] = moved(data_, static_cast<std::ptrdiff_t>(e) * spacing);
        }
    }

    /** Makes the diagonals large, so that no decomposition fails. */
    void dominant(int rows, int columns, std::ptrdiff_t row, std::ptrdiff_t element, zelm::Layout layout,
                  std::ptrdiff_t object) {
        for (int k = 0; k < 3; ++k) {
            for (int i = 0; i < rows && i < columns; ++i) {
                *at(k, i, columns, row, element, layout, object) += static_cast<T>(8 + i);
            }
        }
    }

    bool operator==(const Memory &other) const { return std::memcmp(data_, other.data_, sizeof(data_)) == 0; }

private:
    T *at(int k, int i, int columns, std::ptrdiff_t row, std::ptrdiff_t element, zelm::Layout layout,
          std::ptrdiff_t object) {
        switch (layout) {
        case zelm::Layout::P:
        case zelm::Layout::PS2:
            return moved(table_[i * columns + i], k * object);
        case zelm::Layout::L:
        case zelm::Layout::LS2:
            return moved(table_[k], i * row + i * element);
        default:
            return moved(data_, k * object + i * row + i * element);
        }
    }

    alignas(16) T data_[1024];
    T *table_[64] = {};
};

/** One call by views and one of the C function, on equal memory. */
template <class T>
class Case {
public:
    Case(const char *name, int number) : name_(name), number_(number) {
        for (std::size_t i = 0; i < pivots_.size(); ++i) {
            pivots_[i] = static_cast<std::uint32_t>(i % 3 == 0 ? i + 1 : i % 3 == 1 ? i - 1 : i) % 3;
        }
        lastCalled = -1;
    }

    Memory<T> src{1}, src1{2}, src2{3}, src3{4}, got{5}, want{5};
    T val = static_cast<T>(1.7), scale = static_cast<T>(0.3), scale1 = static_cast<T>(-1.1),
      scale2 = static_cast<T>(2.3);

    std::vector<T> &scratch() { return scratch_; }
    const std::vector<std::uint32_t> &pivots() const { return pivots_; }
    std::vector<std::uint32_t> &got_pivots() { return gotPivots_; }
    std::vector<std::uint32_t> &want_pivots() { return wantPivots_; }

    void reached(const zelm::Result &result) {
        status_ = result.status();
        if (lastCalled != number_) {
            fail(std::string("called ") + (lastCalled < 0 ? "nothing" : names[lastCalled]) + " (" +
                 result.message() + ")");
        }
    }

    void expected(ZelmStatus status) {
        ++casesRun;
        if (status != ZELM_OK || status_ != status) {
            fail("status " + std::to_string(status_) + ", the C function gives " + std::to_string(status));
        }
        if (!(got == want) || gotPivots_ != wantPivots_) {
            fail("other bits than the C function");
        }
        if (got == Memory<T>(5)) {
            fail("nothing was written");
        }
    }

private:
    void fail(const std::string &what) {
        ++failures;
        std::printf("%s: %s\n", name_, what.c_str());
    }

    const char *name_;
    int number_;
    ZelmStatus status_ = 1;
    std::vector<T> scratch_ = std::vector<T>(100);
    std::vector<std::uint32_t> pivots_ = std::vector<std::uint32_t>(21);
    std::vector<std::uint32_t> gotPivots_ = std::vector<std::uint32_t>(21, 99), wantPivots_ = gotPivots_;
};

template <class Call>
ZelmStatus identities(Call call) {
    for (std::ptrdiff_t k = 0; k < 3; ++k) {
        if (const ZelmStatus status = call(k); status != ZELM_OK) {
            return status;
        }
    }
    return ZELM_OK;
}

} // namespace zelmtest
