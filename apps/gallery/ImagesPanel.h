#ifndef RUQGUI_GALLERY_IMAGESPANEL_H
#define RUQGUI_GALLERY_IMAGESPANEL_H

#include "OpenImages.h"

#include <qt3/Label.h>
#include <qt3/TextEdit.h>
#include <qt3/Widget.h>
#include <string>
#include <vector>

class FilterPanel;

/// The open images that pass a filter, by name.
class ImagesPanel : public qt3::Widget {
    Q_OBJECT

public:
    ImagesPanel(QWidget* parent, const char* name, const FilterPanel& filter);

    /// Opens these images too. A line each tells what came of it.
    void load(const std::vector<std::string>& paths);

private slots:
    void open();
    void list();

private:
    const FilterPanel& m_filter;
    OpenImages m_images;
    qt3::TextEdit* m_pList;
    qt3::Label* m_pCount;
    qt3::TextEdit* m_pMessages;
};

#endif
