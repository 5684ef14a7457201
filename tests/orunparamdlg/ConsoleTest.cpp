#include "Maps.h"

#include <gtest/gtest.h>
#include <memory>
#include <ruqlib2core/CException.h>
#include <ruqlib2core/CPluginBase.h>

using namespace maps;
using TEVU::CValueMap;

TEST(ConsoleTest, DialogNeedsAnApplicationObject) {
    const std::unique_ptr<TEVU::CPluginBase> plugin(
        TEVU::GetNewPluginInstance("plugwdgt_orunparamdlg::autodlg"));
    CValueMap init = taken(map({{"dialog", dialogOf(entry("text", "a", "")).Clone()}}));
    plugin->Init(nullptr, init);
    CValueMap setup;
    plugin->Setup(setup);
    try {
        plugin->Execute(setup);
        ADD_FAILURE() << "nothing was thrown";
    } catch (const TEVU::CException& thrown) {
        EXPECT_EQ(thrown.Message(), "the dialog needs an application object");
    }
    EXPECT_EQ(setup.Size(), 0u);
}

TEST(ConsoleTest, DescriptionsAreChecked) {
    const std::unique_ptr<TEVU::CPluginBase> plugin(
        TEVU::GetNewPluginInstance("plugwdgt_orunparamdlg::autodlg"));
    CValueMap init = taken(map({{"dialog", dialogOf(entry("other", "a", "")).Clone()}}));
    EXPECT_THROW(plugin->Init(nullptr, init), TEVU::CException);
}
