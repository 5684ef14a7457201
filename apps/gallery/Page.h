#ifndef RUQGUI_GALLERY_PAGE_H
#define RUQGUI_GALLERY_PAGE_H

#include <string>
#include <vector>

class QWidget;
class SignalLog;
struct Options;

/// A page of the gallery: its title and how to make it. The widget belongs to its parent.
struct StPage {
    const char* m_sTitle;
    QWidget* (*m_fnCreate)(QWidget* parent, SignalLog& log, const Options& options);
};

/// All pages in the order of their tabs. A new page is a line here.
const std::vector<StPage>& pages();

std::vector<std::string> pageTitles();

#endif
