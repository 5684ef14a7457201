#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValuePointer.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2core/PluginExport.h>

namespace {

/// Leaves behind what it was given and a pointer.
class Echo : public TEVU::CPluginBase {
public:
    void Init(TEVU::CValue*, TEVU::CValueMap& init) override {
        m_sText = init.GetString("text", "");
    }
    void Setup(TEVU::CValueMap& setup) override {
        setup.SetEntry("setup", new TEVU::CValueString(m_sText));
    }
    void Execute(TEVU::CValueMap& setup) override {
        setup.SetEntry("pointer", new TEVU::CValuePointer<TEVU::CValueMap>(&setup));
        setup.SetEntry("result", new TEVU::CValueString(m_sText + m_sText));
    }

private:
    std::string m_sText;
};

class Counter : public Echo {
public:
    void Execute(TEVU::CValueMap& setup) override {
        setup.SetEntry("result", new TEVU::CValueLong(1));
    }
};

} // namespace

RUQ_EXPORT_PLUGINS(RUQ_PLUGIN_CLASS("echo", Echo), RUQ_PLUGIN_CLASS("counter", Counter))
