#include "Page.h"

#include "DataPage.h"
#include "FilesPage.h"
#include "ImageHeaderPage.h"
#include "NumbersPage.h"
#include "SlidersPage.h"
#include "SmallWidgetsPage.h"

const std::vector<StPage>& pages() {
    static const std::vector<StPage> all = {
        {"Image header", createImageHeaderPage},
        {"Files", createFilesPage},
        {"Numbers", createNumbersPage},
        {"Sliders", createSlidersPage},
        {"Data", createDataPage},
        {"Small widgets", createSmallWidgetsPage},
    };
    return all;
}

std::vector<std::string> pageTitles() {
    std::vector<std::string> titles;
    for (const StPage& page : pages())
        titles.push_back(page.m_sTitle);
    return titles;
}
