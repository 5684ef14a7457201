#ifndef RUQGUI_ORUNPARAMDLG_FORMVIEW_H
#define RUQGUI_ORUNPARAMDLG_FORMVIEW_H

#include <qt3/ScrollView.h>
#include <qt3/Widget.h>

namespace autodlg {

/// Shows the form in its full size if the screen is large enough, else as much of it as fits.
class CFormView : public qt3::ScrollView {
public:
    CFormView(QWidget* parent, const char* name);

    QWidget* form() const { return m_pForm; }

    QSize sizeHint() const override;

private:
    qt3::Widget* m_pForm;
};

} // namespace autodlg

#endif
