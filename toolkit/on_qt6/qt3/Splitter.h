#ifndef RUQGUI_QT3_SPLITTER_H
#define RUQGUI_QT3_SPLITTER_H

#include <qt3/Bridged.h>

#include <qsplitter.h>

namespace qt3 {

/// QSplitter with the Qt 3.3 members.
class Splitter : public Bridged<QSplitter> {
public:
    explicit Splitter(QWidget* parent = nullptr, const char* name = nullptr)
        : Bridged<QSplitter>(name, parent) {}

    explicit Splitter(Qt::Orientation orientation, QWidget* parent = nullptr,
                      const char* name = nullptr)
        : Bridged<QSplitter>(name, orientation, parent) {}
};

} // namespace qt3

#endif
