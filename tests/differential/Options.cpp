#include "Options.h"

#include <functional>
#include <map>
#include <stdexcept>

namespace differential {

namespace {

std::uint64_t numberIn(const std::string& text) {
    std::size_t length = 0;
    std::uint64_t number = 0;
    if (!text.empty() && text[0] != '-')
        number = std::stoull(text, &length);
    if (length == 0 || length != text.size())
        throw std::runtime_error("'" + text + "' is no number");
    return number;
}

} // namespace

const char* Options::usage() {
    return "Usage: differential [--class CLASS]... [--seed S] [--operations N] [what to do]\n"
           "\n"
           "Drives each class (or only those named) by N seeded random operations and events.\n"
           "\n"
           "  (nothing)            counts, and one digest of the log of each class\n"
           "  --from A --to B      writes the log of the cases with the operations A to B\n"
           "  --record FOLDER      writes digests and the beginning of the log into FOLDER\n"
           "  --check FOLDER       compares with what was recorded there; 1 if it differs\n"
           "  --against COMMAND    compares with this program built on the other toolkit, which\n"
           "                       COMMAND starts, and reduces the first difference\n"
           "  --isolated           only checks what is promised, in a second process, and reduces\n"
           "                       the first fault, crashes too\n"
           "  --rubbish            the same with extreme values\n"
           "  --replay FILE        writes the log of the operations in FILE, one a line\n"
           "  --differences        writes what may differ between the toolkits, and why\n"
           "  --serve              answers another such program\n"
           "  --help               this text\n";
}

Options Options::parsed(const std::vector<std::string>& arguments) {
    Options options;
    using Value = const std::string&;
    const std::map<std::string, std::function<void(Value)>> withValue = {
        {"--class", [&](Value text) { options.classes.push_back(text); }},
        {"--seed", [&](Value text) { options.seed = numberIn(text); }},
        {"--operations", [&](Value text) { options.operations = numberIn(text); }},
        {"--from", [&](Value text) { options.from = numberIn(text), options.mode = Text; }},
        {"--to", [&](Value text) { options.to = numberIn(text), options.mode = Text; }},
        {"--record", [&](Value text) { options.file = text, options.mode = Record; }},
        {"--check", [&](Value text) { options.file = text, options.mode = Check; }},
        {"--against", [&](Value text) { options.command = text, options.mode = Against; }},
        {"--replay", [&](Value text) { options.file = text, options.mode = Replay; }},
    };
    const std::map<std::string, std::function<void()>> alone = {
        {"--rubbish", [&] { options.rubbish = options.isolated = true; }},
        {"--isolated", [&] { options.isolated = true; }},
        {"--serve", [&] { options.mode = Serve; }},
        {"--differences", [&] { options.mode = Differences; }},
        {"--help", [&] { options.mode = Help; }},
    };
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& name = arguments[i];
        if (alone.count(name))
            alone.at(name)();
        else if (!withValue.count(name))
            throw std::runtime_error("'" + name + "' is unknown");
        else if (++i == arguments.size())
            throw std::runtime_error(name + " needs a value");
        else
            withValue.at(name)(arguments[i]);
    }
    return options;
}

} // namespace differential
