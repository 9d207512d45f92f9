/** @file
 * What an operation reports: the status of the C function, in words, and the object that failed.
 */
#pragma once

#include <cstddef>
#include <cstdio>
#include <exception>

#include "zelm/types.h"

namespace zelm {

class Result;

/** What Result::or_throw() throws. */
class Error : public std::exception {
public:
    inline explicit Error(const Result &result);

    const char *what() const noexcept override { return text_; }
    ZelmStatus status() const noexcept { return status_; }
    /** The number of the object that failed, Result::no_index where it isn't known. */
    std::size_t index() const noexcept { return index_; }

private:
    ZelmStatus status_;
    std::size_t index_;
    char text_[256];
};

/** The outcome of an operation. True if it completed. */
class [[nodiscard("an operation may fail: test its result, or call or_throw()")]] Result {
public:
    static constexpr std::size_t no_index = static_cast<std::size_t>(-1);

    constexpr explicit Result(const char *operation, ZelmStatus status, const char *refusal = nullptr,
                              std::size_t index = no_index)
        : operation_(operation), refusal_(refusal), index_(index), status_(status) {}

    constexpr explicit operator bool() const {
        return status_ == ZELM_OK;
    }

    /** The value of the C function. A call that was refused ahead of it has ZELM_ERR_SIZE. */
    constexpr ZelmStatus status() const {
        return status_;
    }

    /** The number of the object at which an array ended, no_index where there is none or it isn't known
     * (docs/cpp.md). */
    constexpr std::size_t index() const {
        return index_;
    }

    /** The name of the operation, such as "lu". */
    constexpr const char *operation() const {
        return operation_;
    }

    /** What happened, in words; the text lives for ever. */
    constexpr const char *message() const {
        if (refusal_ != nullptr) {
            return refusal_;
        }
        switch (status_) {
        case ZELM_OK:
            return "done";
        case ZELM_ERR_SIZE:
            return "a size is zero, or two sizes disagree";
        case ZELM_ERR_NULL_PTR:
            return "a pointer, or an entry of a table of pointers, is null";
        case ZELM_ERR_DIV_BY_ZERO:
            return "the matrix is singular, or a pivot lies below the threshold of its family";
        case ZELM_ERR_NOT_POS_DEF:
            return "the matrix is not positive definite";
        default:
            return "unknown status";
        }
    }

    /** Throws an Error unless the operation completed. */
    constexpr void or_throw() const {
        if (status_ != ZELM_OK) {
            throw Error(*this);
        }
    }

private:
    const char *operation_;
    const char *refusal_;
    std::size_t index_;
    ZelmStatus status_;
};

inline Error::Error(const Result &result) : status_(result.status()), index_(result.index()), text_() {
    if (index_ == Result::no_index) {
        std::snprintf(text_, sizeof(text_), "zelm: %s: %s (status %d)", result.operation(), result.message(),
                      static_cast<int>(status_));
    } else {
        std::snprintf(text_, sizeof(text_), "zelm: %s: object %zu: %s (status %d)", result.operation(),
                      index_, result.message(), static_cast<int>(status_));
    }
}

} // namespace zelm
