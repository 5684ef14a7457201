#ifndef RUQGUI_GALLERY_PARAMETERSPANEL_H
#define RUQGUI_GALLERY_PARAMETERSPANEL_H

#include <PoreDialog.h>
#include <qt3/Label.h>
#include <qt3/TextEdit.h>
#include <qt3/Widget.h>

/// Opens the dialog that the plug-in generates from a description, and shows what was edited in it.
class ParametersPanel : public qt3::Widget {
    Q_OBJECT

public:
    ParametersPanel(QWidget* parent, const char* name);

private slots:
    void edit();

private:
    PoreDialog m_dialog;
    qt3::Label* m_pMessage;
    qt3::TextEdit* m_pParameters;
};

#endif
