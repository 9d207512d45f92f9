// NumPy's C API, shared by all units; module.cpp imports it.
#pragma once

#define PY_SSIZE_T_CLEAN
#include <Python.h>

#define NPY_NO_DEPRECATED_API NPY_1_22_API_VERSION
#define PY_ARRAY_UNIQUE_SYMBOL zelmpy_array_api
#define PY_UFUNC_UNIQUE_SYMBOL zelmpy_ufunc_api
#ifndef ZELMPY_IMPORTS_NUMPY
#define NO_IMPORT_ARRAY
#define NO_IMPORT_UFUNC
#endif
#include <numpy/arrayobject.h>
#include <numpy/ufuncobject.h>
