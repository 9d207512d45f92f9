// The module zelm._core: the universal functions, made of the loops.
#define ZELMPY_IMPORTS_NUMPY
#include "elementwise.h"
#include "products.h"
#include "qr.h"
#include "solvers.h"
#include "state.h"
#include "universal.h"

#include <string>

namespace zelmpy {

State &state() {
    static thread_local State own;
    return own;
}

void keepException() {
    PyObject *type, *value, *trace;
    PyErr_Fetch(&type, &value, &trace);
    PyErr_NormalizeException(&type, &value, &trace);
    if (value != nullptr && trace != nullptr) {
        PyException_SetTraceback(value, trace);
    }
    Py_XDECREF(type);
    Py_XDECREF(trace);
    if (state().exception == nullptr) {
        state().exception = value;
    } else {
        Py_XDECREF(value);
    }
}

namespace {

constexpr char f = NPY_FLOAT, d = NPY_DOUBLE, u = NPY_UINT32;

// Integers become the type of the first loop that holds them. With 64-bit float first all of them become
// 64-bit, as in numpy.linalg. Functions that take numbers have 32-bit float first, so that a Python number
// widens no array.
struct Definition {
    const char *name, *suffix, *signature; // the suffix tells universal functions of one name apart
    int inputs, outputs;
    PyUFuncGenericFunction loops[2];
    char types[10];
};

// clang-format off
Definition definitions[] = {
    {"add", "", "(m?,n?),(m?,n?)->(m?,n?)", 2, 1, {addLoop<float>, addLoop<double>}, {f, f, f, d, d, d}},
    {"subtract", "", "(m?,n?),(m?,n?)->(m?,n?)", 2, 1, {subtractLoop<float>, subtractLoop<double>}, {f, f, f, d, d, d}},
    {"scale", "", "(m?,n?),()->(m?,n?)", 2, 1, {scaleLoop<float>, scaleLoop<double>}, {f, f, f, d, d, d}},
    {"axpy", "", "(),(n),(n)->(n)", 3, 1, {axpyLoop<float>, axpyLoop<double>}, {f, f, f, f, d, d, d, d}},
    {"lcomb", "", "(),(n),(),(n)->(n)", 4, 1, {lcombLoop<float>, lcombLoop<double>}, {f, f, f, f, f, d, d, d, d, d}},
    {"transpose", "", "(m,n)->(n,m)", 1, 1, {transposeLoop<double>, transposeLoop<float>}, {d, d, f, f}},
    {"matmul", "", "(m?,k),(k,n?)->(m?,n?)", 2, 1, {matmulLoop<double>, matmulLoop<float>}, {d, d, d, f, f, f}},
    {"matvec", "", "(m,n),(n)->(m)", 2, 1, {matvecLoop<double>, matvecLoop<float>}, {d, d, d, f, f, f}},
    {"gaxpy", "", "(m,n),(n),(m)->(m)", 3, 1, {gaxpyLoop<double>, gaxpyLoop<float>}, {d, d, d, d, f, f, f, f}},
    {"cross", "", "(3),(3)->(3)", 2, 1, {crossLoop<double>, crossLoop<float>}, {d, d, d, f, f, f}},
    {"dot", "", "(n),(n)->()", 2, 1, {dotLoop<double>, dotLoop<float>}, {d, d, d, f, f, f}},
    {"norm", "", "(n)->()", 1, 1, {normLoop<double>, normLoop<float>}, {d, d, f, f}},
    {"frobenius", "", "(m,n)->()", 1, 1, {frobeniusLoop<double>, frobeniusLoop<float>}, {d, d, f, f}},
    {"trace", "", "(n,n)->()", 1, 1, {traceLoop<double>, traceLoop<float>}, {d, d, f, f}},
    {"det", "", "(n,n)->()", 1, 1, {quietly<detLoop<double>>, quietly<detLoop<float>>}, {d, d, f, f}},
    {"inv", "", "(n,n)->(n,n)", 1, 1, {quietly<invLoop<double>>, quietly<invLoop<float>>}, {d, d, f, f}},
    {"solve", "", "(n,n),(n,k)->(n,k)", 2, 1, {quietly<solveLoop<double>>, quietly<solveLoop<float>>}, {d, d, d, f, f, f}},
    {"solve", "_vector", "(n,n),(n)->(n)", 2, 1, {quietly<solveVectorLoop<double>>, quietly<solveVectorLoop<float>>},
     {d, d, d, f, f, f}},
    {"lu_factor", "", "(n,n)->(n,n),(n)", 1, 2, {quietly<luFactorLoop<double>>, quietly<luFactorLoop<float>>},
     {d, d, u, f, f, u}},
    {"lu_solve", "", "(n,n),(n),(n,k)->(n,k)", 3, 1, {quietly<luSolveLoop<double>>, quietly<luSolveLoop<float>>},
     {d, u, d, d, f, u, f, f}},
    {"lu_solve", "_vector", "(n,n),(n),(n)->(n)", 3, 1,
     {quietly<luSolveVectorLoop<double>>, quietly<luSolveVectorLoop<float>>}, {d, u, d, d, f, u, f, f}},
    {"cholesky", "", "(n,n)->(n,n)", 1, 1, {quietly<choleskyLoop<double, false>>, quietly<choleskyLoop<float, false>>},
     {d, d, f, f}},
    {"cho_factor", "", "(n,n)->(n,n)", 1, 1, {quietly<choleskyLoop<double, true>>, quietly<choleskyLoop<float, true>>},
     {d, d, f, f}},
    {"cho_solve", "", "(n,n),(n,k)->(n,k)", 2, 1, {quietly<choSolveLoop<double>>, quietly<choSolveLoop<float>>},
     {d, d, d, f, f, f}},
    {"cho_solve", "_vector", "(n,n),(n)->(n)", 2, 1,
     {quietly<choSolveVectorLoop<double>>, quietly<choSolveVectorLoop<float>>}, {d, d, d, f, f, f}},
    {"qr", "", "(m,n)->(n,m),(n)", 1, 2, {quietly<qrLoop<double>>, quietly<qrLoop<float>>}, {d, d, d, f, f, f}},
    {"qr", "_reduced", "(n,m),(n)->(m,n)", 2, 1, {quietly<qrFormLoop<double, false>>, quietly<qrFormLoop<float, false>>},
     {d, d, d, f, f, f}},
    {"qr", "_complete", "(n,m),(n)->(m,m)", 2, 1, {quietly<qrFormLoop<double, true>>, quietly<qrFormLoop<float, true>>},
     {d, d, d, f, f, f}},
    {"lstsq", "", "(m,n),(m,k)->(n,k)", 2, 1, {quietly<lstsqLoop<double>>, quietly<lstsqLoop<float>>}, {d, d, d, f, f, f}},
    {"lstsq", "_vector", "(m,n),(m)->(n)", 2, 1, {quietly<lstsqVectorLoop<double>>, quietly<lstsqVectorLoop<float>>},
     {d, d, d, f, f, f}},
};
// clang-format on

bool addFunctions(PyObject *module) {
    static void *none[2] = {nullptr, nullptr};
    for (Definition &definition : definitions) {
        PyObject *function = PyUFunc_FromFuncAndDataAndSignature(
            definition.loops, none, definition.types, 2, definition.inputs, definition.outputs, PyUFunc_None,
            definition.name, nullptr, 0, definition.signature);
        const std::string attribute = std::string(definition.name) + definition.suffix;
        if (function == nullptr || PyModule_AddObject(module, attribute.c_str(), function) < 0) {
            Py_XDECREF(function);
            return false;
        }
    }
    return true;
}

PyObject *call(PyObject *, PyObject *const *arguments, Py_ssize_t count, PyObject *names) {
    if (count == 0) {
        PyErr_SetString(PyExc_TypeError, "call() takes a universal function and its arguments");
        return nullptr;
    }
    return callUniversal(arguments[0], arguments + 1, static_cast<std::size_t>(count - 1), names);
}

PyObject *refused(PyObject *, PyObject *) {
    return PyLong_FromSsize_t(state().refused);
}

PyObject *libraryVersion(PyObject *, PyObject *) {
    return PyUnicode_FromString(zelmGetLibVersion()->versionText);
}

PyMethodDef functions[] = {
    {"call", reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(call)), METH_FASTCALL | METH_KEYWORDS,
     "call(function, *arguments, **options): calls a universal function; raises what its loops have kept."},
    {"refused", refused, METH_NOARGS, "The number of objects without a result in this thread's last call."},
    {"libzelm_version", libraryVersion, METH_NOARGS, "The version of libzelm that is loaded."},
    {nullptr, nullptr, 0, nullptr}};

PyModuleDef definition = {
    PyModuleDef_HEAD_INIT, "zelm._core", nullptr, -1, functions, nullptr, nullptr, nullptr, nullptr};

bool fillModule(PyObject *module) {
    PyTypeObject *type = makeUniversalType(module);
    return type != nullptr && PyModule_AddType(module, type) == 0 && addFunctions(module);
}

PyObject *makeModule() {
    PyObject *module = PyModule_Create(&definition);
    if (module != nullptr && !fillModule(module)) {
        Py_CLEAR(module);
    }
    return module;
}

} // namespace

} // namespace zelmpy

PyMODINIT_FUNC PyInit__core() {
    import_array();
    import_umath();
    return zelmpy::makeModule();
}
