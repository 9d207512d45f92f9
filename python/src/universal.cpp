// universal(matrices, vectors=None)(function): the function, with a short cut for the common call. Positional
// arguments only, all of them plain arrays: the universal function is called at once, without a Python frame
// in between. Anything else, and any call that doesn't come to a result, is the Python function's.
#include "universal.h"

#include "state.h"

#include <cstddef>

#include <structmember.h>

namespace zelmpy {

namespace {

struct Universal {
    PyObject_HEAD vectorcallfunc call;
    PyObject *matrices; // the universal function
    PyObject *vectors;  // the one for a last operand that is a vector or a stack of them, or null
    PyObject *function;
    PyObject *attributes;
    PyObject *weakReferences;
    Py_ssize_t inputs;
};

Universal *self(PyObject *object) {
    return reinterpret_cast<Universal *>(object);
}

// The universal function that serves these arguments, null if the Python function has to look at them.
PyObject *shortCut(const Universal &universal, PyObject *const *arguments, Py_ssize_t count) {
    if (count != universal.inputs) {
        return nullptr;
    }
    for (Py_ssize_t i = 0; i < count; ++i) {
        if (!PyArray_CheckExact(arguments[i])) {
            return nullptr;
        }
    }
    if (universal.vectors != nullptr) {
        const int last = PyArray_NDIM(reinterpret_cast<PyArrayObject *>(arguments[count - 1]));
        const int first = PyArray_NDIM(reinterpret_cast<PyArrayObject *>(arguments[0]));
        if (last == 1 || last == first - 1) {
            return universal.vectors;
        }
    }
    return universal.matrices;
}

PyObject *vectorCall(PyObject *object, PyObject *const *arguments, std::size_t flaggedCount,
                     PyObject *names) {
    const Universal &universal = *self(object);
    if (names == nullptr) {
        const Py_ssize_t count = PyVectorcall_NARGS(flaggedCount);
        PyObject *direct = shortCut(universal, arguments, count);
        if (direct != nullptr) {
            PyObject *result = callUniversal(direct, arguments, static_cast<std::size_t>(count), nullptr);
            if (result != nullptr && state().refused == 0) {
                return result;
            }
            if (result == nullptr && !PyErr_ExceptionMatches(PyExc_ValueError)) {
                return nullptr;
            }
            PyErr_Clear();
            Py_XDECREF(result);
        }
    }
    return PyObject_Vectorcall(universal.function, arguments, flaggedCount, names);
}

// universal(function, matrices, vectors)
PyObject *create(PyTypeObject *type, PyObject *arguments, PyObject *) {
    PyObject *function, *matrices, *vectors;
    if (!PyArg_ParseTuple(arguments, "OO!O", &function, &PyUFunc_Type, &matrices, &vectors)) {
        return nullptr;
    }
    PyObject *object = type->tp_alloc(type, 0);
    if (object == nullptr) {
        return nullptr;
    }
    Universal &universal = *self(object);
    universal.call = vectorCall;
    universal.function = Py_NewRef(function);
    universal.matrices = Py_NewRef(matrices);
    universal.vectors = vectors == Py_None ? nullptr : Py_NewRef(vectors);
    universal.inputs = reinterpret_cast<PyUFuncObject *>(matrices)->nin;
    return object;
}

int traverse(PyObject *object, visitproc visit, void *arg) {
    Py_VISIT(Py_TYPE(object));
    Py_VISIT(self(object)->matrices);
    Py_VISIT(self(object)->vectors);
    Py_VISIT(self(object)->function);
    Py_VISIT(self(object)->attributes);
    return 0;
}

int clear(PyObject *object) {
    Py_CLEAR(self(object)->matrices);
    Py_CLEAR(self(object)->vectors);
    Py_CLEAR(self(object)->function);
    Py_CLEAR(self(object)->attributes);
    return 0;
}

void dealloc(PyObject *object) {
    PyTypeObject *type = Py_TYPE(object);
    PyObject_GC_UnTrack(object);
    if (self(object)->weakReferences != nullptr) {
        PyObject_ClearWeakRefs(object);
    }
    clear(object);
    type->tp_free(object);
    Py_DECREF(type);
}

// As a class's attribute it is a plain callable, like a universal function of NumPy. That it is a descriptor
// at all makes help() take it for the function that it is.
PyObject *get(PyObject *object, PyObject *, PyObject *) {
    return Py_NewRef(object);
}

// Pickled by its name.
PyObject *reduce(PyObject *object, PyObject *) {
    return PyObject_GetAttrString(object, "__qualname__");
}

PyObject *represent(PyObject *object) {
    PyObject *name = PyObject_GetAttrString(object, "__qualname__");
    PyObject *text = name == nullptr ? nullptr : PyUnicode_FromFormat("<function zelm.%U>", name);
    Py_XDECREF(name);
    return text;
}

PyMethodDef methods[] = {{"__reduce__", reduce, METH_NOARGS, nullptr}, {nullptr, nullptr, 0, nullptr}};

PyMemberDef members[] = {
    {"__dictoffset__", T_PYSSIZET, offsetof(Universal, attributes), READONLY, nullptr},
    {"__weaklistoffset__", T_PYSSIZET, offsetof(Universal, weakReferences), READONLY, nullptr},
    {"__vectorcalloffset__", T_PYSSIZET, offsetof(Universal, call), READONLY, nullptr},
    {nullptr, 0, 0, 0, nullptr}};

PyGetSetDef properties[] = {{"__dict__", PyObject_GenericGetDict, PyObject_GenericSetDict, nullptr, nullptr},
                            {nullptr, nullptr, nullptr, nullptr, nullptr}};

template <class Function>
void *slot(Function *function) {
    return reinterpret_cast<void *>(function);
}

} // namespace

PyTypeObject *makeUniversalType(PyObject *module) {
    PyType_Slot slots[] = {{Py_tp_new, slot(create)},
                           {Py_tp_call, slot(PyVectorcall_Call)},
                           {Py_tp_traverse, slot(traverse)},
                           {Py_tp_clear, slot(clear)},
                           {Py_tp_dealloc, slot(dealloc)},
                           {Py_tp_descr_get, slot(get)},
                           {Py_tp_repr, slot(represent)},
                           {Py_tp_methods, methods},
                           {Py_tp_members, members},
                           {Py_tp_getset, properties},
                           {0, nullptr}};
    PyType_Spec spec = {"zelm._core.universal", sizeof(Universal), 0,
                        Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HAVE_GC | Py_TPFLAGS_HAVE_VECTORCALL, slots};
    return reinterpret_cast<PyTypeObject *>(PyType_FromModuleAndSpec(module, &spec, nullptr));
}

PyObject *callUniversal(PyObject *function, PyObject *const *arguments, std::size_t count, PyObject *names) {
    State &own = state();
    own.refused = 0;
    own.outOfMemory = false;
    Py_CLEAR(own.exception);
    PyObject *result = PyObject_Vectorcall(function, arguments, count, names);
    if (result == nullptr || (own.exception == nullptr && !own.outOfMemory)) {
        return result;
    }
    Py_DECREF(result);
    if (own.outOfMemory) {
        return PyErr_NoMemory();
    }
    PyErr_SetObject(reinterpret_cast<PyObject *>(Py_TYPE(own.exception)), own.exception);
    Py_CLEAR(own.exception);
    return nullptr;
}

} // namespace zelmpy
