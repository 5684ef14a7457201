#ifndef RUQGUI_GALLERY_GALLERY_H
#define RUQGUI_GALLERY_GALLERY_H

#include <qt3/TabWidget.h>
#include <qt3/Widget.h>
#include <string>
#include <vector>

class SignalLog;
struct Options;

/// The window: a tab for each page, and below them the signals as they come.
class Gallery : public qt3::Widget {
public:
    explicit Gallery(const Options& options);

    /// \throws std::runtime_error for a title that no page has.
    void showPage(const std::string& title);

    /// Writes a PNG of each page into the folder, which is made if it is not there.
    /// \throws std::runtime_error if a picture cannot be written.
    void takeScreenshots(const std::string& folder);

private:
    qt3::TabWidget* m_pTabs;
    std::vector<QWidget*> m_pages;
};

#endif
