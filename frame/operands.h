// The six memory layouts: what the arguments of an operand mean. What follows from a layout is the frame's:
// how groups are loaded (groups.h), which bytes objects cover (overlap.h), what strides may make of it
// (plainest.h).
//
//   one object                  an array of objects
//   Dense     absent, L         DenseArray         absent
//   Strided   S2, LS2           StridedArray       S2
//   Table     P, PS2            PackedTableArray   P
//                               TableArray         PS2
//                               DenseList          L
//                               StridedList        LS2
//
// An array's object(k) is the operand of one object; that of one object is itself, which makes it an
// invariant operand of an array form. A vector is a matrix of one row. `columns` is the number of table
// entries per row.
#pragma once

#include "frame/memory.h"

#include <utility>

namespace zelm::frame {

// The dimension of a vector or of a square matrix: part of the name, or an argument.
template <unsigned N>
struct FixedSize {
    static constexpr unsigned fixed = N;
    static constexpr std::uint32_t value() { return N; }
    static constexpr bool isZero() { return false; }
};

struct RunTimeSize {
    static constexpr unsigned fixed = 0;
    std::uint32_t length;
    ZELM_INLINE std::uint32_t value() const { return length; }
    ZELM_INLINE bool isZero() const { return length == 0; }
};

// What the order of checks asks of an operand, answered for operands that have no table.
struct WithoutTable {
    static constexpr bool isTable = false;      // one table entry per element position
    static constexpr bool isList = false;       // one table entry per object
    static constexpr bool isDense = false;      // the elements of a row are adjacent
    static constexpr bool isSideBySide = false; // the same element of successive objects is adjacent
    static constexpr bool hasNullEntry(Address) { return false; }
    static constexpr bool entryIsNull(std::uint32_t) { return false; }
    static constexpr bool elementIsNull(Address) { return false; }
};

template <typename T>
struct Constant : WithoutTable {
    using Element = T;
    T value;
    ZELM_INLINE explicit Constant(T v) : value(v) {}
    static constexpr bool isNull() { return false; }
    ZELM_INLINE Constant object(std::uint32_t) const { return *this; }
    ZELM_INLINE T get(std::uint32_t) const { return value; }
};

// The operations on one object that follow from the address of its elements.
template <typename Object, typename T>
struct Elements {
    using Element = std::remove_const_t<T>;
    ZELM_INLINE Element get(std::uint32_t row, std::uint32_t column, std::uint32_t columns) const {
        return load<Element>(self().address(row, column, columns));
    }
    ZELM_INLINE void set(std::uint32_t row, std::uint32_t column, std::uint32_t columns,
                         Element value) const {
        store(self().address(row, column, columns), value);
    }
    ZELM_INLINE Element get(std::uint32_t column) const { return get(0, column, 0); }
    ZELM_INLINE void set(std::uint32_t column, Element value) const { set(0, column, 0, value); }
    ZELM_INLINE Object object(std::uint32_t) const { return self(); }

private:
    ZELM_INLINE const Object &self() const { return static_cast<const Object &>(*this); }
};

template <typename T>
struct Dense : WithoutTable, Elements<Dense<T>, T> {
    static constexpr bool isDense = true;
    Address start, rowStride;
    static constexpr Address elemStride = sizeof(T);
    ZELM_INLINE Dense(T *pointer, std::int32_t row) : start(addressOf(pointer)), rowStride(distance(row)) {}
    ZELM_INLINE Dense(Address at, Address row) : start(at), rowStride(row) {}
    ZELM_INLINE bool isNull() const { return start == 0; }
    ZELM_INLINE Address rowStart(std::uint32_t row) const { return start + row * rowStride; }
    ZELM_INLINE Address address(std::uint32_t row, std::uint32_t column, std::uint32_t) const {
        return rowStart(row) + column * sizeof(T);
    }
};

template <typename T>
struct Strided : WithoutTable, Elements<Strided<T>, T> {
    Address start, rowStride, elemStride;
    ZELM_INLINE Strided(T *pointer, std::int32_t row, std::int32_t elem)
        : start(addressOf(pointer)), rowStride(distance(row)), elemStride(distance(elem)) {}
    ZELM_INLINE Strided(Address at, Address row, Address elem)
        : start(at), rowStride(row), elemStride(elem) {}
    ZELM_INLINE bool isNull() const { return start == 0; }
    ZELM_INLINE Address rowStart(std::uint32_t row) const { return start + row * rowStride; }
    ZELM_INLINE Address address(std::uint32_t row, std::uint32_t column, std::uint32_t) const {
        return rowStart(row) + column * elemStride;
    }
};

// The entries of a table of pointers.
template <typename T>
struct TableEntries {
    static constexpr bool isTable = true;
    static constexpr bool isList = false;
    static constexpr bool isDense = false;
    static constexpr bool isSideBySide = false;
    T *const *table;
    ZELM_INLINE explicit TableEntries(T *const *entries) : table(entries) {}
    ZELM_INLINE bool isNull() const { return table == nullptr; }
    ZELM_INLINE bool hasNullEntry(Address entries) const {
        for (Address e = 0; e < entries; ++e)
            if (table[e] == nullptr)
                return true;
        return false;
    }
    static constexpr bool entryIsNull(std::uint32_t) { return false; }
    ZELM_INLINE bool elementIsNull(Address entry) const { return table[entry] == nullptr; }
};

template <typename T>
struct Table : TableEntries<T>, Elements<Table<T>, T> {
    Address shift;
    ZELM_INLINE Table(T *const *entries, std::int32_t bytes)
        : TableEntries<T>(entries), shift(distance(bytes)) {}
    ZELM_INLINE Table(T *const *entries, Address bytes) : TableEntries<T>(entries), shift(bytes) {}
    ZELM_INLINE Address position(Address entry) const { return addressOf(this->table[entry]) + shift; }
    ZELM_INLINE Address address(std::uint32_t row, std::uint32_t column, std::uint32_t columns) const {
        return position(Address{row} * columns + column);
    }
};

template <typename T>
struct DenseArray : WithoutTable {
    using Element = std::remove_const_t<T>;
    Address start, objStride, rowStride;
    static constexpr Address elemStride = sizeof(T);
    ZELM_INLINE DenseArray(T *pointer, std::int32_t obj, std::int32_t row)
        : start(addressOf(pointer)), objStride(distance(obj)), rowStride(distance(row)) {}
    ZELM_INLINE DenseArray(Address at, Address obj, Address row)
        : start(at), objStride(obj), rowStride(row) {}
    ZELM_INLINE bool isNull() const { return start == 0; }
    ZELM_INLINE Dense<T> object(std::uint32_t k) const { return {start + k * objStride, rowStride}; }
};

template <typename T>
struct StridedArray : WithoutTable {
    using Element = std::remove_const_t<T>;
    Address start, objStride, rowStride, elemStride;
    ZELM_INLINE StridedArray(T *pointer, std::int32_t obj, std::int32_t row, std::int32_t elem)
        : start(addressOf(pointer)), objStride(distance(obj)), rowStride(distance(row)),
          elemStride(distance(elem)) {}
    ZELM_INLINE bool isNull() const { return start == 0; }
    ZELM_INLINE Strided<T> object(std::uint32_t k) const {
        return {start + k * objStride, rowStride, elemStride};
    }
};

template <typename T>
struct PackedTableArray : TableEntries<T> {
    using Element = std::remove_const_t<T>;
    static constexpr bool isSideBySide = true;
    Address shift;
    static constexpr Address objStride = sizeof(T);
    ZELM_INLINE PackedTableArray(T *const *entries, std::int32_t bytes)
        : TableEntries<T>(entries), shift(distance(bytes)) {}
    ZELM_INLINE PackedTableArray(T *const *entries, Address bytes) : TableEntries<T>(entries), shift(bytes) {}
    ZELM_INLINE Table<T> object(std::uint32_t k) const { return {this->table, shift + k * sizeof(T)}; }
};

template <typename T>
struct TableArray : TableEntries<T> {
    using Element = std::remove_const_t<T>;
    Address shift, objStride;
    ZELM_INLINE TableArray(T *const *entries, std::int32_t bytes, std::int32_t obj)
        : TableEntries<T>(entries), shift(distance(bytes)), objStride(distance(obj)) {}
    ZELM_INLINE TableArray(T *const *entries, Address bytes, Address obj)
        : TableEntries<T>(entries), shift(bytes), objStride(obj) {}
    ZELM_INLINE Table<T> object(std::uint32_t k) const { return {this->table, shift + k * objStride}; }
};

// The table of a list: one entry per object.
template <typename T>
struct ListEntries {
    static constexpr bool isTable = false;
    static constexpr bool isList = true;
    static constexpr bool isSideBySide = false;
    T *const *table;
    Address shift;
    ZELM_INLINE ListEntries(T *const *entries, std::int32_t bytes) : table(entries), shift(distance(bytes)) {}
    ZELM_INLINE ListEntries(T *const *entries, Address bytes) : table(entries), shift(bytes) {}
    ZELM_INLINE bool isNull() const { return table == nullptr; }
    static constexpr bool hasNullEntry(Address) { return false; }
    ZELM_INLINE bool entryIsNull(std::uint32_t k) const { return table[k] == nullptr; }
    ZELM_INLINE Address objectStart(std::uint32_t k) const { return addressOf(table[k]) + shift; }
};

template <typename T>
struct DenseList : ListEntries<T> {
    using Element = std::remove_const_t<T>;
    Address rowStride;
    static constexpr Address elemStride = sizeof(T);
    ZELM_INLINE DenseList(T *const *entries, std::int32_t bytes, std::int32_t row)
        : ListEntries<T>(entries, bytes), rowStride(distance(row)) {}
    ZELM_INLINE DenseList(T *const *entries, Address bytes, Address row)
        : ListEntries<T>(entries, bytes), rowStride(row) {}
    ZELM_INLINE Dense<T> object(std::uint32_t k) const { return {this->objectStart(k), rowStride}; }
};

template <typename T>
struct StridedList : ListEntries<T> {
    using Element = std::remove_const_t<T>;
    Address rowStride, elemStride;
    ZELM_INLINE StridedList(T *const *entries, std::int32_t bytes, std::int32_t row, std::int32_t elem)
        : ListEntries<T>(entries, bytes), rowStride(distance(row)), elemStride(distance(elem)) {}
    ZELM_INLINE Strided<T> object(std::uint32_t k) const {
        return {this->objectStart(k), rowStride, elemStride};
    }
};

// Whether an operand has an object of its own for each k: one that is its own object serves them all.
template <typename Operand>
constexpr bool kIsArray =
    !std::is_same_v<std::remove_cvref_t<decltype(std::declval<const Operand &>().object(0))>, Operand>;

// Whether the elements of a row of its objects are adjacent.
template <typename Operand>
constexpr bool kHasDenseObjects = decltype(std::declval<const Operand &>().object(0))::isDense;

} // namespace zelm::frame
