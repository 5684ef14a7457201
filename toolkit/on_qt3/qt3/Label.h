#ifndef RUQGUI_QT3_LABEL_H
#define RUQGUI_QT3_LABEL_H

#include <qt3/Export.h>

#include <qlabel.h>

namespace qt3 {

/// QLabel for plain text: what looks like markup is shown as it is.
class RUQGUI_EXPORT Label : public QLabel {
public:
    explicit Label(QWidget* parent, const char* name = 0);
    Label(const QString& text, QWidget* parent, const char* name = 0);
    ~Label();
};

} // namespace qt3

#endif
