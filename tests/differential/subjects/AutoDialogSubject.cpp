#include "Subjects.h"

#include "../User.h"

#include <CAutoDialogPluginWrapper.h>
#include <exception>
#include <map>
#include <qt3/MessageBox.h>
#include <ruqlib2core/CPluginBase.h>
#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueMap.h>
#include <stdexcept>

namespace differential {

namespace {

using TEVU::CValue;
using TEVU::CValueMap;

const char c_sPlugin[] = "plugwdgt_orunparamdlg::autodlg";

/// "{gain: 2, inner: {}}"
std::string textOf(const CValue* value) {
    if (const auto* const number = dynamic_cast<const TEVU::CValueLong*>(value))
        return std::to_string(number->Long());
    if (const auto* const flag = dynamic_cast<const TEVU::CValueBool*>(value))
        return flag->Bool() ? "true" : "false";
    const auto* const map = dynamic_cast<const CValueMap*>(value);
    if (!map)
        return value ? "other" : "null";
    std::string text;
    for (const TEVU::CValue_Key& key : map->Keys())
        text += (text.empty() ? "" : ", ") + key.String() + ": " + textOf(map->Entry(key, false));
    return '{' + text + '}';
}

/// What the plug-in does in its calls, as the operations have said.
struct StPlan {
    std::function<void(const std::string&)> tell;
    std::map<std::string, std::string> deeds; ///< By the call: "init", "setup", "execute".
};

StPlan* s_plan = nullptr;

class PlannedPlugin : public TEVU::CPluginBase {
public:
    PlannedPlugin() { s_plan->tell("created"); }
    ~PlannedPlugin() override { s_plan->tell("destroyed"); }

    void Init(CValue* reserved, CValueMap& init) override {
        s_plan->tell(reserved ? "a value" : "null");
        act("init", init);
    }
    void Setup(CValueMap& setup) override { act("setup", setup); }
    void Execute(CValueMap& setup) override { act("execute", setup); }

private:
    static void act(const std::string& call, CValueMap& map) {
        s_plan->tell(call + ' ' + textOf(&map));
        const std::string deed = s_plan->deeds[call];
        if (deed == "cancel")
            map.SetEntry("cancelled", new TEVU::CValueBool(true));
        else if (deed == "cancel with a number")
            map.SetEntry("cancelled", new TEVU::CValueLong(1));
        else if (deed == "remove")
            map.RemoveEntry("parameters");
        else if (deed == "replace")
            map.SetEntry("parameters", new CValueMap);
        else if (deed == "replace by a number")
            map.SetEntry("parameters", new TEVU::CValueLong(3));
        else if (deed == "throw")
            throw std::runtime_error("of the plug-in");
        else if (deed == "ask" &&
                 qt3::MessageBox::warning(nullptr, "Plug-in", "Cancel?", qt3::MessageBox::Yes,
                                          qt3::MessageBox::No) == qt3::MessageBox::Yes)
            map.SetEntry("cancelled", new TEVU::CValueBool(true));
    }
};

TEVU::CPluginBase* newPlugin() {
    return new PlannedPlugin;
}

class Wrapper : public TEVU::CAutoDialogPluginWrapper {
public:
    explicit Wrapper(std::function<void(const std::string&)> tell) : m_tell(std::move(tell)) {}

    CValue* GetDialogValue() override {
        m_tell("GetDialogValue");
        return valueOf(m_sDialog);
    }
    CValue* GetParameterValue() override {
        m_tell("GetParameterValue");
        return valueOf(m_sParameters);
    }
    bool SetParameterValue(CValueMap& parameters) override {
        m_tell("SetParameterValue " + textOf(&parameters));
        return m_bAccepts;
    }

    std::string m_sDialog = "map";
    std::string m_sParameters = "map";
    bool m_bAccepts = true;

private:
    static CValue* valueOf(const std::string& kind) {
        if (kind == "throw")
            throw std::runtime_error("of the application");
        if (kind != "map")
            return kind == "number" ? new TEVU::CValueLong(7) : nullptr;
        auto* const map = new CValueMap;
        map->SetEntry("gain", new TEVU::CValueLong(2));
        return map;
    }

    std::function<void(const std::string&)> m_tell;
};

class AutoDialogSubject : public Subject {
public:
    AutoDialogSubject(Stage& stage, const Taste& taste);

protected:
    void make(const Operation&) override;
    void unmake() override {
        TEVU::RegisterPlugin(c_sPlugin, nullptr);
        s_plan = nullptr;
        m_pUser.reset();
    }
    std::string state() override {
        return m_pWrapper->m_sDialog + ' ' + m_pWrapper->m_sParameters +
               (m_pWrapper->m_bAccepts ? "" : ", refuses");
    }

private:
    StPlan m_plan;
    std::unique_ptr<User> m_pUser;
    std::unique_ptr<Wrapper> m_pWrapper;
};

AutoDialogSubject::AutoDialogSubject(Stage& stage, const Taste& taste) : Subject(stage, taste) {
    beginning({});
    const Source value = Taste::amongTexts({"map", "map", "map", "number", "null", "throw"});
    action("dialog", 2, {value},
           [this](const Operation& operation) { m_pWrapper->m_sDialog = operation.text(0); });
    action("parameters", 2, {value},
           [this](const Operation& operation) { m_pWrapper->m_sParameters = operation.text(0); });
    action("accept", 2, {Taste::flag(80)},
           [this](const Operation& operation) { m_pWrapper->m_bAccepts = operation.flag(0); });
    const Source deed = Taste::amongTexts({"", "", "", "cancel", "cancel with a number", "remove",
                                           "replace", "replace by a number", "throw", "ask"});
    action("plan", 6, {Taste::amongTexts({"init", "setup", "execute"}), deed},
           [this](const Operation& operation) {
               m_plan.deeds[operation.text(0)] = operation.text(1);
           });
    action("answer", 2, {Taste::amongTexts({"Yes", "No"})},
           [this](const Operation& operation) { m_pUser->answer(operation.text(0)); });
    action("show", 8, {}, [this](const Operation&) {
        try {
            tell(m_pWrapper->show() ? "confirmed" : "not confirmed");
        } catch (const std::exception& fault) {
            tell("throws " + quoted(fault.what()));
        }
        m_pUser->forgetAnswers();
    });
    action("copy", 1, {},
           [this](const Operation&) { m_pWrapper = std::make_unique<Wrapper>(*m_pWrapper); });
}

void AutoDialogSubject::make(const Operation&) {
    m_plan = {[this](const std::string& line) { tell(line); }, {}};
    s_plan = &m_plan;
    m_pUser = std::make_unique<User>(m_plan.tell);
    m_pWrapper = std::make_unique<Wrapper>(m_plan.tell);
    TEVU::RegisterPlugin(c_sPlugin, newPlugin);
}

} // namespace

std::unique_ptr<Subject> autoDialog(Stage& stage, const Taste& taste) {
    return std::make_unique<AutoDialogSubject>(stage, taste);
}

} // namespace differential
