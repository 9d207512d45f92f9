// Loops for transposes, copies, extraction and identities; memcpy where memory is in the same order.
#include "peers.h"
#include "register.h"

#include <cstring>

namespace zelmbench {
namespace {

struct Transposition : KernelTraits {
    static constexpr const char *operation = "Transpose";
    template <Text descriptor>
    using OperandForms = OperandFormsFor<descriptor, 'm'>;

    static void object(auto n, const auto &a, int, int, auto d, const auto &) {
        each(n, [&](std::size_t i) { each(n, [&](std::size_t j) { d(j, i) = a(i, j); }); });
    }
};

// Where the objects of a run-time operand without gaps lie.
enum class Place { Adjacent, Planes, List };

template <class T, Place place>
T &at(const Operand &operand, std::size_t elements, std::size_t k, std::size_t e) {
    if constexpr (place == Place::Planes) {
        return static_cast<T *>(operand.table[e])[k];
    } else if constexpr (place == Place::List) {
        return static_cast<T *>(operand.table[k])[e];
    } else {
        return static_cast<T *>(operand.data)[k * elements + e];
    }
}

// Objects of n (vectors) or n * n elements, plane by plane where there are planes.
template <class T, Place from, Place to, bool isMatrix>
void copy(const Problem &problem) {
    const Operand src = problem.src1, dst = problem.dst;
    const std::size_t count = problem.count, elements = isMatrix ? problem.n * problem.n : problem.n;
    if constexpr (from == Place::Adjacent && to == Place::Adjacent) {
        std::memcpy(dst.data, src.data, count * elements * sizeof(T));
    } else if constexpr (from == Place::Planes && to == Place::Planes) {
        for (std::size_t e = 0; e < elements; ++e) {
            std::memcpy(dst.table[e], src.table[e], count * sizeof(T));
        }
    } else if constexpr (from != Place::Planes && to != Place::Planes) {
        for (std::size_t k = 0; k < count; ++k) {
            std::memcpy(&at<T, to>(dst, elements, k, 0), &at<T, from>(src, elements, k, 0),
                        elements * sizeof(T));
        }
    } else {
        for (std::size_t e = 0; e < elements; ++e) {
#pragma GCC ivdep
            for (std::size_t k = 0; k < count; ++k) {
                at<T, to>(dst, elements, k, e) = at<T, from>(src, elements, k, e);
            }
        }
    }
}

// The same, object by object.
template <class T, Place from, Place to, bool isMatrix>
void copyByObjects(const Problem &problem) {
    const Operand src = problem.src1, dst = problem.dst;
    const std::size_t count = problem.count, elements = isMatrix ? problem.n * problem.n : problem.n;
    for (std::size_t k = 0; k < count; ++k) {
#pragma GCC ivdep
        for (std::size_t e = 0; e < elements; ++e) {
            at<T, to>(dst, elements, k, e) = at<T, from>(src, elements, k, e);
        }
    }
}

template <class T, Place from>
[[gnu::always_inline]] inline void extractTransposedOne(const Operand &src, const Operand &dst, std::size_t n,
                                                        std::size_t k) {
    for (std::size_t i = 0; i < n; ++i) {
#pragma GCC ivdep
        for (std::size_t j = 0; j < n; ++j) {
            at<T, Place::Adjacent>(dst, n * n, k, i * n + j) = at<T, from>(src, n * n, k, j * n + i);
        }
    }
}

template <class T, Place from>
void extractTransposed(const Problem &problem) {
    const Operand src = problem.src1, dst = problem.dst;
    const std::size_t n = problem.n, count = problem.count;
    for (std::size_t k = 0; k < count; ++k) {
        extractTransposedOne<T, from>(src, dst, n, k);
    }
}

// Object k alone.
template <class T, Place from, bool isMatrix, bool isTransposed>
void extractOne(const Problem &problem, std::size_t k) {
    const Operand src = problem.src1, dst = problem.dst;
    const std::size_t n = problem.n;
    if constexpr (isTransposed) {
        extractTransposedOne<T, from>(src, dst, n, k);
    } else {
        const std::size_t elements = isMatrix ? n * n : n;
#pragma GCC ivdep
        for (std::size_t e = 0; e < elements; ++e) {
            at<T, Place::Adjacent>(dst, elements, k, e) = at<T, from>(src, elements, k, e);
        }
    }
}

template <class T, Place place>
void loadIdentityOne(const Problem &problem, std::size_t k) {
    const std::size_t n = problem.n;
    if constexpr (place == Place::Planes) {
        for (std::size_t e = 0; e < n * n; ++e) {
            at<T, place>(problem.dst, n * n, k, e) = e % (n + 1) == 0 ? T(1) : T(0);
        }
    } else {
        T *const dst = &at<T, place>(problem.dst, n * n, k, 0);
        std::memset(dst, 0, n * n * sizeof(T));
        for (std::size_t i = 0; i < n; ++i) {
            dst[i * n + i] = 1;
        }
    }
}

template <class T>
class Movement {
public:
    explicit Movement(std::vector<Peer> &peers) : peers_(peers) {}

