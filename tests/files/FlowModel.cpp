#include "FlowModel.h"

#include "Boxes.h"
#include "ExtensionModel.h"

#include <algorithm>
#include <filesystem>

namespace flow {

namespace {

const Permission c_permissions[] = {Permission::Given, Permission::Cancel, Permission::RetryGiven,
                                    Permission::RetryCancel};

bool isPermitted(const Choice& choice) {
    return choice.permission == Permission::Given || choice.permission == Permission::RetryGiven;
}

Outcome outcomeOf(const Choice& choice) {
    if (choice.type == Type::Cancel || choice.existing == Existing::Cancel)
        return Outcome::Cancelled;
    const bool isAccepted = choice.type != Type::No && choice.existing != Existing::No &&
                            isPermitted(choice) && choice.isAscii;
    return isAccepted ? Outcome::Accepted : Outcome::Rejected;
}

// Without those that differ only in what is not reached.
std::vector<Choice> checkedChoices(const Choice& before) {
    std::vector<Choice> all;
    for (const Permission permission : c_permissions) {
        const Choice choice{before.type, before.existing, permission, true};
        all.push_back(choice);
        if (isPermitted(choice))
            all.push_back({before.type, before.existing, permission, false});
    }
    return all;
}

std::vector<Choice> saveChoices() {
    std::vector<Choice> all{{Type::No}, {Type::Cancel}};
    for (const Type type : {Type::Listed, Type::Appended}) {
        for (const Existing existing : {Existing::None, Existing::Yes, Existing::No}) {
            for (const Choice& choice : checkedChoices({type, existing}))
                all.push_back(choice);
        }
        all.push_back({type, Existing::Cancel});
    }
    return all;
}

std::vector<Pass> passesOf(const std::vector<Choice>& choices, bool rejected) {
    std::vector<Pass> all;
    if (!rejected)
        all.push_back({});
    for (const Choice& choice : choices) {
        if ((outcomeOf(choice) == Outcome::Rejected) == rejected)
            all.push_back({choice});
    }
    return all;
}

void addPasses(const Pass& begun, std::size_t files, bool rejected, std::vector<Pass>& all) {
    for (const Choice& choice : checkedChoices({})) {
        Pass pass = begun;
        pass.push_back(choice);
        if ((outcomeOf(pass) == Outcome::Rejected) == rejected)
            all.push_back(pass);
        if (outcomeOf(pass) == Outcome::Accepted && pass.size() < files)
            addPasses(pass, files, rejected, all);
    }
}

std::string endOf(const Choice& choice) {
    if (choice.type == Type::No || choice.type == Type::Cancel)
        return "extension";
    if (choice.existing == Existing::Cancel)
        return "existing";
    if (!isPermitted(choice))
        return "permission";
    if (!choice.isAscii)
        return "ascii";
    return choice.existing == Existing::No ? "existing" : "accepted";
}

std::string endOf(const Pass& pass) {
    if (pass.empty())
        return "dialog";
    const std::string end = endOf(pass.back());
    return pass.size() > 1 && end != "accepted" ? end + " of a later file" : end;
}

} // namespace

Outcome outcomeOf(const Pass& pass) {
    if (pass.empty())
        return Outcome::Cancelled;
    for (const Choice& choice : pass) {
        if (outcomeOf(choice) != Outcome::Accepted)
            return outcomeOf(choice);
    }
    return Outcome::Accepted;
}

std::vector<Pass> savePasses(bool rejected) {
    return passesOf(saveChoices(), rejected);
}

std::vector<Pass> openPasses(bool rejected) {
    return passesOf(checkedChoices({}), rejected);
}

std::vector<Pass> openSeveralPasses(std::size_t files, bool rejected) {
    std::vector<Pass> all;
    if (!rejected)
        all.push_back({});
    addPasses({}, files, rejected, all);
    return all;
}

Alphabet each(const std::vector<Pass>& passes) {
    Alphabet letters;
    for (const Pass& pass : passes)
        letters.push_back({{pass}});
    return letters;
}

Alphabet byEnd(const std::vector<Pass>& passes) {
    std::map<std::string, Letter> letters;
    for (const Pass& pass : passes)
        letters[endOf(pass)].passes.push_back(pass);
    Alphabet all;
    for (const auto& [end, letter] : letters)
        all.push_back(letter);
    return all;
}

Alphabet byTurns(Alphabet letters) {
    std::size_t rounds = 0;
    for (const Letter& letter : letters)
        rounds = std::max(rounds, letter.passes.size());
    Letter one;
    for (std::size_t round = 0; round < rounds; ++round) {
        for (Letter& letter : letters)
            one.passes.push_back(letter.take());
    }
    return {one};
}

std::vector<Series> allSeries(int passes, Alphabet rejected, Alphabet last) {
    std::vector<Series> all{{}};
    for (int pass = 1; pass <= passes; ++pass) {
        std::vector<Series> longer;
        for (const Series& begun : all) {
            for (Letter& letter : pass == passes ? last : rejected) {
                longer.push_back(begun);
                longer.back().push_back(letter.take());
            }
        }
        all.swap(longer);
    }
    return all;
}

// Dealt out a few in a row: what comes by turns must come in each share.
std::vector<Series> shareOf(const std::vector<Series>& all, std::size_t share, std::size_t shares) {
    std::vector<Series> own;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (i / 7 % shares == share)
            own.push_back(all[i]);
    }
    return own;
}

