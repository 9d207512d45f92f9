#include "hand_over.h"

#include "state.h"

#include <algorithm>
#include <array>

namespace zelmpy {

namespace {

// A reference that is dropped at the end of its block.
class Reference {
public:
    explicit Reference(PyObject *object) : object_(object) {}
    Reference(const Reference &) = delete;
    Reference &operator=(const Reference &) = delete;
    ~Reference() { Py_XDECREF(object_); }
    PyObject *get() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }

private:
    PyObject *object_;
};

PyObject *viewOf(const Operand &operand, npy_intp count) {
    std::array<npy_intp, 3> shape{count, 0, 0};
    std::array<npy_intp, 3> strides{operand.object, 0, 0};
    if (operand.rank == 1) {
        shape[1] = operand.columns;
        strides[1] = operand.element;
    } else if (operand.rank == 2) {
        shape[1] = operand.rows;
        shape[2] = operand.columns;
        strides[1] = operand.row;
        strides[2] = operand.element;
    }
    return PyArray_New(&PyArray_Type, operand.rank + 1, shape.data(), operand.type, strides.data(),
                       operand.data, 0, NPY_ARRAY_WRITEABLE, nullptr);
}

PyObject *numbersOf(const std::vector<npy_intp> *at) {
    if (at == nullptr) {
        Py_RETURN_NONE;
    }
    npy_intp length = static_cast<npy_intp>(at->size());
    PyObject *numbers = PyArray_SimpleNew(1, &length, NPY_INTP);
    if (numbers != nullptr) {
        std::copy(at->begin(), at->end(),
                  static_cast<npy_intp *>(PyArray_DATA(reinterpret_cast<PyArrayObject *>(numbers))));
    }
    return numbers;
}

// The number of refused objects, -1 with an exception.
npy_intp callNumPy(const char *name, const std::vector<Operand> &operands, npy_intp count,
                   const std::vector<npy_intp> *at) {
    Reference module(PyImport_ImportModule("zelm._numpy"));
    Reference function(module ? PyObject_GetAttrString(module.get(), name) : nullptr);
    Reference arguments(PyTuple_New(static_cast<Py_ssize_t>(operands.size()) + 1));
    if (!function || !arguments) {
        return -1;
    }
    PyTuple_SET_ITEM(arguments.get(), 0, numbersOf(at));
    Py_ssize_t place = 1;
    for (const Operand &operand : operands) {
        PyTuple_SET_ITEM(arguments.get(), place++, viewOf(operand, count));
    }
    if (PyErr_Occurred()) {
        return -1;
    }
    Reference result(PyObject_CallObject(function.get(), arguments.get()));
    return result ? PyLong_AsSsize_t(result.get()) : -1;
}

} // namespace

void handOver(const char *name, const std::vector<Operand> &operands, npy_intp count,
              const std::vector<npy_intp> *at) {
    NPY_ALLOW_C_API_DEF
    NPY_ALLOW_C_API;
    const npy_intp refused = callNumPy(name, operands, count, at);
    if (refused < 0) {
        keepException();
    } else {
        state().refused += refused;
    }
    NPY_DISABLE_C_API;
}

} // namespace zelmpy
