#include "Gallery.h"
#include "Options.h"
#include "Page.h"

#include <exception>
#include <iostream>
#include <qt3/Application.h>

namespace {

// The toolkit takes its own options, such as -style, out of the arguments.
int runGallery(int argc, char** argv) {
    qt3::Application application(argc, argv);
    const Options options = parseOptions({argv + 1, argv + argc});
    Gallery gallery(options);
    qt3::setMainWidget(&gallery);
    if (!options.m_sPage.empty())
        gallery.showPage(options.m_sPage);
    gallery.show();
    if (options.m_sScreenshots.empty())
        return application.exec();
    gallery.takeScreenshots(options.m_sScreenshots);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (asksForHelp({argv + 1, argv + argc})) {
        std::cout << usage(pageTitles());
        return 0;
    }
    try {
        return runGallery(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << "gallery: " << error.what() << std::endl;
        return 1;
    }
}
