#include "Gallery.h"
#include "Options.h"
#include "Page.h"
#include "Process.h"

#include <exception>
#include <iostream>
#include <qt3/Application.h>

namespace {

std::vector<char*> pointersTo(std::vector<std::string>& words) {
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    return pointers;
}

// The toolkit takes its own options, such as -style, out of the arguments.
int runGallery(std::vector<std::string>& commandLine) {
    std::vector<char*> arguments = pointersTo(commandLine);
    int argc = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    char** argv = arguments.data();
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
    process::useConsoleOfTheCaller();
    std::vector<std::string> commandLine = process::commandLine(argc, argv);
    if (asksForHelp({commandLine.begin() + 1, commandLine.end()})) {
        std::cout << usage(pageTitles());
        return 0;
    }
    try {
        return runGallery(commandLine);
    } catch (const std::exception& error) {
        std::cerr << "gallery: " << error.what() << std::endl;
        return 1;
    }
}
