#include "objects.h"

#include <algorithm>
#include <random>

namespace zelmbench {
namespace {

// Successive operands begin at different distances from a page's start: operands that all begin at the same
// one would slow each other down on processors that compare only the low bits of addresses.
constexpr std::size_t page = 4096;
std::size_t made = 0;

} // namespace

Objects::Objects(const OperandKind &kind, std::size_t elementBytes, std::size_t rows, std::size_t columns,
                 std::size_t count, std::size_t shift)
    : kind_(kind), elementBytes_(elementBytes), rows_(rows), columns_(columns), count_(count),
      step_(elementBytes * (kind.isStrided ? gap : 1)),
      memory_(new std::byte[count * rows * columns * step_ + 3 * page]) {
    const auto start = reinterpret_cast<std::uintptr_t>(memory_.get());
    const std::size_t toPage = (page - start % page) % page;
    data_ = memory_.get() + toPage + made++ * 1088 % page + shift;
    if (kind.arrangement == Arrangement::Planes) {
        for (std::size_t e = 0; e < elements(); ++e) {
            table_.push_back(data_ + e * count * step_);
        }
    } else if (kind.arrangement == Arrangement::List) {
        for (std::size_t k = 0; k < count; ++k) {
            table_.push_back(data_ + k * elements() * step_);
        }
        std::shuffle(table_.begin(), table_.end(), std::minstd_rand(1));
    }
}

std::byte *Objects::address(std::size_t k, std::size_t element) const {
    switch (kind_.arrangement) {
    case Arrangement::Planes:
        return static_cast<std::byte *>(table_[element]) + k * step_;
    case Arrangement::List:
        return static_cast<std::byte *>(table_[k]) + element * step_;
    default:
        return data_ + (k * elements() + element) * step_;
    }
}

void Objects::fill(const std::vector<double> &values) {
    for (std::size_t k = 0; k < count_; ++k) {
        const double *object = values.data() + k * elements() % values.size();
        for (std::size_t e = 0; e < elements(); ++e) {
            if (elementBytes_ == 4) {
                *reinterpret_cast<float *>(address(k, e)) = static_cast<float>(object[e]);
            } else {
                *reinterpret_cast<double *>(address(k, e)) = object[e];
            }
        }
    }
}

double Objects::value(std::size_t k, std::size_t element) const {
    const std::byte *at = address(k, element);
    return elementBytes_ == 4 ? static_cast<double>(*reinterpret_cast<const float *>(at))
                              : *reinterpret_cast<const double *>(at);
}

Value Objects::argument(ArgumentKind kind, std::size_t k) const {
    Value value{};
    switch (kind) {
    case ArgumentKind::Pointer:
        value.pointer = address(k, 0);
        break;
    case ArgumentKind::Table:
        value.pointer = table_.data() + (kind_.arrangement == Arrangement::List ? k : 0);
        break;
    case ArgumentKind::Shift:
        value.word = kind_.arrangement == Arrangement::Planes ? static_cast<std::int32_t>(k * step_) : 0;
        break;
    case ArgumentKind::ObjStride:
        value.word =
            static_cast<std::int32_t>(kind_.arrangement == Arrangement::Planes ? step_ : elements() * step_);
        break;
    case ArgumentKind::RowStride:
        value.word = static_cast<std::int32_t>(columns_ * step_);
        break;
    default: // the element stride
        value.word = static_cast<std::int32_t>(step_);
    }
    return value;
}

Operand Objects::from(std::size_t k) {
    if (kind_.arrangement == Arrangement::Planes) {
        std::vector<void *> &planes = tablesOfPeers_.emplace_back();
        for (std::size_t e = 0; e < elements(); ++e) {
            planes.push_back(address(k, e));
        }
        return {nullptr, planes.data()};
    }
    return {address(k, 0), kind_.arrangement == Arrangement::List ? table_.data() + k : nullptr};
}

} // namespace zelmbench
