#ifndef RUQGUI_ORUNPARAMDLG_FIELD_H
#define RUQGUI_ORUNPARAMDLG_FIELD_H

#include "DialogDescription.h"

#include <memory>
#include <qstring.h>

class QWidget;

namespace autodlg {

/// What edits one parameter in the form.
///
/// A value that the user leaves as it shows stays the very value that was set: with the digits that
/// do not show, with the bytes that no field can hold.
class CField {
public:
    CField(const CField&) = delete;
    CField& operator=(const CField&) = delete;
    virtual ~CField();

    /// Belongs to its parent. All calls but destruction need it.
    QWidget* widget() const { return m_pWidget; }

    /// The part that takes the keys.
    QWidget* focusTarget() const { return m_pFocusTarget; }

    /// Shows the label itself, if it can; false if a label must stand before it.
    virtual bool takesLabel(const QString& label);

    /// \param value of the type that the kind of the parameter has
    void setValue(const Value& value);

    /// What has been typed counts.
    Value value();

    /// Whether value() can be taken. If not, a box over \a window has told the user why.
    /// \param label what the field is called
    virtual bool isAcceptable(QWidget* window, const QString& label);

protected:
    CField(QWidget* widget, QWidget* focusTarget);

    virtual void show(const Value& value) = 0;

    /// What shows, so that a change is seen. Typed text is read first.
    virtual QString shown() = 0;

    /// The value that shows.
    virtual Value edited() = 0;

private:
    QWidget* m_pWidget;
    QWidget* m_pFocusTarget;
    Value m_value;
    QString m_sShown; ///< Just after the value was set.
};

/// A field that is one widget.
template <class Widget>
class CFieldOf : public CField {
protected:
    explicit CFieldOf(Widget* widget) : CFieldOf(widget, widget) {}
    CFieldOf(Widget* widget, QWidget* focusTarget)
        : CField(widget, focusTarget), m_pEditor(widget) {}

    Widget* m_pEditor;
};

using FieldPointer = std::unique_ptr<CField>;

/// The field for a parameter, as a child of \a parent with the parameter's path as its name.
FieldPointer createField(const StParameter& parameter, QWidget* parent);

// The field for each kind.
FieldPointer createField(const StIntegerKind& kind, QWidget* parent, const char* name);
FieldPointer createField(const StNumberKind& kind, QWidget* parent, const char* name);
FieldPointer createField(const StRangeKind& kind, QWidget* parent, const char* name);
FieldPointer createField(const StTextKind& kind, QWidget* parent, const char* name);
FieldPointer createField(const StFileKind& kind, QWidget* parent, const char* name);
FieldPointer createField(const StChoiceKind& kind, QWidget* parent, const char* name);
FieldPointer createField(const StSwitchKind& kind, QWidget* parent, const char* name);
FieldPointer createField(const StColorKind& kind, QWidget* parent, const char* name);

/// The pixels that a text of usual length takes in \a widget.
int usualTextWidth(const QWidget* widget);

/// Tells the user why a field cannot be taken; false, for the field to return.
bool refuse(QWidget* window, const QString& caption, const QString& text);

} // namespace autodlg

#endif
