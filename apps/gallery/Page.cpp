#include "Page.h"

#include "FilesPage.h"
#include "ImageHeaderPage.h"

const std::vector<StPage>& pages() {
    static const std::vector<StPage> all = {
        {"Image header", createImageHeaderPage},
        {"Files", createFilesPage},
    };
    return all;
}

std::vector<std::string> pageTitles() {
    std::vector<std::string> titles;
    for (const StPage& page : pages())
        titles.push_back(page.m_sTitle);
    return titles;
}