    void addAll() {
        addCopies<Place::Adjacent>('S');
        addCopies<Place::Planes>('P');
        addCopies<Place::List>('L');
        addExtractions<Place::Adjacent>();
        addExtractions<Place::Planes>();
        addExtractions<Place::List>();
        addOne("LoadIdentity", "ma", "_S", "loops", &loadIdentityOne<T, Place::Adjacent>);
        addOne("LoadIdentity", "ma", "_P", "loops", &loadIdentityOne<T, Place::Planes>);
        addOne("LoadIdentity", "ma", "_L", "loops", &loadIdentityOne<T, Place::List>);
    }

private:
    void add(const char *operation, const char *descriptor, const std::string &suffix, const char *name,
             void (*run)(const Problem &), bool isComparable = true) {
        peers_.push_back({nameOf(operation, descriptor, suffix), name, run, nullptr, isComparable});
    }
    void addOne(const char *operation, const char *descriptor, const std::string &suffix, const char *name,
                void (*runOne)(const Problem &, std::size_t), bool isComparable = true) {
        peers_.push_back({nameOf(operation, descriptor, suffix), name, nullptr, runOne, isComparable});
    }
    static std::string nameOf(const char *operation, const char *descriptor, const std::string &suffix) {
        return memberName(operation, descriptor, sizeof(T), false, 0, Layout::Standard).append(suffix);
    }

    template <Place from, Place to>
    void addCopy(const std::string &suffix) {
        const char *const name = from == to && from != Place::List ? "memcpy" : "loops";
        // From planes to planes, the library's function for vectors departs from its row.
        add("Copy", "va", suffix, name, &copy<T, from, to, false>,
            from != Place::Planes || to != Place::Planes);
        add("Copy", "ma", suffix, name, &copy<T, from, to, true>);
        if constexpr ((from == Place::Planes) != (to == Place::Planes)) {
            add("Copy", "va", suffix, "loops by objects", &copyByObjects<T, from, to, false>);
            add("Copy", "ma", suffix, "loops by objects", &copyByObjects<T, from, to, true>);
        }
    }

    template <Place from>
    void addCopies(char letter) {
        const std::string prefix = std::string("_").append(1, letter);
        addCopy<from, Place::Adjacent>(prefix + 'S');
        addCopy<from, Place::Planes>(prefix + 'P');
        addCopy<from, Place::List>(prefix + 'L');
    }

    template <Place from>
    void addExtractions() {
        const char *const name = from == Place::Adjacent ? "memcpy" : "loops";
        const std::string suffix = from == Place::Adjacent ? "_S2" : from == Place::Planes ? "_PS2" : "_LS2";
        add("Extract", "va", suffix, name, &copy<T, from, Place::Adjacent, false>);
        add("Extract", "ma", suffix, name, &copy<T, from, Place::Adjacent, true>);
        // From planes, the library's functions for transposed matrices depart from their rows.
        add("Extract", "maT", suffix, "loops", &extractTransposed<T, from>, from != Place::Planes);
        if constexpr (from == Place::Planes) {
            add("Extract", "va", suffix, "loops by objects", &copyByObjects<T, from, Place::Adjacent, false>);
            add("Extract", "ma", suffix, "loops by objects", &copyByObjects<T, from, Place::Adjacent, true>);
        }
        if constexpr (from != Place::List) {
            const std::string single = from == Place::Adjacent ? "_S2" : "_P";
            addOne("Extract", "v", single, "loops", &extractOne<T, from, false, false>);
            addOne("Extract", "m", single, "loops", &extractOne<T, from, true, false>);
            addOne("Extract", "mT", single, "loops", &extractOne<T, from, true, true>, from != Place::Planes);
        }
    }

    std::vector<Peer> &peers_;
};

} // namespace

void addMovementPeers(std::vector<Peer> &peers) {
    addAllLoops<Transposition, "m", "ma">(peers);
    Movement<float>(peers).addAll();
    Movement<double>(peers).addAll();
}

} // namespace zelmbench
