#include "Subjects.h"

#include "../User.h"

#include <CValueMapFileVersionHandling.h>
#include <exception>
#include <iostream>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2core/CValueString.h>
#include <sstream>

namespace differential {

namespace {

using Handling = TEVU::CValueMapFileVersionHandling;

class FileVersionSubject : public Subject {
public:
    FileVersionSubject(Stage& stage, const Taste& taste);

protected:
    void make(const Operation& beginning) override;
    void unmake() override;
    std::string state() override;

private:
    void addQuestions();
    void addMapActions();

    std::unique_ptr<User> m_pUser;
    std::unique_ptr<Handling> m_pHandling;
    std::unique_ptr<TEVU::CValueMap> m_pMap;
    std::streambuf* m_pErrors = nullptr; ///< Where standard error went before.
    std::ostringstream m_errors;
};

const std::vector<std::string> c_vIds = {"abc:x:1", "ab:x:1", "abc:x:2", "abd:y:1", "plain",
                                         "a:b",     "",       "::",      ":x:y",    "abc:x:1:z"};
const std::vector<std::string> c_vVersions = {
    "1.2", "1.10", "1", "1.0", "2.0", "", "x", "-1.5", "1e1", "1.2 ", "007", "99999999999", "inf"};

FileVersionSubject::FileVersionSubject(Stage& stage, const Taste& taste) : Subject(stage, taste) {
    const Source id = Taste::amongTexts(c_vIds);
    const Source version = Taste::amongTexts(c_vVersions);
    beginning({id, version});
    addQuestions();
    addMapActions();
    action("renew", 1, {id, version}, [this](const Operation& operation) {
        const Handling other(operation.text(0), operation.text(1));
        *m_pHandling = other;
    });
    action("copy", 1, {},
           [this](const Operation&) { m_pHandling = std::make_unique<Handling>(*m_pHandling); });
}

void FileVersionSubject::make(const Operation& beginning) {
    m_pErrors = std::cerr.rdbuf(m_errors.rdbuf());
    m_pUser = std::make_unique<User>([this](const std::string& line) { tell(line); });
    m_pUser->setParent(m_stage.before()->parentWidget());
    m_pHandling = std::make_unique<Handling>(beginning.text(0), beginning.text(1));
    m_pMap = std::make_unique<TEVU::CValueMap>();
}

void FileVersionSubject::unmake() {
    std::cerr.rdbuf(m_pErrors);
    m_pUser.reset();
}

void FileVersionSubject::addQuestions() {
    using Question = bool (Handling::*)(const TEVU::CValueMap&) const;
    const auto ask = [this](const std::string& name, Question question) {
        action(name, 2, {}, [=](const Operation&) {
            try {
                tell((m_pHandling.get()->*question)(*m_pMap) ? "yes" : "no");
            } catch (const std::exception& fault) {
                tell("throws " + quoted(fault.what()));
            }
        });
    };
    ask("IsIdAvailable", &Handling::IsIdAvailable);
    ask("IsIdOk", &Handling::IsIdOk);
    ask("IsIdCompatible", &Handling::IsIdCompatible);
    ask("IsAFutureFormatVersion", &Handling::IsAFutureFormatVersion);
    const Source text = Taste::amongTexts({"/data/a.map", "%1", "a%2", "", "<b>", "\xc3\xa9"});
    action("Verify", 10, {text, text, text}, [this](const Operation& operation) {
        const std::string file = operation.text(0);
        const std::string format = operation.text(1);
        const std::string context = operation.text(2);
        tell(m_pHandling->VerifyLoadedMapWithErrorMessageBox(
                 *m_pMap, file.empty() ? nullptr : file.c_str(), format.c_str(), context.c_str())
                 ? "goes on"
                 : "stops");
        m_pUser->forgetAnswers();
    });
    action("answer", 6, {Taste::amongTexts({"OK", "OK", "Cancel", ""})},
           [this](const Operation& operation) { m_pUser->answer(operation.text(0)); });
}

void FileVersionSubject::addMapActions() {
    for (const auto& [key, texts] : {std::pair{"id", c_vIds}, {"version", c_vVersions}}) {
        const std::string entry = key;
        action(entry, 5, {Taste::amongTexts(texts)}, [this, entry](const Operation& operation) {
            m_pMap->SetEntry(entry, new TEVU::CValueString(operation.text(0)));
        });
        action(entry + "AsNumber", 1, {}, [this, entry](const Operation&) {
            m_pMap->SetEntry(entry, new TEVU::CValueLong(1));
        });
    }
    action("AddIdVersion", 2, {}, [this](const Operation&) { m_pHandling->AddIdVersion(*m_pMap); });
    action("RemoveIdVersion", 1, {},
           [this](const Operation&) { m_pHandling->RemoveIdVersion(*m_pMap); });
}

std::string FileVersionSubject::state() {
    std::string state = quoted(m_pHandling->m_sIdentifier) + quoted(m_pHandling->m_sVersion) +
                        quoted(m_pHandling->m_sFamily) + quoted(m_pHandling->m_sRemainder) + ';';
    for (const TEVU::CValue_Key& key : m_pMap->Keys())
        state +=
            ' ' + key.String() + '=' +
            (m_pMap->HasEntry(key, typeid(TEVU::CValueString)) ? quoted(m_pMap->EntryString(key))
                                                               : "number");
    const std::string printed = m_errors.str();
    m_errors.str("");
    return state + (printed.empty() ? "" : "; printed " + quoted(printed));
}

} // namespace

std::unique_ptr<Subject> fileVersion(Stage& stage, const Taste& taste) {
    return std::make_unique<FileVersionSubject>(stage, taste);
}

} // namespace differential
