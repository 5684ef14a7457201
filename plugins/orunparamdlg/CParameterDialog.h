#ifndef RUQGUI_ORUNPARAMDLG_CPARAMETERDIALOG_H
#define RUQGUI_ORUNPARAMDLG_CPARAMETERDIALOG_H

#include "Field.h"

#include <qt3/Dialog.h>
#include <qt3/Layout.h>
#include <vector>

namespace autodlg {

/// The form of a description: a field for each parameter that shows, and the buttons.
///
/// Its object name is "autodlg"; a field has the path of its parameter as its name.
class CParameterDialog : public qt3::Dialog {
    Q_OBJECT

public:
    /// \param dialog must outlive this object
    /// \param values one for each of its parameters
    /// \param showAdvanced whether advanced parameters show too
    CParameterDialog(const StDialog& dialog, const std::vector<Value>& values, bool showAdvanced,
                     QWidget* parent);
    ~CParameterDialog();

    /// The values when the dialog was accepted; before, those that were given. A parameter that
    /// does not show keeps its value.
    const std::vector<Value>& values() const;

protected slots:
    /// Takes the values and closes; or, when one cannot be taken, gives its field the focus.
    void accept() override;

    /// Puts the defaults into all fields that show.
    void restoreDefaults();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* createForm();
    void createButtons(qt3::VBoxLayout* column);
    void fill(const StGroup& group, QWidget* box, qt3::GridLayout* grid);
    void addParameter(std::size_t index, QWidget* box, qt3::GridLayout* grid, int row);
    void addGroup(const StGroup& group, QWidget* box, qt3::GridLayout* grid, int row);
    bool shows(const StGroup& group) const;
    bool shows(std::size_t parameter) const;
    void alignLabels();
    void stayOnScreen();
    CField* firstUnacceptable();

    const StDialog& m_dialog;
    std::vector<Value> m_values;
    bool m_bShowAdvanced;
    std::vector<FieldPointer> m_fields; ///< One a parameter; null when it does not show.
    std::vector<QWidget*> m_labels;     ///< Those of the fields.
};

} // namespace autodlg

#endif
