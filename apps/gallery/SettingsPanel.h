#ifndef RUQGUI_GALLERY_SETTINGSPANEL_H
#define RUQGUI_GALLERY_SETTINGSPANEL_H

#include <CValueMapFileVersionHandling.h>
#include <qt3/ComboBox.h>
#include <qt3/GroupBox.h>
#include <qt3/Label.h>
#include <qt3/Layout.h>
#include <qt3/TextEdit.h>
#include <qt3/Widget.h>
#include <string>

class FilterPanel;

/// Saves a filter to a file with a stamp, and loads what passes the check of the stamp. Samples show
/// each answer that the check can give.
class SettingsPanel : public qt3::Widget {
    Q_OBJECT

public:
    SettingsPanel(QWidget* parent, const char* name, FilterPanel& filter);

private slots:
    void load();
    void loadSample();
    void save();

private:
    void addButton(qt3::GroupBox* box, qt3::HBoxLayout* line, const char* text, const char* name,
                   const char* slot);
    void loadFrom(const std::string& path);
    void tell(const std::string& message, const std::string& entries);

    FilterPanel& m_filter;
    TEVU::CValueMapFileVersionHandling m_format;
    qt3::ComboBox* m_pSamples;
    qt3::Label* m_pMessage;
    qt3::TextEdit* m_pEntries; ///< Of the file.
};

#endif
