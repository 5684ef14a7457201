#ifndef RUQGUI_QT3_EXPORT_H
#define RUQGUI_QT3_EXPORT_H

/// RUQGUI_EXPORT marks what the shared library offers to its users; everything else stays hidden.
#if defined(_WIN32)
#if defined(RUQGUI_BUILDING_LIBRARY)
#define RUQGUI_EXPORT __declspec(dllexport)
#else
#define RUQGUI_EXPORT __declspec(dllimport)
#endif
#else
#define RUQGUI_EXPORT __attribute__((visibility("default")))
#endif

#endif