bool Model::save(const std::string& fileName, bool append, const Series& series) {
    const std::string name = fileName.empty() ? "Untitled" : fileName;
    const std::string proposal = name + *extension_model::missing(name, c_filter);
    for (const Pass& pass : series) {
        const Outcome outcome = saveOne(saveStart(proposal), pass, append);
        if (outcome != Outcome::Rejected)
            return outcome == Outcome::Accepted;
    }
    return false;
}

std::size_t Model::open(bool several, const Series& series) {
    const std::string start = openStart();
    for (const Pass& pass : series) {
        const Outcome outcome =
            openFiles(several ? Stage::OpenSeveral : Stage::OpenOne, start, pass);
        if (outcome != Outcome::Rejected)
            return outcome == Outcome::Accepted ? pass.size() : 0;
    }
    return 0;
}

Lines Model::registryLines() const {
    Lines lines;
    for (const auto& [key, text] : registry)
        lines.push_back(key + '=' + text);
    return lines;
}

void Model::forgetEarlierSaving() {
    if (!m_bSavePathSet)
        registry.erase("savingdir");
    m_bSavePathSet = true;
}

std::string Model::saveStart(const std::string& proposal) {
    const std::filesystem::path path(proposal);
    if (path.has_root_directory() && m_stage.isThere(path.parent_path().generic_string()))
        return proposal;
    forgetEarlierSaving();
    std::string folder = m_stage.home();
    if (registry.count("savingdir"))
        folder = registry["savingdir"];
    else if (registry.count("loadingdir"))
        folder = registry["loadingdir"];
    return (m_stage.isThere(folder) ? folder : m_stage.home()) + '/' + proposal;
}

std::string Model::openStart() {
    forgetEarlierSaving();
    for (const char* key : {"loadingdir", "savingdir"}) {
        if (registry.count(key) && m_stage.isThere(registry[key]))
            return registry[key];
    }
    return m_stage.home();
}

Outcome Model::saveOne(const std::string& start, const Pass& pass, bool append) {
    const std::string chosen = pass.empty() ? "" : m_stage.newPath(Stage::Save, pass[0]);
    m_stage.dialog(Stage::Save, start, pass.empty() ? Lines() : Lines{chosen});
    if (pass.empty())
        return Outcome::Cancelled;
    const Choice& choice = pass[0];
    if (choice.type != Type::Listed) {
        m_stage.put(chosen, true); // not the file that is asked about
        askAboutType(choice);
    }
    if (choice.type == Type::No || choice.type == Type::Cancel)
        return outcomeOf(choice);
    const std::string path = chosen + *extension_model::missing(chosen, c_filter);
    m_stage.put(path, choice.existing != Existing::None);
    askAboutExisting(choice, append ? "Append" : "Overwrite", path);
    if (choice.existing == Existing::Cancel)
        return Outcome::Cancelled;
    checkPermission(choice, unwritable, path);
    checkAscii(choice, path);
    if (outcomeOf(choice) == Outcome::Accepted)
        keep({path}, "savingdir", true);
    return outcomeOf(choice);
}

Outcome Model::openFiles(Stage::Dialog dialog, const std::string& start, const Pass& pass) {
    Lines chosen;
    for (const Choice& choice : pass)
        chosen.push_back(m_stage.newPath(dialog, choice));
    m_stage.dialog(dialog, start, chosen);
    for (std::size_t i = 0; i < pass.size(); ++i) {
        m_stage.put(chosen[i], true);
        checkPermission(pass[i], unreadable, chosen[i]);
        checkAscii(pass[i], chosen[i]);
    }
    if (outcomeOf(pass) == Outcome::Accepted)
        keep(chosen, "loadingdir", dialog == Stage::OpenOne);
    return outcomeOf(pass);
}

void Model::askAboutType(const Choice& choice) {
    m_stage.box(wrongType(".png"), choice.type == Type::Appended ? "Yes"
                                   : choice.type == Type::No     ? "No"
                                                                 : "Cancel");
}

void Model::askAboutExisting(const Choice& choice, const std::string& word,
                             const std::string& path) {
    if (choice.existing != Existing::None)
        m_stage.box(existing(word, path), choice.existing == Existing::Yes  ? "Yes"
                                          : choice.existing == Existing::No ? "No"
                                                                            : "Cancel");
}

void Model::checkPermission(const Choice& choice, support::Message (*message)(const std::string&),
                            const std::string& path) {
    const bool isRetried =
        choice.permission == Permission::RetryGiven || choice.permission == Permission::RetryCancel;
    std::vector<bool> tests(isRetried ? 1 : 0, false);
    tests.push_back(isPermitted(choice));
    m_stage.letTests(path, tests);
    if (isRetried)
        m_stage.box(message(path), "Retry");
    if (!isPermitted(choice))
        m_stage.box(message(path), "Cancel");
}

void Model::checkAscii(const Choice& choice, const std::string& path) {
    if (isPermitted(choice) && !choice.isAscii)
        m_stage.box(notAscii(path), "OK");
}

void Model::keep(const Lines& chosen, const char* directoryKey, bool isHistory) {
    paths = chosen;
    extension = extension_model::ofFile(chosen[0]);
    registry[directoryKey] = std::filesystem::path(chosen[0]).parent_path().generic_string();
    if (!isHistory)
        return;
    for (const char* slot : {"3", "2", "1"})
        registry[std::string("lastimage") + slot] =
            registry[std::string("lastimage") + static_cast<char>(*slot - 1)];
    registry["lastimage0"] = chosen[0];
}

} // namespace flow
