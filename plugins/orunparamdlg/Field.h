#ifndef RUQGUI_ORUNPARAMDLG_FIELD_H
#define RUQGUI_ORUNPARAMDLG_FIELD_H

#include "DialogDescription.h"

#include <memory>
#include <qstring.h>

class QWidget;

namespace autodlg {

/// What edits one parameter in the form. The widget belongs to its parent, and must outlive this object
/// only for the calls.
///
/// A value that the user leaves as it shows stays the very value that was set: with the digits that
/// do not show, with the bytes that no field can hold.
class CField {
public:
    CField(const CField&) = delete;
    CField& operator=(const CField&) = delete;
    virtual ~CField();

    virtual QWidget* widget() const = 0;

    /// The part that takes the keys.
    virtual QWidget* focusTarget() const;

    /// Whether it shows its label itself.
    virtual bool hasOwnLabel() const;

    /// \param value of the type that the kind of the parameter has
    void setValue(const Value& value);

    /// What has been typed counts.
    Value value();

    /// Whether value() can be taken. If not, a box over \a window has told the user why.
    /// \param label what the field is called
    virtual bool isAcceptable(QWidget* window, const QString& label);

protected:
    CField();

    virtual void show(const Value& value) = 0;

    /// What shows, so that a change is seen. Typed text is read first.
    virtual QString shown() = 0;

    /// The value that shows.
    virtual Value edited() = 0;

private:
    Value m_value;
    QString m_sShown; ///< Just after the value was set.
};

/// The pixels that a text of usual length takes in \a widget.
int usualTextWidth(const QWidget* widget);

/// The field for a kind, as a child of \a parent with the parameter's path as its name.
std::unique_ptr<CField> createField(const StParameter& parameter, QWidget* parent);

} // namespace autodlg

#endif
