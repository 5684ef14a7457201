#include "Gallery.h"

#include "Options.h"
#include "Page.h"
#include "SignalLog.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <qt3/Application.h>
#include <qt3/GroupBox.h>
#include <qt3/Layout.h>
#include <qt3/Picture.h>
#include <qt3/Splitter.h>
#include <qt3/Text.h>
#include <stdexcept>

namespace {

// "Image header" becomes "image-header".
std::string fileName(std::string title) {
    std::replace(title.begin(), title.end(), ' ', '-');
    return qt3::ascii(qt3::lower(qt3::fromAscii(title)));
}

SignalLog* createLog(QWidget* parent) {
    auto* box = new qt3::GroupBox("Signals, the newest first", parent, "signals");
    box->setColumnLayout(0, Qt::Vertical);
    auto* column = new qt3::VBoxLayout(box->layout());
    auto* log = new SignalLog(box, "log");
    column->addWidget(log);
    return log;
}

} // namespace

Gallery::Gallery(const Options& options) : qt3::Widget(0, "gallery") {
    setCaption("ruqgui gallery");
    auto* column = new qt3::VBoxLayout(this, 8, 8);
    auto* splitter = new qt3::Splitter(Qt::Vertical, this, "splitter");
    column->addWidget(splitter);
    m_pTabs = new qt3::TabWidget(splitter, "pages");
    SignalLog* const log = createLog(splitter);

    for (const StPage& page : pages()) {
        m_pages.push_back(page.m_fnCreate(m_pTabs, *log, options));
        m_pTabs->addTab(m_pages.back(), page.m_sTitle);
    }
    auto heights = splitter->sizes();
    heights.clear();
    heights.append(620);
    heights.append(160);
    splitter->setSizes(heights);
    resize(980, 820);
}

void Gallery::showPage(const std::string& title) {
    for (std::size_t page = 0; page < m_pages.size(); ++page) {
        if (title == pages()[page].m_sTitle) {
            m_pTabs->setCurrentPage(static_cast<int>(page));
            return;
        }
    }
    throw std::runtime_error("There is no page \"" + title + "\". Try --help.");
}

void Gallery::takeScreenshots(const std::string& folder) {
    std::filesystem::create_directories(std::filesystem::u8path(folder));
    for (std::size_t page = 0; page < m_pages.size(); ++page) {
        m_pTabs->setCurrentPage(static_cast<int>(page));
        qApp->processEvents();
        const std::string path = folder + "/" + fileName(pages()[page].m_sTitle) + ".png";
        if (!qt3::savePicture(this, path))
            throw std::runtime_error("Cannot write " + path);
        std::cout << path << std::endl;
    }
}
