#ifndef RUQLIB2CORE_EXPORT_H
#define RUQLIB2CORE_EXPORT_H

/// RUQLIB2CORE_EXPORT marks what the library offers to its users; everything else stays hidden.
/// RUQLIB2CORE_EXPORT_TEMPLATE marks a template whose instances are one type in all libraries of a
/// process, whichever of them instantiates it.
#if defined(_WIN32)
#if defined(RUQLIB2CORE_BUILDING_LIBRARY)
#define RUQLIB2CORE_EXPORT __declspec(dllexport)
#else
#define RUQLIB2CORE_EXPORT __declspec(dllimport)
#endif
#define RUQLIB2CORE_EXPORT_TEMPLATE
#else
#define RUQLIB2CORE_EXPORT __attribute__((visibility("default")))
#define RUQLIB2CORE_EXPORT_TEMPLATE __attribute__((visibility("default")))
#endif

#endif
