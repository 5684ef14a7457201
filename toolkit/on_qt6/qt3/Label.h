#ifndef RUQGUI_QT3_LABEL_H
#define RUQGUI_QT3_LABEL_H

#include <qt3/Bridged.h>

#include <qlabel.h>

namespace qt3 {

/// QLabel for plain text: what looks like markup is shown as it is.
class RUQGUI_EXPORT Label : public Bridged<QLabel> {
public:
    explicit Label(QWidget* parent, const char* name = nullptr);
    Label(const QString& text, QWidget* parent, const char* name = nullptr);
    ~Label() override;
};

} // namespace qt3

#endif
