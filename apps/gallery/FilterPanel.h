#ifndef RUQGUI_GALLERY_FILTERPANEL_H
#define RUQGUI_GALLERY_FILTERPANEL_H

#include <CAvailableImages.h>
#include <qt3/CheckBox.h>
#include <qt3/GroupBox.h>
#include <qt3/Label.h>
#include <qt3/Layout.h>
#include <qt3/LineEdit.h>
#include <qt3/Widget.h>
#include <ruqlib2core/CValueMap.h>
#include <vector>

/// Which types and sizes of images are allowed. As a map these are the gallery's settings.
class FilterPanel : public qt3::Widget {
    Q_OBJECT

public:
    FilterPanel(QWidget* parent, const char* name);

    /// A list of images with this filter.
    TEVU::CAvailableImages Available() const;

    TEVU::CValueMap Settings() const;
    void SetSettings(const TEVU::CValueMap& settings); ///< What is missing stays as it is.

signals:
    void changed();

private slots:
    void tell();

private:
    void addTypes(qt3::GroupBox* box, qt3::VBoxLayout* column);
    void addSizes(qt3::GroupBox* box, qt3::VBoxLayout* column);

    qt3::CheckBox* m_pCheckTypes;
    std::vector<qt3::CheckBox*> m_types; ///< In the order of allTypes().
    qt3::CheckBox* m_pCheckSizes;
    qt3::LineEdit* m_pSizes;
    qt3::Label* m_pMessage;
};

#endif
