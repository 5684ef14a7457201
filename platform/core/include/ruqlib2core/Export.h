#ifndef RUQLIB2CORE_EXPORT_H
#define RUQLIB2CORE_EXPORT_H

/// RUQLIB2CORE_EXPORT marks what the library offers to its users; everything else stays hidden.
#if defined(_WIN32)
#if defined(RUQLIB2CORE_BUILDING_LIBRARY)
#define RUQLIB2CORE_EXPORT __declspec(dllexport)
#else
#define RUQLIB2CORE_EXPORT __declspec(dllimport)
#endif
#else
#define RUQLIB2CORE_EXPORT __attribute__((visibility("default")))
#endif

#endif
